#pragma once

#include <string>

#include "dialog/Lists.h"

namespace ORXKMPrintProp::test {

/// What a widget holds: a text, a number for a check box and the tabs, nothing for a label; of a list or a combo box
/// the entries in order, ">" ahead of the one at `ListIndex`, "*" ahead of a selected one, its ItemData behind ":"
/// unless that is 0: `a >*b:3 c`.
std::string StateOf(const Widget& widget);

/// Appends the words as entries, in their order, by index.
void Fill(EntryWidget& widget, const std::string& words);

}  // namespace ORXKMPrintProp::test
