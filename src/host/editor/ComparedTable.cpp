#include "host/editor/ComparedTable.h"

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
  pairs_ = Paired(file.rows, now.rows, keyOf);
}

ComparedTable::Cell ComparedTable::At(std::size_t row, std::size_t column) const {
  const auto& [before, after] = pairs_[row];
  Cell cell{.now = TextIn(after, columns_[column]), .file = TextIn(before, columns_[column])};
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
