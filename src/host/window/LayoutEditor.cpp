#include "host/window/LayoutEditor.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QVBoxLayout>

#include "host/editor/LayoutText.h"
#include "host/window/Translation.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::host {
namespace {

class LayoutEditor : public QDialog {
 public:
  LayoutEditor(const Text& name, const Text& layout, bool readOnly, const std::function<Choice(const Question&)>& ask,
               QWidget* parent)
      : QDialog(parent), ask_(ask) {
    setWindowTitle(Tr("Layout: {0}", qt::ToQString(name)));
    edit_.setPlainText(qt::ToQString(layout));
    edit_.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    edit_.setAccessibleName(windowTitle());
    edit_.setTabChangesFocus(true);
    edit_.setReadOnly(readOnly);
    shown_ = edit_.document()->toRawText();
    auto* const buttons = new QDialogButtonBox(
        readOnly ? QDialogButtonBox::Close : QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &LayoutEditor::reject);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(&edit_);
    column->addWidget(buttons);
    resize(560, 360);
  }

  bool IsChanged() const { return edit_.document()->toRawText() != shown_; }

  /// As it was typed; `toPlainText` would make plain blanks of those that don't break.
  Text Edited() const {
    QString text = edit_.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    return qt::ToText(text);
  }

  /// By Escape, Cancel, or when the window is closed.
  void reject() override {
    if (!IsChanged() || ask_(LayoutIsThrownAway()) == Choice::Discard) QDialog::reject();
  }

 private:
  const std::function<Choice(const Question&)>& ask_;
  QPlainTextEdit edit_{this};
  QString shown_;
};

}  // namespace

std::optional<Text> EditLayout(const Text& name, const Text& layout, bool readOnly,
                               const std::function<Choice(const Question&)>& ask, QWidget* parent) {
  LayoutEditor editor(name, layout, readOnly, ask, parent);
  if (editor.exec() != QDialog::Accepted || !editor.IsChanged()) return {};
  return WithLineEnds(editor.Edited(), LineEndOf(layout));
}

}  // namespace ORXKMPrintProp::host
