#include "host/Snapshot.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>

#include "host/PrintRows.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::host {
namespace {

/// The cells of each row in one go: a table finds them faster in the order of its columns.
class RowComparison {
 public:
  explicit RowComparison(const std::vector<Text>& columns) : columns_(columns), cells_(columns.size()) {}

  bool IsSame(const RowRef& a, const RowRef& b) {
    if (a == b) return true;
    for (std::size_t i = 0; i < columns_.size(); ++i) cells_[i] = a->Value(columns_[i]);
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      if (b->Value(columns_[i]) != cells_[i]) return false;
    }
    return true;
  }

 private:
  const std::vector<Text>& columns_;
  std::vector<Variant> cells_;
};

constexpr TextView kOwner = u"IOBJNM";

/// Of the rows that belong to rows of the dimension table those that are there once.
std::vector<RowRef> Once(const TableSnapshot& owned, const TableSnapshot& dimension, bool ofStructures) {
  std::unordered_map<Text, std::size_t> owners;
  for (const RowRef& row : dimension.rows) {
    if (IsStructure(*row) == ofStructures) ++owners[RawText(*row, kOwner)];
  }
  std::unordered_map<Text, std::size_t> left;
  for (const RowRef& row : owned.rows) ++left[RawText(*row, kOwner)];
  for (auto& [name, count] : left) count /= std::max<std::size_t>(owners[name], 1);
  std::vector<RowRef> rows;
  std::copy_if(owned.rows.begin(), owned.rows.end(), std::back_inserter(rows), [&](const RowRef& row) {
    std::size_t& more = left[RawText(*row, kOwner)];
    return more > 0 && more-- > 0;
  });
  return rows;
}

}  // namespace

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

Snapshot Loadable(Snapshot readBack) {
  readBack.tables[2].rows = Once(readBack.Member(), readBack.Dimension(), true);
  readBack.tables[3].rows = Once(readBack.Attribute(), readBack.Dimension(), false);
  return readBack;
}

bool IsSame(const Snapshot& a, const Snapshot& b) {
  for (std::size_t i = 0; i < a.tables.size(); ++i) {
    const TableSnapshot& left = a.tables[i];
    const TableSnapshot& right = b.tables[i];
    RowComparison comparison(left.columns);
    if (left.columns != right.columns || left.rows.size() != right.rows.size() ||
        !std::equal(left.rows.begin(), left.rows.end(), right.rows.begin(),
                    [&](const RowRef& one, const RowRef& other) { return comparison.IsSame(one, other); })) {
      return false;
    }
  }
  return true;
}

void ShareRows(Snapshot& snapshot, const Snapshot& former) {
  for (std::size_t i = 0; i < snapshot.tables.size(); ++i) {
    TableSnapshot& table = snapshot.tables[i];
    const TableSnapshot& there = former.tables[i];
    if (table.columns != there.columns) continue;
    RowComparison comparison(table.columns);
    for (std::size_t row = 0; row < std::min(table.rows.size(), there.rows.size()); ++row) {
      if (comparison.IsSame(there.rows[row], table.rows[row])) table.rows[row] = there.rows[row];
    }
  }
}

}  // namespace ORXKMPrintProp::host
