#include "host/win32/Measure.h"

#include <windows.h>

#include <memory>
#include <type_traits>

#include "host/Load.h"
#include "host/win32/Apartment.h"
#include "views/win32/PrnPropView.h"
#include "views/win32/WindowsPlatform.h"

namespace ORXKMPrintProp::host {
namespace {

struct EndWindow {
  void operator()(HWND window) const { ::DestroyWindow(window); }
};
using OwnedWindow = std::unique_ptr<std::remove_pointer_t<HWND>, EndWindow>;

}  // namespace

TextRooms Measure(const MemoryTableRef& texts, const std::vector<ShownText>& shown) {
  const Apartment apartment;
  const auto control = ControlWith(texts, win32::WindowsPlatform::Instance());
  Dialog& dialog = control->GetDialog();
  const OwnedWindow parent(
      ::CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPED, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr));
  if (!parent) throw LoadError("there is no display to measure texts on");
  const win32::PrnPropView view(dialog, parent.get(), {});
  TextRooms rooms{.rooms = {}, .dpi = static_cast<int>(win32::PrnPropView::DpiOf(view.Window()))};
  for (const auto& [place, text] : shown) {
    rooms.rooms.push_back(view.RoomOf(*dialog.Find(place.widget), text, place.number));
  }
  return rooms;
}

}  // namespace ORXKMPrintProp::host
