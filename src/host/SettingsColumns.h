#pragma once

#include <string_view>
#include <vector>

#include "tables/Text.h"

namespace ORXKMPrintProp::host {

/// In the dimension table the column that marks the row of a structure.
inline constexpr TextView kIsStructure = u"IS_STRUCTURE";

/// In the general table the columns of the page layouts, in the order of their buttons.
inline constexpr TextView kPageLayouts[] = {u"FRONTPAGE_LAYOUT", u"HEADER_LAYOUT", u"FOOTER_LAYOUT",
                                            u"LASTPAGE_LAYOUT"};
/// In the dimension table the column of a totals row's layout.
inline constexpr TextView kTotalsLayout = u"PR_SUM_LAYOUT";

/// The columns that every table of that name in a document has, those that the control writes ahead, as it does.
std::vector<Text> KnownColumns(std::string_view table);

/// The dimension table's columns with those of a structure row ahead.
std::vector<Text> StructureFirst(const std::vector<Text>& columns);

}  // namespace ORXKMPrintProp::host
