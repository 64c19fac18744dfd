#include "host/window/KeysWindow.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "host/editor/EditorKeys.h"
#include "host/window/Translation.h"

namespace ORXKMPrintProp::host {
namespace {

QString TableOfKeys() {
  QString table = QStringLiteral("<table cellpadding='3'>");
  std::string where;
  for (const EditorKey& key : EditorKeys(true)) {
    if (where != key.where) {
      where = key.where;
      const QString heading = QString::fromStdString(where);
      table += QStringLiteral("<tr><th colspan='2' align='left'>%1</th></tr>")
                   .arg(heading.left(1).toUpper() + heading.mid(1).toHtmlEscaped());
    }
    table +=
        QStringLiteral("<tr><td>%1</td><td>%2</td></tr>")
            .arg(QString::fromStdString(key.keys).toHtmlEscaped(), QString::fromStdString(key.does).toHtmlEscaped());
  }
  return table + QStringLiteral("</table>");
}

}  // namespace

void ShowKeys(QWidget* parent) {
  QDialog dialog(parent);
  dialog.setWindowTitle(Tr("Keys"));
  QTextBrowser table;
  table.setHtml(TableOfKeys());
  table.setAccessibleName(dialog.windowTitle());
  table.setTabChangesFocus(true);
  // It is read by keyboard, too.
  table.setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
  QDialogButtonBox buttons(QDialogButtonBox::Close);
  QObject::connect(&buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  QVBoxLayout column(&dialog);
  column.addWidget(&table);
  column.addWidget(&buttons);
  dialog.resize(620, 560);
  dialog.exec();
}

}  // namespace ORXKMPrintProp::host
