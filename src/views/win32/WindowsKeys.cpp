#include "views/win32/WindowsKeys.h"

namespace ORXKMPrintProp::win32 {

views::KeyPress ToKeyPress(WPARAM virtualKey) {
  using views::Key;
  static constexpr struct {
    WPARAM virtualKey;
    Key key;
  } kKeys[] = {
      {VK_UP, Key::Up},      {VK_DOWN, Key::Down},    {VK_LEFT, Key::Left},     {VK_RIGHT, Key::Right},
      {VK_HOME, Key::Home},  {VK_END, Key::End},      {VK_PRIOR, Key::PageUp},  {VK_NEXT, Key::PageDown},
      {VK_SPACE, Key::Space}, {VK_TAB, Key::Tab},
  };
  const auto isDown = [](int key) { return ::GetKeyState(key) < 0; };
  views::KeyPress press{
      .shift = isDown(VK_SHIFT), .control = isDown(VK_CONTROL), .alt = isDown(VK_MENU)};
  if (press.control && virtualKey == 'A') press.key = Key::A;
  for (const auto& row : kKeys) {
    if (row.virtualKey == virtualKey) press.key = row.key;
  }
  return press;
}

}  // namespace ORXKMPrintProp::win32
