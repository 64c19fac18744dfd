#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "tables/Table.h"

namespace ORXKMPrintProp {

class MemoryBlock;
class MemoryColumns;

/// The plain table in memory. A cell is found by comparing its column's name once when columns are visited in the
/// same order row after row, else by one hash. Errors of its operations have the kind Table.
///
/// Rows stay valid for whoever holds them: a row removed from the table keeps its cells and its number.
class MemoryTable final : public Table,
                          private RowList,
                          private ColumnList,
                          public std::enable_shared_from_this<MemoryTable> {
  struct Private {};

 public:
  /// A table with these columns, each name once, and no rows.
  static std::shared_ptr<MemoryTable> Create(const std::vector<Text>& columns);
  MemoryTable(Private, const std::vector<Text>& columns);
  ~MemoryTable() override;

  /// Adds a column behind the others. @throws RunTimeError (Table) when it has rows, or a column of that name.
  void AddColumn(const Text& name);
  /// The columns' names, in order.
  const std::vector<Text>& ColumnNames() const;

  std::int32_t RowCount() override;
  RowListRef Rows() override;
  RowRef Rows(std::int32_t number) override;
  ColumnListRef Columns() override;
  ColumnRef Columns(TextView name) override;

 private:
  class Enumerator;

  RowRef Add() override;
  void RemoveAll() override;
  /// Gives none for an unknown key. @throws RunTimeError (Table) before `KeyColumn` has been set.
  RowRef Item(const Text& key) override;
  std::unique_ptr<RowEnumerator> Enumerate() override;
  void KeyColumn(const Variant& index) override;

  RowRef RowAt(std::size_t place) const;

  std::shared_ptr<MemoryColumns> columns_;
  std::vector<std::shared_ptr<MemoryBlock>> blocks_;  ///< all full but the last
  std::size_t rowCount_ = 0;
  std::int32_t keyColumn_ = 0;  ///< counted from 1, 0 for none
};

}  // namespace ORXKMPrintProp
