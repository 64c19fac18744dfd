#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "tables/RunTimeError.h"
#include "tables/Table.h"

// The calls that the control makes on a host's table, each step of the way checked: a table that gives no object
// where the contract promises one fails the call (kind Object).

namespace ORXKMPrintProp {

template <class Ref>
Ref Needed(Ref object) {
  if (!object) throw RunTimeError(ErrorKind::Object, u"There is no object where one is needed.");
  return object;
}

inline RowListRef RowsOf(Table& table) { return Needed(table.Rows()); }
inline RowRef RowAt(Table& table, std::int32_t number) { return Needed(table.Rows(number)); }
inline RowRef AddRow(Table& table) { return Needed(RowsOf(table)->Add()); }
inline std::unique_ptr<RowEnumerator> EachRow(Table& table) { return Needed(RowsOf(table)->Enumerate()); }

}  // namespace ORXKMPrintProp
