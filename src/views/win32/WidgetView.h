#pragma once

#include <windows.h>

#include <functional>
#include <optional>

#include "views/win32/Surface.h"

namespace ORXKMPrintProp::win32 {

/// A window's class and style, besides those of every child.
struct WindowKind {
  const wchar_t* name;
  DWORD style;
  DWORD extendedStyle = 0;
};

/// Draws one widget of the dialog in a window of the platform's and hands in what the user does with it. It keeps
/// nothing of the widget's content.
class WidgetView {
 public:
  WidgetView(Surface& surface, Widget& widget) : surface_(surface), base_(widget) {}
  virtual ~WidgetView() = default;
  WidgetView(const WidgetView&) = delete;
  WidgetView& operator=(const WidgetView&) = delete;

  /// Makes the window, which is null before. @throws std::system_error
  /// @param id by which programs find it in its parent.
  virtual void Make(HWND parent, int id);
  HWND Window() const { return window_; }
  Widget& Shown() const { return base_; }

  /// Puts the window where the widget is, in pixels from the parent's corner.
  virtual void MoveTo(const views::Place& place);
  /// Shows all that the widget holds now.
  virtual void Refresh();
  /// Shows what has changed; what is not one property's own is shown with all the rest.
  virtual void Show(WidgetProperty what);
  virtual void EntryChanged(int /*index*/, EntryProperty) {}
  virtual void EntryAdded(int /*index*/) {}
  virtual void EntryRemoved(int /*index*/) {}
  virtual void EntriesCleared() {}
  /// The greatest letters in which the widget's caption fits, none where it is cut.
  std::optional<views::Letters> NeededLetters() const;
  /// How another text would lie in the widget, in the place of its caption or as one of its entries.
  /// @param tab of a tab strip, which tab it is for.
  /// @return none where the widget shows nothing of the kind.
  virtual std::optional<views::TextRoom> RoomOf(TextView text, int tab) const;

  /// A notification of the window to its parent. What it leads to is done by `Use`, when the window is done with it.
  virtual void OnNotify(UINT /*notification*/) {}
  virtual void Draw(const DRAWITEMSTRUCT&) {}
  /// What `Surface::PostUse` has asked for.
  virtual void Use(WPARAM /*what*/) {}
  /// The focus has come to the widget by keyboard.
  virtual void ReachedByKey() {}
  /// Ends what the user has begun.
  virtual void End() {}

  /// Reports a failure, and shows the widget as it is afterwards, whether the action was carried out, refused or
  /// failed: the only way in for what the user does.
  void Perform(const std::function<void()>& action);

 protected:
  virtual WindowKind Kind() const = 0;
  /// @return none where the window itself is to handle it.
  virtual std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  static bool IsPainting(UINT message) { return message == WM_PAINT || message == WM_PRINTCLIENT; }
  /// What the window itself makes of it.
  LRESULT PassOn(UINT message, WPARAM wParam, LPARAM lParam) const;

  /// The same for what changes nothing.
  void Attempt(const std::function<void()>& action);
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  void SetFont(const views::Letters& letters = {});
  /// How many pixels there are for the caption; none in a widget that shows none.
  virtual int CaptionRoom() const { return 0; }
  /// Sets the window's text, and its font and tooltip for it to fit.
  /// @param asItIs whether the window takes no character for the mark of a shortcut.
  void ShowCaption(bool asItIs = false);
  SIZE Size() const;

  Surface& surface_;

 private:
  static LRESULT CALLBACK OnMessageOf(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void ShowEnabled();
  void ShowVisible();

  Widget& base_;
  HWND window_ = nullptr;
  WNDPROC kind_ = nullptr;  ///< what the platform has for windows of this kind
};

/// The same of a kind of widget.
template <class W>
class ViewOf : public WidgetView {
 public:
  ViewOf(Surface& surface, W& widget) : WidgetView(surface, widget), widget_(widget) {}

 protected:
  W& widget_;
};

}  // namespace ORXKMPrintProp::win32
