#include "views/win32/TextBoxView.h"

#include <utility>

#include "views/win32/WindowsText.h"

namespace ORXKMPrintProp::win32 {
namespace {

constexpr wchar_t kControlA = 1;

bool IsControl(wchar_t character) { return character < L' ' || character == 0x7F; }

}  // namespace

void TextBoxView::Make(HWND parent, int id) {
  WidgetView::Make(parent, id);
  Send(EM_SETLIMITTEXT, 0x7FFFFFFE);
}

void TextBoxView::Refresh() {
  WidgetView::Refresh();
  SetFont();
  const bool isShown = TextOf(Window()) == widget_.GetText();
  if (isShown && isTyping_) return;
  // What is written anew is another text, though it reads the same; undo is not to lead out of it.
  if (!isShown) {
    isShowing_ = true;
    ::SetWindowTextW(Window(), ToWide(widget_.GetText()).c_str());
    isShowing_ = false;
  }
  Send(EM_EMPTYUNDOBUFFER);
}

void TextBoxView::OnNotify(UINT notification) {
  if (notification != EN_CHANGE || isShowing_) return;
  Text text = TextOf(Window());
  if (text == widget_.GetText()) return;
  isTyping_ = true;
  Perform([&] { widget_.UserEdit(std::move(text)); });
  isTyping_ = false;
}

std::optional<LRESULT> TextBoxView::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // Each is undone by itself.
  if (message == WM_KEYDOWN && (wParam == VK_DELETE || wParam == VK_BACK)) Send(EM_EMPTYUNDOBUFFER);
  if (message == WM_CHAR) return TakeCharacter(static_cast<wchar_t>(wParam), lParam);
  return ViewOf::OnMessage(message, wParam, lParam);
}

LRESULT TextBoxView::TakeCharacter(wchar_t character, LPARAM lParam) {
  if (character == kControlA) {
    Send(EM_SETSEL, 0, -1);
    return 0;
  }
  const bool isBackspace = character == TextBox::kBackspace;
  // They enter nothing, and the window would beep.
  if (character == L'\r' || character == L'\n' || character == L'\t' || character == 0x1B) return 0;
  auto key = static_cast<char16_t>(character);
  if (isBackspace || !IsControl(character)) Attempt([&] { key = widget_.FilterKey(key); });
  if (key == 0 || (isBackspace && key < u' ' && key != TextBox::kBackspace)) return 0;
  if (key == TextBox::kBackspace) SelectPairAhead();
  return PassOn(WM_CHAR, key, lParam);
}

/// Both halves of a character go at once.
void TextBoxView::SelectPairAhead() {
  DWORD begin = 0, end = 0;
  Send(EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
  const Text text = TextOf(Window());
  if (begin != end || end < 2 || end > text.size()) return;
  const bool isPair = IS_SURROGATE_PAIR(text[end - 2], text[end - 1]);
  if (isPair) Send(EM_SETSEL, end - 2, static_cast<LPARAM>(end));
}

}  // namespace ORXKMPrintProp::win32
