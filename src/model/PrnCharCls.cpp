#include "model/PrnCharCls.h"

#include "model/TwoColumns.h"

namespace ORXKMPrintProp {
namespace {

using C = PrnCharCls;
constexpr auto kColumns = Joined(
    std::array{
        PropertyColumn<C, &C::Name, TextCell>(u"IOBJNM"),
        PropertyColumn<C, &C::Text, TextCell>(u"IOBJTXT"),
        PropertyColumn<C, &C::Position, IntegerCell>(u"POSIT"),
        PropertyColumn<C, &C::Hidden, HiddenAsAxisCell>(u"AXIS"),
    },
    kTwoColumns<C>,
    std::array{
        PropertyColumn<C, &C::PageBreak, FlagCell>(u"PR_PAGE_BREAK"),
        PropertyColumn<C, &C::BreakArea, FlagCell>(u"PR_BREAK_AREA"),
        PropertyColumn<C, &C::QueryBreak, FlagCell>(u"PR_QUERY_BREAK"),
        PropertyColumn<C, &C::HryLevel, IntegerCell>(u"STRT_LVL"),
        PropertyColumn<C, &C::HryActive, FlagCell>(u"HRY_ACTIVE"),
        ConstantColumn<C, u'*'>(u"PR_HRY_PRSNT"),
        PropertyColumn<C, &C::FBLayout, TextCell>(u"PR_SUM_LAYOUT", Direction::WriteOnly),
        PropertyColumn<C, &C::HieNm, TextCell>(u"HIENM"),
        PropertyColumn<C, &C::Version, TextCell>(u"VERSION"),
        PropertyColumn<C, &C::DateTo, TextCell>(u"DATETO"),
        PropertyColumn<C, &C::NoSums, NoSumsCell>(u"NOSUMS"),
    });

constexpr TextView kTableName = u"it_dim";

}  // namespace

ColumnsOf<PrnCharCls> PrnCharCls::Columns() { return kColumns; }

void PrnCharCls::FromTable(const Row& ChaRow, Table& it_atr) {
  ReadRow(Columns(), kTableName, ChaRow, *this);
  attributes_.FromTable(ChaRow, it_atr);
}

void PrnCharCls::ToTable(Row& DimRow, Table& it_atr) const {
  WriteRow(Columns(), *this, DimRow);
  attributes_.ToTable(it_atr, Name());
}

void PrnCharCollCls::FromTable(Table& it_dim, Table& it_atr, std::int16_t& StrIndex1, std::int16_t& StrIndex2) {
  StrIndex1 = StrIndex2 = -1;
  const auto rows = EachRow(it_dim);
  while (const RowRef row = NextRow(*rows)) {
    if (ToText(CellOf(*row, u"IS_STRUCTURE")) != u"X") {
      auto characteristic = std::make_shared<PrnCharCls>();
      characteristic->FromTable(*row, it_atr);
      AddItemAsObj(std::move(characteristic));
      continue;
    }
    const std::int16_t number = ToInteger16(row->RowNumber());
    if (StrIndex1 == -1) {
      StrIndex1 = number;
    } else if (StrIndex2 == -1) {
      StrIndex2 = number;
    } else {
      gErrorText =
          u"Only two structures allowed. Found third structure in row " + ToText(std::int32_t{number}) + u" of it_dim.";
    }
  }
}

void PrnCharCollCls::ToTable(Table& it_dim, Table& it_atr) const {
  for (const auto& characteristic : *this) characteristic->ToTable(*AddRow(it_dim), it_atr);
}

}  // namespace ORXKMPrintProp
