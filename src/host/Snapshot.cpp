#include "host/Snapshot.h"

#include <algorithm>

namespace ORXKMPrintProp::host {

Snapshot SnapshotOf(const SettingsDocument& document) {
  Snapshot snapshot;
  for (std::size_t i = 0; i < snapshot.tables.size(); ++i) {
    MemoryTable& table = *(document.*kTableMembers[i].table);
    snapshot.tables[i] = {table.ColumnNames(), AllRows(table)};
  }
  return snapshot;
}

bool IsSame(const Snapshot& a, const Snapshot& b) {
  for (std::size_t i = 0; i < a.tables.size(); ++i) {
    const TableSnapshot& left = a.tables[i];
    const TableSnapshot& right = b.tables[i];
    const auto isSameRow = [&](const RowRef& one, const RowRef& other) {
      return std::all_of(left.columns.begin(), left.columns.end(),
                         [&](const Text& column) { return one->Value(column) == other->Value(column); });
    };
    if (left.columns != right.columns || left.rows.size() != right.rows.size() ||
        !std::equal(left.rows.begin(), left.rows.end(), right.rows.begin(), isSameRow)) {
      return false;
    }
  }
  return true;
}

}  // namespace ORXKMPrintProp::host
