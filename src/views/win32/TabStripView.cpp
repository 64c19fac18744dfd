#include "views/win32/TabStripView.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>

#include "views/Fitting.h"
#include "views/win32/WindowsText.h"

namespace ORXKMPrintProp::win32 {
namespace {

constexpr int kPadding = 6;  ///< at both ends of a caption

}  // namespace

WindowKind TabStripView::Kind() const { return {WC_TABCONTROLW, WS_CLIPSIBLINGS | WS_TABSTOP}; }

void TabStripView::Make(HWND parent, int id) {
  WidgetView::Make(parent, id);
  wchar_t none[] = L"";
  for (int tab = 0; tab < SSTab::kTabs; ++tab) {
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = none;
    TabCtrl_InsertItem(Window(), tab, &item);
  }
}

RECT TabStripView::Inside() const {
  const SIZE size = Size();
  RECT inside{0, 0, size.cx, size.cy};
  TabCtrl_AdjustRect(Window(), FALSE, &inside);
  // The labels of the layout begin right below the tabs.
  inside.top = std::min<LONG>(inside.top, views::TabHeightAt(surface_.Resolution()) + 2);
  return inside;
}

void TabStripView::Refresh() {
  WidgetView::Refresh();
  FitTabs();
  if (TabCtrl_GetCurSel(Window()) != widget_.Tab()) TabCtrl_SetCurSel(Window(), widget_.Tab());
}

void TabStripView::FitTabs() {
  const int width = Width();
  const auto measure = surface_.MeasureOf(widget_.GetFont());
  const views::FittedTabs fitted = views::FitTabs(SSTab::kTabs, width, [&](int tab, const views::Letters& letters) {
    return measure(widget_.TabCaption(static_cast<std::int16_t>(tab)), letters) + 2 * kPadding;
  });
  SetFont(fitted.letters);
  TabCtrl_SetPadding(Window(), kPadding, 3);
  TabCtrl_SetMinTabWidth(Window(), width / (fitted.areCut ? SSTab::kTabs : kTabsPerRow));
  TabCtrl_SetItemSize(Window(), 0, views::TabHeightAt(surface_.Resolution()) - 2);
  Text whole;
  for (std::int16_t tab = 0; tab < SSTab::kTabs; ++tab) {
    const Text& caption = widget_.TabCaption(tab);
    std::wstring text = WithoutShortcut(
        fitted.areCut ? views::Fit(caption, width / SSTab::kTabs - 2 * kPadding, measure).text : caption);
    if (fitted.areCut) whole = views::ToolTipWith(whole, caption);
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text.data();
    TabCtrl_SetItem(Window(), tab, &item);
  }
  surface_.SetToolTip(widget_, views::ToolTipWith(whole, widget_.ToolTipText()));
}

std::optional<views::TextRoom> TabStripView::RoomOf(TextView text, int tab) const {
  const auto needed = [&, measure = surface_.MeasureOf(widget_.GetFont())](TextView caption) {
    return measure(caption, views::kSmallestLetters) + 2 * kPadding;
  };
  return views::TextRoom{needed(text), views::RoomOfTab(tab, SSTab::kTabs, Width(), [&](int other) {
                           return needed(widget_.TabCaption(static_cast<std::int16_t>(other)));
                         })};
}

void TabStripView::OnNotify(UINT notification) {
  // By another program; mouse and keys do not come here.
  if (notification == static_cast<UINT>(TCN_SELCHANGE)) {
    surface_.PostUse(widget_, static_cast<WPARAM>(TabCtrl_GetCurSel(Window())));
  }
}

void TabStripView::Use(WPARAM what) { Pick(static_cast<int>(what)); }

void TabStripView::Pick(int tab) {
  Perform([&] { widget_.UserPick(static_cast<std::int16_t>(tab)); });
}

std::optional<LRESULT> TabStripView::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto result = ViewOf::OnMessage(message, wParam, lParam)) return result;
  if (message == WM_MOUSEWHEEL) return 0;
  if (message != WM_LBUTTONDOWN && message != WM_LBUTTONDBLCLK) return {};
  TCHITTESTINFO hit{};
  hit.pt = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  const int tab = TabCtrl_HitTest(Window(), &hit);
  if (tab < 0) return 0;
  Pick(tab);
  return 0;
}

}  // namespace ORXKMPrintProp::win32
