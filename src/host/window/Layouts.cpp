#include "host/window/Layouts.h"

#include <string_view>
#include <unordered_set>

#include "tables/Conversions.h"

namespace ORXKMPrintProp::host {
namespace {

constexpr std::int16_t kTotalsRow = 4;
constexpr TextView kPageColumns[kTotalsRow] = {u"FRONTPAGE_LAYOUT", u"HEADER_LAYOUT", u"FOOTER_LAYOUT",
                                               u"LASTPAGE_LAYOUT"};
constexpr TextView kTotalsColumn = u"PR_SUM_LAYOUT";

Text Cell(const RowRef& row, TextView column) { return ToText(row->Value(column)); }

/// The characteristics, of several with one name the first.
std::vector<RowRef> FirstOfEachName(const TableSnapshot& dimension) {
  std::vector<RowRef> rows;
  std::unordered_set<Text> names;
  for (const RowRef& row : dimension.rows) {
    if (Cell(row, u"IS_STRUCTURE") != u"X" && names.insert(Cell(row, u"IOBJNM")).second) rows.push_back(row);
  }
  return rows;
}

}  // namespace

Layouts LayoutsIn(const Snapshot& file) {
  Layouts layouts;
  const auto add = [&](LayoutKey key, Text layout) {
    if (!layout.empty()) layouts.emplace(std::move(key), std::move(layout));
  };
  for (const RowRef& row : file.General().rows) {
    for (std::int16_t id = 0; id < kTotalsRow; ++id) add({.buttonId = id}, Cell(row, kPageColumns[id]));
  }
  for (const RowRef& row : FirstOfEachName(file.Dimension())) {
    add({.buttonId = kTotalsRow, .characteristic = Cell(row, u"IOBJNM")}, Cell(row, kTotalsColumn));
  }
  return layouts;
}

bool IsHandedBack(const Snapshot& file, const TableChanges& table, const Change& change) {
  if (change.kind != ChangeKind::LayoutEmptied) return false;
  if (table.table != std::string_view("dimension")) return true;
  for (const RowRef& row : FirstOfEachName(file.Dimension())) {
    if (row->RowNumber() == change.row) return true;
  }
  return false;
}

void HandBack(const Layouts& layouts, ORXQueryPrnProp& control) {
  for (const auto& [key, layout] : layouts) control.ORXSetPrintLayout(layout, key.buttonId, key.characteristic);
}

}  // namespace ORXKMPrintProp::host
