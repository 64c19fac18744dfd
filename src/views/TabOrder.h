#pragma once

#include <vector>

#include "dialog/Dialog.h"

namespace ORXKMPrintProp::views {

/// The widgets that take the focus, in the order of their TabIndex.
std::vector<Widget*> TabOrder(const Dialog& dialog);

/// Where the Tab key leads from a widget: to the next one that the user can reach now.
/// @param dialog whose order it is.
/// @param from null for from outside.
/// @param step 1 forward, -1 back
/// @return null where the key leads out of the dialog, which is so at both ends.
Widget* NextInTabOrder(const Dialog& dialog, const Widget* from, int step);

}  // namespace ORXKMPrintProp::views
