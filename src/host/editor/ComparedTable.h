#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "host/Pairs.h"
#include "host/Snapshot.h"

namespace ORXKMPrintProp::host {

/// A table as it is read back beside the same table in the file, row by row.
class ComparedTable {
 public:
  struct Cell {
    Text now;
    Text file;
    bool differs = false;
  };
  /// Row and column of a cell, counted from 0.
  using Place = std::pair<std::size_t, std::size_t>;

  ComparedTable() = default;
  /// Rows belong together when they have the same texts in the key columns, the first with the first and so on.
  ComparedTable(const TableSnapshot& file, const TableSnapshot& now, const std::vector<Text>& keyColumns);

  std::size_t RowCount() const { return pairs_.size(); }
  const std::vector<Text>& Columns() const { return columns_; }
  /// Rows of the file that are not read back stand behind all others.
  bool IsGone(std::size_t row) const { return !pairs_[row].after; }
  /// A cell without a text and one with blanks alone say the same, and so do a number and its digits.
  Cell At(std::size_t row, std::size_t column) const;
  /// The next cell that differs, or the one before; of a row that stands beside no other the first alone.
  /// @param from none for the first of all, or the last
  std::optional<Place> Difference(std::optional<Place> from = {}, bool forward = true) const;

 private:
  bool IsMark(const Place& place) const;

  std::vector<Text> columns_;
  std::vector<PairOf<RowRef>> pairs_;
};

/// The text of a cell that differs, for where there is no room for all of it: with the first character that is another
/// than in `other` near its head.
Text CutToDifference(TextView text, TextView other);

}  // namespace ORXKMPrintProp::host
