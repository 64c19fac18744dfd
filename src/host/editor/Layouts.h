#pragma once

#include <compare>
#include <cstdint>
#include <map>
#include <set>

#include "control/ORXQueryPrnProp.h"
#include "host/Snapshot.h"

namespace ORXKMPrintProp::host {

/// What a layout belongs to, as the control's event and its answer tell it.
struct LayoutKey {
  std::int16_t buttonId = 0;
  Text characteristic = {};  ///< technical name, for a totals row

  auto operator<=>(const LayoutKey&) const = default;
};

/// The layouts that the host keeps, because the control reads none from the tables. Empty ones are not listed.
using Layouts = std::map<LayoutKey, Text>;

/// The layouts that stand in the document and that the control can hold. Of characteristics that share a name it
/// gives the first its layout and knows none of the others.
Layouts LayoutsIn(const Snapshot& file);

/// The rows of the dimension table, by number, whose layouts these are.
std::set<std::int32_t> RowsWithLayout(const Snapshot& file);

/// Hands them to a control that has loaded the tables, and has none of its own.
void HandBack(const Layouts& layouts, ORXQueryPrnProp& control);

}  // namespace ORXKMPrintProp::host
