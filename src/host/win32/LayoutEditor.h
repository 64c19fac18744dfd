#pragma once

#include <windows.h>

#include <optional>

#include "tables/Text.h"

namespace ORXKMPrintProp::host {

/// Lets the user edit a layout as plain text, or only look at it.
/// @return what it is now, none when the user has left it as it was.
std::optional<Text> EditLayoutIn(HWND owner, const Text& name, const Text& layout, bool readOnly);

}  // namespace ORXKMPrintProp::host
