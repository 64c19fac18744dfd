#pragma once

#include <windows.h>

#include <string>
#include <unordered_map>

#include "dialog/Dialog.h"

namespace ORXKMPrintProp::win32::test {

/// The widget that is seen in the window, null for none.
const Widget* WidgetOf(HWND view, const Dialog& dialog, HWND window);

/// The window in which each widget is seen. To look at all of them is slow.
std::unordered_map<const Widget*, HWND> WindowsOf(HWND view, const Dialog& dialog);

/// What is not as it must be, a line each: a window that is not where the layout has it at so many pixels to an inch,
/// a caption or tab that is not seen in full.
std::string Misplaced(HWND view, const Dialog& dialog, UINT dpi);

/// Handles all messages that have come.
void Pump();

}  // namespace ORXKMPrintProp::win32::test
