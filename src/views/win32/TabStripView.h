#pragma once

#include "views/win32/WidgetView.h"

namespace ORXKMPrintProp::win32 {

/// The tabs and the frame around the page on top. The pages are windows of their own beside it.
class TabStripView : public ViewOf<SSTab> {
 public:
  using ViewOf::ViewOf;
  void Make(HWND parent, int id) override;
  void Refresh() override;
  /// What is around the caption is part of both widths.
  std::optional<views::TextRoom> RoomOf(TextView text, int tab) const override;
  void OnNotify(UINT notification) override;
  void Use(WPARAM what) override;

  /// What is inside the frame, in pixels from the strip's corner.
  RECT Inside() const;

 protected:
  WindowKind Kind() const override;
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void Pick(int tab);
  void FitTabs();
  int Width() const { return static_cast<int>(Size().cx) - 4; }
};

}  // namespace ORXKMPrintProp::win32
