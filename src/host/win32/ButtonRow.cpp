#include "host/win32/ButtonRow.h"

#include <algorithm>

#include "host/win32/Metrics.h"
#include "views/win32/WindowsText.h"

namespace ORXKMPrintProp::host {

void ButtonRow::Make(HWND parent, const std::vector<ButtonText>& buttons, int preset) {
  preset_ = preset;
  for (const auto& [id, caption] : buttons) {
    windows_.push_back(MakeChild(parent, L"BUTTON", caption, BS_PUSHBUTTON | BS_NOTIFY | WS_TABSTOP, id));
  }
}

void ButtonRow::SetFont(HFONT font, UINT dpi) {
  gap_ = Pixels(7, dpi);
  width_ = Pixels(75, dpi);
  height_ = Pixels(23, dpi);
  for (const HWND window : windows_) {
    ::SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    const Text caption = win32::TextOf(window);
    const SIZE size = SizeOf(font, win32::ToWide(caption));
    width_ = std::max(width_, static_cast<int>(size.cx) + Pixels(16, dpi));
    height_ = std::max(height_, static_cast<int>(size.cy) + Pixels(10, dpi));
  }
}

void ButtonRow::MoveTo(int right, int bottom) {
  int left = right - Width();
  for (const HWND window : windows_) {
    ::SetWindowPos(window, nullptr, left, bottom - height_, width_, height_, SWP_NOZORDER | SWP_NOACTIVATE);
    left += width_ + gap_;
  }
}

HWND ButtonRow::Window(int id) const {
  const auto found =
      std::find_if(windows_.begin(), windows_.end(), [&](HWND window) { return ::GetDlgCtrlID(window) == id; });
  return found == windows_.end() ? nullptr : *found;
}

bool ButtonRow::Contains(HWND window) const {
  return std::find(windows_.begin(), windows_.end(), window) != windows_.end();
}

void ButtonRow::ShowDefault() const {
  const HWND focus = ::GetFocus();
  const auto kind = focus ? ::SendMessageW(focus, WM_GETDLGCODE, 0, 0) : 0;
  const bool isOther = !Contains(focus) && (kind & (DLGC_UNDEFPUSHBUTTON | DLGC_DEFPUSHBUTTON));
  const HWND shown = Contains(focus) ? focus : isOther ? nullptr : Window(preset_);
  for (const HWND window : windows_) {
    const WPARAM style = window == shown ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    if ((static_cast<WPARAM>(::GetWindowLongPtrW(window, GWL_STYLE)) & BS_TYPEMASK) == style) continue;
    ::SendMessageW(window, BM_SETSTYLE, style, TRUE);
  }
}

HWND ButtonRow::ByMnemonic(wchar_t character) const {
  const auto upper = [](wchar_t c) { return ::CharUpperW(reinterpret_cast<wchar_t*>(static_cast<UINT_PTR>(c))); };
  for (const HWND window : windows_) {
    const Text caption = win32::TextOf(window);
    const std::size_t mark = caption.find(u'&');
    if (mark + 1 < caption.size() && upper(static_cast<wchar_t>(caption[mark + 1])) == upper(character)) return window;
  }
  return nullptr;
}

}  // namespace ORXKMPrintProp::host
