#include "tables/MemoryTable.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>
#include <optional>
#include <span>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <variant>

#include "tables/Conversions.h"
#include "tables/PackedText.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp {

class MemoryColumns {
 public:
  MemoryColumns(const MemoryColumns&) = delete;
  MemoryColumns& operator=(const MemoryColumns&) = delete;
  explicit MemoryColumns(const std::vector<Text>& names) : names_(names), next_(names.size()) {
    for (std::size_t i = 0; i < names_.size(); ++i) {
      if (!places_.try_emplace(names_[i], i).second) {
        throw RunTimeError(ErrorKind::Table, u"Two columns of the table have the name " + names_[i] + u".");
      }
    }
  }

  const std::vector<Text>& Names() const { return names_; }

  std::optional<std::size_t> Find(TextView name) const {
    if (names_.empty()) return {};
    const std::size_t guess = next_[last_];
    if (IsSame(names_[guess], name)) return last_ = guess;
    const auto found = places_.find(name);
    if (found == places_.end()) return {};
    next_[last_] = found->second;
    return last_ = found->second;
  }

  std::size_t At(TextView name) const {
    if (const auto place = Find(name)) return *place;
    throw RunTimeError(ErrorKind::Table, u"The table has no column " + Text(name) + u".");
  }

 private:
  /// The library's own comparison goes character by character.
  static bool IsSame(TextView a, TextView b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(char16_t)) == 0;
  }

  std::vector<Text> names_;
  std::unordered_map<TextView, std::size_t> places_;  ///< views into `names_`
  mutable std::vector<std::size_t> next_;             ///< by column: the one that was visited after it last time
  mutable std::size_t last_ = 0;
};

/// A cell as the table keeps it.
using MemoryCell = std::variant<std::monostate, bool, std::int16_t, std::int32_t, double, PackedText, ObjectRef>;

namespace {

MemoryCell Packed(PlainVariant&& value) {
  return std::visit(
      []<class Value>(Value& plain) -> MemoryCell {
        if constexpr (std::is_same_v<Value, Text>) {
          return PackedText(plain);
        } else {
          return std::move(plain);
        }
      },
      value);
}

Variant Unpacked(const MemoryCell& cell) {
  return std::visit(
      []<class Value>(const Value& kept) -> Variant {
        if constexpr (std::is_same_v<Value, PackedText>) {
          return kept.Unpacked();
        } else {
          return kept;
        }
      },
      cell);
}

}  // namespace

class MemoryRow final : public Row {
 public:
  MemoryRow(const MemoryColumns& columns, std::span<MemoryCell> cells, std::int32_t number)
      : columns_(columns), cells_(cells), number_(number) {}

  Variant Value(TextView column) const override { return Unpacked(cells_[columns_.At(column)]); }
  void Value(TextView column, Variant value) override { cells_[columns_.At(column)] = Packed(std::move(value)); }
  std::int32_t RowNumber() const override { return number_; }

  const MemoryCell& Cell(std::size_t column) const { return cells_[column]; }

 private:
  const MemoryColumns& columns_;
  std::span<MemoryCell> cells_;
  std::int32_t number_;
};

/// Some rows with their cells in one piece of memory; a reference to a row holds its block. The first block of a table
/// has `kFewest` rows, each further one as many as there are ahead of it. Rows and blocks are counted from 0.
class MemoryBlock {
 public:
  static std::size_t BlockOf(std::size_t row) { return std::bit_width(row / kFewest); }
  /// With which row its block begins.
  static std::size_t FirstRowBefore(std::size_t row) { return row < kFewest ? 0 : std::bit_floor(row); }

  MemoryBlock(std::shared_ptr<const MemoryColumns> columns, std::size_t firstRow)
      : columns_(std::move(columns)), cells_(std::max(firstRow, kFewest) * columns_->Names().size()) {
    rows_.reserve(std::max(firstRow, kFewest));
  }

  void Add(std::int32_t number) {
    const std::size_t width = columns_->Names().size();
    rows_.emplace_back(*columns_, std::span(cells_).subspan(rows_.size() * width, width), number);
  }

  std::vector<MemoryRow>& Rows() { return rows_; }

 private:
  static constexpr std::size_t kFewest = 16;

  std::shared_ptr<const MemoryColumns> columns_;
  std::vector<MemoryCell> cells_;
  std::vector<MemoryRow> rows_;
};

namespace {

class MemoryColumn final : public Column {
 public:
  explicit MemoryColumn(std::int32_t index) : index_(index) {}
  Variant Index() const override { return index_; }

 private:
  std::int32_t index_;
};

}  // namespace

class MemoryTable::Enumerator final : public RowEnumerator {
 public:
  explicit Enumerator(std::shared_ptr<const MemoryTable> table) : table_(std::move(table)) {}
  RowRef Next() override { return next_ < table_->rowCount_ ? table_->RowAt(next_++) : nullptr; }

 private:
  std::shared_ptr<const MemoryTable> table_;
  std::size_t next_ = 0;
};

std::shared_ptr<MemoryTable> MemoryTable::Create(const std::vector<Text>& columns) {
  return std::make_shared<MemoryTable>(Private{}, columns);
}

MemoryTable::MemoryTable(Private, const std::vector<Text>& columns)
    : columns_(std::make_shared<MemoryColumns>(columns)) {}

MemoryTable::~MemoryTable() = default;

void MemoryTable::AddColumn(const Text& name) {
  if (rowCount_ > 0) throw RunTimeError(ErrorKind::Table, u"A table that has rows takes no more columns.");
  std::vector<Text> names = ColumnNames();
  names.push_back(name);
  // Rows that were removed keep the columns that they had.
  columns_ = std::make_shared<MemoryColumns>(names);
}

const std::vector<Text>& MemoryTable::ColumnNames() const { return columns_->Names(); }

std::int32_t MemoryTable::RowCount() { return static_cast<std::int32_t>(rowCount_); }

RowListRef MemoryTable::Rows() { return {shared_from_this(), static_cast<RowList*>(this)}; }

RowRef MemoryTable::Rows(std::int32_t number) {
  if (number < 1 || number > RowCount()) {
    throw RunTimeError(ErrorKind::Table, u"The table has no row " + ToText(number) + u".");
  }
  return RowAt(static_cast<std::size_t>(number) - 1);
}

ColumnListRef MemoryTable::Columns() { return {shared_from_this(), static_cast<ColumnList*>(this)}; }

ColumnRef MemoryTable::Columns(TextView name) {
  return std::make_shared<MemoryColumn>(static_cast<std::int32_t>(columns_->At(name)) + 1);
}

RowRef MemoryTable::Add() {
  if (MemoryBlock::BlockOf(rowCount_) == blocks_.size()) {
    blocks_.push_back(std::make_shared<MemoryBlock>(columns_, rowCount_));
  }
  blocks_.back()->Add(RowCount() + 1);
  return RowAt(rowCount_++);
}

void MemoryTable::RemoveAll() {
  blocks_.clear();
  rowCount_ = 0;
}

RowRef MemoryTable::RowAt(std::size_t place) const {
  const auto& block = blocks_[MemoryBlock::BlockOf(place)];
  return {block, &block->Rows()[place - MemoryBlock::FirstRowBefore(place)]};
}

RowRef MemoryTable::Item(const Text& key) {
  if (keyColumn_ == 0) throw RunTimeError(ErrorKind::Table, u"The table has no key column.");
  const auto column = static_cast<std::size_t>(keyColumn_) - 1;
  for (const auto& block : blocks_) {
    for (MemoryRow& row : block->Rows()) {
      const auto* const cell = std::get_if<PackedText>(&row.Cell(column));
      if (cell && cell->Unpacked() == key) return {block, &row};
    }
  }
  return nullptr;
}

std::unique_ptr<RowEnumerator> MemoryTable::Enumerate() { return std::make_unique<Enumerator>(shared_from_this()); }

void MemoryTable::KeyColumn(const Variant& index) {
  const std::int32_t* const column = std::get_if<std::int32_t>(&index);
  if (!column || *column < 1 || *column > static_cast<std::int32_t>(ColumnNames().size())) {
    throw RunTimeError(ErrorKind::Table, u"The table has no column with that index.");
  }
  keyColumn_ = *column;
}

}  // namespace ORXKMPrintProp
