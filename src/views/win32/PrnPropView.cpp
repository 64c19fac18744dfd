#include "views/win32/PrnPropView.h"

#include "views/win32/DialogWindows.h"

namespace ORXKMPrintProp::win32 {

PrnPropView::PrnPropView(Dialog& dialog, HWND parent, Reports reports)
    : windows_(DialogWindows::Make(dialog, parent, std::move(reports))) {}
PrnPropView::~PrnPropView() { windows_->End(); }

HWND PrnPropView::Window() const { return windows_->Window(); }
bool PrnPropView::TakeKey(const MSG& message) { return windows_->TakeKey(message); }
void PrnPropView::TakeFocus(int step) { windows_->TakeFocus(step); }
void PrnPropView::Focus(const Widget& widget) { windows_->Focus(widget); }
bool PrnPropView::HasFocus() const { return windows_->HasFocus(); }
std::optional<views::TextRoom> PrnPropView::RoomOf(const Widget& widget, const Text& text, int tab) const {
  return windows_->RoomOf(widget, text, tab);
}
void PrnPropView::FollowMonitor() { windows_->FollowMonitor(); }

SIZE PrnPropView::NaturalSize(UINT dpi) {
  const views::Place place = views::PlaceOf(kClientArea, {static_cast<double>(dpi), static_cast<double>(dpi)});
  return {place.width, place.height};
}

UINT PrnPropView::DpiOf(HWND window) {
  // Not there on older systems.
  using GetDpi = UINT(WINAPI*)(HWND);
  static const auto getDpi = reinterpret_cast<GetDpi>(
      reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"user32"), "GetDpiForWindow")));
  if (const UINT dpi = getDpi ? getDpi(window) : 0) return dpi;
  const HDC screen = ::GetDC(nullptr);
  const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
  ::ReleaseDC(nullptr, screen);
  return static_cast<UINT>(dpi);
}

}  // namespace ORXKMPrintProp::win32
