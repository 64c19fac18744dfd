#pragma once

#include <initializer_list>
#include <vector>

#include "host/Snapshot.h"
#include "tables/Table.h"

namespace ORXKMPrintProp::host {

// Rows of read-back tables, as somebody reads them who prints with them.

using Rows = std::vector<RowRef>;

/// The cell as it is.
Text RawText(const Row& row, TextView column);
/// The cell on one line, nothing in it that a terminal would obey.
Text LineText(const Row& row, TextView column);
bool Flag(const Row& row, TextView column);
int Number(const Row& row, TextView column);
Text Digits(int number);

/// The first of the columns that says something, on one line.
Text FirstText(const Row& row, std::initializer_list<TextView> columns);

// What people call an item: by its text, else by its technical name.

/// Of a row of the dimension table.
Text OwnerName(const Row& row);
Text AttributeName(const Row& row);
Text ElementName(const Row& row);

/// A list in words; empty parts are left out.
Text Joined(const std::vector<Text>& parts, TextView separator = u", ");

bool IsPrinted(const Row& characteristic);

/// "At most" so much; empty for no limit.
Text PageLimit(const Row& general);

/// What prints in the one or two columns of a characteristic or an attribute.
struct Presentation {
  bool keyFirst;
  bool both;  ///< else there is only column 1
};
Presentation PresentationOf(const Row& row);

/// Equal positions stay in the order of the table.
void SortByPosition(Rows& rows);

/// A row of the dimension table with the rows of the attribute or the member table that belong to it.
struct Owner {
  RowRef row;
  Rows printed = {};  ///< in print order
  Rows hidden = {};
};

/// @param owners all characteristics, or all structures.
std::vector<Owner> OwnersOf(const Rows& owners, const Rows& owned);

/// What would be printed, and what would not.
struct Printout {
  std::vector<Owner> characteristics = {};  ///< in print order
  std::vector<Owner> hidden = {};           ///< characteristics that are not printed, and so nothing below them
  std::vector<Owner> structures = {};
};
Printout PrintoutOf(const Snapshot& readBack);

}  // namespace ORXKMPrintProp::host
