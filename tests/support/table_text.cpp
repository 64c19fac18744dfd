#include "support/table_text.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include "tables/Conversions.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::test {
namespace {

/// The columns of a kind, each with what the control writes for an item about which nothing is set; the name of an
/// item has no such cell.
const char* UnsetOf(Kind kind) {
  switch (kind) {
    case Kind::General:
      return "TITLE='' PRINT_DIRECTION='V' MAX_PAGES='0' HIDE_ZERO=' ' USE_COLORS=' ' FRONTPAGE_LAYOUT='' "
             "HEADER_LAYOUT='' FOOTER_LAYOUT='' LASTPAGE_LAYOUT='' MARGIN_TOP=0 MARGIN_BOTTOM=0 MARGIN_LEFT=0 "
             "MARGIN_RIGHT=0 SUMPOSIT='2' NOMULTTXT=' ' SIGNPRSNT='1' NO_LINES=' ' CURUNITPOSITION='N'";
    case Kind::Dimension:
      return "IOBJNM= IOBJTXT='' POSIT=0 AXIS=' ' IOBJPRSNT='1' PR_COL1_FIX=' ' PR_COL2_FIX=' ' PR_AUTO_WIDTH=' ' "
             "PR_COL1_WIDTH=0 PR_COL2_WIDTH=0 PR_COL1_ALIGN='L' PR_COL2_ALIGN='L' PR_COL1_HEADER='' "
             "PR_COL2_HEADER='' PR_PAGE_BREAK=' ' PR_BREAK_AREA=' ' PR_QUERY_BREAK=' ' STRT_LVL=0 HRY_ACTIVE=' ' "
             "PR_HRY_PRSNT='*' PR_SUM_LAYOUT='' HIENM='' VERSION='' DATETO='' NOSUMS=' ' IS_STRUCTURE=";
    case Kind::Member:
      return "IOBJNM= CHAVL= CHAVLTXT='' POSIT=0 HIDDEN=' ' PR_AUTO_WIDTH=' ' PR_COL1_WIDTH=0 PR_COL1_ALIGN='L' "
             "PR_COL1_HEADER='' PR_COL2_HEADER=''";
    case Kind::Attribute:
      return "IOBJNM= ATTRITXT='' ATTRINM= POSIT=0 HIDDEN=' ' IOBJPRSNT='1' PR_COL1_FIX=' ' PR_COL2_FIX=' ' "
             "PR_AUTO_WIDTH=' ' PR_COL1_WIDTH=0 PR_COL2_WIDTH=0 PR_COL1_ALIGN='L' PR_COL2_ALIGN='L' "
             "PR_COL1_HEADER='' PR_COL2_HEADER=''";
    case Kind::Texts:
      return "TARGETID= CAPTION=";
  }
  return "";
}

using Cells = std::vector<std::pair<std::string, std::string>>;

Cells CellsFrom(const std::string& line) {
  Cells cells;
  std::size_t at = 0;
  while ((at = line.find_first_not_of(' ', at)) != std::string::npos) {
    const std::size_t equals = line.find('=', at);
    if (equals == std::string::npos) throw std::invalid_argument("no cell: " + line.substr(at));
    const bool quoted = line.compare(equals + 1, 1, "'") == 0;
    const std::size_t last = quoted ? line.find('\'', equals + 2) + 1 : std::min(line.find(' ', equals), line.size());
    cells.emplace_back(line.substr(at, equals - at), line.substr(equals + 1, last - equals - 1));
    at = last;
  }
  return cells;
}

std::string RowText(const MemoryTable& table, const Row& row, const Cells& without) {
  std::string text;
  for (const Text& column : table.ColumnNames()) {
    const Variant value = row.Value(column);
    if (std::holds_alternative<std::monostate>(value)) continue;
    const std::pair cell{ToAscii(column), ToString(value)};
    if (std::find(without.begin(), without.end(), cell) != without.end()) continue;
    text += (text.empty() ? "" : " ") + cell.first + "=" + cell.second;
  }
  return text + "\n";
}

std::string TableText(Table& table, const Cells& without) {
  auto& memory = dynamic_cast<MemoryTable&>(table);
  std::string text;
  const auto rows = EachRow(table);
  while (const RowRef row = rows->Next()) text += RowText(memory, *row, without);
  return text;
}

}  // namespace

Text Wide(const std::string& ascii) { return {ascii.begin(), ascii.end()}; }

std::string ToString(const Variant& value) {
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "True" : "False";
  if (const auto* text = std::get_if<Text>(&value)) return "'" + ToAscii(*text) + "'";
  return ToAscii(ToText(Variant(value)));
}

Variant VariantFrom(const std::string& text) {
  if (text.empty()) return {};
  if (text.front() == '\'') return Wide(text.substr(1, text.size() - 2));
  if (text == "True" || text == "False") return text == "True";
  if (text.find('.') != std::string::npos) return std::stod(text);
  return static_cast<std::int32_t>(std::stol(text));
}

std::shared_ptr<MemoryTable> TableFrom(Kind kind, const std::string& rows) {
  const Cells unset = CellsFrom(UnsetOf(kind));
  std::vector<Text> columns;
  for (const auto& [column, cell] : unset) columns.push_back(Wide(column));
  std::vector<Cells> lines;
  std::istringstream in(rows);
  for (std::string line; std::getline(in, line);) {
    if (line.empty()) continue;
    lines.push_back(CellsFrom(line));
    for (const auto& [column, cell] : lines.back()) {
      if (std::find(columns.begin(), columns.end(), Wide(column)) == columns.end()) columns.push_back(Wide(column));
    }
  }
  auto table = MemoryTable::Create(columns);
  for (const Cells& cells : lines) {
    const RowRef row = AddRow(*table);
    for (const auto& [column, cell] : unset) {
      if (cell == "0") row->Value(Wide(column), std::int32_t{0});
    }
    for (const auto& [column, cell] : cells) row->Value(Wide(column), VariantFrom(cell));
  }
  return table;
}

std::string ToString(Table& table) { return TableText(table, {}); }

std::string BriefOf(Kind kind, Table& table) { return TableText(table, CellsFrom(UnsetOf(kind))); }

}  // namespace ORXKMPrintProp::test
