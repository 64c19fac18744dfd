#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <type_traits>

namespace ORXKMPrintProp::host {

/// What is so many pixels long at 96 pixels to an inch.
inline int Pixels(int at96, UINT dpi) { return ::MulDiv(at96, static_cast<int>(dpi), 96); }

struct EndFont {
  void operator()(HFONT font) const { ::DeleteObject(font); }
};
using OwnedFont = std::unique_ptr<std::remove_pointer_t<HFONT>, EndFont>;

/// What the user reads messages in, at a resolution.
OwnedFont MessageFont(UINT dpi);
/// The same size with characters that are all as wide.
OwnedFont FixedFont(UINT dpi);

/// Of a text, broken into lines where it is wider than that.
SIZE SizeOf(HFONT font, const std::wstring& text, int width = 32767);

/// Of the monitor on which most of the window is, without the task bar.
RECT WorkAreaAt(HWND window);
/// Sets what is inside a top-level window, and moves it so that it is seen whole where the screen has the room.
void SetClientSize(HWND window, SIZE size);

/// Makes a child window with that font. @throws std::system_error
HWND MakeChild(HWND parent, const wchar_t* kind, const std::wstring& text, DWORD style, int id = 0, DWORD extended = 0);

}  // namespace ORXKMPrintProp::host
