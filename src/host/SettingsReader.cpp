#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <unordered_map>
#include <utility>

#include "host/Files.h"
#include "host/SettingsColumns.h"
#include "host/SettingsDocument.h"
#include "host/Spelling.h"
#include "host/Utf8.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::host {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kSchema = "$schema";

/// Collects the rows of one table, of which the columns are known only when the last row has been read.
class TableBuilder {
 public:
  explicit TableBuilder(std::string_view name) {
    for (const Text& column : KnownColumns(name)) PlaceOf(column);
  }

  void AddRow() { rows_.emplace_back(); }
  int RowNumber() const { return static_cast<int>(rows_.size()); }

  /// Turns to a column of the last row. @return False when the row has named it before.
  bool SetColumn(const Text& name) {
    column_ = PlaceOf(name);
    return std::exchange(lastRow_[column_], RowNumber()) != RowNumber();
  }
  void SetCell(Variant cell) { rows_.back().emplace_back(column_, std::move(cell)); }

  MemoryTableRef Build() {
    auto table = MemoryTable::Create(columns_);
    for (auto& cells : rows_) {
      const RowRef row = ORXKMPrintProp::AddRow(*table);
      for (auto& [column, cell] : cells) row->Value(columns_[column], std::move(cell));
    }
    return table;
  }

 private:
  std::size_t PlaceOf(const Text& name) {
    const auto [place, isNew] = places_.try_emplace(name, columns_.size());
    if (isNew) {
      columns_.push_back(name);
      lastRow_.push_back(0);
    }
    return place->second;
  }

  std::vector<Text> columns_;
  std::unordered_map<Text, std::size_t> places_;
  std::vector<int> lastRow_;  ///< by column: the row that named it last
  std::size_t column_ = 0;
  std::vector<std::vector<std::pair<std::size_t, Variant>>> rows_;
};

/// Line and column of a byte, both counted from 1, the column in characters.
std::string PositionOf(std::string_view json, std::size_t offset) {
  const std::string_view before = json.substr(0, offset);
  const std::size_t lineStart = before.rfind('\n') + 1;  // npos + 1 is 0
  const auto line = std::count(before.begin(), before.end(), '\n') + 1;
  const std::string_view start = before.substr(lineStart);
  const auto column = std::count_if(start.begin(), start.end(), [](char c) { return (c & 0xC0) != 0x80; }) + 1;
  return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

/// What the parser has to say, without its own marks around it.
std::string ReasonOf(const nlohmann::json::exception& error) {
  if (dynamic_cast<const nlohmann::json::out_of_range*>(&error)) return "the number is too large";
  std::string reason = error.what();
  const auto cutBehind = [&](std::string_view mark, std::size_t from) {
    if (const auto at = reason.find(mark, from); at != std::string::npos) reason.erase(0, at + mark.size());
  };
  cutBehind("] ", 0);
  cutBehind(": ", reason.find("column"));
  // The text that was read last may be long, or no text at all.
  return reason.substr(0, reason.find("; last read: "));
}

/// Puts the tables together while the parser goes through the document.
class Builder final : public nlohmann::json_sax<Json> {
 public:
  Builder(std::string_view json, std::string file) : json_(json), place_{.file = std::move(file)} {
    document_.file = place_.file;
  }

  SettingsDocument Take() {
    for (const TableMember& member : kTableMembers) {
      auto& table = document_.*member.table;
      if (!table && member.table != &SettingsDocument::texts) table = TableBuilder(member.name).Build();
    }
    return std::move(document_);
  }

  bool null() override { return Cell({}, "null"); }
  bool boolean(bool value) override { return Cell(value, value ? "true" : "false"); }
  bool number_integer(std::int64_t value) override { return Number(static_cast<double>(value)); }
  bool number_unsigned(std::uint64_t value) override { return Number(static_cast<double>(value)); }
  bool number_float(double value, const std::string&) override { return Number(value); }
  bool binary(nlohmann::json::binary_t&) override { return false; }  // JSON has none

  bool string(std::string& value) override {
    if (level_ == Level::Schema) {
      document_.schema = std::move(value);
      level_ = Level::Document;
      return true;
    }
    return Cell(level_ == Level::Cell ? FromUtf8(value) : Text(), "a text");
  }

  bool start_object(std::size_t) override {
    if (level_ == Level::Start) {
      level_ = Level::Document;
    } else if (level_ == Level::Rows) {
      table_->AddRow();
      place_.row = table_->RowNumber();
      level_ = Level::Row;
    } else {
      Refuse("an object");
    }
    return true;
  }

  bool end_object() override {
    level_ = level_ == Level::Row ? Level::Rows : Level::Start;
    return true;
  }

  bool start_array(std::size_t) override {
    if (level_ != Level::Table) Refuse("an array");
    level_ = Level::Rows;
    return true;
  }

  bool end_array() override {
    document_.*member_->table = table_->Build();
    table_.reset();
    place_ = {.file = place_.file};
    level_ = Level::Document;
    return true;
  }

  bool key(std::string& name) override {
    if (level_ == Level::Row) {
      place_.column = std::move(name);
      if (!table_->SetColumn(FromUtf8(place_.column))) Fail("the row names this column twice");
      level_ = Level::Cell;
      return true;
    }
    if (name == kSchema) {
      place_.table = kSchema;
      if (document_.schema) Fail("there are two members of this name");
      place_.table.clear();
      level_ = Level::Schema;
      return true;
    }
    member_ = std::find_if(std::begin(kTableMembers), std::end(kTableMembers),
                           [&](const TableMember& member) { return name == member.name; });
    place_.table = name;
    if (member_ == std::end(kTableMembers)) {
      std::vector<std::string> names;
      for (const TableMember& member : kTableMembers) names.emplace_back(member.name);
      Fail("there is no such table" + DidYouMean(name, names));
    }
    if (document_.*member_->table) Fail("there are two members of this name");
    table_.emplace(name);
    level_ = Level::Table;
    return true;
  }

  bool parse_error(std::size_t position, const std::string&, const nlohmann::json::exception& error) override {
    // The position counts the bytes that have been read, the one in question among them, and the end as one.
    const std::size_t offset = std::min(position, json_.size() + 1) - (position > 0 ? 1 : 0);
    throw DocumentError({.file = place_.file}, PositionOf(json_, offset) + ": " + ReasonOf(error));
  }

 private:
  enum class Level { Start, Document, Schema, Table, Rows, Row, Cell };

  bool Number(double value) {
    using Whole = std::numeric_limits<std::int32_t>;
    if (value >= Whole::min() && value <= Whole::max() && value == std::trunc(value)) {
      return Cell(static_cast<std::int32_t>(value), "a number");
    }
    return Cell(value, "a number");
  }

  bool Cell(Variant value, const char* what) {
    if (level_ != Level::Cell) Refuse(what);
    table_->SetCell(std::move(value));
    place_.column.clear();
    level_ = Level::Row;
    return true;
  }

  [[noreturn]] void Fail(const std::string& reason) const { throw DocumentError(place_, reason); }

  /// @param what stands where something else should.
  [[noreturn]] void Refuse(const std::string& what) {
    switch (level_) {
      case Level::Schema:
        place_.table = kSchema;
        Fail("is " + what + ", not a text");
      case Level::Table:
        Fail("is " + what + ", not an array of rows");
      case Level::Rows:
        place_.row = table_->RowNumber() + 1;
        Fail("is " + what + ", not an object of columns and cells");
      case Level::Cell:
        Fail("is " + what + "; a cell is a text, a number, true, false or null");
      default:
        Fail("the document is " + what + ", not an object of tables");
    }
  }

  std::string_view json_;
  DocumentError::Place place_;  ///< where the parser is
  Level level_ = Level::Start;
  const TableMember* member_ = nullptr;
  std::optional<TableBuilder> table_;
  SettingsDocument document_;
};

}  // namespace

SettingsDocument ReadSettings(const std::string& path) { return ParseSettings(ReadFile(path), InputName(path)); }

SettingsDocument ParseSettings(std::string_view json, const std::string& file) {
  Builder builder(json, file);
  Json::sax_parse(json, &builder);
  return builder.Take();
}

}  // namespace ORXKMPrintProp::host
