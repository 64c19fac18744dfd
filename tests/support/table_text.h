#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tables/MemoryTable.h"
#include "tables/Table.h"

/// Tables as texts that a person can read: a row a line, its cells by column, texts in single quotes, numbers bare,
/// Booleans as True and False, empty cells left out: `IOBJNM='REGION' POSIT=1`. ASCII only.
namespace ORXKMPrintProp::test {

/// Which of the control's tables: its columns, and which of them a row can't do without.
enum class Kind { General, Dimension, Member, Attribute, Texts };

/// A table of that kind with the rows of the text. Integer columns that a row does not name hold 0, so that it
/// loads; a column the kind does not have is added.
std::shared_ptr<MemoryTable> TableFrom(Kind kind, const std::string& rows);

/// All cells of all rows.
std::string ToString(Table& table);

/// The same, but only the cells that differ from what the control writes for an item about which nothing is set.
std::string BriefOf(Kind kind, Table& table);

/// One cell of the notation above.
std::string ToString(const Variant& value);
Variant VariantFrom(const std::string& text);

Text Wide(const std::string& ascii);

}  // namespace ORXKMPrintProp::test
