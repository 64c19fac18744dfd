#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <optional>

#include "dialog/Dialog.h"
#include "views/Fitting.h"

namespace ORXKMPrintProp::win32 {

/// What is told of what the user does.
struct Reports {
  /// It failed in the middle, as where a table refuses an operation; one line for a person.
  std::function<void(const Text& why)> failed = {};
  /// It is done, with all that it led to.
  std::function<void(const Widget& widget)> used = {};
  /// A widget has got the focus, or the focus has left the dialog.
  std::function<void(bool has)> focused = {};
  /// The Tab key leads out of the dialog: 1 behind its end, -1 ahead of its beginning.
  std::function<void(int step)> left = {};
  /// A message box opens, or has been closed.
  std::function<void(bool isOpen)> message = {};
  /// Gives what must not end while what the user does is carried out.
  std::function<std::shared_ptr<void>()> hold = {};
};

class DialogWindows;

/// The dialog in the platform's own windows, as a child of any window. A dialog has one view at a time; it shows what
/// the dialog holds already, and everything from then on. It lives on one thread, which retrieves its messages.
class PrnPropView {
 public:
  /// A child window, not shown yet, at the corner of the parent, in its natural size, which it keeps.
  /// @param dialog must outlive the view, and what `Reports::hold` gives must hold it.
  /// @throws std::system_error where the system makes no window.
  PrnPropView(Dialog& dialog, HWND parent, Reports reports);
  PrnPropView(const PrnPropView&) = delete;
  PrnPropView& operator=(const PrnPropView&) = delete;
  /// The window is gone then, also from inside a handler or while a message is open.
  ~PrnPropView();

  /// Null once its parent has been destroyed.
  HWND Window() const;
  /// In pixels, at so many of them to an inch.
  static SIZE NaturalSize(UINT dpi);
  /// How many pixels make an inch where the window is.
  static UINT DpiOf(HWND window);

  /// Does what a key message does to the dialog rather than to one widget, and what a host's window might take away:
  /// Tab, the keys of the tabs, Enter on a button.
  /// @return false for all others, and where Tab leads out of the dialog.
  bool TakeKey(const MSG& message);
  /// Gives the focus to the first widget in tab order (1), the last one (-1), or the one that had it last (0).
  void TakeFocus(int step);
  /// Gives it to the widget, which can have it.
  void Focus(const Widget& widget);
  bool HasFocus() const;
  /// How another text would lie in the widget, in the place of its caption or as one of its entries.
  /// @param tab of the tab strip, which tab it is for.
  /// @return none where the widget shows nothing of the kind.
  std::optional<views::TextRoom> RoomOf(const Widget& widget, const Text& text, int tab) const;

  /// Takes on the resolution of the monitor that the window is on now. The system tells the window of a change itself,
  /// but not in every kind of program.
  void FollowMonitor();

 private:
  std::shared_ptr<DialogWindows> windows_;
};

}  // namespace ORXKMPrintProp::win32
