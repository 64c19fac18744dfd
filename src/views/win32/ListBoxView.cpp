#include "views/win32/ListBoxView.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "views/Fitting.h"
#include "views/win32/WindowsKeys.h"
#include "views/win32/WindowsText.h"

namespace ORXKMPrintProp::win32 {
namespace {

/// What is put off.
constexpr WPARAM kRelease = 0;
constexpr WPARAM kShowCount = 1;

constexpr UINT_PTR kScrolling = 1;  ///< the timer of a drag
constexpr int kTextEdge = 2;        ///< ahead of an entry's text

struct MouseMessage {
  UINT message;
  std::int16_t button;  ///< 0 for one that means nothing in a list
  bool presses;
};
constexpr MouseMessage kMouseMessages[] = {
    {WM_LBUTTONDOWN, ListBox::kLeftButton, true},
    {WM_LBUTTONDBLCLK, ListBox::kLeftButton, true},
    {WM_LBUTTONUP, ListBox::kLeftButton, false},
    {WM_RBUTTONDOWN, ListBox::kRightButton, true},
    {WM_RBUTTONDBLCLK, ListBox::kRightButton, true},
    {WM_RBUTTONUP, ListBox::kRightButton, false},
    {WM_MBUTTONDOWN, 0, true},
    {WM_MBUTTONDBLCLK, 0, true},
    {WM_MBUTTONUP, 0, false},
    {WM_XBUTTONDOWN, 0, true},
    {WM_XBUTTONDBLCLK, 0, true},
    {WM_XBUTTONUP, 0, false},
};

/// How many buttons are held, as a message of the mouse tells it.
int HeldIn(WPARAM state) {
  int held = 0;
  for (const WPARAM button : {MK_LBUTTON, MK_RBUTTON, MK_MBUTTON, MK_XBUTTON1, MK_XBUTTON2}) {
    held += (state & button) != 0;
  }
  return held;
}

}  // namespace

WindowKind ListBoxView::Kind() const {
  const DWORD selection = widget_.Row().multiSelect ? LBS_MULTIPLESEL : 0u;
  return {L"LISTBOX", selection | LBS_OWNERDRAWFIXED | LBS_NODATA | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP,
          WS_EX_CLIENTEDGE};
}

void ListBoxView::Refresh() {
  WidgetView::Refresh();
  SetFont();
  const int height = surface_.HeightOf(widget_.GetFont());
  if (Send(LB_GETITEMHEIGHT) != height) Send(LB_SETITEMHEIGHT, 0, height);
  ShowCount();
  ShowCaret();
}

void ListBoxView::Show(WidgetProperty what) {
  if (what == WidgetProperty::ListIndex) return ShowCaret();
  ViewOf::Show(what);
  // Not at once: what disables the list may be the handler of the very drag.
  if (what == WidgetProperty::Enabled && !widget_.Enabled()) pointer_.LetGo();
  if (what == WidgetProperty::Visible && !widget_.Visible()) pointer_.LetGo();
}

void ListBoxView::Make(HWND parent, int id) {
  WidgetView::Make(parent, id);
  // The system then hands the entries' texts, which are asked of the view, on to other programs.
  ::SetWindowLongPtrW(Window(), GWL_STYLE, ::GetWindowLongPtrW(Window(), GWL_STYLE) | LBS_HASSTRINGS);
}

void ListBoxView::Notify(DWORD event, int entry) const {
  ::NotifyWinEvent(event, Window(), OBJID_CLIENT, entry < 0 ? CHILDID_SELF : entry + 1);
}

void ListBoxView::EntryChanged(int index, EntryProperty what) {
  if (what == EntryProperty::Selected) {
    const bool isSelected = widget_.Selected(static_cast<std::int16_t>(index));
    Notify(isSelected ? EVENT_OBJECT_SELECTIONADD : EVENT_OBJECT_SELECTIONREMOVE, index);
  }
  RECT place{};
  Send(LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&place));
  ::InvalidateRect(Window(), &place, TRUE);
}

void ListBoxView::EntryAdded(int) { ShowCountLater(); }
void ListBoxView::EntryRemoved(int) { ShowCountLater(); }
void ListBoxView::EntriesCleared() { ShowCountLater(); }

void ListBoxView::ShowCountLater() {
  if (!std::exchange(isCountBehind_, true)) surface_.PostUse(widget_, kShowCount);
}

void ListBoxView::ShowCount() {
  isCountBehind_ = false;
  ::InvalidateRect(Window(), nullptr, TRUE);
  const int count = widget_.ListCount();
  if (std::exchange(shownCount_, count) == count) return;
  const int top = Top();
  Send(LB_SETCOUNT, static_cast<WPARAM>(count));
  Notify(EVENT_OBJECT_REORDER, -1);
  if (Top() != top) Send(LB_SETTOPINDEX, static_cast<WPARAM>(std::max(std::min(top, count - 1), 0)));
}

void ListBoxView::ShowCaret() {
  ::InvalidateRect(Window(), nullptr, FALSE);
  const int caret = widget_.ListIndex();
  if (caret >= 0 && ::GetFocus() == Window()) Notify(EVENT_OBJECT_FOCUS, caret);
  // Under the pointer nothing is to slip away.
  if (caret < 0 || pointer_.IsHeld()) return;
  const int visible = std::max(Height() / std::max(static_cast<int>(Send(LB_GETITEMHEIGHT)), 1), 1);
  const int top = std::clamp(Top(), std::max(caret - visible + 1, 0), caret);
  if (top != Top()) Send(LB_SETTOPINDEX, static_cast<WPARAM>(top));
}

void ListBoxView::Draw(const DRAWITEMSTRUCT& item) {
  const bool hasFocus = ::GetFocus() == Window();
  const auto entry = static_cast<std::int16_t>(item.itemID);
  if (entry < 0 || entry >= widget_.ListCount()) {
    if (hasFocus) ::DrawFocusRect(item.hDC, &item.rcItem);
    return;
  }
  const bool isSelected = widget_.Selected(entry);
  ::FillRect(item.hDC, &item.rcItem, ::GetSysColorBrush(isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  ::SetBkMode(item.hDC, TRANSPARENT);
  ::SetTextColor(item.hDC, ::GetSysColor(!widget_.Enabled() ? COLOR_GRAYTEXT
                                         : isSelected       ? COLOR_HIGHLIGHTTEXT
                                                            : COLOR_WINDOWTEXT));
  const std::wstring text = ToWide(views::OnOneLine(widget_.List(entry)));
  RECT place = item.rcItem;
  place.left += kTextEdge;
  const HGDIOBJ former = ::SelectObject(item.hDC, surface_.FontOf(widget_.GetFont()));
  ::DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &place,
              DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS | DT_VCENTER);
  ::SelectObject(item.hDC, former);
  if (hasFocus && entry == widget_.ListIndex()) ::DrawFocusRect(item.hDC, &item.rcItem);
}

int ListBoxView::Top() const { return static_cast<int>(Send(LB_GETTOPINDEX)); }

int ListBoxView::Height() const {
  RECT inside{};
  ::GetClientRect(Window(), &inside);
  return inside.bottom;
}

int ListBoxView::EntryAt(int y) const {
  const int height = std::max(static_cast<int>(Send(LB_GETITEMHEIGHT)), 1);
  if (y < 0 || y >= Height()) return -1;
  const int entry = Top() + y / height;
  return entry < widget_.ListCount() ? entry : -1;
}

void ListBoxView::ScrollBy(int step) {
  const int top = Top() + step;
  if (top >= 0 && top < widget_.ListCount()) Send(LB_SETTOPINDEX, static_cast<WPARAM>(top));
}

void ListBoxView::RunTimer(bool on) {
  if (on == std::exchange(isRunning_, on)) return;
  if (on) {
    ::SetTimer(Window(), kScrolling, views::ListPointer::kScrollInterval, nullptr);
  } else {
    ::KillTimer(Window(), kScrolling);
  }
}

void ListBoxView::ReleaseLater() { surface_.PostUse(widget_, kRelease); }

void ListBoxView::Use(WPARAM what) {
  if (what == kRelease) return End();
  ShowCount();
  ShowCaret();
}

void ListBoxView::End() {
  if (::GetCapture() == Window()) ::ReleaseCapture();
  pointer_.Release();
}

void ListBoxView::ReachedByKey() {
  if (const auto action = views::ActionOfFocus(widget_)) Perform(action);
}

std::optional<LRESULT> ListBoxView::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  // Ahead of what is told of the focus: that may end the window.
  if (message == WM_SETFOCUS || message == WM_KILLFOCUS) ::InvalidateRect(Window(), nullptr, TRUE);
  if (IsPainting(message) && isCountBehind_) ShowCount();
  if (const auto result = ViewOf::OnMessage(message, wParam, lParam)) return result;
  if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST && message != WM_MOUSEWHEEL) {
    return OnMouse(message, wParam, lParam);
  }
  switch (message) {
    case WM_TIMER:
      if (wParam != kScrolling) return {};
      pointer_.OnTimer();
      return 0;
    case WM_CAPTURECHANGED:
      // Something else has the mouse, and the release does not come here.
      if (!isReleasing_ && pointer_.IsHeld() && reinterpret_cast<HWND>(lParam) != Window()) ReleaseLater();
      return 0;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      return OnKey(ToKeyPress(wParam));
    case WM_CHAR:
      if (wParam > L' ') OnKey({.text = Text(1, static_cast<char16_t>(wParam))});
      return 0;
    default:
      return OnRequest(message, wParam, lParam);
  }
}

std::optional<LRESULT> ListBoxView::OnMouse(UINT message, WPARAM wParam, LPARAM lParam) {
  const int y = GET_Y_LPARAM(lParam);
  if (message == WM_MOUSEMOVE) {
    ShowToolTipAt(y);
    // The system tells of moves to where the pointer is already, as when a window opens.
    if (std::exchange(lastPoint_, lParam) == lParam) return 0;
    const bool isLeftHeld = (wParam & MK_LBUTTON) != 0;
    pointer_.Move(isLeftHeld, HeldIn(wParam) > (isLeftHeld ? 1 : 0), y);
    return 0;
  }
  for (const MouseMessage& row : kMouseMessages) {
    if (row.message != message) continue;
    lastPoint_ = lParam;
    if (row.presses) {
      ::SetFocus(Window());
      ::SetCapture(Window());
      pointer_.Press(row.button, HeldIn(wParam) > 1, y);
    } else {
      if (HeldIn(wParam) == 0) {
        // Ahead of what the user has begun ends: that may end this window, and open others that want the mouse.
        isReleasing_ = true;
        if (::GetCapture() == Window()) ::ReleaseCapture();
        isReleasing_ = false;
      }
      pointer_.Release(row.button);
    }
    return 0;
  }
  return {};
}

std::optional<LRESULT> ListBoxView::OnKey(const views::KeyPress& press) {
  if (pointer_.IsHeld()) return 0;
  const int height = std::max(static_cast<int>(Send(LB_GETITEMHEIGHT)), 1);
  const auto action = keys_.ActionOf(widget_, press, Height() / height);
  // The window has a use of its own for some with Ctrl.
  if (!action) return press.key == views::Key::Other ? std::nullopt : std::optional<LRESULT>(0);
  Perform(action);
  return 0;
}

std::optional<LRESULT> ListBoxView::OnRequest(UINT message, WPARAM wParam, LPARAM lParam) {
  const auto has = [&](WPARAM entry) { return entry < static_cast<WPARAM>(widget_.ListCount()); };
  const auto entry = static_cast<std::int16_t>(wParam);
  switch (message) {
    case LB_GETCOUNT:
      return widget_.ListCount();
    case LB_GETTEXT:
    case LB_GETTEXTLEN: {
      if (!has(wParam)) return LB_ERR;
      const std::wstring text = ToWide(views::OnOneLine(widget_.List(entry)));
      if (message == LB_GETTEXT) std::copy_n(text.c_str(), text.size() + 1, reinterpret_cast<wchar_t*>(lParam));
      return static_cast<LRESULT>(text.size());
    }
    case LB_GETITEMDATA:
      return has(wParam) ? widget_.ItemData(entry) : LB_ERR;
    case LB_GETSEL:
      return has(wParam) ? widget_.Selected(entry) : LB_ERR;
    case LB_GETSELCOUNT:
      return widget_.Row().multiSelect ? widget_.SelCount() : LB_ERR;
    case LB_GETSELITEMS: {
      if (!widget_.Row().multiSelect) return LB_ERR;
      WPARAM given = 0;
      for (std::int16_t i = 0; i < widget_.ListCount() && given < wParam; ++i) {
        if (widget_.Selected(i)) reinterpret_cast<int*>(lParam)[given++] = i;
      }
      return static_cast<LRESULT>(given);
    }
    case LB_GETCURSEL:
    case LB_GETCARETINDEX:
      return widget_.ListIndex();
    case LB_SETCURSEL:
    case LB_SETCARETINDEX:
      if (!has(wParam)) return LB_ERR;
      Perform([&] { widget_.UserMoveCaret(entry); });
      return 0;
    case LB_SETSEL: {
      const auto selected = static_cast<std::int16_t>(lParam);
      if (!widget_.Row().multiSelect || !has(static_cast<WPARAM>(lParam))) return LB_ERR;
      if (widget_.Selected(selected) == (wParam != FALSE)) return 0;
      Perform([&] {
        widget_.UserMoveCaret(selected);
        widget_.UserToggle();
      });
      return 0;
    }
    default:
      return {};
  }
}

/// The row may be wider than what is seen of it.
void ListBoxView::ShowToolTipAt(int y) {
  const int entry = EntryAt(y);
  RECT inside{};
  ::GetClientRect(Window(), &inside);
  const Text text = entry < 0 ? Text() : views::OnOneLine(widget_.List(static_cast<std::int16_t>(entry)));
  const bool isCut = surface_.MeasureOf(widget_.GetFont())(text, {}) > inside.right - kTextEdge;
  surface_.SetToolTip(widget_, isCut ? text : widget_.ToolTipText());
}

}  // namespace ORXKMPrintProp::win32
