#include "views/win32/painted_list.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace ORXKMPrintProp::win32::test {
namespace {

/// The pixels of a list, in memory.
class Picture {
 public:
  Picture(HDC like, SIZE size) : size_(size) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    bitmap_ = ::CreateDIBSection(like, &info, DIB_RGB_COLORS, &bits_, nullptr, 0);
    former_ = ::SelectObject(context_, bitmap_);
  }
  ~Picture() {
    ::SelectObject(context_, former_);
    ::DeleteObject(bitmap_);
    ::DeleteDC(context_);
  }
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;

  HDC Context() const { return context_; }
  /// Within the mark of the focus.
  bool IsLike(const Picture& other, RECT row) const {
    ::GdiFlush();
    ::InflateRect(&row, -1, -1);
    for (LONG y = row.top; y < row.bottom; ++y) {
      const std::size_t start = static_cast<std::size_t>(y * size_.cx + row.left);
      for (std::size_t x = start; x < start + static_cast<std::size_t>(row.right - row.left); ++x) {
        if ((Pixels()[x] ^ other.Pixels()[x]) & 0xFFFFFF) return false;
      }
    }
    return true;
  }

 private:
  const std::uint32_t* Pixels() const { return static_cast<const std::uint32_t*>(bits_); }

  SIZE size_;
  HDC context_ = ::CreateCompatibleDC(nullptr);
  void* bits_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ former_ = nullptr;
};

void Draw(HWND list, const Picture& picture, RECT row, const PaintedEntry& entry) {
  const HDC context = picture.Context();
  ::FillRect(context, &row, ::GetSysColorBrush(entry.isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  ::SetBkMode(context, TRANSPARENT);
  ::SetTextColor(context, ::GetSysColor(!::IsWindowEnabled(list) ? COLOR_GRAYTEXT
                                        : entry.isSelected       ? COLOR_HIGHLIGHTTEXT
                                                                 : COLOR_WINDOWTEXT));
  const HGDIOBJ former = ::SelectObject(context, reinterpret_cast<HFONT>(::SendMessageW(list, WM_GETFONT, 0, 0)));
  row.left += 2;
  ::DrawTextW(context, entry.text.c_str(), -1, &row, DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS | DT_VCENTER);
  ::SelectObject(context, former);
}

}  // namespace

std::vector<PaintedEntry> EntriesOf(HWND list) {
  const auto ask = [list](UINT message, int entry, void* place = nullptr) {
    return static_cast<int>(::SendMessageW(list, message, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(place)));
  };
  std::vector<PaintedEntry> entries(static_cast<std::size_t>(ask(LB_GETCOUNT, 0)));
  for (int i = 0; i < static_cast<int>(entries.size()); ++i) {
    auto& [text, isSelected] = entries[static_cast<std::size_t>(i)];
    text.resize(static_cast<std::size_t>(ask(LB_GETTEXTLEN, i)));
    ask(LB_GETTEXT, i, text.data());
    isSelected = ask(LB_GETSEL, i) > 0;
  }
  if (!::IsWindowVisible(list)) return entries;

  ::UpdateWindow(list);
  RECT inside{};
  ::GetClientRect(list, &inside);
  const HDC screen = ::GetDC(list);
  const Picture seen(screen, {inside.right, inside.bottom}), expected(screen, {inside.right, inside.bottom});
  ::BitBlt(seen.Context(), 0, 0, inside.right, inside.bottom, screen, 0, 0, SRCCOPY);
  ::ReleaseDC(list, screen);
  for (int i = ask(LB_GETTOPINDEX, 0); i < static_cast<int>(entries.size()); ++i) {
    RECT row{};
    ask(LB_GETITEMRECT, i, &row);
    if (row.bottom > inside.bottom) break;
    PaintedEntry& entry = entries[static_cast<std::size_t>(i)];
    Draw(list, expected, row, entry);
    if (!seen.IsLike(expected, row)) entry.text += L" (looks otherwise)";
  }
  return entries;
}

}  // namespace ORXKMPrintProp::win32::test
