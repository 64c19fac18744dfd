#include "model/PrnCharCls.h"

#include "tables/TableCalls.h"

namespace ORXKMPrintProp {
namespace {

using C = PrnCharCls;
constexpr ColumnOf<C> kColumns[] = {
    PropertyColumn<C, &C::Name, TextCell>(u"IOBJNM"),
    PropertyColumn<C, &C::Text, TextCell>(u"IOBJTXT"),
    PropertyColumn<C, &C::Position, IntegerCell>(u"POSIT"),
    PropertyColumn<C, &C::Hidden, HiddenAsAxisCell>(u"AXIS"),
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
};

constexpr TextView kTableName = u"it_dim";

}  // namespace

ColumnsOf<PrnCharCls> PrnCharCls::Columns() { return kColumns; }

bool PrnCharCls::FromTable(const RowRef& ChaRow, const TableRef& it_atr) {
  ReadRow(Columns(), kTableName, *ChaRow, *this);
  attributes_.FromTable(ChaRow, it_atr);
  return true;
}

bool PrnCharCls::ToTable(const RowRef& DimRow, const TableRef& it_atr) const {
  WriteRow(Columns(), *this, *DimRow);
  return attributes_.ToTable(it_atr, Name());
}

bool PrnCharCollCls::FromTable(const TableRef& it_dim, const TableRef& it_atr, std::int16_t& StrIndex1,
                               std::int16_t& StrIndex2) {
  StrIndex1 = StrIndex2 = -1;
  const auto rows = EachRow(*it_dim);
  while (const RowRef row = rows->Next()) {
    if (ToText(row->Value(u"IS_STRUCTURE")) == u"X") {
      const std::int16_t number = ToInteger16(row->RowNumber());
      if (StrIndex1 == -1) {
        StrIndex1 = number;
      } else if (StrIndex2 == -1) {
        StrIndex2 = number;
      } else {
        gErrorText = u"Only two structures allowed. Found third structure in row " + ToText(std::int32_t{number}) +
                     u" of it_dim.";
      }
      continue;
    }
    auto characteristic = std::make_shared<PrnCharCls>();
    if (!characteristic->FromTable(row, it_atr)) return false;
    AddItemAsObj(std::move(characteristic));
  }
  return true;
}

bool PrnCharCollCls::ToTable(const TableRef& it_dim, const TableRef& it_atr) const {
  for (const auto& characteristic : *this) {
    if (!characteristic->ToTable(AddRow(*it_dim), it_atr)) return false;
  }
  return true;
}

}  // namespace ORXKMPrintProp
