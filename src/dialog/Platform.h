#pragma once

#include "tables/Text.h"

namespace ORXKMPrintProp {

/// What a dialog asks of the desktop that it is on. This one is that of a program without a desktop; a view brings
/// another, which is handed to the control when that is made.
class Platform {
 public:
  virtual ~Platform() = default;

  /// The text order of the user's language, without regard to case; here by simple case folding.
  /// @return below 0, 0 or above 0 as `a` sorts ahead of `b`, with it or behind it. Always the same for two texts.
  virtual int CompareTexts(TextView a, TextView b) const;

  /// The face name of the interface font, here "MS Sans Serif". What stands behind a NUL in it does not count.
  virtual Text DialogFontFace() const;

  /// The one without a desktop.
  static const Platform& Plain();
};

}  // namespace ORXKMPrintProp
