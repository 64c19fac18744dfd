#include "model/PrnAttrCls.h"

#include "model/TwoColumns.h"

namespace ORXKMPrintProp {
namespace {

constexpr TextView kTableName = u"it_atr";
constexpr TextView kOwner = u"IOBJNM";

using C = PrnAttrCls;
constexpr auto kColumns = Joined(
    std::array{
        // Read ahead of ATTRITXT, written behind it.
        PropertyColumn<C, &C::Name, TextCell>(u"ATTRINM", Direction::ReadOnly),
        PropertyColumn<C, &C::Text, TextCell>(u"ATTRITXT"),
        PropertyColumn<C, &C::Name, TextCell>(u"ATTRINM", Direction::WriteOnly),
        PropertyColumn<C, &C::Position, IntegerCell>(u"POSIT"),
        PropertyColumn<C, &C::Hidden, FlagCell>(u"HIDDEN"),
    },
    kTwoColumns<C>);

Text OwnerOf(const Row& row) { return ToText(CellOf(row, kOwner)); }

/// Enters the first row of every run.
void FillIndex(AttrRowIndex& index, Table& it_atr) {
  const std::int16_t last = ToInteger16(RowCountOf(it_atr));
  index.Reserve(static_cast<std::size_t>(last));
  Text current;
  for (std::int32_t number = 1; number <= last; ++number) {
    Text name = OwnerOf(*RowAt(it_atr, number));
    if (number > 1 && name == current) continue;
    if (!index.TryAdd(static_cast<std::int16_t>(number), name)) {
      throw RunTimeError(ErrorKind::KeyExists, u"The rows of \"" + name +
                                                   u"\" do not stand together: a second run begins in row " +
                                                   ToText(number) + u" of " + Text(kTableName) + u".");
    }
    current = std::move(name);
  }
}

}  // namespace

ColumnsOf<PrnAttrCls> PrnAttrCls::Columns() { return kColumns; }

void PrnAttrCls::FromTable(const Row& AttrRow) { ReadRow(Columns(), kTableName, AttrRow, *this); }

void PrnAttrCls::ToTable(Row& AttrRow, TextView CharIObjName) const {
  SetCell(AttrRow, kOwner, ORXKMPrintProp::Text(CharIObjName));
  WriteRow(Columns(), *this, AttrRow);
}

void PrnAttrCollCls::FromTable(const Row& ChaRow, Table& it_atr) {
  // Held, since a table may load another model from inside an operation.
  const std::shared_ptr<AttrRowIndex> index = gAttrRowIndex;
  if (!index) return;
  if (index->Count() == 0 && RowCountOf(it_atr) > 0) FillIndex(*index, it_atr);

  std::int32_t current = 0;
  try {
    const std::int16_t* const start = index->Find(OwnerOf(ChaRow));
    if (!start) return;
    current = *start;
  } catch (const RunTimeError&) {
    // A look-up that fails counts as a characteristic without attributes.
    return;
  }

  const Text name = OwnerOf(ChaRow);
  do {
    auto attribute = std::make_shared<PrnAttrCls>();
    attribute->FromTable(*RowAt(it_atr, current));
    AddItemAsObj(std::move(attribute));
    ++current;
  } while (current <= RowCountOf(it_atr) && OwnerOf(*RowAt(it_atr, current)) == name);
}

void PrnAttrCollCls::ToTable(Table& it_atr, TextView CharIObjName) const {
  for (const auto& attribute : *this) attribute->ToTable(*AddRow(it_atr), CharIObjName);
}

}  // namespace ORXKMPrintProp
