#pragma once

#include <array>
#include <vector>

#include "host/SettingsDocument.h"

namespace ORXKMPrintProp::host {

/// The rows of a table at one time.
struct TableSnapshot {
  std::vector<Text> columns;
  std::vector<RowRef> rows;
};

/// The four tables of settings at one time, in the order of `kTableMembers`. A rewrite of the tables does not touch
/// the rows that were there, so nothing is copied.
struct Snapshot {
  std::array<TableSnapshot, 4> tables;

  const TableSnapshot& General() const { return tables[0]; }
  const TableSnapshot& Dimension() const { return tables[1]; }
  const TableSnapshot& Member() const { return tables[2]; }
  const TableSnapshot& Attribute() const { return tables[3]; }
};

Snapshot SnapshotOf(const SettingsDocument& document);

/// The same as tables of their own. They have no text table, and messages call them "the settings".
SettingsDocument DocumentOf(const Snapshot& snapshot);

/// What was read back, as it can be loaded: the control writes the attributes, or elements, of a name once for each
/// characteristic, or structure, that bears it; here they stand once.
Snapshot Loadable(Snapshot readBack);

/// Whether the same rows stand in the same order, with the same cells.
bool IsSame(const Snapshot& a, const Snapshot& b);

/// Puts the rows of the former one, which is kept as well, in the place of equal ones: so both need little more than
/// one.
void ShareRows(Snapshot& snapshot, const Snapshot& former);

}  // namespace ORXKMPrintProp::host
