#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <utility>

#include "model/Property.h"
#include "tables/CellCodecs.h"
#include "tables/Conversions.h"
#include "tables/RunTimeError.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp {

enum class Direction { Both, ReadOnly, WriteOnly };

/// What the cells of a column hold: any text, a whole number, one with anything behind it, or a code.
enum class CellKind { Text, WholeNumber, LeadingNumber, Code };

/// One column of a table, for rows that a `Class` reads and writes. A null function means that the column is not
/// read, or not written.
template <class Class>
struct ColumnOf {
  TextView name;
  CellKind kind;
  void (*read)(Class&, Variant& cell);
  Variant (*write)(const Class&);
};

template <class Class>
using ColumnsOf = std::span<const ColumnOf<Class>>;

// What stands between a cell and a property: `kKind` is the kind of cell, `Read` converts a cell, `Write` a value.

/// Any text.
struct TextCell {
  static constexpr CellKind kKind = CellKind::Text;
  static TextView Read(Variant& cell) { return AsText(cell); }
  static Variant Write(Text value) { return value; }
};

/// A whole number, which may come as a text or a fraction; written as a number.
struct IntegerCell {
  static constexpr CellKind kKind = CellKind::WholeNumber;
  static std::int16_t Read(const Variant& cell) { return ToInteger(cell); }
  static Variant Write(std::int16_t value) { return value; }
};

/// Tolerates anything behind the number, and is written as a text.
struct LeadingNumberCell {
  static constexpr CellKind kKind = CellKind::LeadingNumber;
  static std::int16_t Read(Variant& cell) { return LeadingNumber(AsText(cell)); }
  static Variant Write(std::int16_t value) { return ToText(std::int32_t{value}); }
};

/// A code, by a pair of routines of CellCodecs.h.
template <auto Decode, auto Encode>
struct CodeCell {
  static constexpr CellKind kKind = CellKind::Code;
  static auto Read(Variant& cell) { return Decode(AsText(cell)); }
  template <class Value>
  static Variant Write(Value value) {
    return Encode(value);
  }
};

using FlagCell = CodeCell<ModPrnGen::FlagFromCell, ModPrnGen::FlagToCell>;
using PresentationCell = CodeCell<ModPrnGen::PresentationFromCell, ModPrnGen::PresentationToCell>;
using AlignCell = CodeCell<ModPrnGen::AlignFromCell, ModPrnGen::AlignToCell>;
using DirectionCell = CodeCell<ModPrnGen::DirectionFromCell, ModPrnGen::DirectionToCell>;
using SumPositCell = CodeCell<ModPrnGen::SumPositFromCell, ModPrnGen::SumPositToCell>;
using SignPrsntCell = CodeCell<ModPrnGen::SignPrsntFromCell, ModPrnGen::SignPrsntToCell>;
using CurUnitPositionCell = CodeCell<ModPrnGen::CurUnitPositionFromCell, ModPrnGen::CurUnitPositionToCell>;
using NoSumsCell = CodeCell<ModPrnGen::NoSumsFromCell, ModPrnGen::NoSumsToCell>;

/// On the axis is the opposite of hidden.
struct HiddenAsAxisCell {
  static constexpr CellKind kKind = CellKind::Code;
  static bool Read(Variant& cell) { return !ModPrnGen::AxisFromCell(AsText(cell)); }
  static Variant Write(bool hidden) { return ModPrnGen::AxisToCell(!hidden); }
};

/// The column of that name holds the property, in a cell of that kind.
template <class Class, auto Member, class Cell>
constexpr ColumnOf<Class> PropertyColumn(TextView name, Direction direction = Direction::Both) {
  ColumnOf<Class> column{name, Cell::kKind, nullptr, nullptr};
  if (direction != Direction::WriteOnly) {
    column.read = [](Class& object, Variant& cell) { (object.*Member)(Cell::Read(cell)); };
  }
  if (direction != Direction::ReadOnly) {
    column.write = [](const Class& object) { return Cell::Write((object.*Member)()); };
  }
  return column;
}

/// The tables behind one another.
template <class Class, std::size_t... Sizes>
constexpr auto Joined(const std::array<ColumnOf<Class>, Sizes>&... tables) {
  std::array<ColumnOf<Class>, (Sizes + ...)> joined{};
  auto next = joined.begin();
  ((next = std::copy(tables.begin(), tables.end(), next)), ...);
  return joined;
}

/// A column that is written only, always with this text.
template <class Class, char16_t Character>
constexpr ColumnOf<Class> ConstantColumn(TextView name) {
  return {name, CellKind::Text, nullptr, [](const Class&) -> Variant { return Text(1, Character); }};
}

/// Sets the properties from the row, column by column in the order of the table. Nothing is undone when a column
/// fails: an error of the row leaves as it is, that of a conversion names the place, in the table that it calls
/// `tableName`.
template <class Class>
void ReadRow(ColumnsOf<Class> columns, TextView tableName, const Row& row, Class& object) {
  for (const ColumnOf<Class>& column : columns) {
    if (!column.read) continue;
    Variant cell = CellOf(row, column.name);
    try {
      column.read(object, cell);
    } catch (const RunTimeError& error) {
      throw RunTimeError(error.Kind(), Text(tableName) + u", row " + ToText(row.RowNumber()) + u", column " +
                                           Text(column.name) + u": " + error.Message());
    }
  }
}

/// Sets the cells of the row from the properties, column by column in the order of the table.
template <class Class>
void WriteRow(ColumnsOf<Class> columns, const Class& object, Row& row) {
  for (const ColumnOf<Class>& column : columns) {
    if (!column.write) continue;
    row.Value(column.name, column.write(object));
    TableOperation::CheckNotOvertaken();
  }
}

}  // namespace ORXKMPrintProp
