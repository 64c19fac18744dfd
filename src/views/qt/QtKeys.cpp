#include "views/qt/QtKeys.h"

#include <QKeyEvent>

#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt {

views::KeyPress ToKeyPress(const QKeyEvent& event) {
  using views::Key;
  static constexpr struct {
    int qtKey;
    Key key;
  } kKeys[] = {
      {Qt::Key_Up, Key::Up},         {Qt::Key_Down, Key::Down},         {Qt::Key_Left, Key::Left},
      {Qt::Key_Right, Key::Right},   {Qt::Key_Home, Key::Home},         {Qt::Key_End, Key::End},
      {Qt::Key_PageUp, Key::PageUp}, {Qt::Key_PageDown, Key::PageDown}, {Qt::Key_Space, Key::Space},
      {Qt::Key_Tab, Key::Tab},       {Qt::Key_Backtab, Key::Tab},
  };
  views::KeyPress press;
  for (const auto& row : kKeys) {
    if (row.qtKey == event.key()) press.key = row.key;
  }
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  press.shift = modifiers.testFlag(Qt::ShiftModifier);
  press.control = modifiers & (Qt::ControlModifier | Qt::MetaModifier);
  press.alt = modifiers.testFlag(Qt::AltModifier);
  if (press.control && event.key() == Qt::Key_A) press.key = Key::A;
  press.text = ToText(event.text());
  return press;
}

}  // namespace ORXKMPrintProp::qt
