#pragma once

#include <cstdint>
#include <functional>

#include "dialog/Lists.h"

namespace ORXKMPrintProp::views {

/// What the rules of the pointer need of the widget in which a list is seen. Heights count pixels from the top of what
/// is seen of the entries.
class ListGlass {
 public:
  virtual ~ListGlass() = default;

  virtual int Height() const = 0;
  /// The entry that is seen at that height, -1 for none.
  virtual int EntryAt(int y) const = 0;
  /// Scrolls by one entry, -1 up, 1 down.
  virtual void ScrollBy(int step) = 0;
  /// `ListPointer::OnTimer` is to be called every `ListPointer::kScrollInterval` from now on, or no longer.
  virtual void RunTimer(bool on) = 0;
  /// `ListPointer::Release` is to be called when the handler under way, if there is one, has come to its end.
  virtual void ReleaseLater() = 0;
  /// Carries out what the user does, and reports a failure. The glass may be gone when it returns.
  virtual void Perform(const std::function<void()>& action) = 0;
};

/// The buttons of the mouse in a list: which press begins something, what a drag is over, also above and below the
/// list, where it scrolls, and how what has begun always ends.
class ListPointer {
 public:
  static constexpr int kScrollInterval = 60;  ///< milliseconds an entry

  /// Both must outlive it.
  ListPointer(ListBox& list, ListGlass& glass) : list_(list), glass_(glass) {}
  ListPointer(const ListPointer&) = delete;
  ListPointer& operator=(const ListPointer&) = delete;
  /// What has begun ends, though nobody is told of it any more.
  ~ListPointer();

  bool IsHeld() const { return held_ != 0; }

  /// A button goes down.
  /// @param button that of `ListBox::MouseDown`, 0 for one that means nothing here.
  /// @param isAnotherHeld whether the press comes to a button that is held already; it means nothing then.
  /// @param y where the pointer is, above and below the list too.
  void Press(std::int16_t button, bool isAnotherHeld, int y);
  /// The pointer moves.
  /// @param isLeftHeld False where the button went up while something else had the mouse.
  /// @param isAnotherHeld the drag pauses.
  /// @param y as for `Press`.
  void Move(bool isLeftHeld, bool isAnotherHeld, int y);
  void Release(std::int16_t button);
  /// Ends whatever has begun.
  void Release() { Release(held_); }
  /// The list is disabled or hidden, and hears of no button any more.
  void LetGo();
  void OnTimer();

 private:
  void DragTo(int y);

  ListBox& list_;
  ListGlass& glass_;
  std::int16_t held_ = 0;  ///< the button that is held since it went down on an entry, 0 for none
  int y_ = 0;              ///< where the pointer was last, with the left button held
};

}  // namespace ORXKMPrintProp::views
