// Entering the Characteristics page with many entries in the native windows, up to what is painted of it, beside a bare
// list box that is filled with the same texts, once as it comes and once without being painted meanwhile. Prints the
// medians of some runs in turn.

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "loaded_page.h"
#include "views/win32/PrnPropView.h"
#include "views/win32/WindowsText.h"

namespace ORXKMPrintProp::bench {
namespace {

void Pump() {
  MSG message{};
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageW(&message);
}

double MillisecondsOf(const std::function<void()>& action) {
  const auto start = std::chrono::steady_clock::now();
  action();
  Pump();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double Median(std::vector<double> times) {
  std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2), times.end());
  return times[times.size() / 2];
}

HWND Make(const wchar_t* kind, DWORD style, HWND parent, SIZE size) {
  return ::CreateWindowExW(0, kind, L"", style | WS_VISIBLE, 0, 0, size.cx, size.cy, parent, nullptr, nullptr, nullptr);
}

void Measure(std::int64_t entries) {
  Loaded loaded(entries);
  const HWND frame = Make(L"STATIC", WS_OVERLAPPEDWINDOW, nullptr, {700, 450});
  win32::PrnPropView view(loaded.control.GetDialog(), frame, {});
  ::ShowWindow(view.Window(), SW_SHOW);
  const HWND other = Make(L"STATIC", WS_OVERLAPPEDWINDOW, nullptr, {300, 300});
  const HWND list = Make(L"LISTBOX", WS_CHILD | WS_VSCROLL | LBS_MULTIPLESEL, other, {150, 200});
  SSTab& tabs = loaded.control.GetDialog().TabStrip();
  const auto fill = [&](bool isPainted) {
    ::SendMessageW(list, LB_RESETCONTENT, 0, 0);
    Pump();
    return MillisecondsOf([&] {
      ::SendMessageW(list, WM_SETREDRAW, isPainted, 0);
      for (std::int16_t i = 0; i < loaded.print.ListCount(); ++i) {
        ::SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(win32::ToWide(loaded.print.List(i)).c_str()));
      }
      ::SendMessageW(list, WM_SETREDRAW, TRUE, 0);
      ::InvalidateRect(list, nullptr, TRUE);
    });
  };
  std::vector<double> entering, bare, unpainted;
  for (int run = 0; run < 3; ++run) {
    tabs.UserPick(0);
    Pump();
    entering.push_back(MillisecondsOf([&] { tabs.UserPick(1); }));
    bare.push_back(fill(true));
    unpainted.push_back(fill(false));
  }
  std::printf(
      "%6d entries: page %8.2f ms, bare list box %8.2f ms, ratio %.2f; unpainted meanwhile %8.2f ms, ratio %.2f\n",
      static_cast<int>(entries), Median(entering), Median(bare), Median(entering) / Median(bare), Median(unpainted),
      Median(entering) / Median(unpainted));
  for (const HWND window : {other, frame}) ::DestroyWindow(window);
}

}  // namespace
}  // namespace ORXKMPrintProp::bench

int main() {
  for (const std::int64_t entries : {10, 1000}) ORXKMPrintProp::bench::Measure(entries);
}
