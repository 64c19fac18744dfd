#pragma once

#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/DocumentError.h"
#include "tables/MemoryTable.h"

namespace ORXKMPrintProp::host {

using MemoryTableRef = std::shared_ptr<MemoryTable>;

/// The print settings of one query as a host keeps them. A table has the columns that the control writes or reads
/// in it, in the order in which it writes them, and behind them those that the document's rows name besides.
struct SettingsDocument {
  std::string file;  ///< how messages call it
  MemoryTableRef general;
  MemoryTableRef dimension;
  MemoryTableRef member;
  MemoryTableRef attribute;
  MemoryTableRef texts;               ///< none when the document has no such member
  std::optional<std::string> schema;  ///< the member "$schema", which is not a table
};

struct TableMember {
  const char* name;
  MemoryTableRef SettingsDocument::*table;
};
/// The members of a document, the text table last.
inline constexpr TableMember kTableMembers[] = {{"general", &SettingsDocument::general},
                                                {"dimension", &SettingsDocument::dimension},
                                                {"member", &SettingsDocument::member},
                                                {"attribute", &SettingsDocument::attribute},
                                                {"texts", &SettingsDocument::texts}};

/// Reads a document; a member that is missing is a table without rows.
/// @param path "-" for standard input.
/// @throws DocumentError
SettingsDocument ReadSettings(const std::string& path);

/// The same from text that stands for the file.
SettingsDocument ParseSettings(std::string_view json, const std::string& file);

/// The document for people and programs: a line for each row, empty cells left out.
std::string ToJson(const SettingsDocument& document);

/// The table's rows as objects of column and cell, empty cells left out. Columns stand in the order in which the
/// control writes them, which is another for the row of a structure.
nlohmann::ordered_json RowsToJson(MemoryTable& table);

/// Null for an empty cell. @throws RunTimeError (Type) for an object.
nlohmann::ordered_json CellToJson(const Variant& cell);

/// On one line. What is not UTF-8 in it, as a file's name may be, is replaced by U+FFFD.
std::string ToLine(const nlohmann::ordered_json& json);

/// Whether a row of the dimension table is that of a structure.
bool IsStructure(const Row& dimensionRow);

/// The rows of the table, in order. They keep their cells when the table is emptied.
std::vector<RowRef> AllRows(MemoryTable& table);

}  // namespace ORXKMPrintProp::host
