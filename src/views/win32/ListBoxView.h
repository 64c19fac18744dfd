#pragma once

#include "dialog/Lists.h"
#include "views/Keys.h"
#include "views/ListPointer.h"
#include "views/win32/WidgetView.h"

namespace ORXKMPrintProp::win32 {

/// The window has no entries of its own but their number: it is painted, and other programs are answered, from those of
/// the ListBox, and what they change is taken for the user's hand. Mouse and keys are those of every view.
class ListBoxView : public ViewOf<ListBox>, private views::ListGlass {
 public:
  using ViewOf::ViewOf;
  void Make(HWND parent, int id) override;
  void Refresh() override;
  void Show(WidgetProperty what) override;
  void EntryChanged(int index, EntryProperty what) override;
  void EntryAdded(int index) override;
  void EntryRemoved(int index) override;
  void EntriesCleared() override;
  void Draw(const DRAWITEMSTRUCT& item) override;
  void Use(WPARAM what) override;
  void End() override;
  void ReachedByKey() override;

 protected:
  WindowKind Kind() const override;
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  int Height() const override;
  int EntryAt(int y) const override;
  void ScrollBy(int step) override;
  void RunTimer(bool on) override;
  void ReleaseLater() override;
  void Perform(const std::function<void()>& action) override { WidgetView::Perform(action); }

  std::optional<LRESULT> OnMouse(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> OnKey(const views::KeyPress& press);
  /// What other programs ask of a list, or do with it.
  std::optional<LRESULT> OnRequest(UINT message, WPARAM wParam, LPARAM lParam);
  /// When all of a change has come.
  void ShowCountLater();
  void ShowCount();
  void ShowCaret();
  void ShowToolTipAt(int y);
  /// Tells a screen reader. @param entry -1 for the list itself
  void Notify(DWORD event, int entry) const;
  int Top() const;

  int shownCount_ = 0;
  bool isCountBehind_ = false;
  bool isRunning_ = false;
  LPARAM lastPoint_ = -1;  ///< where the mouse was last
  bool isReleasing_ = false;  ///< the mouse, by the list itself
  views::ListKeys keys_;
  views::ListPointer pointer_{widget_, *this};
};

}  // namespace ORXKMPrintProp::win32
