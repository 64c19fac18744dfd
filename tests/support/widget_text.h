#pragma once

#include <string>

#include "dialog/Lists.h"

namespace ORXKMPrintProp::test {

/// The entries in order, ">" ahead of the one at `ListIndex`, "*" ahead of a selected one, its ItemData behind ":"
/// unless that is 0: `a >*b:3 c`.
std::string StateOf(const ListBox& list);
std::string StateOf(const ComboBox& combo);

/// Appends the words as entries, in their order, by index.
void Fill(EntryWidget& widget, const std::string& words);

}  // namespace ORXKMPrintProp::test
