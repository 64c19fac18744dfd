#include "views/qt/TextBoxView.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPointer>
#include <limits>
#include <utility>

#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt {

TextBoxView::TextBoxView(TextBox& box, const Reports& reports, QWidget* parent) : ViewOf(box, reports, parent) {
  setMaxLength(std::numeric_limits<int>::max());
  connect(this, &QLineEdit::textChanged, this, [this](const QString& shown) {
    Text text = ToText(shown);
    if (text == widget_.GetText()) return;
    const QPointer<TextBoxView> self(this);
    isTyping_ = true;
    Perform([&] { widget_.UserEdit(std::move(text)); });
    if (self) isTyping_ = false;
  });
}

void TextBoxView::Refresh() {
  WidgetView::Refresh();
  ShowText();
}

void TextBoxView::Show(WidgetProperty what) { what == WidgetProperty::Text ? ShowText() : WidgetView::Show(what); }

void TextBoxView::ShowText() {
  const QString text = ToQString(widget_.GetText());
  const bool isShown = text == this->text();
  // What is written anew is another text, though it reads the same; undo is not to lead out of it.
  if (isShown && (isTyping_ || !(isUndoAvailable() || isRedoAvailable()))) return;
  const int cursor = cursorPosition();
  setText(text);
  if (isShown) setCursorPosition(cursor);
}

void TextBoxView::keyPressEvent(QKeyEvent* event) {
  const bool isBackspace = event->key() == Qt::Key_Backspace;
  if (isBackspace) {
    const char16_t key = FilterKey(TextBox::kBackspace);
    if (key != TextBox::kBackspace) {
      if (key >= u' ') insert(QString(QChar(key)));
      return;
    }
  }
  const QString text = isBackspace ? event->text() : Filtered(event->text());
  QKeyEvent filtered(event->type(), event->key(), event->modifiers(), event->nativeScanCode(),
                     event->nativeVirtualKey(), event->nativeModifiers(), text, event->isAutoRepeat(),
                     static_cast<quint16>(event->count()));
  QLineEdit::keyPressEvent(&filtered);
  // A key that was dropped is done with all the same.
  event->setAccepted(filtered.isAccepted() || text != event->text());
}

void TextBoxView::inputMethodEvent(QInputMethodEvent* event) {
  QInputMethodEvent filtered(event->preeditString(), event->attributes());
  filtered.setCommitString(Filtered(event->commitString()), event->replacementStart(), event->replacementLength());
  QLineEdit::inputMethodEvent(&filtered);
  event->setAccepted(filtered.isAccepted());
}

QString TextBoxView::Filtered(const QString& typed) {
  Text left;
  Attempt([&] { left = widget_.Filter(ToText(typed)); });
  return ToQString(left);
}

char16_t TextBoxView::FilterKey(char16_t key) {
  char16_t left = 0;
  Attempt([&] { left = widget_.FilterKey(key); });
  return left;
}

}  // namespace ORXKMPrintProp::qt
