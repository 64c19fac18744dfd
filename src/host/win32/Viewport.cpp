#include "host/win32/Viewport.h"

#include <algorithm>
#include <system_error>

#include "host/win32/Metrics.h"
#include "views/win32/Styled.h"

namespace ORXKMPrintProp::host {
namespace {

constexpr const wchar_t* kClass = L"prnprop.Viewport";
constexpr int kLine = 24;  ///< pixels that one line of scrolling takes

SCROLLINFO InfoOf(HWND window, int bar) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  ::GetScrollInfo(window, bar, &info);
  return info;
}

}  // namespace

Viewport::Viewport(HWND parent) {
  WNDCLASSEXW kind{};
  kind.cbSize = sizeof kind;
  kind.lpfnWndProc = OnMessageOf;
  kind.hInstance = win32::OwnModule();
  kind.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
  kind.hbrBackground = ::GetSysColorBrush(COLOR_BTNFACE);
  kind.lpszClassName = kClass;
  ::RegisterClassExW(&kind);
  window_ = MakeChild(parent, kClass, L"", WS_CLIPCHILDREN, 0, WS_EX_CONTROLPARENT);
  ::SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

void Viewport::Show(HWND content, SIZE size) {
  content_ = content;
  size_ = size;
  FitBars();
}

/// Where the content fits in, a bar is gone.
void Viewport::FitBars() {
  RECT inside{};
  ::GetClientRect(window_, &inside);
  for (const int bar : {SB_HORZ, SB_VERT}) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = static_cast<int>(bar == SB_HORZ ? size_.cx : size_.cy) - 1;
    info.nPage = static_cast<UINT>(bar == SB_HORZ ? inside.right : inside.bottom);
    ::SetScrollInfo(window_, bar, &info, TRUE);
    ScrollTo(bar, InfoOf(window_, bar).nPos);
  }
}

void Viewport::ScrollTo(int bar, int position) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_POS;
  info.nPos = position;
  ::SetScrollInfo(window_, bar, &info, TRUE);
  if (!content_) return;
  const int left = -InfoOf(window_, SB_HORZ).nPos, top = -InfoOf(window_, SB_VERT).nPos;
  RECT place{};
  ::GetWindowRect(content_, &place);
  ::MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&place), 2);
  if (place.left == left && place.top == top) return;
  ::SetWindowPos(content_, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Viewport::ScrollBy(int bar, int code) {
  const SCROLLINFO info = InfoOf(window_, bar);
  const int page = std::max(static_cast<int>(info.nPage) - kLine, kLine);
  switch (code) {
    case SB_LINEUP:
      return ScrollTo(bar, info.nPos - kLine);
    case SB_LINEDOWN:
      return ScrollTo(bar, info.nPos + kLine);
    case SB_PAGEUP:
      return ScrollTo(bar, info.nPos - page);
    case SB_PAGEDOWN:
      return ScrollTo(bar, info.nPos + page);
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      return ScrollTo(bar, info.nTrackPos);
    case SB_TOP:
      return ScrollTo(bar, info.nMin);
    case SB_BOTTOM:
      return ScrollTo(bar, info.nMax);
    default:
      return;
  }
}

void Viewport::BringIntoSight(HWND inside) {
  RECT place{}, seen{};
  ::GetWindowRect(inside, &place);
  ::MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&place), 2);
  ::GetClientRect(window_, &seen);
  const auto bring = [&](int bar, LONG begin, LONG end, LONG room) {
    // Of what is larger than the room, the beginning.
    const LONG step = std::min(begin, std::max<LONG>(end - room, 0));
    if (step != 0) ScrollTo(bar, InfoOf(window_, bar).nPos + static_cast<int>(step));
  };
  bring(SB_HORZ, place.left, place.right, seen.right);
  bring(SB_VERT, place.top, place.bottom, seen.bottom);
}

LRESULT CALLBACK Viewport::OnMessageOf(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const self = reinterpret_cast<Viewport*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  return self ? self->OnMessage(message, wParam, lParam) : ::DefWindowProcW(window, message, wParam, lParam);
}

LRESULT Viewport::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE:
      FitBars();
      return 0;
    case WM_HSCROLL:
    case WM_VSCROLL:
      ScrollBy(message == WM_HSCROLL ? SB_HORZ : SB_VERT, LOWORD(wParam));
      return 0;
    case WM_MOUSEWHEEL: {
      constexpr int kLinesPerNotch = 3;
      const int turned = static_cast<short>(HIWORD(wParam));
      ScrollTo(SB_VERT, InfoOf(window_, SB_VERT).nPos - turned * kLinesPerNotch * kLine / WHEEL_DELTA);
      return 0;
    }
    default:
      return ::DefWindowProcW(window_, message, wParam, lParam);
  }
}

}  // namespace ORXKMPrintProp::host
