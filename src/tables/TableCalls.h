#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "tables/RunTimeError.h"
#include "tables/Table.h"
#include "tables/TableOperation.h"

/// @file
/// The calls that the control makes on a host's table, each step of the way checked: a table that gives no object
/// where the contract promises one fails the call (kind Object), and so does one from inside of which other settings
/// have been loaded.

namespace ORXKMPrintProp {

template <class Ref>
Ref Needed(Ref object) {
  TableOperation::CheckNotOvertaken();
  if (!object) throw RunTimeError(ErrorKind::Object, u"There is no object where one is needed.");
  return object;
}

inline RowListRef RowsOf(Table& table) { return Needed(table.Rows()); }
inline RowRef RowAt(Table& table, std::int32_t number) { return Needed(table.Rows(number)); }
inline RowRef AddRow(Table& table) { return Needed(RowsOf(table)->Add()); }
inline std::unique_ptr<RowEnumerator> EachRow(Table& table) { return Needed(RowsOf(table)->Enumerate()); }

inline std::int32_t RowCountOf(Table& table) {
  const std::int32_t count = table.RowCount();
  TableOperation::CheckNotOvertaken();
  return count;
}

/// The next row, none behind the last.
inline RowRef NextRow(RowEnumerator& rows) {
  RowRef row = rows.Next();
  TableOperation::CheckNotOvertaken();
  return row;
}

inline Variant CellOf(const Row& row, TextView column) {
  Variant cell = row.Value(column);
  TableOperation::CheckNotOvertaken();
  return cell;
}

inline void SetCell(Row& row, TextView column, Variant&& cell) {
  row.Value(column, std::move(cell));
  TableOperation::CheckNotOvertaken();
}

inline void RemoveRows(Table& table) {
  RowsOf(table)->RemoveAll();
  TableOperation::CheckNotOvertaken();
}

}  // namespace ORXKMPrintProp
