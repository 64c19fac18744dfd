#pragma once

#include <cstdint>
#include <vector>

#include "control/ORXQueryPrnProp.h"
#include "model/PrnPropCls.h"
#include "tables/Conversions.h"
#include "tables/MemoryTable.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp {

/// A control with that many print characteristics, whose positions are in no order, on the Characteristics page.
class Loaded {
 public:
  explicit Loaded(std::int64_t count, const Platform& platform = Platform::Plain()) : control(platform) {
    std::vector<Text> dimension;
    for (const auto& column : PrnCharCls::Columns()) dimension.emplace_back(column.name);
    dimension.emplace_back(u"IS_STRUCTURE");
    const auto general = MemoryTable::Create(
        {u"MARGIN_TOP", u"MARGIN_BOTTOM", u"MARGIN_LEFT", u"MARGIN_RIGHT", u"TITLE", u"PRINT_DIRECTION", u"MAX_PAGES",
         u"HIDE_ZERO", u"USE_COLORS", u"SUMPOSIT", u"NOMULTTXT", u"SIGNPRSNT", u"NO_LINES", u"CURUNITPOSITION"});
    const RowRef row = AddRow(*general);
    for (const char16_t* margin : {u"MARGIN_TOP", u"MARGIN_BOTTOM", u"MARGIN_LEFT", u"MARGIN_RIGHT"}) {
      row->Value(margin, std::int16_t{10});
    }
    const auto characteristics = MemoryTable::Create(dimension);
    for (std::int64_t i = 0; i < count; ++i) AddCharacteristic(*characteristics, i, count);
    control.ORXSetPrnTables(general, characteristics, MemoryTable::Create({u"IOBJNM"}),
                            MemoryTable::Create({u"IOBJNM"}));
    control.GetDialog().TabStrip().UserPick(1);
  }

  ORXQueryPrnProp control;
  ListBox& print = control.GetDialog().Get<ListBox>(u"lstPrint", 1);
  ListBox& available = control.GetDialog().Get<ListBox>(u"lstAvail", 1);

 private:
  static void AddCharacteristic(Table& table, std::int64_t i, std::int64_t count) {
    const RowRef row = AddRow(table);
    const auto scattered = static_cast<std::int16_t>(i * 7919 % count);
    row->Value(u"IOBJTXT", u"Characteristic " + ToText(std::int32_t{scattered}));
    row->Value(u"AXIS", u"Y");
    row->Value(u"POSIT", scattered);
    for (const char16_t* column : {u"PR_COL1_WIDTH", u"PR_COL2_WIDTH", u"STRT_LVL"})
      row->Value(column, std::int16_t{0});
  }
};

}  // namespace ORXKMPrintProp
