#include "host/window/FilePicker.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include "host/window/Translation.h"

namespace ORXKMPrintProp::host {

std::optional<std::string> PickFileIn(QWidget* parent, FileUse use, const std::string& proposed) {
  const bool saves = use == FileUse::Save;
  QFileDialog dialog(parent, saves ? Tr("Save settings as") : Tr("Open settings"));
  dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setNameFilters({Tr("Settings documents (*.json)"), Tr("All files (*)")});
  dialog.setDefaultSuffix(QStringLiteral("json"));
  if (!proposed.empty()) {
    const QFileInfo file(QFile::decodeName(proposed.c_str()));
    dialog.setDirectory(file.absolutePath());
    if (saves) dialog.selectFile(file.fileName());
  }
  if (dialog.exec() != QDialog::Accepted) return {};
  return QFile::encodeName(dialog.selectedFiles().front()).toStdString();
}

}  // namespace ORXKMPrintProp::host
