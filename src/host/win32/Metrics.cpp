#include "host/win32/Metrics.h"

#include <algorithm>
#include <cwchar>
#include <system_error>

namespace ORXKMPrintProp::host {
namespace {

LOGFONTW MessageFontData(UINT dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0);
  const HDC screen = ::GetDC(nullptr);
  const int dpiOfMetrics = ::GetDeviceCaps(screen, LOGPIXELSY);
  ::ReleaseDC(nullptr, screen);
  metrics.lfMessageFont.lfHeight = ::MulDiv(metrics.lfMessageFont.lfHeight, static_cast<int>(dpi), dpiOfMetrics);
  return metrics.lfMessageFont;
}

}  // namespace

OwnedFont MessageFont(UINT dpi) {
  const LOGFONTW font = MessageFontData(dpi);
  return OwnedFont(::CreateFontIndirectW(&font));
}

OwnedFont FixedFont(UINT dpi) {
  LOGFONTW font = MessageFontData(dpi);
  font.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
  std::wcscpy(font.lfFaceName, L"Courier New");
  return OwnedFont(::CreateFontIndirectW(&font));
}

SIZE SizeOf(HFONT font, const std::wstring& text, int width) {
  const HDC context = ::GetDC(nullptr);
  const HGDIOBJ former = ::SelectObject(context, font);
  RECT place{0, 0, width, 0};
  ::DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &place,
              DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EDITCONTROL);
  ::SelectObject(context, former);
  ::ReleaseDC(nullptr, context);
  return {place.right, place.bottom};
}

RECT WorkAreaAt(HWND window) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  ::GetMonitorInfoW(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
  return monitor.rcWork;
}

void SetClientSize(HWND window, SIZE size) {
  RECT outside{}, inside{};
  ::GetWindowRect(window, &outside);
  ::GetClientRect(window, &inside);
  const RECT room = WorkAreaAt(window);
  const LONG width = std::min(size.cx + (outside.right - outside.left) - inside.right, room.right - room.left);
  const LONG height = std::min(size.cy + (outside.bottom - outside.top) - inside.bottom, room.bottom - room.top);
  const LONG left = std::clamp(outside.left, room.left, room.right - width);
  const LONG top = std::clamp(outside.top, room.top, room.bottom - height);
  ::SetWindowPos(window, nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

HWND MakeChild(HWND parent, const wchar_t* kind, const std::wstring& text, DWORD style, int id, DWORD extended) {
  const HWND made = ::CreateWindowExW(extended, kind, text.c_str(), style | WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, parent,
                                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  if (!made) throw std::system_error(static_cast<int>(::GetLastError()), std::system_category(), "no window");
  return made;
}

}  // namespace ORXKMPrintProp::host
