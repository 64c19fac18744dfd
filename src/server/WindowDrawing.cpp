#include "server/WindowDrawing.h"

namespace ORXKMPrintProp::server {
namespace {

/// What lies in the window is asked one by one: not every system draws it when the window is asked.
void DrawTree(HWND window, HWND root, HDC context) {
  RECT outside, inside;
  ::GetWindowRect(window, &outside);
  ::MapWindowPoints(nullptr, root, reinterpret_cast<POINT*>(&outside), 2);
  ::GetClientRect(window, &inside);
  ::MapWindowPoints(window, root, reinterpret_cast<POINT*>(&inside), 2);

  const int saved = ::SaveDC(context);
  ::IntersectClipRect(context, outside.left, outside.top, outside.right, outside.bottom);
  if (::GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_CLIENTEDGE) {
    ::DrawEdge(context, &outside, EDGE_SUNKEN, BF_RECT);
  } else if (::GetWindowLongPtrW(window, GWL_STYLE) & WS_BORDER) {
    ::FrameRect(context, &outside, ::GetSysColorBrush(COLOR_WINDOWFRAME));
  }
  ::IntersectClipRect(context, inside.left, inside.top, inside.right, inside.bottom);
  ::OffsetViewportOrgEx(context, inside.left, inside.top, nullptr);
  ::SendMessageW(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0);
  ::SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(context), PRF_CLIENT);
  ::OffsetViewportOrgEx(context, -inside.left, -inside.top, nullptr);

  const HWND top = ::GetWindow(window, GW_CHILD);
  for (HWND child = top ? ::GetWindow(top, GW_HWNDLAST) : nullptr; child; child = ::GetWindow(child, GW_HWNDPREV)) {
    // By its own style, for the parent may be hidden.
    if (::GetWindowLongPtrW(child, GWL_STYLE) & WS_VISIBLE) DrawTree(child, root, context);
  }
  ::RestoreDC(context, saved);
}

}  // namespace

bool DrawWindow(HWND window, SIZE size, HDC context, const RECT& bounds) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = size.cx;
  info.bmiHeader.biHeight = size.cy;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  if (!bitmap) return false;
  const HDC memory = ::CreateCompatibleDC(nullptr);
  const HGDIOBJ former = ::SelectObject(memory, bitmap);
  const RECT all{0, 0, size.cx, size.cy};
  ::FillRect(memory, &all, ::GetSysColorBrush(COLOR_BTNFACE));
  DrawTree(window, window, memory);
  ::GdiFlush();
  // Not from the memory context, which a metafile could not keep.
  const bool drawn = ::StretchDIBits(context, bounds.left, bounds.top, bounds.right - bounds.left,
                                     bounds.bottom - bounds.top, 0, 0, size.cx, size.cy, bits, &info, DIB_RGB_COLORS,
                                     SRCCOPY) != 0;
  ::SelectObject(memory, former);
  ::DeleteDC(memory);
  ::DeleteObject(bitmap);
  return drawn;
}

}  // namespace ORXKMPrintProp::server
