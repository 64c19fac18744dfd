#pragma once

#include <windows.h>

#include "dialog/Dialog.h"

namespace ORXKMPrintProp::win32::test {

/// The window in which the widget is seen. @throws std::runtime_error
HWND WindowOf(HWND view, const Dialog& dialog, const Widget& widget);

/// The widget that is seen there, null for none.
const Widget* WidgetOf(HWND view, const Dialog& dialog, HWND window);

/// Handles all messages that have come.
void Pump();

}  // namespace ORXKMPrintProp::win32::test
