#pragma once

#include <vector>

#include "host/editor/TextCheck.h"

namespace ORXKMPrintProp::host {

/// Measures texts in a dialog of its own, without a display where there is none.
/// @throws RunTimeError from the text table.
TextRooms Measure(const MemoryTableRef& texts, const std::vector<ShownText>& shown);

}  // namespace ORXKMPrintProp::host
