#pragma once

#include <cstdint>
#include <memory>

#include "tables/Variant.h"

/// @file
/// What the control needs of a host's table object. The control creates no table and no column: it reads rows,
/// empties tables, appends rows and sets cells.
///
/// - An operation that fails throws RunTimeError, of kind Table where nothing else fits, or what derives from it: the
///   very object leaves the public operation that the host called.
/// - A table is called on the thread that has handed it in, and may call the control back from inside an operation.
/// - The control holds tables until others take their place or it ends, the text table until `ORXControlTexts` takes
///   another or `ReleaseSharedValues`; rows, lists and columns no longer than the call in which it has asked for them.

namespace ORXKMPrintProp {

/// One cell per column. Wherever a row comes from (`Rows`, `Add`, `Item`, the enumeration), this is its interface.
class Row {
 public:
  virtual ~Row() = default;
  /// The cell in the column of that name. @throws RunTimeError when there is no such column.
  virtual Variant Value(TextView column) const = 0;
  /// Sets the cell. @throws RunTimeError when there is no such column; nothing is changed then.
  virtual void Value(TextView column, Variant value) = 0;
  /// The row's number in its table, counted from 1, as `Table::Rows` takes it.
  virtual std::int32_t RowNumber() const = 0;
};
using RowRef = std::shared_ptr<Row>;

/// Yields each row in turn, in table order.
class RowEnumerator {
 public:
  virtual ~RowEnumerator() = default;
  /// The next row, or none behind the last.
  virtual RowRef Next() = 0;
};

/// The rows of a table.
class RowList {
 public:
  virtual ~RowList() = default;
  /// Appends an empty row.
  virtual RowRef Add() = 0;
  /// Leaves the table with its columns and no rows.
  virtual void RemoveAll() = 0;
  /// The row whose key column holds the key. An unknown key gives none or an error, as the table likes.
  virtual RowRef Item(const Text& key) = 0;
  /// The enumerator may outlive the list.
  virtual std::unique_ptr<RowEnumerator> Enumerate() = 0;
};
using RowListRef = std::shared_ptr<RowList>;

/// The columns of a table.
class ColumnList {
 public:
  virtual ~ColumnList() = default;
  /// From now on `RowList::Item` searches this column. @param index what that column's `Index` gave.
  virtual void KeyColumn(const Variant& index) = 0;
};
using ColumnListRef = std::shared_ptr<ColumnList>;

/// One column of a table.
class Column {
 public:
  virtual ~Column() = default;
  /// The column's position, in the form that `ColumnList::KeyColumn` takes.
  virtual Variant Index() const = 0;
};
using ColumnRef = std::shared_ptr<Column>;

/// A table, as the rules of Table.h want it.
class Table : public Object {
 public:
  virtual std::int32_t RowCount() = 0;
  virtual RowListRef Rows() = 0;
  /// @param number 1 to `RowCount`. @throws RunTimeError outside that range.
  virtual RowRef Rows(std::int32_t number) = 0;
  virtual ColumnListRef Columns() = 0;
  /// @throws RunTimeError when there is no such column.
  virtual ColumnRef Columns(TextView name) = 0;
};
using TableRef = std::shared_ptr<Table>;

}  // namespace ORXKMPrintProp
