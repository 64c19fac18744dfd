#include "host/Show.h"

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "host/Load.h"
#include "host/PrintRows.h"
#include "host/SettingsDocument.h"
#include "host/Terminal.h"
#include "host/Utf8.h"
#include "tables/CellCodecs.h"

namespace ORXKMPrintProp::host {
namespace {

using namespace ModPrnGen;

Text If(bool condition, TextView words) { return Text(condition ? words : TextView()); }

TextView Alignment(const Row& row, TextView column) {
  switch (AlignFromCell(RawText(row, column))) {
    case PP_PRN_ALIGN_RIGHT:
      return u"right";
    case PP_PRN_ALIGN_CENTER:
      return u"centered";
    default:
      return u"left";
  }
}

/// "left 24": how a column is aligned, and its width when it has one.
Text Placing(const Row& row, TextView alignColumn, TextView widthColumn) {
  const int width = Number(row, widthColumn);
  const Text size = Flag(row, u"PR_AUTO_WIDTH") ? u"auto" : width != 0 ? Digits(width) : Text();
  return Joined({Text(Alignment(row, alignColumn)), size}, u" ");
}

/// What prints in the two columns of a characteristic or an attribute; the second one may be empty.
struct Columns {
  Text first;
  Text second;
};

Columns ColumnsOf(const Row& row) {
  static constexpr TextView key = u"key";
  static constexpr TextView description = u"description";
  const auto [keyFirst, both] = PresentationOf(row);
  const auto column = [&](TextView what, TextView align, TextView width, TextView fix) {
    return Joined({Text(what), Placing(row, align, width), If(Flag(row, fix), u"each page")});
  };
  return {column(keyFirst ? key : description, u"PR_COL1_ALIGN", u"PR_COL1_WIDTH", u"PR_COL1_FIX"),
          both ? column(keyFirst ? description : key, u"PR_COL2_ALIGN", u"PR_COL2_WIDTH", u"PR_COL2_FIX") : Text()};
}

/// What there is to say of a characteristic besides its columns.
Text Details(const Row& row) {
  Text hierarchy;
  if (Flag(row, u"HRY_ACTIVE")) {
    const int level = Number(row, u"STRT_LVL");
    const Text version = LineText(row, u"VERSION");
    const Text dateTo = LineText(row, u"DATETO");
    hierarchy = Joined({u"with hierarchy", LineText(row, u"HIENM")}, u" ");
    hierarchy = Joined({hierarchy, If(level != 0, u"level " + Digits(level)),
                        If(!version.empty(), u"version " + version), If(!dateTo.empty(), u"to " + dateTo)});
  }
  // By the value of the enumeration, as further below.
  static constexpr TextView sums[] = {u"", u"totals suppressed on condition", u"totals always suppressed"};
  return Joined(
      {If(Flag(row, u"PR_QUERY_BREAK"), u"new cover page"), If(Flag(row, u"PR_PAGE_BREAK"), u"new page"),
       If(Flag(row, u"PR_BREAK_AREA"), u"new block"), hierarchy, Text(sums[NoSumsFromCell(RawText(row, u"NOSUMS"))])},
      u"; ");
}

/// Lines of cells, with columns as wide as their widest cell.
class Grid {
 public:
  Grid(bool color, std::ostream& out) : color_(color), out_(out) {}

  void Heading(std::vector<Text> cells) { lines_.push_back({std::move(cells), kBold}); }
  void Line(std::vector<Text> cells) { lines_.push_back({std::move(cells), nullptr}); }
  /// A text that takes the whole line.
  void Detail(Text text) { lines_.push_back({{std::move(text)}, kDim}); }

  /// A blank line and the heading go ahead; nothing is printed when there are no lines.
  void PrintBelow(TextView heading) {
    if (lines_.empty()) return;
    out_ << "\n";
    lines_.insert(lines_.begin(), {{Text(heading)}, kBold});
    Print();
  }

  void Print() {
    std::vector<int> widths;
    for (const auto& [cells, style] : lines_) {
      if (cells.size() == 1) continue;
      widths.resize(std::max(widths.size(), cells.size()));
      for (std::size_t i = 0; i < cells.size(); ++i) widths[i] = std::max(widths[i], DisplayWidth(cells[i]));
    }
    for (const auto& [cells, style] : lines_) {
      Text line;
      int missing = 0;
      for (std::size_t i = 0; i < cells.size(); ++i) {
        if (!cells[i].empty()) {
          line.append(static_cast<std::size_t>(missing), u' ') += cells[i];
          missing = 0;
        }
        if (i < widths.size()) missing += widths[i] - (cells[i].empty() ? 0 : DisplayWidth(cells[i])) + 2;
      }
      if (color_ && style) {
        out_ << style << ToUtf8(line) << "\x1b[0m\n";
      } else {
        out_ << ToUtf8(line) << "\n";
      }
    }
  }

 private:
  static constexpr const char* kBold = "\x1b[1m";
  static constexpr const char* kDim = "\x1b[2m";

  struct StyledLine {
    std::vector<Text> cells;
    const char* style;  ///< none for plain text
  };

  bool color_;
  std::ostream& out_;
  std::vector<StyledLine> lines_;
};

Text Numbered(std::size_t indent, std::size_t number, const Text& name) {
  const Text digits = Digits(static_cast<int>(number));
  return Text(indent + (digits.size() < 2 ? 1 : 0), u' ') + digits + u"  " + name;
}

void ShowPage(const Row& row, Grid& grid) {
  const auto line = [&](TextView what, const Text& value) {
    if (!value.empty()) grid.Line({u"  " + Text(what), value});
  };
  const auto margin = [&](TextView side, TextView column) {
    const int size = Number(row, column);
    return If(size != 0, Text(side) + u" " + Digits(size));
  };
  const auto code = [&](TextView column) { return RawText(row, column); };
  static constexpr TextView directions[] = {u"horizontal", u"vertical"};
  static constexpr TextView sums[] = {u"top left", u"bottom right"};
  static constexpr TextView signs[] = {u"-X", u"X-", u"(X)"};
  static constexpr TextView units[] = {u"left of the value", u"right of the value", u"in the heading",
                                       u"not displayed"};

  grid.Heading({u"Page"});
  line(u"Title", LineText(row, u"TITLE"));
  line(u"Page order", Text(directions[DirectionFromCell(code(u"PRINT_DIRECTION"))]));
  line(u"At most", PageLimit(row));
  line(u"Margins", Joined({margin(u"top", u"MARGIN_TOP"), margin(u"bottom", u"MARGIN_BOTTOM"),
                           margin(u"left", u"MARGIN_LEFT"), margin(u"right", u"MARGIN_RIGHT")}));
  line(u"Totals", Text(sums[SumPositFromCell(code(u"SUMPOSIT"))]));
  line(u"Signs", Text(signs[SignPrsntFromCell(code(u"SIGNPRSNT"))]));
  line(u"Currency and unit", Text(units[CurUnitPositionFromCell(code(u"CURUNITPOSITION"))]));
  line(u"Options", Joined({If(Flag(row, u"HIDE_ZERO"), u"no zeros"), If(Flag(row, u"NOMULTTXT"), u"no repeated texts"),
                           If(Flag(row, u"NO_LINES"), u"no lines"), If(Flag(row, u"USE_COLORS"), u"colored headers")}));
}

void ShowCharacteristics(std::span<const Owner> characteristics, Grid& grid) {
  grid.Heading({u"Print characteristics", u"Title", u"Column 1", u"Column 2"});
  std::size_t number = 0;
  const auto line = [&](std::size_t indent, std::size_t itemNumber, const Text& name, const Row& row) {
    const Columns columns = ColumnsOf(row);
    grid.Line({Numbered(indent, itemNumber, name), LineText(row, u"PR_COL1_HEADER"), columns.first, columns.second});
  };
  for (const Owner& characteristic : characteristics) {
    line(2, ++number, OwnerName(*characteristic.row), *characteristic.row);
    if (const Text details = Details(*characteristic.row); !details.empty()) grid.Detail(Text(6, u' ') + details);
    std::size_t attributeNumber = 0;
    for (const RowRef& attribute : characteristic.printed) {
      line(6, ++attributeNumber, AttributeName(*attribute), *attribute);
    }
  }
  if (number == 0) grid.Detail(u"  none");
}

void ShowStructure(const Owner& structure, Grid& grid) {
  grid.Heading({OwnerName(*structure.row), u"Title", u"Column"});
  std::size_t number = 0;
  for (const RowRef& element : structure.printed) {
    grid.Line({Numbered(2, ++number, ElementName(*element)), LineText(*element, u"PR_COL1_HEADER"),
               Placing(*element, u"PR_COL1_ALIGN", u"PR_COL1_WIDTH")});
  }
  if (number == 0) grid.Detail(u"  none");
}

/// The names of what hangs below each owner and is not printed, a line for each.
void ShowHidden(TextView what, const std::vector<std::pair<Text, Rows>>& owners, Text (*name)(const Row&), Grid& grid) {
  Text label = u"  " + Text(what);
  for (const auto& [owner, rows] : owners) {
    std::vector<Text> names;
    for (const RowRef& row : rows) names.push_back(name(*row));
    // A name is more likely to hold a comma than a semicolon.
    const Text list = Joined(names, u"; ");
    if (!list.empty()) grid.Line({std::exchange(label, Text()), Joined({owner, list}, u": ")});
  }
}

}  // namespace

void Show(const Snapshot& readBack, bool color, std::ostream& out) {
  Rows printed;
  Rows hidden;
  Rows structureRows;
  for (const RowRef& row : readBack.Dimension().rows) {
    (IsStructure(*row) ? structureRows : IsPrinted(*row) ? printed : hidden).push_back(row);
  }
  SortByPosition(printed);
  Rows all = printed;
  all.insert(all.end(), hidden.begin(), hidden.end());
  const auto owners = OwnersOf(all, readBack.Attribute().rows);
  const auto structures = OwnersOf(structureRows, readBack.Member().rows);

  Grid page(color, out);
  ShowPage(*readBack.General().rows.at(0), page);
  page.Print();

  out << "\n";
  Grid characteristics(color, out);
  ShowCharacteristics(std::span(owners).first(printed.size()), characteristics);
  characteristics.Print();

  for (const Owner& structure : structures) {
    out << "\n";
    Grid elements(color, out);
    ShowStructure(structure, elements);
    elements.Print();
  }

  // Nothing below a characteristic that is not printed is printed.
  std::vector<std::pair<Text, Rows>> attributes;
  attributes.reserve(owners.size());
  for (const Owner& owner : owners) {
    Rows rows = owner.hidden;
    if (!IsPrinted(*owner.row)) rows.insert(rows.begin(), owner.printed.begin(), owner.printed.end());
    attributes.emplace_back(OwnerName(*owner.row), rows);
  }
  std::vector<std::pair<Text, Rows>> elements;
  elements.reserve(structures.size());
  for (const Owner& owner : structures) elements.emplace_back(OwnerName(*owner.row), owner.hidden);

  Grid rest(color, out);
  ShowHidden(u"Characteristics", {{Text(), hidden}}, OwnerName, rest);
  ShowHidden(u"Attributes", attributes, AttributeName, rest);
  ShowHidden(u"Structure elements", elements, ElementName, rest);
  rest.PrintBelow(u"Not printed");
}

void Show(const std::string& path, bool color, std::ostream& out) {
  const SettingsDocument document = ReadSettings(path);
  LoadAndReadBack(document);
  Show(SnapshotOf(document), color, out);
}

}  // namespace ORXKMPrintProp::host
