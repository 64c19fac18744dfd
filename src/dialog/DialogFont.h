#pragma once

#include "dialog/Platform.h"
#include "tables/PerThread.h"

namespace ORXKMPrintProp {

/// Shared: face name of the platform's dialog font, empty until the first control starts.
extern thread_local PerThread<Text> gDefaultFontName;

namespace RBDoubleByteCS {

/// Asks the platform for its dialog font and sets `gDefaultFontName`.
void GetDefaultDialogFont(const Platform& platform);

/// What stands before the first NUL; the whole text when there is none. Blanks stay.
Text TrimAtNul(const Text& text);

}  // namespace RBDoubleByteCS
}  // namespace ORXKMPrintProp
