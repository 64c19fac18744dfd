#include <algorithm>
#include <nlohmann/json.hpp>
#include <type_traits>
#include <utility>

#include "host/SettingsColumns.h"
#include "host/SettingsDocument.h"
#include "host/Utf8.h"
#include "tables/Conversions.h"

namespace ORXKMPrintProp::host {
namespace {

using Json = nlohmann::ordered_json;

std::string RowLine(const Json& row) {
  std::string line;
  for (const auto& [column, cell] : row.items()) {
    line += (line.empty() ? "{ " : ", ") + Json(column).dump() + ": " + cell.dump();
  }
  return line.empty() ? "{}" : line + " }";
}

}  // namespace

std::string ToJson(const SettingsDocument& document) {
  std::string json = "{";
  const char* separator = "\n";
  if (document.schema) {
    json += std::exchange(separator, ",\n") + ("  \"$schema\": " + Json(*document.schema).dump());
  }
  for (const TableMember& member : kTableMembers) {
    const MemoryTableRef& table = document.*member.table;
    if (!table) continue;
    json += std::exchange(separator, ",\n") + ("  \"" + std::string(member.name) + "\": [");
    const char* rowSeparator = "\n";
    for (const Json& row : RowsToJson(*table)) json += std::exchange(rowSeparator, ",\n") + ("    " + RowLine(row));
    json += table->RowCount() > 0 ? "\n  ]" : "]";
  }
  return json + "\n}\n";
}

Json RowsToJson(MemoryTable& table) {
  struct Column {
    Text name;
    std::string key;
  };
  const auto withKeys = [](const std::vector<Text>& names) {
    std::vector<Column> columns;
    columns.reserve(names.size());
    for (const Text& name : names) columns.push_back({name, ToUtf8(name)});
    return columns;
  };
  const std::vector<Text>& names = table.ColumnNames();
  const auto columns = withKeys(names);
  const bool hasStructures = std::find(names.begin(), names.end(), kIsStructure) != names.end();
  const auto structureColumns = hasStructures ? withKeys(StructureFirst(names)) : columns;

  Json rows = Json::array();
  for (const RowRef& row : AllRows(table)) {
    Json cells = Json::object();
    const bool isStructure = hasStructures && IsStructure(*row);
    for (const Column& column : isStructure ? structureColumns : columns) {
      if (Json cell = CellToJson(row->Value(column.name)); !cell.is_null()) cells[column.key] = std::move(cell);
    }
    rows.push_back(std::move(cells));
  }
  return rows;
}

Json CellToJson(const Variant& cell) {
  return std::visit(
      [](const auto& value) -> Json {
        using Value = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, std::monostate>) {
          return nullptr;
        } else if constexpr (std::is_arithmetic_v<Value>) {
          return value;
        } else {
          return ToUtf8(ToText(Variant(value)));
        }
      },
      cell);
}

std::string ToLine(const Json& json) { return json.dump(-1, ' ', false, Json::error_handler_t::replace); }

}  // namespace ORXKMPrintProp::host
