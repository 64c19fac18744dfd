#pragma once

#include <windows.h>

#include <unordered_map>

#include "dialog/Dialog.h"

namespace ORXKMPrintProp::win32::test {

/// The widget that is seen in the window, null for none.
const Widget* WidgetOf(HWND view, const Dialog& dialog, HWND window);

/// The window in which each widget is seen. To look at all of them is slow.
std::unordered_map<const Widget*, HWND> WindowsOf(HWND view, const Dialog& dialog);

/// Handles all messages that have come.
void Pump();

}  // namespace ORXKMPrintProp::win32::test
