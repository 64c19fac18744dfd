#include "host/editor/ComparedTable.h"

#include <algorithm>

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

bool ComparedTable::IsMark(const Place& place) const {
  const auto [row, column] = place;
  if (!At(row, column).differs) return false;
  if (pairs_[row].before && pairs_[row].after) return true;
  for (std::size_t ahead = 0; ahead < column; ++ahead) {
    if (At(row, ahead).differs) return false;
  }
  return true;
}

std::optional<ComparedTable::Place> ComparedTable::Difference(std::optional<Place> from, bool forward) const {
  const std::size_t width = columns_.size();
  const std::size_t count = pairs_.size() * width;
  // As one number; below the first is none.
  std::size_t cell = from ? from->first * width + from->second : forward ? std::size_t(-1) : count;
  for (cell += forward ? 1 : std::size_t(-1); cell < count; cell += forward ? 1 : std::size_t(-1)) {
    if (const Place place(cell / width, cell % width); IsMark(place)) return place;
  }
  return {};
}

Text CutToDifference(TextView text, TextView other) {
  constexpr std::size_t kShownAhead = 6;
  const auto differ = std::mismatch(text.begin(), text.end(), other.begin(), other.end()).first;
  const auto place = static_cast<std::size_t>(differ - text.begin());
  if (place <= kShownAhead + 1) return Text(text);
  std::size_t start = place - kShownAhead;
  if (text[start] >= 0xDC00 && text[start] <= 0xDFFF) ++start;  // the second half of a character
  return u"\u2026" + Text(text.substr(start));
}

}  // namespace ORXKMPrintProp::host
