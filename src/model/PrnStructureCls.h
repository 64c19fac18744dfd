#pragma once

#include <cstdint>
#include <memory>

#include "model/CollCls.h"
#include "model/ColumnTable.h"
#include "model/PrnItemCls.h"
#include "tables/Table.h"

namespace ORXKMPrintProp {

/// One element of a structure: a single column.
class PrnStrElemCls : public PrnItemCls {
 public:
  TextProperty ColTitle;
  Property<PP_Alignment> ColAlign;
  FlagProperty ColAutoWidth;
  /// In the unit of the host, which alone knows it.
  NumberProperty ColWidth;

  /// The columns of a member row but for `IOBJNM`, which names the structure and is written first.
  static ColumnsOf<PrnStrElemCls> Columns();

  void FromTable(const Row& StrElemRow);
  void ToTable(Row& StrElemRow, TextView StrIObjName) const;
};

/// The elements of one structure, in the order of their rows in the member table.
class PrnStrElemCollCls : public CollCls<PrnStrElemCls> {
 public:
  /// Reads the rows whose `IOBJNM` is that of `StrRow`; they may stand anywhere in the table.
  void FromTable(const Row& StrRow, Table& it_mem);
  /// Appends one row per element.
  void ToTable(Table& it_mem, TextView StrIObjName) const;

  /// Makes and appends an element, under `sKey` unless that is empty. `Text` stays empty.
  /// @throws RunTimeError (KeyExists) when the key is there already; nothing is added then.
  ItemRef Add(const Text& Name, const Text& UID, bool Hidden = false, std::int16_t Position = 0,
              const Text& ColTitle = {}, PP_Alignment ColAlign = PP_PRN_ALIGN_LEFT, bool ColAutoWidth = false,
              std::int16_t ColWidth = 0, const Text& sKey = {});
};

/// One of the query's two structures. An empty `Name` means that the query does not have it.
class PrnStructureCls {
 public:
  TextProperty Name;
  TextProperty Text;
  /// No table and no page uses it: it stays empty unless a caller sets it.
  TextProperty UID;
  /// Carried from load to read-back; no page sets it.
  NumberProperty Position;

  PrnStrElemCollCls& Elements() { return elements_; }
  const PrnStrElemCollCls& Elements() const { return elements_; }

  /// The cells of a structure row of the dimension table.
  static ColumnsOf<PrnStructureCls> Columns();

  void FromTable(const Row& StrRow, Table& it_mem);
  void ToTable(Row& StrRow, Table& it_mem) const;

 private:
  PrnStrElemCollCls elements_;
};

}  // namespace ORXKMPrintProp
