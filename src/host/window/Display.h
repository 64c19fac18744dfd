#pragma once

namespace ORXKMPrintProp::host {

/// Whether there is something to open windows on: a display, or a platform that the user has named.
bool HasDisplay();

/// Where there is no display, what is drawn from now on is drawn in memory.
void DrawInMemoryWithoutDisplay();

}  // namespace ORXKMPrintProp::host
