#pragma once

#include <cstdint>

#include "model/PrnAttrCls.h"
#include "tables/PerThread.h"

namespace ORXKMPrintProp {

/// How many characteristics a user can take into print. A load may bring more.
inline constexpr int kMaxPrintCharacteristics = 10;

/// One characteristic of the query. That only one characteristic holds each of the break flags, and only a
/// printed one, is a rule of the dialog, not of this class.
class PrnCharCls : public PrnColumnsCls {
 public:
  FlagProperty HryActive;
  /// Hierarchy display level.
  NumberProperty HryLevel;
  /// At its group change a new cover page starts.
  FlagProperty QueryBreak;
  /// At its group change a new page starts.
  FlagProperty PageBreak;
  /// At its group change a new block starts.
  FlagProperty BreakArea;
  /// Layout of the totals row, an opaque text of the host.
  TextProperty FBLayout;
  /// Name of the hierarchy, empty for none.
  TextProperty HieNm;
  TextProperty Version;
  TextProperty DateTo;
  Property<PP_NoSums> NoSums;

  PrnAttrCollCls& Attributes() { return attributes_; }
  const PrnAttrCollCls& Attributes() const { return attributes_; }

  /// The columns of a characteristic row of the dimension table.
  static ColumnsOf<PrnCharCls> Columns();

  /// Reads the row, then the characteristic's attribute rows; to have none is not a failure.
  void FromTable(const Row& ChaRow, Table& it_atr);
  void ToTable(Row& DimRow, Table& it_atr) const;

 private:
  PrnAttrCollCls attributes_;
};

/// All characteristics of the query, in the order of their rows in the dimension table, structure rows left out.
class PrnCharCollCls : public CollCls<PrnCharCls> {
 public:
  /// Reads both tables. `StrIndex1` and `StrIndex2` become the numbers of the first and the second structure row, -1
  /// for none. A further structure row is passed over, with words in `gErrorText`.
  void FromTable(Table& it_dim, Table& it_atr, std::int16_t& StrIndex1, std::int16_t& StrIndex2);
  /// Appends one row per characteristic, and each one's attribute rows as one run.
  void ToTable(Table& it_dim, Table& it_atr) const;
};

/// Shared: the words of the last load failure. No operation hands it out.
extern thread_local PerThread<Text> gErrorText;

}  // namespace ORXKMPrintProp
