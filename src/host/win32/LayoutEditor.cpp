#include "host/win32/LayoutEditor.h"

#include <commctrl.h>

#include <utility>

#include "host/editor/LayoutText.h"
#include "host/win32/Form.h"
#include "host/win32/QuestionBox.h"
#include "views/win32/WindowsText.h"

namespace ORXKMPrintProp::host {
namespace {

/// A text field ends at a NUL; it shows the character's picture in its place.
constexpr char16_t kPictureOfNul = u'\u2400';

std::vector<ButtonText> Buttons(bool readOnly) {
  if (readOnly) return {{IDCANCEL, L"&Close"}};
  return {{IDOK, L"&OK"}, {IDCANCEL, L"&Cancel"}};
}

class LayoutEditor : public Form {
 public:
  LayoutEditor(const Text& name, const Text& layout, bool readOnly)
      : Form(L"Layout: " + win32::ToWide(name), Buttons(readOnly), readOnly ? IDCANCEL : IDOK, true),
        layout_(layout),
        shown_(WithLineEnds(layout, u"\r\n")),
        readOnly_(readOnly) {
    for (char16_t& character : shown_) {
      if (character == u'\0') character = kPictureOfNul;
    }
  }

  /// As the user has left it.
  Text Edited() const {
    Text text = WithLineEnds(text_, LineEndOf(layout_));
    for (char16_t& character : text) {
      if (character == kPictureOfNul && layout_.find(u'\0') != Text::npos) character = u'\0';
    }
    return text;
  }

 private:
  void Make() override {
    field_ = MakeChild(Window(), L"EDIT", L"",
                       ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | ES_NOHIDESEL | WS_VSCROLL | WS_TABSTOP |
                           (readOnly_ ? ES_READONLY : 0),
                       0, WS_EX_CLIENTEDGE);
    ::SendMessageW(field_, EM_SETLIMITTEXT, 0x7FFFFFFE, 0);
    ::SetWindowTextW(field_, win32::ToWide(shown_).c_str());
    ::SetWindowSubclass(field_, OnFieldMessage, 0, 0);
  }
  /// All is selected by Control and A on every system.
  static LRESULT CALLBACK OnFieldMessage(HWND field, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    constexpr WPARAM kControlA = 1;
    if (message != WM_CHAR || wParam != kControlA) return ::DefSubclassProc(field, message, wParam, lParam);
    ::SendMessageW(field, EM_SETSEL, 0, -1);
    return 0;
  }

  SIZE Fit(HFONT) override {
    OwnedFont font = FixedFont(Dpi());
    ::SendMessageW(field_, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
    font_ = std::move(font);
    return {Pixels(540, Dpi()), Pixels(310, Dpi())};
  }
  void MoveTo(const RECT& content) override {
    ::MoveWindow(field_, content.left, content.top, content.right - content.left, content.bottom - content.top, TRUE);
  }
  HWND First() const override { return field_; }

  bool MayEnd(int id) override {
    text_ = win32::TextOf(field_);
    if (readOnly_ || id == IDOK || text_ == shown_) return true;
    return AskIn(Window(), LayoutIsThrownAway()) == Choice::Discard;
  }

  const Text& layout_;
  Text shown_;
  const bool readOnly_;
  Text text_;
  HWND field_ = nullptr;
  OwnedFont font_;
};

}  // namespace

std::optional<Text> EditLayoutIn(HWND owner, const Text& name, const Text& layout, bool readOnly) {
  LayoutEditor editor(name, layout, readOnly);
  if (editor.Run(owner) != IDOK) return {};
  const Text edited = editor.Edited();
  if (edited == layout) return {};
  return edited;
}

}  // namespace ORXKMPrintProp::host
