// A program that embeds the control: it hands settings in, does what a user does, and reads the settings back.
#include <algorithm>
#include <iostream>
#include <set>

#include "ORXKMPrintProp/control/ORXQueryPrnProp.h"
#include "ORXKMPrintProp/model/PrnPropCls.h"
#include "ORXKMPrintProp/tables/Conversions.h"
#include "ORXKMPrintProp/tables/MemoryTable.h"

using namespace ORXKMPrintProp;

/// A table without rows that has every column in which these classes are kept.
template <class... Classes>
TableRef TableFor() {
  std::set<Text> names = {u"IOBJNM"};  // by which members and attributes name what they belong to
  (std::ranges::for_each(Classes::Columns(), [&](const auto& column) { names.emplace(column.name); }), ...);
  return MemoryTable::Create({names.begin(), names.end()});
}

std::string Cell(const RowRef& row, TextView column) { return ToAscii(ToText(row->Value(column))); }

struct Host final : ORXQueryPrnPropEvents {
  void ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) override {
    std::cout << "asked for layout " << ButtonID << "\n";
    control.ORXSetPrintLayout(u"<page/>", ButtonID, CharIObjName);
  }
  void ORXOrderChanged() override { std::cout << "the print order changed\n"; }
  ORXQueryPrnProp control;
};

int main() {
  const TableRef general = TableFor<PrnPropCls>(), dimension = TableFor<PrnCharCls, PrnStructureCls>();
  // Only texts may stay empty, numbers may not.
  const RowRef page = general->Rows()->Add();
  for (const auto margin : {u"MARGIN_TOP", u"MARGIN_BOTTOM", u"MARGIN_LEFT", u"MARGIN_RIGHT"}) page->Value(margin, 9);
  for (const Text name : {u"REGION", u"CUSTOMER", u"MONTH"}) {
    const RowRef row = dimension->Rows()->Add();
    for (const auto text : {u"IOBJNM", u"IOBJTXT"}) row->Value(text, name);
    for (const auto number : {u"PR_COL1_WIDTH", u"PR_COL2_WIDTH", u"STRT_LVL"}) row->Value(number, 0);
    row->Value(u"AXIS", u"Y");
    row->Value(u"POSIT", row->RowNumber());
  }

  Host host;
  host.control.Connect(host);
  if (!host.control.ORXSetPrnTables(general, dimension, TableFor<PrnStrElemCls>(), TableFor<PrnAttrCls>())) return 1;

  const Dialog& dialog = host.control.GetDialog();
  dialog.Get<CommandButton>(u"cmdPrintLayout", 0).UserPress();
  dialog.TabStrip().UserPick(1);
  ListBox& printed = dialog.Get<ListBox>(u"lstPrint", 1);
  printed.UserMouseDown(0, ListBox::kLeftButton);
  printed.UserMouseMove(1);
  printed.UserMouseUp(ListBox::kLeftButton);

  std::cout << "front page " << Cell(host.control.ORXGenPropTable()->Rows(1), u"FRONTPAGE_LAYOUT") << "\n";
  const auto rows = host.control.ORXDimTable()->Rows()->Enumerate();
  while (const RowRef row = rows->Next()) std::cout << Cell(row, u"POSIT") << " " << Cell(row, u"IOBJNM") << "\n";
}
