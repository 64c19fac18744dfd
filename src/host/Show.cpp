#include "host/Show.h"

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "host/ExitStatus.h"
#include "host/Load.h"
#include "host/PrintRows.h"
#include "host/SettingsDocument.h"
#include "host/ShowJson.h"
#include "host/Terminal.h"
#include "host/Utf8.h"
#include "host/Words.h"
#include "tables/CellCodecs.h"

namespace ORXKMPrintProp::host {
namespace {

using namespace ModPrnGen;
using views::Filled;

Text If(bool condition, TextView words) { return Text(condition ? words : TextView()); }

Text Alignment(const Row& row, TextView column) {
  switch (AlignFromCell(RawText(row, column))) {
    case PP_PRN_ALIGN_RIGHT:
      return WordFor(u"ID_PRN_COLALIGN2", "right");
    case PP_PRN_ALIGN_CENTER:
      return WordFor(u"ID_PRN_COLALIGN3", "centered");
    default:
      return WordFor(u"ID_PRN_COLALIGN1", "left");
  }
}

/// "left 24": how a column is aligned, and its width when it has one.
Text Placing(const Row& row, TextView alignColumn, TextView widthColumn) {
  const int width = Number(row, widthColumn);
  const Text automatic = If(Flag(row, u"PR_AUTO_WIDTH"), WordFor(u"ID_PRN_COLAUTOWIDTH", "auto"));
  const Text size = automatic.empty() && width != 0 ? Digits(width) : automatic;
  return Joined({Alignment(row, alignColumn), size}, u" ");
}

/// What prints in the two columns of a characteristic or an attribute; the second one may be empty.
struct Columns {
  Text first;
  Text second;
};

Columns ColumnsOf(const Row& row) {
  const Text key = WordFor(u"ID_DLG_VALPRES_3", "key");
  const Text description = WordFor(u"ID_DLG_VALPRES_2", "description");
  const auto [keyFirst, both] = PresentationOf(row);
  const auto column = [&](const Text& what, TextView align, TextView width, TextView fix) {
    const Text eachPage = WordFor(u"ID_PRN_COLEACHPAGE", "each page");
    return Joined({what, Placing(row, align, width), If(Flag(row, fix), eachPage)});
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
    hierarchy = Joined({TranslatedText("with hierarchy"), LineText(row, u"HIENM")}, u" ");
    hierarchy = Joined({hierarchy, If(level != 0, Filled(TranslatedText("level {0}"), {Digits(level)})),
                        If(!version.empty(), Filled(TranslatedText("version {0}"), {version})),
                        If(!dateTo.empty(), Filled(TranslatedText("to {0}"), {dateTo}))});
  }
  // By the value of the enumeration, as further below.
  const Text sums[] = {
      {}, TranslatedText("totals suppressed on condition"), TranslatedText("totals always suppressed")};
  return Joined({If(Flag(row, u"PR_QUERY_BREAK"), WordFor(u"ID_PRN_QUERYBREAK", "new cover page")),
                 If(Flag(row, u"PR_PAGE_BREAK"), WordFor(u"ID_PRN_PAGEBREAK", "new page")),
                 If(Flag(row, u"PR_BREAK_AREA"), WordFor(u"ID_PRN_BREAKAREA", "new block")), hierarchy,
                 sums[NoSumsFromCell(RawText(row, u"NOSUMS"))]},
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
  const auto line = [&](const Text& what, const Text& value) {
    if (!value.empty()) grid.Line({u"  " + what, value});
  };
  const auto margin = [&](const Text& side, TextView column) {
    const int size = Number(row, column);
    return If(size != 0, side + u" " + Digits(size));
  };
  const auto code = [&](TextView column) { return RawText(row, column); };
  const Text directions[] = {WordFor(u"ID_PRN_HORIZONTAL", "horizontal"), WordFor(u"ID_PRN_VERTICAL", "vertical")};
  const Text sums[] = {WordFor(u"ID_PRN_SUMPOSIT_1", "top left"), WordFor(u"ID_PRN_SUMPOSIT_2", "bottom right")};
  static constexpr TextView signs[] = {u"-X", u"X-", u"(X)"};
  const Text units[] = {WordFor(u"ID_PRN_CURUNITPOS_1", "left of the value"),
                        WordFor(u"ID_PRN_CURUNITPOS_2", "right of the value"), TranslatedText("in the heading"),
                        WordFor(u"ID_PRN_CURUNITPOS_4", "not displayed")};
  const Text limit = PageLimit(row);
  const Text pages = limit == u"1" ? TranslatedText("{0} page") : TranslatedText("{0} pages");

  grid.Heading({TranslatedText("Page")});
  line(WordFor(u"ID_PRN_PRINTTITLE", "Title"), LineText(row, u"TITLE"));
  line(WordFor(u"ID_PRN_PRINTDIRECTION", "Page order"), directions[DirectionFromCell(code(u"PRINT_DIRECTION"))]);
  line(WordFor(u"ID_PRN_MAXPAGES", "At most"), If(!limit.empty(), Filled(pages, {limit})));
  line(WordFor(u"ID_PRN_PAGEMARGINS", "Margins"),
       Joined({margin(WordFor(u"ID_PRN_MARGINTOP", "top"), u"MARGIN_TOP"),
               margin(WordFor(u"ID_PRN_MARGINBOTTOM", "bottom"), u"MARGIN_BOTTOM"),
               margin(WordFor(u"ID_PRN_MARGINLEFT", "left"), u"MARGIN_LEFT"),
               margin(WordFor(u"ID_PRN_MARGINRIGHT", "right"), u"MARGIN_RIGHT")}));
  line(WordFor(u"ID_PRN_SUMPOSIT", "Totals"), sums[SumPositFromCell(code(u"SUMPOSIT"))]);
  line(WordFor(u"ID_PRN_SIGNPRSNT", "Signs"), Text(signs[SignPrsntFromCell(code(u"SIGNPRSNT"))]));
  line(WordFor(u"ID_PRN_CURUNITPOS", "Currency and unit"), units[CurUnitPositionFromCell(code(u"CURUNITPOSITION"))]);
  line(TranslatedText("Options"),
       Joined({If(Flag(row, u"HIDE_ZERO"), WordFor(u"ID_DLG_CHK_SUPPRESSZEROS", "no zeros")),
               If(Flag(row, u"NOMULTTXT"), WordFor(u"ID_PRN_NOMULTTEXTS", "no repeated texts")),
               If(Flag(row, u"NO_LINES"), WordFor(u"ID_PRN_NOLINES", "no lines")),
               If(Flag(row, u"USE_COLORS"), WordFor(u"ID_PRN_USECOLORS", "colored headers"))}));
}

void ShowCharacteristics(std::span<const Owner> characteristics, Grid& grid) {
  grid.Heading({WordFor(u"ID_PRN_CHARPRINT", "Print characteristics"), WordFor(u"ID_PRN_COLTITLE", "Title"),
                WordFor(u"ID_PRN_COL1", "Column 1"), WordFor(u"ID_PRN_COL2", "Column 2")});
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
  if (number == 0) grid.Detail(u"  " + TranslatedText("none"));
}

void ShowStructure(const Owner& structure, Grid& grid) {
  grid.Heading({OwnerName(*structure.row), WordFor(u"ID_PRN_COLTITLE", "Title"), TranslatedText("Column")});
  std::size_t number = 0;
  for (const RowRef& element : structure.printed) {
    grid.Line({Numbered(2, ++number, ElementName(*element)), LineText(*element, u"PR_COL1_HEADER"),
               Placing(*element, u"PR_COL1_ALIGN", u"PR_COL1_WIDTH")});
  }
  if (number == 0) grid.Detail(u"  " + TranslatedText("none"));
}

/// The names of what hangs below each owner and is not printed, a line for each.
void ShowHidden(const Text& what, const std::vector<std::pair<Text, Rows>>& owners, Text (*name)(const Row&),
                Grid& grid) {
  Text label = u"  " + what;
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
  const Printout printout = PrintoutOf(readBack);

  Grid page(color, out);
  ShowPage(*readBack.General().rows.at(0), page);
  page.Print();

  out << "\n";
  Grid characteristics(color, out);
  ShowCharacteristics(printout.characteristics, characteristics);
  characteristics.Print();

  for (const Owner& structure : printout.structures) {
    out << "\n";
    Grid elements(color, out);
    ShowStructure(structure, elements);
    elements.Print();
  }

  std::vector<std::pair<Text, Rows>> hidden{{Text(), {}}}, attributes, elements;
  for (const Owner& owner : printout.characteristics) attributes.emplace_back(OwnerName(*owner.row), owner.hidden);
  for (const Owner& owner : printout.hidden) {
    hidden[0].second.push_back(owner.row);
    attributes.emplace_back(OwnerName(*owner.row), owner.hidden);
  }
  for (const Owner& owner : printout.structures) elements.emplace_back(OwnerName(*owner.row), owner.hidden);

  Grid rest(color, out);
  ShowHidden(WordFor(u"ID_PRN_CHAR", "Characteristics"), hidden, OwnerName, rest);
  ShowHidden(WordFor(u"ID_PRN_ATTR", "Attributes"), attributes, AttributeName, rest);
  ShowHidden(TranslatedText("Structure elements"), elements, ElementName, rest);
  rest.PrintBelow(TranslatedText("Not printed"));
}

int Show(const ShowOptions& options, std::ostream& out) {
  if (options.json) return ShowJson(options.file, out);
  const SharedValuesGuard guard;
  const SettingsDocument document = ReadSettings(options.file);
  const MemoryTableRef texts = options.texts ? ReadSettings(*options.texts).texts : document.texts;
  LoadAndReadBack(document);
  ORXQueryPrnProp control;
  if (texts) control.ORXControlTexts(texts);
  Show(SnapshotOf(document), options.color, out);
  return kSuccess;
}

}  // namespace ORXKMPrintProp::host
