#pragma once

#include <windows.h>

#include <vector>

namespace ORXKMPrintProp::host {

struct ButtonText {
  int id;
  const wchar_t* caption;  ///< with the mark of its mnemonic
};

/// The buttons below a window's content, from the right edge. Their window hears of them by WM_COMMAND.
class ButtonRow {
 public:
  /// @param preset the id of the button that Enter presses
  void Make(HWND parent, const std::vector<ButtonText>& buttons, int preset);
  void SetFont(HFONT font, UINT dpi);
  /// In pixels, with the last font.
  SIZE Size() const { return {Width(), height_}; }
  /// Puts the row's lower right corner there.
  void MoveTo(int right, int bottom);

  HWND Window(int id) const;
  const std::vector<HWND>& Windows() const { return windows_; }
  bool Contains(HWND window) const;
  /// Shows which button Enter presses: the one with the focus, the preset one, or none where another button has it.
  void ShowDefault() const;
  /// The button with that mnemonic, null for none.
  HWND ByMnemonic(wchar_t character) const;

 private:
  int Width() const { return static_cast<int>(windows_.size()) * (width_ + gap_) - gap_; }

  std::vector<HWND> windows_;
  int preset_ = 0;
  int width_ = 0;
  int height_ = 0;
  int gap_ = 0;
};

}  // namespace ORXKMPrintProp::host
