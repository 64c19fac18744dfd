#include "model/PrnStructureCls.h"

namespace ORXKMPrintProp {
namespace {

constexpr TextView kOwner = u"IOBJNM";

using E = PrnStrElemCls;
constexpr ColumnOf<E> kElementColumns[] = {
    PropertyColumn<E, &E::Name, TextCell>(u"CHAVL"),
    PropertyColumn<E, &E::Text, TextCell>(u"CHAVLTXT"),
    PropertyColumn<E, &E::Position, IntegerCell>(u"POSIT"),
    PropertyColumn<E, &E::Hidden, FlagCell>(u"HIDDEN"),
    PropertyColumn<E, &E::ColAutoWidth, FlagCell>(u"PR_AUTO_WIDTH"),
    PropertyColumn<E, &E::ColWidth, IntegerCell>(u"PR_COL1_WIDTH"),
    PropertyColumn<E, &E::ColAlign, AlignCell>(u"PR_COL1_ALIGN"),
    PropertyColumn<E, &E::ColTitle, TextCell>(u"PR_COL1_HEADER"),
    PropertyColumn<E, &E::ColTitle, TextCell>(u"PR_COL2_HEADER", Direction::WriteOnly),
};

using S = PrnStructureCls;
constexpr ColumnOf<S> kStructureColumns[] = {
    ConstantColumn<S, u'X'>(u"AXIS"),
    ConstantColumn<S, u'X'>(u"IS_STRUCTURE"),
    PropertyColumn<S, &S::Name, TextCell>(u"IOBJNM"),
    PropertyColumn<S, &S::Text, TextCell>(u"IOBJTXT"),
    PropertyColumn<S, &S::Position, IntegerCell>(u"POSIT"),
};

}  // namespace

ColumnsOf<PrnStrElemCls> PrnStrElemCls::Columns() { return kElementColumns; }

void PrnStrElemCls::FromTable(const Row& StrElemRow) { ReadRow(Columns(), u"it_mem", StrElemRow, *this); }

void PrnStrElemCls::ToTable(Row& StrElemRow, TextView StrIObjName) const {
  SetCell(StrElemRow, kOwner, ORXKMPrintProp::Text(StrIObjName));
  WriteRow(Columns(), *this, StrElemRow);
}

void PrnStrElemCollCls::FromTable(const Row& StrRow, Table& it_mem) {
  const Text structure = ToText(CellOf(StrRow, kOwner));
  const auto rows = EachRow(it_mem);
  while (const RowRef row = NextRow(*rows)) {
    if (ToText(CellOf(*row, kOwner)) != structure) continue;
    auto element = std::make_shared<PrnStrElemCls>();
    element->FromTable(*row);
    AddItemAsObj(std::move(element));
  }
}

void PrnStrElemCollCls::ToTable(Table& it_mem, TextView StrIObjName) const {
  for (const auto& element : *this) element->ToTable(*AddRow(it_mem), StrIObjName);
}

PrnStrElemCollCls::ItemRef PrnStrElemCollCls::Add(const Text& Name, const Text& UID, bool Hidden, std::int16_t Position,
                                                  const Text& ColTitle, PP_Alignment ColAlign, bool ColAutoWidth,
                                                  std::int16_t ColWidth, const Text& sKey) {
  auto element = std::make_shared<PrnStrElemCls>();
  element->Name(Name);
  element->UID(UID);
  element->Hidden(Hidden);
  element->Position(Position);
  element->ColTitle(ColTitle);
  element->ColAlign(ColAlign);
  element->ColAutoWidth(ColAutoWidth);
  element->ColWidth(ColWidth);
  items_.Add(element, sKey.empty() ? std::nullopt : std::optional(sKey));
  return element;
}

ColumnsOf<PrnStructureCls> PrnStructureCls::Columns() { return kStructureColumns; }

void PrnStructureCls::FromTable(const Row& StrRow, Table& it_mem) {
  ReadRow(Columns(), u"it_dim", StrRow, *this);
  elements_.FromTable(StrRow, it_mem);
}

void PrnStructureCls::ToTable(Row& StrRow, Table& it_mem) const {
  WriteRow(Columns(), *this, StrRow);
  elements_.ToTable(it_mem, Name());
}

}  // namespace ORXKMPrintProp
