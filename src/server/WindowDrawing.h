#pragma once

#include <windows.h>

namespace ORXKMPrintProp::server {

/// Draws a window and all that lies in it as it would look on a screen, also while it is hidden.
/// @param size how much of it is drawn, in pixels; beyond the window's own size there is the ground of dialogs.
/// @param bounds where, in the context's units; the context may be that of a metafile.
/// @return false where there is no memory for it
bool DrawWindow(HWND window, SIZE size, HDC context, const RECT& bounds);

}  // namespace ORXKMPrintProp::server
