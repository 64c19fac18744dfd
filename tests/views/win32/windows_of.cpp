#include "views/win32/windows_of.h"

#include <algorithm>
#include <stdexcept>

#include "host/Utf8.h"

namespace ORXKMPrintProp::win32::test {
namespace {

/// How the views call their windows: by the place in the dialog, from 1.
int IdOf(const Dialog& dialog, const Widget& widget) {
  const auto& all = dialog.Controls();
  return 1 + static_cast<int>(
                 std::find_if(all.begin(), all.end(), [&](const auto& other) { return other.get() == &widget; }) -
                 all.begin());
}

}  // namespace

HWND WindowOf(HWND view, const Dialog& dialog, const Widget& widget) {
  struct Search {
    int id;
    HWND found;
  } search{IdOf(dialog, widget), nullptr};
  const auto look = [](HWND window, LPARAM place) -> BOOL {
    auto& looked = *reinterpret_cast<Search*>(place);
    if (::GetDlgCtrlID(window) == looked.id) looked.found = window;
    return !looked.found;
  };
  ::EnumChildWindows(view, look, reinterpret_cast<LPARAM>(&search));
  if (!search.found) throw std::runtime_error("no window for " + host::ToUtf8(widget.Row().name.Spelled()));
  return search.found;
}

const Widget* WidgetOf(HWND view, const Dialog& dialog, HWND window) {
  const auto& all = dialog.Controls();
  const int id = window && ::IsChild(view, window) ? ::GetDlgCtrlID(window) : 0;
  return id > 0 && id <= static_cast<int>(all.size()) ? all[static_cast<std::size_t>(id) - 1].get() : nullptr;
}

void Pump() {
  MSG message{};
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

}  // namespace ORXKMPrintProp::win32::test
