#pragma once

#include <vector>

#include "host/editor/TextCheck.h"

namespace ORXKMPrintProp::host {

/// Measures texts in a dialog of its own, which is not shown.
/// @throws RunTimeError from the text table; LoadError where there is no display.
TextRooms Measure(const MemoryTableRef& texts, const std::vector<ShownText>& shown);

}  // namespace ORXKMPrintProp::host
