#pragma once

#include <string>
#include <vector>

#include "host/SettingsDocument.h"

namespace ORXKMPrintProp::host {

enum class ChangeKind {
  ColumnDropped,  ///< a cell in a column that the control does not write
  LayoutEmptied,  ///< a layout, which the control writes and never reads
  Replaced,       ///< any other cell that the control writes and never reads
  UnknownCode,    ///< a code that stands for nothing, and so counts as the default
  NumberChanged,  ///< rounded, or what stood behind the number is gone
  TextChanged,
  RowDropped,
  CodeNormalized,  ///< another code of the same meaning
  TypeChanged,     ///< the same value as a number or a text
  CellFilled,      ///< an empty cell
  RowMoved,        ///< among the rows that come back
  RowRepeated,     ///< comes back more than once
};

/// What becomes of one row, or of one of its cells.
struct Change {
  ChangeKind kind = {};
  bool loss = false;  ///< something that the document says is gone; else it says the same in another way
  int row = 0;        ///< in the document, counted from 1
  Text column = {};   ///< of a cell
  /// A cell before and after; of a moved row its numbers in the table, of a repeated one `to` is how often it comes
  /// back.
  Variant from = {};
  Variant to = {};
  std::string reason = {};
};

struct TableChanges {
  const char* table = "";
  std::vector<int> rowsBack = {};    ///< the document's rows that come back, each once, in the order in which they do
  std::vector<Change> changes = {};  ///< row by row; cells in the order of the columns
};

/// What a load and a read-back change in the document, table by table; the document itself stays as it is.
/// @throws LoadError
std::vector<TableChanges> ChangesOf(const SettingsDocument& document);

}  // namespace ORXKMPrintProp::host
