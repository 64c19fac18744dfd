#include "views/win32/windows_of.h"

namespace ORXKMPrintProp::win32::test {

// The views call their windows by the place in the dialog, from 1.
const Widget* WidgetOf(HWND view, const Dialog& dialog, HWND window) {
  const auto& all = dialog.Controls();
  const int id = window && ::IsChild(view, window) ? ::GetDlgCtrlID(window) : 0;
  return id > 0 && id <= static_cast<int>(all.size()) ? all[static_cast<std::size_t>(id) - 1].get() : nullptr;
}

std::unordered_map<const Widget*, HWND> WindowsOf(HWND view, const Dialog& dialog) {
  struct Search {
    HWND view;
    const Dialog& dialog;
    std::unordered_map<const Widget*, HWND> found = {};
  } search{view, dialog};
  const auto look = [](HWND window, LPARAM place) -> BOOL {
    auto& looked = *reinterpret_cast<Search*>(place);
    if (const Widget* const widget = WidgetOf(looked.view, looked.dialog, window)) looked.found[widget] = window;
    return TRUE;
  };
  ::EnumChildWindows(view, look, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

void Pump() {
  MSG message{};
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

}  // namespace ORXKMPrintProp::win32::test
