#include "host/editor/Layouts.h"

#include <unordered_set>

#include "host/PrintRows.h"
#include "host/SettingsColumns.h"
#include "host/SettingsDocument.h"

namespace ORXKMPrintProp::host {
namespace {

/// The characteristics, of several with one name the first.
std::vector<RowRef> FirstOfEachName(const TableSnapshot& dimension) {
  std::vector<RowRef> rows;
  std::unordered_set<Text> names;
  for (const RowRef& row : dimension.rows) {
    if (!IsStructure(*row) && names.insert(RawText(*row, u"IOBJNM")).second) rows.push_back(row);
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
    for (std::int16_t id = 0; id < kTotalsRowButton; ++id) add({.buttonId = id}, RawText(*row, kPageLayouts[id]));
  }
  for (const RowRef& row : FirstOfEachName(file.Dimension())) {
    add({.buttonId = kTotalsRowButton, .characteristic = RawText(*row, u"IOBJNM")}, RawText(*row, kTotalsLayout));
  }
  return layouts;
}

std::set<std::int32_t> RowsWithLayout(const Snapshot& file) {
  std::set<std::int32_t> numbers;
  for (const RowRef& row : FirstOfEachName(file.Dimension())) numbers.insert(row->RowNumber());
  return numbers;
}

void HandBack(const Layouts& layouts, ORXQueryPrnProp& control) {
  for (const auto& [key, layout] : layouts) control.ORXSetPrintLayout(layout, key.buttonId, key.characteristic);
}

}  // namespace ORXKMPrintProp::host
