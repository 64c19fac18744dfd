#include "host/window/LayoutEditor.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QVBoxLayout>

namespace ORXKMPrintProp::host {
namespace {

/// The text as it was typed; `toPlainText` would make plain blanks of those that don't break.
QString TextOf(const QPlainTextEdit& edit, bool usesCarriageReturns) {
  QString text = edit.document()->toRawText();
  const QString lineEnd = usesCarriageReturns ? QStringLiteral("\r\n") : QStringLiteral("\n");
  return text.replace(QChar::ParagraphSeparator, lineEnd).replace(QChar::LineSeparator, lineEnd);
}

}  // namespace

std::optional<QString> EditLayout(const QString& name, const QString& layout, bool readOnly, QWidget* parent) {
  QDialog dialog(parent);
  dialog.setWindowTitle(QStringLiteral("Layout: ") + name);
  QPlainTextEdit edit;
  edit.setPlainText(layout);
  edit.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  edit.setAccessibleName(dialog.windowTitle());
  edit.setTabChangesFocus(true);
  edit.setReadOnly(readOnly);
  QDialogButtonBox buttons(readOnly ? QDialogButtonBox::Close : QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  QObject::connect(&buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(&buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  QVBoxLayout column(&dialog);
  column.addWidget(&edit);
  column.addWidget(&buttons);
  dialog.resize(560, 360);
  if (dialog.exec() != QDialog::Accepted || !edit.document()->isModified()) return {};
  return TextOf(edit, layout.contains(QStringLiteral("\r\n")));
}

}  // namespace ORXKMPrintProp::host
