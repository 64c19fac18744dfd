#include "views/win32/TextBoxView.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "views/win32/WindowsText.h"

namespace ORXKMPrintProp::win32 {
namespace {

constexpr wchar_t kEditing[] = {3, 22, 24, 26};  ///< what the keys for copy, paste, cut and undo type

bool IsControl(wchar_t character) { return character < L' ' || character == 0x7F; }

/// All the text in the clipboard; the window itself would cut it at the end of a line.
std::wstring Pasted(HWND window) {
  std::wstring text;
  if (!::OpenClipboard(window)) return text;
  if (const HANDLE held = ::GetClipboardData(CF_UNICODETEXT)) {
    if (const auto* const begin = static_cast<const wchar_t*>(::GlobalLock(held))) {
      const wchar_t* const end = begin + ::GlobalSize(held) / sizeof *begin;
      text.assign(begin, std::find(begin, end, L'\0'));
      ::GlobalUnlock(held);
    }
  }
  ::CloseClipboard();
  return text;
}

}  // namespace

void TextBoxView::Make(HWND parent, int id) {
  WidgetView::Make(parent, id);
  Send(EM_SETLIMITTEXT, 0x7FFFFFFE);
}

void TextBoxView::Refresh() {
  WidgetView::Refresh();
  SetFont();
  const bool isShown = EditTextOf(Window()) == widget_.GetText();
  if (isShown && isTyping_) return;
  // What is written anew is another text, though it reads the same; undo is not to lead out of it.
  if (!isShown) {
    isShowing_ = true;
    ::SetWindowTextW(Window(), ToEdit(widget_.GetText()).c_str());
    isShowing_ = false;
  }
  Send(EM_EMPTYUNDOBUFFER);
}

void TextBoxView::OnNotify(UINT notification) {
  if (notification != EN_CHANGE || isShowing_) return;
  Text text = EditTextOf(Window());
  if (text == widget_.GetText()) return;
  isTyping_ = true;
  Attempt([&] { widget_.UserEdit(std::move(text)); });
  Refresh();
  isTyping_ = false;
  surface_.PostUse(widget_, 0);
}

/// What has been typed is there already; what others make of it may end the window.
void TextBoxView::Use(WPARAM) {
  isTyping_ = true;
  Perform([] {});
  isTyping_ = false;
}

std::optional<LRESULT> TextBoxView::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // Each is undone by itself.
  if (message == WM_KEYDOWN && (wParam == VK_DELETE || wParam == VK_BACK)) Send(EM_EMPTYUNDOBUFFER);
  const bool isControlHeld = ::GetKeyState(VK_CONTROL) < 0 && ::GetKeyState(VK_MENU) >= 0;
  if (message == WM_KEYDOWN && wParam == 'A' && isControlHeld) Send(EM_SETSEL, 0, -1);
  switch (message) {
    case WM_CHAR:
    case WM_IME_CHAR:
      return TakeCharacter(static_cast<wchar_t>(wParam), lParam);
    case WM_UNICHAR:
      if (wParam == UNICODE_NOCHAR) return TRUE;
      for (const wchar_t half : UnitsOf(static_cast<char32_t>(wParam))) TakeCharacter(half, lParam);
      return 0;
    case WM_PASTE:
      Send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(Pasted(Window()).c_str()));
      return 0;
    default:
      return ViewOf::OnMessage(message, wParam, lParam);
  }
}

LRESULT TextBoxView::TakeCharacter(wchar_t character, LPARAM lParam) {
  const bool isBackspace = character == TextBox::kBackspace;
  const bool isEditing = std::find(std::begin(kEditing), std::end(kEditing), character) != std::end(kEditing);
  auto key = isEditing ? static_cast<char16_t>(character) : char16_t{};
  if (isBackspace || !IsControl(character)) {
    Attempt([&] { key = widget_.FilterKey(static_cast<char16_t>(character)); });
  }
  if (key == 0 || (isBackspace && key < u' ' && key != TextBox::kBackspace)) return 0;
  if (key == TextBox::kBackspace) SelectPairAhead();
  return PassOn(WM_CHAR, key, lParam);
}

/// Both halves of a character go at once.
void TextBoxView::SelectPairAhead() {
  DWORD begin = 0, end = 0;
  Send(EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
  const Text text = EditTextOf(Window());
  if (begin != end || end < 2 || end > text.size()) return;
  const bool isPair = IS_SURROGATE_PAIR(text[end - 2], text[end - 1]);
  if (isPair) Send(EM_SETSEL, end - 2, static_cast<LPARAM>(end));
}

}  // namespace ORXKMPrintProp::win32
