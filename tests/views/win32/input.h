#pragma once

#include <windows.h>

namespace ORXKMPrintProp::win32::test {

// Input as hardware gives it, to whatever window is there, of any process.

/// The flags of its press and of its release.
struct MouseButton {
  DWORD down;
  DWORD up;
};
constexpr MouseButton kLeftButton{MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP};
constexpr MouseButton kRightButton{MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP};
constexpr MouseButton kMiddleButton{MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP};

void PointAt(HWND window, POINT at);
void Press(const MouseButton& button, bool down);
/// With the left button. A window that is not seen can't be clicked.
void ClickAt(HWND window, POINT at);

/// @param flags KEYEVENTF_...
void Strike(WORD virtualKey, DWORD flags, WORD character = 0);

}  // namespace ORXKMPrintProp::win32::test
