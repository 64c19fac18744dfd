#pragma once

#include <string_view>
#include <vector>

#include "tables/Text.h"

namespace ORXKMPrintProp::host {

/// In the dimension table the column that marks the row of a structure.
inline constexpr TextView kIsStructure = u"IS_STRUCTURE";

/// The columns that every table of that name in a document has, those that the control writes ahead, as it does.
std::vector<Text> KnownColumns(std::string_view table);

/// The dimension table's columns with those of a structure row ahead.
std::vector<Text> StructureFirst(const std::vector<Text>& columns);

}  // namespace ORXKMPrintProp::host
