#pragma once

#include <windows.h>

namespace ORXKMPrintProp::host {

/// A window over another one, which may be larger and is scrolled then.
class Viewport {
 public:
  /// @throws std::system_error
  explicit Viewport(HWND parent);
  Viewport(const Viewport&) = delete;
  Viewport& operator=(const Viewport&) = delete;
  /// Not while the window is there.
  ~Viewport() = default;

  HWND Window() const { return window_; }
  /// @param content a child of this window, or null. @param size what it takes, in pixels.
  void Show(HWND content, SIZE size);
  /// Scrolls to what lies in the content.
  void BringIntoSight(HWND inside);

 private:
  static LRESULT CALLBACK OnMessageOf(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  void FitBars();
  void ScrollTo(int bar, int position);
  void ScrollBy(int bar, int code);

  HWND window_ = nullptr;
  HWND content_ = nullptr;
  SIZE size_{};
};

}  // namespace ORXKMPrintProp::host
