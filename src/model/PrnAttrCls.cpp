#include "model/PrnAttrCls.h"

#include "tables/TableCalls.h"

namespace ORXKMPrintProp {
namespace {

constexpr TextView kTableName = u"it_atr";
constexpr TextView kOwner = u"IOBJNM";

using C = PrnAttrCls;
constexpr ColumnOf<C> kColumns[] = {
    // Read ahead of ATTRITXT, written behind it.
    PropertyColumn<C, &C::Name, TextCell>(u"ATTRINM", Direction::ReadOnly),
    PropertyColumn<C, &C::Text, TextCell>(u"ATTRITXT"),
    PropertyColumn<C, &C::Name, TextCell>(u"ATTRINM", Direction::WriteOnly),
    PropertyColumn<C, &C::Position, IntegerCell>(u"POSIT"),
    PropertyColumn<C, &C::Hidden, FlagCell>(u"HIDDEN"),
    PropertyColumn<C, &C::Presentation, PresentationCell>(u"IOBJPRSNT"),
    PropertyColumn<C, &C::ColFix1, FlagCell>(u"PR_COL1_FIX"),
    PropertyColumn<C, &C::ColFix2, FlagCell>(u"PR_COL2_FIX"),
    PropertyColumn<C, &C::ColAutoWidth, FlagCell>(u"PR_AUTO_WIDTH"),
    PropertyColumn<C, &C::ColWidth1, IntegerCell>(u"PR_COL1_WIDTH"),
    PropertyColumn<C, &C::ColWidth2, IntegerCell>(u"PR_COL2_WIDTH"),
    PropertyColumn<C, &C::ColAlign1, AlignCell>(u"PR_COL1_ALIGN"),
    PropertyColumn<C, &C::ColAlign2, AlignCell>(u"PR_COL2_ALIGN"),
    PropertyColumn<C, &C::ColTitle, TextCell>(u"PR_COL1_HEADER"),
    PropertyColumn<C, &C::ColTitle, TextCell>(u"PR_COL2_HEADER", Direction::WriteOnly),
};

Text OwnerOf(const Row& row) { return ToText(row.Value(kOwner)); }

/// Enters the first row of every run.
void FillIndex(AttrRowIndex& index, Table& it_atr) {
  const std::int16_t last = ToInteger16(it_atr.RowCount());
  Text current;
  for (std::int32_t number = 1; number <= last; ++number) {
    Text name = OwnerOf(*RowAt(it_atr, number));
    if (number > 1 && name == current) continue;
    if (index.Find(name)) {
      throw RunTimeError(ErrorKind::KeyExists, u"The rows of \"" + name +
                                                   u"\" do not stand together: a second run begins in row " +
                                                   ToText(number) + u" of " + Text(kTableName) + u".");
    }
    index.Add(static_cast<std::int16_t>(number), name);
    current = std::move(name);
  }
}

}  // namespace

ColumnsOf<PrnAttrCls> PrnAttrCls::Columns() { return kColumns; }

bool PrnAttrCls::FromTable(const RowRef& AttrRow) {
  ReadRow(Columns(), kTableName, *AttrRow, *this);
  return true;
}

bool PrnAttrCls::ToTable(const RowRef& AttrRow, TextView CharIObjName) const {
  AttrRow->Value(kOwner, ORXKMPrintProp::Text(CharIObjName));
  WriteRow(Columns(), *this, *AttrRow);
  return true;
}

bool PrnAttrCollCls::FromTable(const RowRef& ChaRow, const TableRef& it_atr) {
  // Held, since a table may load another model from inside an operation.
  const std::shared_ptr<AttrRowIndex> index = gAttrRowIndex;
  if (!index) return false;
  if (index->Count() == 0 && it_atr->RowCount() > 0) FillIndex(*index, *it_atr);

  std::int32_t current = 0;
  try {
    const std::int16_t* const start = index->Find(OwnerOf(*ChaRow));
    if (!start) return false;
    current = *start;
  } catch (const RunTimeError&) {
    // A look-up that fails counts as a characteristic without attributes.
    return false;
  }

  const Text name = OwnerOf(*ChaRow);
  do {
    auto attribute = std::make_shared<PrnAttrCls>();
    if (!attribute->FromTable(RowAt(*it_atr, current))) return false;
    AddItemAsObj(std::move(attribute));
    ++current;
  } while (current <= it_atr->RowCount() && OwnerOf(*RowAt(*it_atr, current)) == name);
  return true;
}

bool PrnAttrCollCls::ToTable(const TableRef& it_atr, TextView CharIObjName) const {
  for (const auto& attribute : *this) {
    if (!attribute->ToTable(AddRow(*it_atr), CharIObjName)) return false;
  }
  return true;
}

}  // namespace ORXKMPrintProp
