#pragma once

#include "dialog/Platform.h"

namespace ORXKMPrintProp::win32 {

/// The default dialog font of the system and the text order of the user's language, for the control's constructor.
class WindowsPlatform final : public Platform {
 public:
  int CompareTexts(TextView a, TextView b) const override;
  /// In the system's 8-bit code page, as the system gives it: 80 characters, what stands behind a NUL included.
  Text DialogFontFace() const override;

  static const WindowsPlatform& Instance();
};

}  // namespace ORXKMPrintProp::win32
