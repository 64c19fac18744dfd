#include "host/window/FileMenu.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "host/window/Remembered.h"
#include "host/window/Translation.h"

namespace ORXKMPrintProp::host {
namespace {

const QString kFiles = QStringLiteral("files/recent");

/// "1 sales.json - ~/reports", without a mnemonic in the name.
QString Caption(qsizetype number, const QString& path) {
  const QFileInfo file(path);
  QString folder = QDir::toNativeSeparators(file.absolutePath());
  if (folder.startsWith(QDir::homePath() + u'/')) folder.replace(0, QDir::homePath().size(), u'~');
  QString name = file.fileName() + QStringLiteral(" - ") + folder;
  name.replace(u'&', QStringLiteral("&&"));
  return (number < 10 ? u'&' + QString::number(number) : QStringLiteral("1&0")) + u' ' + name;
}

}  // namespace

FileMenu::FileMenu(Editor& editor, QWidget* parent) : QMenu(parent), editor_(editor) {
  connect(this, &QMenu::aboutToShow, this, [this] { ShowRecent(); });
}

void FileMenu::ShowRecent() {
  clear();
  addAction(Tr("&New\tCtrl+N"), this, [this] { editor_.New(); });
  addAction(Tr("&Open...\tCtrl+O"), this, [this] { editor_.Open(); });
  addSeparator();
  addAction(Tr("&Save\tCtrl+S"), this, [this] { editor_.Save(); });
  addAction(Tr("Save &as...\tCtrl+Shift+S"), this, [this] { editor_.SaveAs(); });
  addSeparator();
  for (qsizetype number = 0; const std::string& file : RememberedFiles()) {
    addAction(Caption(++number, QFile::decodeName(file.c_str())), this, [this, file] { editor_.OpenRecent(file); });
  }
}

RecentFiles RememberedFiles() {
  RecentFiles files;
  for (const QString& file : Remembered(kFiles).toStringList()) files.push_back(file.toStdString());
  if (files.size() > kMostRecentFiles) files.resize(kMostRecentFiles);
  return files;
}

void RememberFiles(const RecentFiles& files) {
  QStringList paths;
  for (const std::string& file : files) paths.append(QString::fromStdString(file));
  Remember(kFiles, paths);
}

}  // namespace ORXKMPrintProp::host
