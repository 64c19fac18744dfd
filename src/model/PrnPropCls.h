#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "model/PrnCharCls.h"
#include "model/PrnStructureCls.h"
#include "tables/PerThread.h"

namespace ORXKMPrintProp {

/// The root of the print-property model: the query's general print settings, its page layouts, its
/// characteristics and its two structures. It knows no widget.
class PrnPropCls {
 public:
  PrnPropCls() = default;
  PrnPropCls(const PrnPropCls&) = delete;
  PrnPropCls& operator=(const PrnPropCls&) = delete;
  ~PrnPropCls();

  TextProperty Title;
  Property<PP_PrnDirection> Direction;
  NumberProperty MaxPages;
  FlagProperty ShowNoZeros;
  FlagProperty UseColors;
  /// The margins are plain numbers in the unit of the host.
  NumberProperty MarginTop;
  NumberProperty MarginBottom;
  NumberProperty MarginLeft;
  NumberProperty MarginRight;
  Property<PP_SumPosit> SumPosit;
  FlagProperty NoMultTxt;
  Property<PP_SignPrsnt> SignPrsnt;
  FlagProperty NoLines;
  Property<PP_CurUnitPosition> CurUnitPosition;

  /// Opaque page layouts of the host: 0 top page, 1 head part, 2 foot part, 3 end page.
  /// @throws RunTimeError (Index) for an index outside 0 to 3.
  void FBLayout(std::int16_t Index, Text layout);
  const Text& FBLayout(std::int16_t Index) const;

  PrnCharCollCls& Characteristics() { return characteristics_; }
  const PrnCharCollCls& Characteristics() const { return characteristics_; }
  PrnStructureCls& Structure1() { return structure1_; }
  const PrnStructureCls& Structure1() const { return structure1_; }
  PrnStructureCls& Structure2() { return structure2_; }
  const PrnStructureCls& Structure2() const { return structure2_; }

  /// The columns of the general row.
  static ColumnsOf<PrnPropCls> Columns();

  /// Fills a new root; once only. The tables are read, not changed.
  /// @return False for a general table that has not exactly one row, with the words in `gErrorText`.
  /// @throws RunTimeError from a table, or from a cell that does not convert. What has been read stays.
  bool FromTable(Table& GenPropTable, Table& DimTable, Table& MemTable, Table& AtrTable);

  /// Empties the four tables and writes them anew; the model does not change.
  /// @throws RunTimeError from a table. What has been written stays.
  void ToTable(Table& GenPropTable, Table& DimTable, Table& MemTable, Table& AtrTable) const;

 private:
  std::array<Text, 4> layouts_;
  PrnCharCollCls characteristics_;
  PrnStructureCls structure1_;
  PrnStructureCls structure2_;
};

/// Shared: the one root of the model, none before the first load.
extern thread_local PerThread<std::shared_ptr<PrnPropCls>> gPrnProp;

}  // namespace ORXKMPrintProp
