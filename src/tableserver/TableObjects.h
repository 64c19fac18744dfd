#pragma once

#include <ole2.h>

#include <memory>

#include "tables/MemoryTable.h"

namespace ORXKMPrintProp::tableserver {

/// `PrnPropTables.Table`, with one reference: a plain table for hosts that have none of their own.
///
/// | Object | Members |
/// |---|---|
/// | table | `AddColumn(Name)` while it has no rows; `RowCount`; `Rows`, `Rows(Number)`; `Columns`, `Columns(Name)` |
/// | its rows | `Add`, `RemoveAll`, `Item(Key)`, `Item(Number)`, `Count`, for-each |
/// | a row | `Value(Column)`, also to be set; `RowNumber` |
/// | its columns | `KeyColumn`, to be set |
/// | a column | `Index` |
///
/// `Item` gives nothing for a key that no row has.
IUnknown* MakeTable(std::shared_ptr<MemoryTable> table);

}  // namespace ORXKMPrintProp::tableserver
