#include "views/ListPointer.h"

#include <algorithm>
#include <utility>

namespace ORXKMPrintProp::views {

ListPointer::~ListPointer() {
  if (held_ == 0) return;
  try {
    list_.UserMouseUp(held_);
  } catch (...) {
    return;
  }
}

void ListPointer::Press(std::int16_t button, bool isAnotherHeld, int y) {
  const int entry = glass_.EntryAt(y);
  if (button == 0 || isAnotherHeld || entry < 0) return;
  Release();
  held_ = button;
  glass_.Perform([this, button, entry] { list_.UserMouseDown(static_cast<std::int16_t>(entry), button); });
}

void ListPointer::Move(bool isLeftHeld, bool isAnotherHeld, int y) {
  if (held_ != ListBox::kLeftButton) return;
  if (!isLeftHeld) {
    Release();
  } else if (!isAnotherHeld) {
    DragTo(y);
  }
}

void ListPointer::Release(std::int16_t button) {
  if (held_ == 0 || button != held_) return;
  held_ = 0;
  glass_.RunTimer(false);
  glass_.Perform([this, button] { list_.UserMouseUp(button); });
}

void ListPointer::LetGo() {
  if (held_ == 0) return;
  glass_.RunTimer(false);
  // Not at once: what disables the list may be the handler of the very drag.
  glass_.ReleaseLater();
}

void ListPointer::OnTimer() {
  glass_.ScrollBy(y_ < 0 ? -1 : 1);
  DragTo(y_);
}

void ListPointer::DragTo(int y) {
  y_ = y;
  const int last = glass_.Height() - 1;
  glass_.RunTimer(y < 0 || y > last);
  const int under = glass_.EntryAt(std::clamp(y, 0, std::max(last, 0)));
  const int entry = under >= 0 ? under : list_.ListCount() - 1;
  glass_.Perform([this, entry] { list_.UserMouseMove(static_cast<std::int16_t>(entry)); });
}

}  // namespace ORXKMPrintProp::views
