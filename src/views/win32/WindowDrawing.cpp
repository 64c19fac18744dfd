#include "views/win32/WindowDrawing.h"

#include <uxtheme.h>
#include <vssym32.h>

#include <new>

namespace ORXKMPrintProp::win32 {

Canvas::Canvas(SIZE size) : size_(size), context_(::CreateCompatibleDC(nullptr)) {
  const BITMAPINFO info = Info();
  bitmap_ = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits_, nullptr, 0);
  if (!bitmap_) {
    ::DeleteDC(context_);
    throw std::bad_alloc();
  }
  former_ = ::SelectObject(context_, bitmap_);
  const RECT all{0, 0, size.cx, size.cy};
  ::FillRect(context_, &all, ::GetSysColorBrush(COLOR_BTNFACE));
}

Canvas::~Canvas() {
  ::SelectObject(context_, former_);
  ::DeleteObject(bitmap_);
  ::DeleteDC(context_);
}

BITMAPINFO Canvas::Info() const {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = size_.cx;
  info.bmiHeader.biHeight = -size_.cy;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  return info;
}

void* Canvas::Bits() const {
  ::GdiFlush();
  return bits_;
}

/// Not from the memory context, which a metafile could not keep.
void Canvas::StretchTo(HDC context, const RECT& bounds) const {
  const BITMAPINFO info = Info();
  ::StretchDIBits(context, bounds.left, bounds.top, bounds.right - bounds.left, bounds.bottom - bounds.top, 0, 0,
                  size_.cx, size_.cy, Bits(), &info, DIB_RGB_COLORS, SRCCOPY);
}

namespace {

/// What is inside. Windows rely on a context of their own, with its origin at their corner.
void DrawInside(HWND window, HDC context, const RECT& place) {
  const SIZE size{place.right - place.left, place.bottom - place.top};
  if (size.cx <= 0 || size.cy <= 0) return;
  const Canvas canvas(size);
  // Not every window has a ground of its own.
  ::BitBlt(canvas.Context(), 0, 0, size.cx, size.cy, context, place.left, place.top, SRCCOPY);
  ::SendMessageW(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Context()), 0);
  ::SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Context()), PRF_CLIENT);
  ::BitBlt(context, place.left, place.top, size.cx, size.cy, canvas.Context(), 0, 0, SRCCOPY);
}

/// As the user's visual style has it where the window has one.
void DrawBorder(HWND window, HDC context, RECT outside) {
  if (::GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_CLIENTEDGE) {
    const HTHEME theme = ::GetWindowTheme(window) ? ::OpenThemeData(nullptr, L"EDIT") : nullptr;
    if (!theme) {
      ::DrawEdge(context, &outside, EDGE_SUNKEN, BF_RECT);
      return;
    }
    const int state = ::IsWindowEnabled(window) ? ETS_NORMAL : ETS_DISABLED;
    ::DrawThemeBackground(theme, context, EP_EDITTEXT, state, &outside, nullptr);
    ::CloseThemeData(theme);
  } else if (::GetWindowLongPtrW(window, GWL_STYLE) & WS_BORDER) {
    ::FrameRect(context, &outside, ::GetSysColorBrush(COLOR_WINDOWFRAME));
  }
}

RECT PlaceIn(HWND root, HWND window) {
  RECT place;
  ::GetWindowRect(window, &place);
  ::MapWindowPoints(nullptr, root, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

/// By its own style, for the parent may be hidden.
bool IsShown(HWND child) { return (::GetWindowLongPtrW(child, GWL_STYLE) & WS_VISIBLE) != 0; }

/// What lies in the window is asked one by one, since not every system draws it when the window is asked; in the order
/// in which it is painted on a screen.
void DrawTree(HWND window, HWND root, HDC context) {
  const RECT outside = PlaceIn(root, window);
  RECT inside;
  ::GetClientRect(window, &inside);
  ::MapWindowPoints(window, root, reinterpret_cast<POINT*>(&inside), 2);

  const int saved = ::SaveDC(context);
  ::IntersectClipRect(context, outside.left, outside.top, outside.right, outside.bottom);
  DrawBorder(window, context, outside);
  ::IntersectClipRect(context, inside.left, inside.top, inside.right, inside.bottom);
  DrawInside(window, context, inside);
  for (HWND child = ::GetWindow(window, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
    if (!IsShown(child)) continue;
    const int whole = ::SaveDC(context);
    const bool clips = (::GetWindowLongPtrW(child, GWL_STYLE) & WS_CLIPSIBLINGS) != 0;
    for (HWND above = clips ? ::GetWindow(child, GW_HWNDPREV) : nullptr; above;
         above = ::GetWindow(above, GW_HWNDPREV)) {
      const RECT place = PlaceIn(root, above);
      if (IsShown(above)) ::ExcludeClipRect(context, place.left, place.top, place.right, place.bottom);
    }
    DrawTree(child, root, context);
    ::RestoreDC(context, whole);
  }
  ::RestoreDC(context, saved);
}

}  // namespace

void DrawWindow(HWND window, SIZE size, HDC context, const RECT& bounds) {
  const Canvas canvas(size);
  DrawTree(window, window, canvas.Context());
  canvas.StretchTo(context, bounds);
}

}  // namespace ORXKMPrintProp::win32
