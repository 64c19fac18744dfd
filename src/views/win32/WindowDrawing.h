#pragma once

#include <windows.h>

namespace ORXKMPrintProp::win32 {

/// A picture in memory, with a context to draw on it. At first it is the ground of dialogs.
class Canvas {
 public:
  /// @throws std::bad_alloc
  explicit Canvas(SIZE size);
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  ~Canvas();

  HDC Context() const { return context_; }
  /// Rows from the top, four bytes a pixel: blue, green, red, and one without a meaning.
  void* Bits() const;
  void StretchTo(HDC context, const RECT& bounds) const;

 private:
  BITMAPINFO Info() const;

  SIZE size_;
  HDC context_;
  HBITMAP bitmap_ = nullptr;
  void* bits_ = nullptr;
  HGDIOBJ former_ = nullptr;
};

/// Draws a window and all that lies in it as it would look on a screen, also while it is hidden.
/// @param size how much of it is drawn, in pixels; beyond the window's own size there is the ground of dialogs.
/// @param bounds where, in the context's units; the context may be that of a metafile.
/// @throws std::bad_alloc
void DrawWindow(HWND window, SIZE size, HDC context, const RECT& bounds);

}  // namespace ORXKMPrintProp::win32
