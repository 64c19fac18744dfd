#pragma once

#include <windows.h>

#include <exception>
#include <string>
#include <vector>

#include "host/win32/ButtonRow.h"
#include "host/win32/Metrics.h"

namespace ORXKMPrintProp::host {

/// A window that waits for an answer: some content, and buttons below it.
class Form {
 public:
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form() = default;

  /// Shows the window until a button is pressed. @param owner is disabled meanwhile; null for none.
  /// @return the button's id, IDCANCEL where the window was closed, or could not be opened.
  int Run(HWND owner);

 protected:
  Form(std::wstring title, std::vector<ButtonText> buttons, int preset, bool isSizable);

  /// Makes the windows of the content, in tab order.
  virtual void Make() = 0;
  /// Gives them their fonts, at a resolution. @return the size that the content wants
  virtual SIZE Fit(HFONT font) = 0;
  virtual void MoveTo(const RECT& content) = 0;
  /// The window with the focus at first; null for the preset button.
  virtual HWND First() const { return nullptr; }
  virtual bool MayEnd(int /*id*/) { return true; }
  virtual void Paint(HDC) {}

  HWND Window() const { return window_; }
  UINT Dpi() const { return dpi_; }
  int Margin() const { return Pixels(11, dpi_); }

 private:
  static INT_PTR CALLBACK OnMessageOf(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  INT_PTR OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  void Begin();
  void Arrange(bool setSize);
  void Place();

  const std::wstring title_;
  const std::vector<ButtonText> texts_;
  const int preset_;
  const bool isSizable_;
  HWND window_ = nullptr;
  UINT dpi_ = 96;
  OwnedFont font_;
  ButtonRow buttons_;
  SIZE wanted_{};
  std::exception_ptr failure_;
};

}  // namespace ORXKMPrintProp::host
