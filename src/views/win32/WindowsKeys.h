#pragma once

#include <windows.h>

#include "views/Keys.h"

namespace ORXKMPrintProp::win32 {

/// Of a key that goes down, with the modifiers as they are now.
views::KeyPress ToKeyPress(WPARAM virtualKey);

}  // namespace ORXKMPrintProp::win32
