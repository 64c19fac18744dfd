#include "model/PrnPropCls.h"

#include <utility>

namespace ORXKMPrintProp {
namespace {

template <std::int16_t Index>
constexpr ColumnOf<PrnPropCls> LayoutColumn(TextView name) {
  return {name, CellKind::Text, nullptr, [](const PrnPropCls& root) -> Variant { return root.FBLayout(Index); }};
}

using C = PrnPropCls;
constexpr ColumnOf<C> kColumns[] = {
    PropertyColumn<C, &C::Title, TextCell>(u"TITLE"),
    PropertyColumn<C, &C::Direction, DirectionCell>(u"PRINT_DIRECTION"),
    PropertyColumn<C, &C::MaxPages, LeadingNumberCell>(u"MAX_PAGES"),
    PropertyColumn<C, &C::ShowNoZeros, FlagCell>(u"HIDE_ZERO"),
    PropertyColumn<C, &C::UseColors, FlagCell>(u"USE_COLORS"),
    LayoutColumn<0>(u"FRONTPAGE_LAYOUT"),
    LayoutColumn<1>(u"HEADER_LAYOUT"),
    LayoutColumn<2>(u"FOOTER_LAYOUT"),
    LayoutColumn<3>(u"LASTPAGE_LAYOUT"),
    PropertyColumn<C, &C::MarginTop, IntegerCell>(u"MARGIN_TOP"),
    PropertyColumn<C, &C::MarginBottom, IntegerCell>(u"MARGIN_BOTTOM"),
    PropertyColumn<C, &C::MarginLeft, IntegerCell>(u"MARGIN_LEFT"),
    PropertyColumn<C, &C::MarginRight, IntegerCell>(u"MARGIN_RIGHT"),
    PropertyColumn<C, &C::SumPosit, SumPositCell>(u"SUMPOSIT"),
    PropertyColumn<C, &C::NoMultTxt, FlagCell>(u"NOMULTTXT"),
    PropertyColumn<C, &C::SignPrsnt, SignPrsntCell>(u"SIGNPRSNT"),
    PropertyColumn<C, &C::NoLines, FlagCell>(u"NO_LINES"),
    PropertyColumn<C, &C::CurUnitPosition, CurUnitPositionCell>(u"CURUNITPOSITION"),
};

std::size_t LayoutSlot(std::int16_t index) {
  if (index < 0 || index > 3) {
    throw RunTimeError(ErrorKind::Index, u"There is no page layout " + ToText(std::int32_t{index}) + u", only 0 to 3.");
  }
  return static_cast<std::size_t>(index);
}

}  // namespace

PrnPropCls::~PrnPropCls() { gAttrRowIndex.reset(); }

void PrnPropCls::FBLayout(std::int16_t Index, Text layout) { layouts_[LayoutSlot(Index)] = std::move(layout); }

const Text& PrnPropCls::FBLayout(std::int16_t Index) const { return layouts_[LayoutSlot(Index)]; }

ColumnsOf<PrnPropCls> PrnPropCls::Columns() { return kColumns; }

bool PrnPropCls::FromTable(Table& GenPropTable, Table& DimTable, Table& MemTable, Table& AtrTable) {
  gAttrRowIndex = std::make_shared<AttrRowIndex>();
  if (RowCountOf(GenPropTable) != 1) {
    gErrorText = u"Table with general print properties GenPropTable must have exactly one row.";
    return false;
  }
  ReadRow(Columns(), u"GenPropTable", *RowAt(GenPropTable, 1), *this);

  std::int16_t StrIndex1 = -1;
  std::int16_t StrIndex2 = -1;
  characteristics_.FromTable(DimTable, AtrTable, StrIndex1, StrIndex2);
  if (StrIndex1 != -1) structure1_.FromTable(*RowAt(DimTable, StrIndex1), MemTable);
  if (StrIndex2 != -1) structure2_.FromTable(*RowAt(DimTable, StrIndex2), MemTable);
  return true;
}

void PrnPropCls::ToTable(Table& GenPropTable, Table& DimTable, Table& MemTable, Table& AtrTable) const {
  for (Table* const table : {&GenPropTable, &DimTable, &MemTable, &AtrTable}) RemoveRows(*table);

  WriteRow(Columns(), *this, *AddRow(GenPropTable));
  characteristics_.ToTable(DimTable, AtrTable);
  for (const PrnStructureCls* const structure : {&structure1_, &structure2_}) {
    if (!structure->Name().empty()) structure->ToTable(*AddRow(DimTable), MemTable);
  }
}

}  // namespace ORXKMPrintProp
