#pragma once

#include <cstdint>
#include <memory>

#include "model/CollCls.h"
#include "model/ColumnTable.h"
#include "model/PrnItemCls.h"
#include "tables/PerThread.h"
#include "tables/Table.h"

namespace ORXKMPrintProp {

/// One attribute of a characteristic. Its `Hidden` is not tied to that of the characteristic.
class PrnAttrCls : public PrnColumnsCls {
 public:
  /// The columns of an attribute row but for `IOBJNM`, which names the characteristic and is written first.
  static ColumnsOf<PrnAttrCls> Columns();

  void FromTable(const Row& AttrRow);
  void ToTable(Row& AttrRow, TextView CharIObjName) const;
};

/// The attributes of one characteristic, in the order of their rows in the attribute table.
class PrnAttrCollCls : public CollCls<PrnAttrCls> {
 public:
  /// Reads the run of rows that `gAttrRowIndex` has for the cell `IOBJNM` of `ChaRow`; fills that index first if it
  /// is still empty. Without a run the collection stays empty.
  /// @throws RunTimeError (KeyExists) when a name starts a second run; the message has the name and the row.
  void FromTable(const Row& ChaRow, Table& it_atr);
  /// Appends one row per attribute.
  void ToTable(Table& it_atr, TextView CharIObjName) const;
};

/// Where each characteristic's run of rows begins in the attribute table: row number by the text of `IOBJNM`.
using AttrRowIndex = Collection<std::int16_t>;

/// Shared: the index of the load under way, made empty by `PrnPropCls::FromTable` and released with its root.
extern thread_local PerThread<std::shared_ptr<AttrRowIndex>> gAttrRowIndex;

}  // namespace ORXKMPrintProp
