#include "host/CheckReport.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <ostream>
#include <sstream>
#include <utility>

#include "host/Changes.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/Terminal.h"
#include "host/Utf8.h"
#include "tables/Conversions.h"

namespace ORXKMPrintProp::host {
namespace {

using Json = nlohmann::ordered_json;

const char* KindName(ChangeKind kind) {
  static constexpr const char* names[] = {"column dropped", "layout emptied", "replaced",    "unknown code",
                                          "number changed", "text changed",   "row dropped", "code normalized",
                                          "type changed",   "cell filled",    "row moved",   "row repeated"};
  return names[static_cast<std::size_t>(kind)];
}

bool IsOfRow(const Change& change) {
  return change.kind == ChangeKind::RowDropped || change.kind == ChangeKind::RowMoved ||
         change.kind == ChangeKind::RowRepeated;
}

Json ToJson(const std::vector<TableChanges>& tables) {
  Json findings = Json::array();
  for (const TableChanges& table : tables) {
    for (const Change& change : table.changes) {
      Json finding{{"table", table.table}, {"row", change.row}};
      if (!IsOfRow(change)) finding["column"] = ToUtf8(change.column);
      finding["kind"] = KindName(change.kind);
      finding["loss"] = change.loss;
      if (change.kind != ChangeKind::RowDropped) {
        finding["from"] = CellToJson(change.from);
        finding["to"] = CellToJson(change.to);
      }
      finding["reason"] = change.reason;
      findings.push_back(std::move(finding));
    }
  }
  return findings;
}

std::string Plural(std::size_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

/// Row numbers with runs drawn together: "1-3, 7". The tail of a long list is only counted.
std::string Ranges(const std::vector<int>& rows) {
  constexpr int kMostRanges = 8;
  std::string text;
  int ranges = 0;
  for (std::size_t i = 0; i < rows.size();) {
    if (++ranges > kMostRanges) return text + " and " + std::to_string(rows.size() - i) + " more";
    std::size_t last = i;
    while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1) ++last;
    text += (i == 0 ? "" : ", ") + std::to_string(rows[i]);
    if (last > i) text.append("-").append(std::to_string(rows[last]));
    i = last + 1;
  }
  return text;
}

/// The cell as JSON has it, a long text cut short.
std::string Shown(Variant cell) {
  constexpr std::size_t kMostCharacters = 40;
  if (std::holds_alternative<std::monostate>(cell)) return "empty";
  if (Text* const text = std::get_if<Text>(&cell); text && text->size() > kMostCharacters) {
    text->resize(kMostCharacters - 1);
    *text += u'\u2026';
  }
  return OneLine(CellToJson(cell).dump());
}

/// How a person knows a row: by its technical name.
std::string NameOf(const TableChanges& table, MemoryTable& rows, int row) {
  static const std::map<std::string, TextView> columns{
      {"dimension", u"IOBJNM"}, {"member", u"CHAVL"}, {"attribute", u"ATTRINM"}};
  const auto column = columns.find(table.table);
  if (column == columns.end()) return {};
  const Text name = ToText(rows.Rows(row)->Value(column->second));
  return name.empty() ? "" : " (" + ToUtf8(OneLine(name)) + ")";
}

/// The changes that are alike but for their rows, one line of text.
struct Line {
  std::string what;  ///< "lost" or "changed"
  std::vector<int> rows;
  std::string rowsText;
  std::string column;
  std::string change;
};

std::string ChangeText(const Change& change) {
  if (change.kind == ChangeKind::RowDropped) return "does not come back: " + change.reason;
  if (change.kind == ChangeKind::RowRepeated) {
    return "comes back " + ToAscii(ToText(Variant(change.to))) + " times: " + change.reason;
  }
  return Shown(change.from) + " -> " + Shown(change.to) + "  (" + change.reason + ")";
}

std::vector<Line> LinesOf(const TableChanges& table, MemoryTable& rows) {
  std::vector<Line> lines;
  std::map<std::string, std::size_t> places;
  for (const Change& change : table.changes) {
    if (change.kind == ChangeKind::CellFilled || change.kind == ChangeKind::RowMoved) continue;
    const std::string what = change.loss ? "lost" : "changed";
    const std::string column = OneLine(ToUtf8(change.column));
    const std::string key = Json{what, column, CellToJson(change.from), CellToJson(change.to), change.reason}.dump();
    const auto [place, isNew] = places.try_emplace(key, lines.size());
    if (isNew) {
      lines.push_back(
          {.what = what, .rows = {}, .rowsText = "", .column = column, .change = OneLine(ChangeText(change))});
    }
    lines[place->second].rows.push_back(change.row);
  }
  for (Line& line : lines) {
    line.rowsText = line.rows.size() > 1 ? "rows " + Ranges(line.rows)
                                         : "row " + std::to_string(line.rows[0]) + NameOf(table, rows, line.rows[0]);
  }
  std::stable_partition(lines.begin(), lines.end(), [](const Line& line) { return line.what == "lost"; });
  return lines;
}

std::size_t CountOf(const TableChanges& table, ChangeKind kind) {
  return static_cast<std::size_t>(std::count_if(table.changes.begin(), table.changes.end(),
                                                [&](const Change& change) { return change.kind == kind; }));
}

std::string FilledCells(std::size_t count) { return Plural(count, "empty cell") + " filled"; }

std::string Summary(const TableChanges& table, std::size_t rows) {
  const std::size_t back = table.rowsBack.size();
  std::string text = std::string(table.table) + ": " + Plural(rows, "row") + ", ";
  if (rows == 1) {
    text += back == 1 ? "comes back" : "does not come back";
  } else {
    text += back == rows ? "all come back"
            : back == 0  ? "none comes back"
            : back == 1  ? "1 comes back"
                         : std::to_string(back) + " come back";
  }
  if (CountOf(table, ChangeKind::RowMoved) > 0) text += ", in the order " + Ranges(table.rowsBack);
  if (const std::size_t filled = CountOf(table, ChangeKind::CellFilled)) text += "; " + FilledCells(filled);
  return text;
}

std::string Padded(const std::string& text, std::size_t width) {
  const auto shown = static_cast<std::size_t>(DisplayWidth(FromUtf8(text)));
  return text + std::string(width > shown ? width - shown : 0, ' ');
}

void Print(const std::vector<Line>& lines, std::ostream& out) {
  std::size_t rowsWidth = 0;
  std::size_t columnWidth = 0;
  for (const Line& line : lines) {
    rowsWidth = std::max(rowsWidth, static_cast<std::size_t>(DisplayWidth(FromUtf8(line.rowsText))));
    columnWidth = std::max(columnWidth, static_cast<std::size_t>(DisplayWidth(FromUtf8(line.column))));
  }
  for (const Line& line : lines) {
    out << "    " << Padded(line.what, 7) << "  " << Padded(line.rowsText, rowsWidth) << "  ";
    if (!line.column.empty()) out << Padded(line.column, columnWidth) << "  ";
    out << line.change << "\n";
  }
}

struct Losses {
  std::size_t rows = 0;
  std::size_t cells = 0;
};

Losses LossesOf(const std::vector<TableChanges>& tables) {
  Losses losses;
  for (const TableChanges& table : tables) {
    for (const Change& change : table.changes) {
      if (change.loss) ++(IsOfRow(change) ? losses.rows : losses.cells);
    }
  }
  return losses;
}

std::string Verdict(const Losses& losses) {
  if (losses.rows == 0 && losses.cells == 0) return "nothing is lost";
  std::string text;
  if (losses.rows > 0) text = Plural(losses.rows, "row");
  if (losses.cells > 0) text += (text.empty() ? "" : " and ") + Plural(losses.cells, "cell");
  return text + " would be lost";
}

void Print(const SettingsDocument& document, const std::vector<TableChanges>& tables, std::ostream& out) {
  out << document.file << ": " << Verdict(LossesOf(tables));
  std::size_t filled = 0;
  std::size_t all = 0;
  for (const TableChanges& table : tables) {
    filled += CountOf(table, ChangeKind::CellFilled);
    all += table.changes.size();
  }
  if (all == filled) {
    out << (filled > 0 ? ", " + FilledCells(filled) : "") << "\n";
    return;
  }
  out << "\n";
  for (std::size_t i = 0; i < tables.size(); ++i) {
    MemoryTable& rows = *(document.*kTableMembers[i].table);
    if (rows.RowCount() == 0) continue;
    out << "  " << Summary(tables[i], static_cast<std::size_t>(rows.RowCount())) << "\n";
    Print(LinesOf(tables[i], rows), out);
  }
}

std::string JsonLine(const std::string& path, CheckOutcome outcome, const char* error,
                     const std::vector<TableChanges>& tables) {
  Json object{{"file", InputName(path)}, {"status", StatusOf(outcome)}};
  if (error) object["error"] = error;
  object["findings"] = ToJson(tables);
  return ToLine(object) + "\n";
}

CheckReport Report(const SettingsDocument& document, const std::string& path, bool json) {
  try {
    const auto tables = ChangesOf(document);
    const Losses losses = LossesOf(tables);
    const CheckOutcome outcome =
        losses.rows + losses.cells > 0 ? CheckOutcome::LosesSomething : CheckOutcome::IsKeptWhole;
    if (json) return {outcome, JsonLine(path, outcome, nullptr, tables)};
    std::ostringstream text;
    Print(document, tables, text);
    return {outcome, std::move(text).str()};
  } catch (const LoadError& error) {
    constexpr CheckOutcome kOutcome = CheckOutcome::DoesNotLoad;
    return {kOutcome, json ? JsonLine(path, kOutcome, error.what(), {}) : error.what() + std::string("\n")};
  }
}

}  // namespace

CheckReport ReportOn(const std::string& path, bool json) {
  CheckOutcome failure = CheckOutcome::CanNotBeRead;
  try {
    const std::string content = ReadFile(path);
    failure = CheckOutcome::IsNoDocument;
    return Report(ParseSettings(content, InputName(path)), path, json);
  } catch (const DocumentError& error) {
    return ReportFailure(path, failure, error.what(), json);
  }
}

CheckReport ReportFailure(const std::string& path, CheckOutcome outcome, const std::string& error, bool json) {
  if (json) return {outcome, JsonLine(path, outcome, error.c_str(), {})};
  return {outcome, "", "prnprop: " + error + "\n"};
}

ExitStatus StatusOf(CheckOutcome outcome) {
  switch (outcome) {
    case CheckOutcome::IsKeptWhole:
      return kSuccess;
    case CheckOutcome::LosesSomething:
    case CheckOutcome::DoesNotLoad:
      return kLoss;
    default:
      return kBadFile;
  }
}

}  // namespace ORXKMPrintProp::host
