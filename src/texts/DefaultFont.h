#pragma once

#include <cstddef>

#include "tables/Text.h"

namespace ORXKMPrintProp {

/// Shared: face name of the platform's dialog font, empty until the first control starts.
extern Text gDefaultFontName;

namespace RBDoubleByteCS {

/// What finding the dialog font asks of the platform. This one is that of a program without a view: no window, and
/// the face name "MS Sans Serif". A view overrides it with its own.
class FontPlatform {
 public:
  using Window = void*;
  using Context = void*;

  virtual ~FontPlatform() = default;
  /// The window whose device context is asked, null for the screen.
  virtual Window GetActiveWindow() { return nullptr; }
  virtual Context GetContext(Window) { return nullptr; }
  /// The face name of the default interface font in that context, with a NUL behind it.
  /// @param length how many characters the platform has room for, the NUL among them.
  virtual Text GetTextFace(Context, std::size_t length);
  virtual void ReleaseContext(Window, Context) {}
};

/// Asks the platform for its dialog font and sets `gDefaultFontName`.
void GetDefaultDialogFont(FontPlatform& platform);

/// What stands before the first NUL; the whole text when there is none. Blanks stay.
Text TrimAtNul(const Text& text);

}  // namespace RBDoubleByteCS
}  // namespace ORXKMPrintProp
