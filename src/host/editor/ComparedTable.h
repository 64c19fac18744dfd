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

  ComparedTable() = default;
  /// Rows belong together when they have the same texts in the key columns, the first with the first and so on.
  ComparedTable(const TableSnapshot& file, const TableSnapshot& now, const std::vector<Text>& keyColumns);

  std::size_t RowCount() const { return pairs_.size(); }
  const std::vector<Text>& Columns() const { return columns_; }
  /// Rows of the file that are not read back stand behind all others.
  bool IsGone(std::size_t row) const { return !pairs_[row].after; }
  /// A cell without a text and one with blanks alone say the same, and so do a number and its digits.
  Cell At(std::size_t row, std::size_t column) const;
  /// Row and column of the first cell that differs.
  std::optional<std::pair<std::size_t, std::size_t>> FirstDifference() const;

 private:
  std::vector<Text> columns_;
  std::vector<PairOf<RowRef>> pairs_;
};

}  // namespace ORXKMPrintProp::host
