#include "views/win32/windows_of.h"

#include <commctrl.h>

#include <array>
#include <sstream>

#include "views/Places.h"
#include "views/win32/WindowsText.h"
namespace ORXKMPrintProp::win32::test {
namespace {

int WidthOf(HWND window, TextView text) {
  const HDC context = ::GetDC(window);
  const HGDIOBJ former = ::SelectObject(context, reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0)));
  SIZE size{};
  ::GetTextExtentPoint32W(context, ToWide(text).c_str(), static_cast<int>(text.size()), &size);
  ::SelectObject(context, former);
  ::ReleaseDC(window, context);
  return size.cx;
}

}  // namespace

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

std::string Misplaced(HWND view, const Dialog& dialog, UINT dpi) {
  std::ostringstream told;
  const auto resolution = static_cast<double>(dpi);
  const auto inView = [view](HWND window, RECT place) {
    ::MapWindowPoints(window, view, reinterpret_cast<POINT*>(&place), 2);
    return place;
  };
  const auto windows = WindowsOf(view, dialog);
  if (windows.size() != dialog.Controls().size()) told << windows.size() << " windows\n";
  for (const auto& [widget, window] : windows) {
    const LayoutRow& row = widget->Row();
    views::Place place = views::PlaceOf(row.geometry, {resolution, resolution});
    for (const Widget* around = dialog.Find({row.parent}); around; around = dialog.Find({around->Row().parent})) {
      const views::Place outer = views::PlaceOf(around->Row().geometry, {resolution, resolution});
      place.left += outer.left;
      place.top += outer.top;
    }
    RECT seen{};
    ::GetWindowRect(window, &seen);
    seen = inView(nullptr, seen);
    const std::string name = ToAscii(row.name.Spelled());
    if (views::Place{seen.left, seen.top, seen.right - seen.left, seen.bottom - seen.top} != place) {
      told << name << " lies at " << seen.left << " " << seen.top << " to " << seen.right << " " << seen.bottom << "\n";
    }
    const bool isBox = row.kind == WidgetKind::TextBox || row.kind == WidgetKind::ComboBox;
    const Text caption = isBox ? Text() : TextOf(window);
    if (caption.ends_with(u'\u2026') || WidthOf(window, caption) > place.width) told << name << " is cut\n";
    for (int tab = 0; row.kind == WidgetKind::SSTab && tab < SSTab::kTabs; ++tab) {
      std::array<wchar_t, 256> text{};
      TCITEMW item{};
      item.mask = TCIF_TEXT;
      item.pszText = text.data();
      item.cchTextMax = static_cast<int>(text.size());
      ::SendMessageW(window, TCM_GETITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
      RECT shape{};
      TabCtrl_GetItemRect(window, tab, &shape);
      const Text tabCaption = ToText(text.data());
      if (tabCaption.ends_with(u'\u2026') || WidthOf(window, tabCaption) > shape.right - shape.left ||
          shape.right > place.width) {
        told << "tab " << tab << " is cut\n";
      }
    }
  }
  return told.str();
}

void Pump() {
  MSG message{};
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

}  // namespace ORXKMPrintProp::win32::test
