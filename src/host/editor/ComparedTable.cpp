#include "host/editor/ComparedTable.h"

#include <deque>
#include <unordered_map>

#include "tables/Conversions.h"

namespace ORXKMPrintProp::host {
namespace {

Text TextIn(const RowRef& row, const Text& column) { return row ? ToText(row->Value(column)) : Text(); }

bool IsBlank(const Text& text) { return text.find_first_not_of(u' ') == Text::npos; }

}  // namespace

ComparedTable::ComparedTable(const TableSnapshot& file, const TableSnapshot& now, const std::vector<Text>& keyColumns)
    : columns_(now.columns) {
  const auto keyOf = [&](const RowRef& row) {
    Text key;
    for (const Text& column : keyColumns) key += TextIn(row, column) + u'\0';
    return key;
  };
  std::unordered_map<Text, std::deque<RowRef>> byKey;
  for (const RowRef& row : file.rows) byKey[keyOf(row)].push_back(row);
  for (const RowRef& row : now.rows) {
    auto& rows = byKey[keyOf(row)];
    pairs_.push_back({row, rows.empty() ? RowRef() : rows.front()});
    if (!rows.empty()) rows.pop_front();
  }
  for (const RowRef& row : file.rows) {
    auto& rows = byKey[keyOf(row)];
    if (!rows.empty() && rows.front() == row) {
      rows.pop_front();
      pairs_.push_back({RowRef(), row});
    }
  }
}

ComparedTable::Cell ComparedTable::At(std::size_t row, std::size_t column) const {
  const Pair& pair = pairs_[row];
  Cell cell{.now = TextIn(pair.now, columns_[column]), .file = TextIn(pair.file, columns_[column])};
  cell.differs = cell.now != cell.file && !(IsBlank(cell.now) && IsBlank(cell.file));
  return cell;
}

std::optional<std::pair<std::size_t, std::size_t>> ComparedTable::FirstDifference() const {
  for (std::size_t row = 0; row < pairs_.size(); ++row) {
    for (std::size_t column = 0; column < columns_.size(); ++column) {
      if (At(row, column).differs) return std::pair{row, column};
    }
  }
  return {};
}

}  // namespace ORXKMPrintProp::host
