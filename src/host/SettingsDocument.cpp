#include "host/SettingsDocument.h"

#include <utility>

#include "host/SettingsColumns.h"
#include "tables/Conversions.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::host {

bool IsStructure(const Row& dimensionRow) { return ToText(dimensionRow.Value(kIsStructure)) == u"X"; }

std::vector<RowRef> AllRows(MemoryTable& table) {
  std::vector<RowRef> rows;
  const auto each = EachRow(table);
  while (RowRef row = each->Next()) rows.push_back(std::move(row));
  return rows;
}

}  // namespace ORXKMPrintProp::host
