#pragma once

#include <windows.h>

#include <array>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

#include "dialog/Dialog.h"
#include "views/SpokenName.h"
#include "views/win32/AccessibleNames.h"
#include "views/win32/Surface.h"
#include "views/win32/TabStripView.h"

namespace ORXKMPrintProp::win32 {

/// The windows of one dialog: one around all, in it that of the tabs and one for each page, in these the widgets'.
class DialogWindows final : public Surface, public std::enable_shared_from_this<DialogWindows>, private View {
 public:
  static std::shared_ptr<DialogWindows> Make(Dialog& dialog, HWND parent, Reports reports);
  ~DialogWindows() override;

  /// The dialog has no view any longer, and no window is left. Nothing else is to be called then.
  void End();

  HWND Window() const { return window_; }
  bool TakeKey(const MSG& message);
  void TakeFocus(int step);
  void Focus(const Widget& widget) { ::SetFocus(ViewFor(widget).Window()); }
  std::optional<views::TextRoom> RoomOf(const Widget& widget, TextView text, int tab) const {
    return ViewFor(widget).RoomOf(text, tab);
  }
  void FollowMonitor();
  bool HasFocus() const { return window_ && (::GetFocus() == window_ || ::IsChild(window_, ::GetFocus())); }

 private:
  DialogWindows(Dialog& dialog, Reports reports);
  bool TakeDialogKey(const MSG& message);
  void MakeWindows(HWND parent);
  void MakeWidget(Widget& widget);
  HWND MakePanel(HWND parent) const;
  void MakeToolTips();
  /// Puts everything where it belongs at the resolution.
  void Arrange();
  void SpeakNames(const Widget* changed);
  void BringUp();
  void PlaceTool(const Widget& widget);
  void AddTool(const Widget& widget);

  WidgetView* ViewOf(HWND window) const;
  WidgetView& ViewFor(const Widget& widget) const { return *views_.at(&widget); }
  HWND PanelOf(const LayoutRow& row) const;
  views::Place PlaceOf(const LayoutRow& row) const;

  static LRESULT CALLBACK OnMessageOf(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  std::shared_ptr<Surface> Shared() override { return shared_from_this(); }
  void PostUse(Widget& widget, WPARAM what) override;
  bool TakeKey(Widget& widget, WPARAM virtualKey, LPARAM flags) override;
  void GotFocus(const Widget& widget) override;
  void LostFocus(HWND to) override;
  void PassFocus(const Widget& widget) override;
  void SetToolTip(const Widget& widget, const Text& text) override;
  views::Letters LettersOf(const Widget& widget) override { return letters_.Of(widget); }
  void RelayToToolTip(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

  void Changed(Widget& widget, WidgetProperty what) override;
  void EntryChanged(EntryWidget& widget, std::int16_t index, EntryProperty what) override;
  void EntryAdded(EntryWidget& widget, std::int16_t index) override;
  void EntryRemoved(EntryWidget& widget, std::int16_t index) override;
  void EntriesCleared(EntryWidget& widget) override;
  void MousePointerChanged(std::int16_t pointer) override;
  void MsgBox(const Text& text, const Text& title) override;

  Dialog& dialog_;
  HWND window_ = nullptr;
  HWND toolTip_ = nullptr;
  HWND message_ = nullptr;  ///< the message box that is open
  HCURSOR dragPointer_;
  TabStripView* tabs_ = nullptr;
  std::array<HWND, SSTab::kTabs> pages_{};
  std::unordered_map<const Widget*, std::unique_ptr<WidgetView>> views_;
  std::unordered_map<const Widget*, Text> toolTips_;  ///< as they have been told
  std::vector<std::pair<const Widget*, views::SpokenName>> names_;
  views::CaptionLetters letters_;
  AccessibleNames accessible_;
  const Widget* lastFocused_ = nullptr;
};

}  // namespace ORXKMPrintProp::win32
