#include "views/win32/input.h"

#include "views/win32/windows_of.h"

namespace ORXKMPrintProp::win32::test {

void PointAt(HWND window, POINT at) {
  ::ClientToScreen(window, &at);
  ::SetCursorPos(at.x, at.y);
}

void Press(const MouseButton& button, bool down) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = down ? button.down : button.up;
  ::SendInput(1, &input, sizeof input);
}

void ClickAt(HWND window, POINT at) {
  if (!::IsWindowVisible(window)) return;
  // Twice at one place within half a second would be a double click.
  static LONG aside = 0;
  aside = 8 - aside;
  at.x += aside;
  PointAt(window, at);
  // A list that has opened takes no click without a move.
  Pump();
  for (const bool down : {true, false}) Press(kLeftButton, down);
}

void Strike(WORD virtualKey, DWORD flags, WORD character) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = virtualKey;
  input.ki.wScan = character;
  input.ki.dwFlags = flags;
  ::SendInput(1, &input, sizeof input);
}

}  // namespace ORXKMPrintProp::win32::test
