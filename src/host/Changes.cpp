#include "host/Changes.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <optional>
#include <span>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "host/Load.h"
#include "host/SettingsColumns.h"
#include "host/Spelling.h"
#include "host/Utf8.h"
#include "model/PrnPropCls.h"
#include "tables/CaseFolding.h"
#include "tables/CellCodecs.h"
#include "tables/Conversions.h"
#include "tables/TableCalls.h"
#include "views/Translation.h"

namespace ORXKMPrintProp::host {
namespace {

using views::Filled;
using views::Translated;

/// By column, of those that the control writes; none for one that it never reads.
using Kinds = std::unordered_map<Text, std::optional<CellKind>>;

template <class Class>
Kinds KindsOf(ColumnsOf<Class> columns) {
  Kinds kinds;
  for (const auto& writer : columns) {
    if (!writer.write) continue;
    const bool isRead = std::any_of(columns.begin(), columns.end(),
                                    [&](const auto& column) { return column.read && column.name == writer.name; });
    kinds[Text(writer.name)] = isRead ? std::optional(writer.kind) : std::nullopt;
  }
  return kinds;
}

Kinds With(Kinds kinds, TextView column, CellKind kind) {
  kinds[Text(column)] = kind;
  return kinds;
}

struct TableRules {
  TableMember member;
  TextView carriedText;  ///< a column that comes back as it is and that decides nothing
  Kinds kinds;
};

const std::vector<TableRules>& Rules() {
  static const std::vector<TableRules> rules{
      {kTableMembers[0], u"TITLE", KindsOf(PrnPropCls::Columns())},
      {kTableMembers[1], u"IOBJTXT", With(KindsOf(PrnCharCls::Columns()), u"IS_STRUCTURE", CellKind::Code)},
      {kTableMembers[2], u"CHAVLTXT", With(KindsOf(PrnStrElemCls::Columns()), u"IOBJNM", CellKind::Text)},
      {kTableMembers[3], u"ATTRITXT", With(KindsOf(PrnAttrCls::Columns()), u"IOBJNM", CellKind::Text)},
  };
  return rules;
}

Text TextOf(const Row& row, TextView column) { return ToText(row.Value(column)); }

/// A copy of the four tables, in which with `tagged` the carried text of every row is its number.
SettingsDocument Copy(const SettingsDocument& document, bool tagged) {
  SettingsDocument copy;
  copy.file = document.file;
  for (const TableRules& rules : Rules()) {
    MemoryTable& from = *(document.*rules.member.table);
    const auto to = MemoryTable::Create(from.ColumnNames());
    for (const RowRef& row : AllRows(from)) {
      const RowRef added = AddRow(*to);
      for (const Text& column : from.ColumnNames()) added->Value(column, row->Value(column));
      if (tagged) added->Value(rules.carriedText, row->RowNumber());
    }
    copy.*rules.member.table = to;
  }
  return copy;
}

bool IsEmpty(const Variant& cell) {
  const Text* const text = std::get_if<Text>(&cell);
  return std::holds_alternative<std::monostate>(cell) || (text && text->empty());
}

bool IsBlank(const Variant& cell) {
  const Text* const text = std::get_if<Text>(&cell);
  return IsEmpty(cell) || (text && text->find_first_not_of(u' ') == Text::npos);
}

/// The value of a number, of a Boolean, or of a text of which the whole is a number.
std::optional<double> NumberOf(const Variant& cell) {
  if (const bool* const flag = std::get_if<bool>(&cell)) return *flag ? -1 : 0;
  if (const auto* const number = std::get_if<std::int16_t>(&cell)) return *number;
  if (const auto* const number = std::get_if<std::int32_t>(&cell)) return *number;
  if (const auto* const number = std::get_if<double>(&cell)) return *number;
  const Text* const text = std::get_if<Text>(&cell);
  if (!text) return {};
  return TryNumber(*text);
}

bool IsSame(const Variant& from, const Variant& to) {
  const auto isNumber = [](const Variant& cell) {
    return !std::holds_alternative<bool>(cell) && !std::holds_alternative<Text>(cell) && NumberOf(cell);
  };
  if (isNumber(from) && isNumber(to)) return NumberOf(from) == NumberOf(to);
  return from == to;
}

std::optional<ChangeKind> KindOfChange(std::optional<CellKind> kind, bool isAxis, bool isStructure, const Variant& from,
                                       const Variant& to) {
  if (IsSame(from, to)) return {};
  if (std::holds_alternative<std::monostate>(to)) return ChangeKind::ColumnDropped;
  if (IsEmpty(from)) return ChangeKind::CellFilled;
  const Text text = ToText(Variant(from));
  if (text == ToText(Variant(to))) return ChangeKind::TypeChanged;
  if (!kind) return ChangeKind::Replaced;
  switch (*kind) {
    case CellKind::WholeNumber:
    case CellKind::LeadingNumber:
      if (IsBlank(from)) return ChangeKind::CellFilled;
      return NumberOf(from) == NumberOf(to) ? ChangeKind::TypeChanged : ChangeKind::NumberChanged;
    case CellKind::Code:
      if (IsBlank(from)) return ChangeKind::CodeNormalized;
      // The one code that two texts stand for; of a structure the cell says nothing.
      if (isAxis && (isStructure || ModPrnGen::AxisFromCell(text))) return ChangeKind::CodeNormalized;
      return ChangeKind::UnknownCode;
    default:
      return ChangeKind::TextChanged;
  }
}

/// What to say of a column that nobody knows: the one that was meant, which is empty then.
std::string ColumnMeant(const char* table, const Text& column, const Row& row) {
  std::vector<std::string> known;
  for (const Text& name : KnownColumns(table)) {
    if (name == column) return {};
    if (IsEmpty(row.Value(name))) known.push_back(ToUtf8(name));
  }
  return DidYouMean(ToUtf8(column), known);
}

bool IsLayout(TextView column) { return column.ends_with(u"_LAYOUT"); }

std::string ReasonOf(ChangeKind kind, TextView column, bool isStructure) {
  switch (kind) {
    case ChangeKind::ColumnDropped:
      if (column == u"IS_STRUCTURE") return Translated("only written in the row of a structure");
      return isStructure ? Translated("not written in the row of a structure")
                         : Translated("the control does not write this column");
    case ChangeKind::LayoutEmptied:
      return Translated("a layout is written, never read");
    case ChangeKind::Replaced:
      return column == u"PR_COL2_HEADER" ? Translated("always the text of PR_COL1_HEADER")
                                         : Translated("always this text");
    case ChangeKind::UnknownCode:
      return Translated("unknown code, counts as the default");
    case ChangeKind::NumberChanged:
      return Translated("only a whole number is kept");
    case ChangeKind::TextChanged:
      return Translated("the name as the characteristic has it");
    case ChangeKind::CodeNormalized:
      return "same meaning";
    case ChangeKind::TypeChanged:
      return "same value";
    default:
      return "was empty";
  }
}

/// What a row's cells come back as.
std::vector<Change> CellChanges(const TableRules& rules, const std::vector<Text>& columns, const Row& before,
                                const Row& after) {
  const bool isStructure = rules.member.table == &SettingsDocument::dimension && IsStructure(before);
  std::vector<Change> changes;
  for (const Text& column : columns) {
    const auto known = rules.kinds.find(column);
    const auto cellKind = known == rules.kinds.end() ? std::nullopt : known->second;
    Change change{.row = before.RowNumber(), .column = column, .from = before.Value(column), .to = after.Value(column)};
    const auto kind = KindOfChange(cellKind, column == u"AXIS", isStructure, change.from, change.to);
    if (!kind) continue;
    change.kind = *kind == ChangeKind::Replaced && IsLayout(column) ? ChangeKind::LayoutEmptied : *kind;
    change.loss = change.kind <= ChangeKind::RowDropped;
    if (change.kind == ChangeKind::ColumnDropped) {
      change.loss = cellKind == CellKind::Code ? !IsBlank(change.from) : !IsEmpty(change.from);
    }
    change.reason = ReasonOf(change.kind, column, isStructure);
    if (change.kind == ChangeKind::ColumnDropped) change.reason += ColumnMeant(rules.member.name, column, before);
    changes.push_back(std::move(change));
  }
  return changes;
}

/// The names in the dimension table that rows of the other tables come back under.
struct Owners {
  std::unordered_set<Text, FoldedHash, FoldedEqual> characteristics;
  std::unordered_set<Text> structures;
};

Owners OwnersIn(MemoryTable& dimension) {
  Owners owners;
  for (const RowRef& row : AllRows(dimension)) {
    if (IsStructure(*row)) {
      owners.structures.insert(TextOf(*row, u"IOBJNM"));
    } else {
      owners.characteristics.insert(TextOf(*row, u"IOBJNM"));
    }
  }
  return owners;
}

std::string WhyDropped(const TableMember& member, const Row& row, const Owners& owners) {
  const Text name = TextOf(row, u"IOBJNM");
  const std::string quoted = ToUtf8(u"\"" + name + u"\"");
  if (member.table == &SettingsDocument::dimension) {
    return name.empty() ? Translated("a structure without a name does not exist")
                        : Translated("only two structures are kept");
  }
  if (member.table == &SettingsDocument::member)
    return Filled(Translated("{0} names no structure that comes back"), {quoted});
  if (!owners.characteristics.contains(name)) return Filled(Translated("{0} names no characteristic"), {quoted});
  return Filled(Translated("no characteristic is spelled {0}; of such rows only the first is found"), {quoted});
}

/// Adds the rows that stand at another place among those that come back.
/// @param newNumbers by place in `rowsBack`.
void AddMoves(const std::vector<int>& rowsBack, const std::vector<int>& newNumbers, std::vector<Change>& changes) {
  std::vector<int> sorted = rowsBack;
  std::sort(sorted.begin(), sorted.end());
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    if (rowsBack[i] == sorted[i]) continue;
    changes.push_back({.kind = ChangeKind::RowMoved,
                       .row = rowsBack[i],
                       .from = std::int32_t{rowsBack[i]},
                       .to = std::int32_t{newNumbers[i]},
                       .reason = "rows are grouped by what they belong to, structures last"});
  }
}

TableChanges TableChangesOf(const TableRules& rules, MemoryTable& before, MemoryTable& after, MemoryTable& tagged,
                            const Owners& owners) {
  TableChanges result{.table = rules.member.name};
  const auto rowsBefore = AllRows(before);
  const auto rowsAfter = AllRows(after);

  std::vector<std::vector<RowRef>> copies(rowsBefore.size());
  std::vector<int> newNumbers;
  for (const RowRef& tag : AllRows(tagged)) {
    const std::string number = ToAscii(TextOf(*tag, rules.carriedText));
    int row = 0;
    std::from_chars(number.data(), number.data() + number.size(), row);
    auto& copiesOfRow = copies.at(static_cast<std::size_t>(row) - 1);
    if (copiesOfRow.empty()) {
      result.rowsBack.push_back(row);
      newNumbers.push_back(tag->RowNumber());
    }
    copiesOfRow.push_back(rowsAfter.at(static_cast<std::size_t>(tag->RowNumber()) - 1));
  }

  for (std::size_t i = 0; i < rowsBefore.size(); ++i) {
    const Row& row = *rowsBefore[i];
    if (copies[i].empty()) {
      result.changes.push_back({.kind = ChangeKind::RowDropped,
                                .loss = true,
                                .row = row.RowNumber(),
                                .reason = WhyDropped(rules.member, row, owners)});
      continue;
    }
    // What is lost in one copy may be there in another.
    std::optional<std::vector<Change>> best;
    const auto losses = [](const std::vector<Change>& changes) {
      return std::count_if(changes.begin(), changes.end(), [](const Change& change) { return change.loss; });
    };
    for (const RowRef& copy : copies[i]) {
      auto changes = CellChanges(rules, before.ColumnNames(), row, *copy);
      if (!best || losses(changes) < losses(*best)) best = std::move(changes);
    }
    std::move(best->begin(), best->end(), std::back_inserter(result.changes));
    if (copies[i].size() > 1) {
      result.changes.push_back({.kind = ChangeKind::RowRepeated,
                                .row = row.RowNumber(),
                                .to = static_cast<std::int32_t>(copies[i].size()),
                                .reason = "more than one row of the dimension table has its IOBJNM"});
    }
  }
  AddMoves(result.rowsBack, newNumbers, result.changes);
  return result;
}

}  // namespace

std::vector<TableChanges> ChangesOf(const SettingsDocument& document) {
  const SettingsDocument after = Copy(document, false);
  const SettingsDocument tagged = Copy(document, true);
  LoadAndReadBack(after);
  LoadAndReadBack(tagged);
  const Owners owners = OwnersIn(*after.dimension);

  std::vector<TableChanges> changes;
  for (const TableRules& rules : Rules()) {
    const auto table = rules.member.table;
    changes.push_back(TableChangesOf(rules, *(document.*table), *(after.*table), *(tagged.*table), owners));
  }
  return changes;
}

}  // namespace ORXKMPrintProp::host
