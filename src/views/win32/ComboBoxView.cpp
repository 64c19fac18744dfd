#include "views/win32/ComboBoxView.h"

#include <algorithm>
#include <utility>

#include "views/Fitting.h"
#include "views/win32/WindowsKeys.h"
#include "views/win32/WindowsText.h"

namespace ORXKMPrintProp::win32 {
namespace {

/// In the place of an entry to pick.
constexpr WPARAM kShowPicked = static_cast<WPARAM>(-1);
constexpr WPARAM kShowEntries = static_cast<WPARAM>(-2);
constexpr int kOpenEntries = 10;  ///< that are seen of an open list at most

}  // namespace

int ComboBoxView::FieldEdge() const { return surface_.MetricOf(SM_CXVSCROLL) + 8; }

void ComboBoxView::MoveTo(const views::Place& place) {
  SetFont();
  // The window's height is that of the open list; the field has the height of one entry and an edge.
  const int entryHeight = surface_.HeightOf(widget_.GetFont());
  WidgetView::MoveTo({place.left, place.top, place.width, place.height + kOpenEntries * entryHeight + 2});
  constexpr WPARAM kField = static_cast<WPARAM>(-1);
  Send(CB_SETITEMHEIGHT, kField, entryHeight);
  const int difference = place.height - static_cast<int>(Size().cy);
  if (difference != 0) Send(CB_SETITEMHEIGHT, kField, entryHeight + difference);
}

void ComboBoxView::Refresh() {
  WidgetView::Refresh();
  shown_.reset();
  SetFont();
  ShowEntries();
  ShowPicked();
  if (!widget_.Enabled() && IsOpen()) Send(CB_SHOWDROPDOWN, FALSE);
}

void ComboBoxView::Show(WidgetProperty what) {
  if (what == WidgetProperty::ListIndex) return ShowPicked();
  ViewOf::Show(what);
  if (what == WidgetProperty::Enabled && !widget_.Enabled() && IsOpen()) Send(CB_SHOWDROPDOWN, FALSE);
}

void ComboBoxView::EntryChanged(int, EntryProperty) { ShowEntriesLater(); }
void ComboBoxView::EntryAdded(int) { ShowEntriesLater(); }
void ComboBoxView::EntryRemoved(int) { ShowEntriesLater(); }
void ComboBoxView::EntriesCleared() { ShowEntriesLater(); }

void ComboBoxView::ShowEntriesLater() {
  if (!std::exchange(areEntriesBehind_, true)) surface_.PostUse(widget_, kShowEntries);
}

void ComboBoxView::ShowEntries() {
  if (!std::exchange(areEntriesBehind_, false)) return;
  Send(WM_SETREDRAW, FALSE);
  Send(CB_RESETCONTENT);
  for (std::int16_t i = 0; i < widget_.ListCount(); ++i) {
    const std::wstring text = ToWide(views::OnOneLine(widget_.List(i)));
    Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
  }
  Send(WM_SETREDRAW, TRUE);
  ::InvalidateRect(Window(), nullptr, TRUE);
  ShowPicked();
}

void ComboBoxView::ShowPicked() {
  if (areEntriesBehind_) return;  // with the entries
  const int picked = widget_.ListIndex();
  if (Send(CB_GETCURSEL) != picked) Send(CB_SETCURSEL, static_cast<WPARAM>(picked));
  const Text text = picked < 0 ? Text() : widget_.List(static_cast<std::int16_t>(picked));
  if (text == std::exchange(shown_, text)) return;
  const views::TextRoom room = *RoomOf(text, 0);
  const bool isCut = room.needed > room.room;
  surface_.SetToolTip(widget_, views::ToolTipWith(isCut ? text : Text(), widget_.ToolTipText()));
}

std::optional<views::TextRoom> ComboBoxView::RoomOf(TextView text, int) const {
  return views::TextRoom{surface_.MeasureOf(widget_.GetFont())(views::OnOneLine(text), {}),
                         static_cast<int>(Size().cx) - FieldEdge()};
}

void ComboBoxView::OnNotify(UINT notification) {
  // What the keys go over in an open list is not picked yet.
  // What is picked is told twice when the list closes with it.
  const bool isChanged = notification == CBN_SELCHANGE && !IsOpen() && !std::exchange(isTold_, false);
  if (notification == CBN_SELENDOK) isTold_ = true;
  if (notification == CBN_SELENDOK || isChanged) {
    surface_.PostUse(widget_, static_cast<WPARAM>(Send(CB_GETCURSEL)));
  }
  if (notification == CBN_SELENDCANCEL) surface_.PostUse(widget_, kShowPicked);
  if (notification != CBN_DROPDOWN) return;
  // Entries that are wider than the field are read in the open list.
  const auto measure = surface_.MeasureOf(widget_.GetFont());
  int width = 0;
  for (std::int16_t i = 0; i < widget_.ListCount(); ++i) width = std::max(width, measure(widget_.List(i), {}));
  Send(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width + FieldEdge()));
}

void ComboBoxView::Use(WPARAM what) {
  if (what == kShowEntries) return ShowEntries();
  if (what == kShowPicked) return ShowPicked();
  isTold_ = false;
  Perform([&] { widget_.UserPick(static_cast<std::int16_t>(what)); });
}

std::optional<LRESULT> ComboBoxView::TakeKeyPress(const views::KeyPress& press) {
  const auto entry = views::PickOf(widget_, press, search_);
  if (!entry) return {};
  Perform([&] { widget_.UserPick(*entry); });
  return 0;
}

std::optional<LRESULT> ComboBoxView::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto result = ViewOf::OnMessage(message, wParam, lParam)) return result;
  if (IsPainting(message) || (message >= CB_GETEDITSEL && message < CB_MSGMAX)) ShowEntries();
  switch (message) {
    case WM_KEYDOWN:
      if (IsOpen() || wParam == VK_F4) return {};
      TakeKeyPress(ToKeyPress(wParam));
      // The window has keys of its own for its entries.
      return 0;
    case WM_CHAR:
      if (IsOpen()) return {};
      TakeKeyPress({.text = Text(1, static_cast<char16_t>(wParam))});
      return 0;
    case WM_MOUSEWHEEL:
      if (::GetFocus() == Window()) return {};
      return ::SendMessageW(::GetParent(Window()), message, wParam, lParam);
    default:
      return {};
  }
}

}  // namespace ORXKMPrintProp::win32
