#include "host/Snapshot.h"

#include <algorithm>

#include "tables/TableCalls.h"

namespace ORXKMPrintProp::host {

Snapshot SnapshotOf(const SettingsDocument& document) {
  Snapshot snapshot;
  for (std::size_t i = 0; i < snapshot.tables.size(); ++i) {
    MemoryTable& table = *(document.*kTableMembers[i].table);
    snapshot.tables[i] = {table.ColumnNames(), AllRows(table)};
  }
  return snapshot;
}

SettingsDocument DocumentOf(const Snapshot& snapshot) {
  SettingsDocument document;
  document.file = "the settings";
  for (std::size_t i = 0; i < snapshot.tables.size(); ++i) {
    const auto& [columns, rows] = snapshot.tables[i];
    const MemoryTableRef table = document.*kTableMembers[i].table = MemoryTable::Create(columns);
    for (const RowRef& row : rows) {
      const RowRef copy = AddRow(*table);
      for (const Text& column : columns) copy->Value(column, row->Value(column));
    }
  }
  return document;
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
