#include "host/editor/PageSketch.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <set>
#include <sstream>
#include <utility>

#include "host/PrintRows.h"
#include "host/SettingsColumns.h"
#include "host/Show.h"
#include "host/Terminal.h"
#include "host/Utf8.h"
#include "host/Words.h"
#include "tables/CellCodecs.h"

namespace ORXKMPrintProp::host {
namespace {

using namespace ModPrnGen;
using views::Filled;

/// The dialog sets no more breaks; a document may, and each brings lines of its own.
constexpr std::size_t kMostGroups = 3;

constexpr std::size_t kMostLayoutLines = 3;
constexpr std::size_t kMostLayoutWidth = 200;
constexpr char16_t kCut = u'\u2026';

/// The first lines of a layout that say something, none for an empty one.
std::vector<Text> LayoutLines(const Text& layout, std::size_t most) {
  std::vector<Text> lines;
  bool isCut = false;
  for (std::size_t begin = 0; begin < layout.size() && !isCut;) {
    const std::size_t end = std::min(layout.find_first_of(u"\r\n", begin), layout.size());
    const Text line = OneLine(TextView(layout).substr(begin, end - begin));
    begin = end + (layout.compare(end, 2, u"\r\n") == 0 ? 2 : 1);
    const bool isBlank = line.find_first_not_of(u' ') == Text::npos;
    if (isBlank && lines.empty()) continue;
    isCut = lines.size() == most;
    if (!isCut) lines.push_back(line);
  }
  if (lines.empty() && !layout.empty()) lines.emplace_back();
  for (Text& line : lines) {
    if (line.size() <= kMostLayoutWidth) continue;
    const bool isHalf = (line[kMostLayoutWidth - 1] & 0xFC00) == 0xD800;
    line.resize(kMostLayoutWidth - (isHalf ? 1 : 0));
    line += kCut;
  }
  if (isCut) lines.back() += kCut;
  return lines;
}

/// Where a column has its made-up content from.
struct Source {
  std::size_t level = 0;  ///< the characteristic, or of a number the element, counted from 0
  bool isAttribute = false;
  bool isKey = false;
  Text name = {};  ///< of the characteristic or the attribute
};

/// A row of values, and which characteristic is the outermost whose value is another one than in the row before.
struct Values {
  std::vector<int> values;
  std::size_t changed = 0;
};

class Sketcher {
 public:
  explicit Sketcher(const Snapshot& tables) : tables_(tables), general_(*tables.General().rows.at(0)) {}

  PageSketch Draw() {
    Page();
    Columns();
    NoteEveryPage();
    NoteSums(PP_PRN_NOSUMS_ALWAYS, TranslatedText("No totals of: {0}"));
    NoteSums(PP_PRN_NOSUMS_CONDITION, TranslatedText("Totals on condition of: {0}"));
    Lines();
    NoteLayouts();
    return std::move(sketch_);
  }

 private:
  void Page() {
    sketch_.title = LineText(general_, u"TITLE");
    sketch_.margins = {Number(general_, u"MARGIN_TOP"), Number(general_, u"MARGIN_BOTTOM"),
                       Number(general_, u"MARGIN_LEFT"), Number(general_, u"MARGIN_RIGHT")};
    sketch_.colored = Flag(general_, u"USE_COLORS");
    sketch_.ruled = !Flag(general_, u"NO_LINES");
    for (std::size_t id = 0; id < sketch_.layouts.size(); ++id) {
      sketch_.layouts[id] = LayoutLines(RawText(general_, kPageLayouts[id]), kMostLayoutLines);
    }
    if (const Text limit = PageLimit(general_); !limit.empty()) {
      Note(WordFor(u"ID_PRN_MAXPAGES", "Maximal number of pages"), limit);
    }
    NoteMargins();
    const bool isAcross = DirectionFromCell(RawText(general_, u"PRINT_DIRECTION")) == PP_PRN_DIR_HORIZONTAL;
    Note(WordFor(u"ID_PRN_PRINTDIRECTION", "Print direction"),
         isAcross ? WordFor(u"ID_PRN_HORIZONTAL", "horizontal") : WordFor(u"ID_PRN_VERTICAL", "vertical"));
  }

  /// The sketch draws margins up to a size, and none below 0.
  void NoteMargins() {
    const Text sides[] = {WordFor(u"ID_PRN_MARGINTOP", "top"), WordFor(u"ID_PRN_MARGINBOTTOM", "bottom"),
                          WordFor(u"ID_PRN_MARGINLEFT", "left"), WordFor(u"ID_PRN_MARGINRIGHT", "right")};
    std::vector<Text> words;
    bool areDrawn = true;
    for (std::size_t side = 0; side < std::size(sides); ++side) {
      const int margin = sketch_.margins[side];
      areDrawn = areDrawn && margin >= 0 && margin <= PageSketch::kMostMargin;
      words.push_back(sides[side] + u" " + Digits(margin));
    }
    if (!areDrawn) Note(WordFor(u"ID_PRN_PAGEMARGINS", "Margins"), Joined(words));
  }

  void Columns() {
    Rows characteristics;
    Rows structures;
    for (const RowRef& row : tables_.Dimension().rows) {
      (IsStructure(*row) ? structures : characteristics).push_back(row);
    }
    SortByPosition(characteristics);
    for (const Owner& owner : OwnersOf(characteristics, tables_.Attribute().rows)) {
      if (!IsPrinted(*owner.row)) continue;
      const std::size_t level = levels_.size();
      levels_.push_back(owner.row);
      AddTextColumns(*owner.row, {.level = level, .name = OwnerName(*owner.row)});
      for (const RowRef& attribute : owner.printed) {
        AddTextColumns(*attribute, {.level = level, .isAttribute = true, .name = AttributeName(*attribute)});
      }
    }

    std::size_t element = 0;
    for (const Owner& structure : OwnersOf(structures, tables_.Member().rows)) {
      for (const RowRef& row : structure.printed) {
        SketchColumn column{.title = FirstText(*row, {u"PR_COL1_HEADER", u"CHAVLTXT", u"CHAVL"}),
                            .what = OwnerName(*structure.row)};
        Place(*row, u"PR_COL1_WIDTH", u"PR_COL1_ALIGN", column);
        column.isNumber = true;
        if (CurrencyPosition() == PP_PRN_CUPOS_HEAD) column.title += u" (EUR)";
        Add(column, {.level = element++});
      }
    }
  }

  static void Place(const Row& row, TextView width, TextView align, SketchColumn& column) {
    column.width = Flag(row, u"PR_AUTO_WIDTH") ? 0 : std::max(Number(row, width), 0);
    column.align = AlignFromCell(RawText(row, align));
  }

  void AddTextColumns(const Row& row, Source source) {
    const auto [keyFirst, both] = PresentationOf(row);
    const auto add = [&](bool isKey, TextView title, TextView width, TextView align, TextView fix) {
      SketchColumn column{
          .title = LineText(row, title),
          .what = isKey ? WordFor(u"ID_DLG_VALPRES_3", "key") : WordFor(u"ID_DLG_VALPRES_2", "description"),
          .everyPage = Flag(row, fix)};
      if (column.title.empty()) column.title = source.name;
      Place(row, width, align, column);
      source.isKey = isKey;
      Add(column, source);
    };
    add(keyFirst, u"PR_COL1_HEADER", u"PR_COL1_WIDTH", u"PR_COL1_ALIGN", u"PR_COL1_FIX");
    if (both) add(!keyFirst, u"PR_COL2_HEADER", u"PR_COL2_WIDTH", u"PR_COL2_ALIGN", u"PR_COL2_FIX");
  }

  void NoteEveryPage() {
    const auto isOnEach = [](const SketchColumn& column) { return column.everyPage; };
    if (std::any_of(sketch_.columns.begin(), sketch_.columns.end(), isOnEach)) {
      sketch_.notes.push_back(TranslatedText("Columns with a thick line are on each page"));
    }
  }

  /// The lines show the totals of a few characteristics only.
  void NoteSums(PP_NoSums noSums, const Text& sentence) {
    NoteNames(sentence,
              [&](std::size_t level) { return NoSumsFromCell(RawText(*levels_[level], u"NOSUMS")) == noSums; });
  }

  /// The lines have the totals rows of a few characteristics only.
  void NoteLayouts() {
    NoteNames(TranslatedText("Layouts of further totals rows: {0}"),
              [&](std::size_t level) { return HasLayout(level) && !drawnLayouts_.contains(level); });
  }

  void Note(const Text& what, const Text& value) { sketch_.notes.push_back(what + u": " + value); }

  template <class IsNamed>
  void NoteNames(const Text& sentence, IsNamed isNamed) {
    std::vector<Text> names;
    for (std::size_t level = 0; level < levels_.size(); ++level) {
      if (isNamed(level)) names.push_back(OwnerName(*levels_[level]));
    }
    if (const Text list = Joined(names, u"; "); !list.empty()) sketch_.notes.push_back(Filled(sentence, {list}));
  }

  void Add(SketchColumn column, Source source) {
    sketch_.columns.push_back(std::move(column));
    sources_.push_back(std::move(source));
  }

  PP_CurUnitPosition CurrencyPosition() const { return CurUnitPositionFromCell(RawText(general_, u"CURUNITPOSITION")); }

  /// Enough rows for the break of every characteristic that has one to be seen, the totals that it closes, and the
  /// layouts of totals rows.
  void Lines() {
    if (sources_.empty()) return;
    const std::size_t count = levels_.size();
    std::set<std::size_t> groups;
    const auto add = [&](auto isAdded) {
      for (std::size_t level = 0; level + 1 < count; ++level) {
        if (!isAdded(level) || groups.contains(level)) continue;
        if (groups.size() == kMostGroups) return false;
        groups.insert(level);
      }
      return true;
    };
    if (!add([&](std::size_t level) { return BreakBy(level).has_value(); })) {
      sketch_.notes.push_back(TranslatedText("There are more breaks than these"));
    }
    add([&](std::size_t level) { return HasLayout(level); });
    if (groups.empty() && count > 1) groups.insert(0);

    std::vector<std::size_t> changes;
    const auto again = [&] {
      if (count > 0) changes.push_back(count - 1);
    };
    again();
    for (auto level = groups.rbegin(); level != groups.rend(); ++level) {
      changes.push_back(*level);
      again();
    }
    rows_.push_back({.values = std::vector<int>(count)});
    for (const std::size_t changed : changes) {
      Values next{.values = rows_.back().values, .changed = changed};
      ++next.values[changed];
      std::fill(next.values.begin() + static_cast<std::ptrdiff_t>(changed) + 1, next.values.end(), 0);
      rows_.push_back(std::move(next));
    }

    const bool totalsFirst = SumPositFromCell(RawText(general_, u"SUMPOSIT")) == PP_PRN_SUM_TOPLEFT;
    if (totalsFirst) AddOverall();
    for (std::size_t row = 0; row < rows_.size(); ++row) {
      const std::size_t changed = rows_[row].changed;
      if (row > 0) {
        if (!totalsFirst) AddTotals(groups, changed, row - 1, false);
        AddBreak(changed);
      }
      if (totalsFirst) AddTotals(groups, changed, row, true);
      AddValues(row);
    }
    if (!totalsFirst) {
      AddTotals(groups, 0, rows_.size() - 1, false);
      AddOverall();
    }
  }

  /// What a new value of the characteristic begins.
  std::optional<SketchLineKind> BreakBy(std::size_t level) const {
    static constexpr std::pair<TextView, SketchLineKind> kinds[] = {{u"PR_QUERY_BREAK", SketchLineKind::CoverPage},
                                                                    {u"PR_PAGE_BREAK", SketchLineKind::NewPage},
                                                                    {u"PR_BREAK_AREA", SketchLineKind::NewBlock}};
    for (const auto& [column, kind] : kinds) {
      if (Flag(*levels_[level], column)) return kind;
    }
    return {};
  }

  /// The strongest break of all the characteristics whose values are new ones.
  std::optional<SketchLineKind> BreakFrom(std::size_t changed) const {
    std::optional<SketchLineKind> strongest;
    for (std::size_t level = changed; level < levels_.size(); ++level) {
      const auto kind = BreakBy(level);
      if (kind && (!strongest || *kind < *strongest)) strongest = kind;
    }
    return strongest;
  }

  void AddBreak(std::size_t changed) {
    if (const auto kind = BreakFrom(changed)) sketch_.lines.push_back({.kind = *kind});
  }

  static Text ValueText(const Source& source, int value) {
    const Text letter(1, static_cast<char16_t>(u'A' + value % 26));
    if (source.isKey) return letter + (source.isAttribute ? u"-" : u"") + Digits(10 * (value + 1));
    return source.name + u" " + letter;
  }

  void AddValues(std::size_t row) {
    const Values& values = rows_[row];
    const bool hidesRepeated = Flag(general_, u"NOMULTTXT");
    const auto begun = row == 0 ? SketchLineKind::NewPage : BreakFrom(values.changed).value_or(SketchLineKind::Values);
    const bool isFirstOfPage = begun == SketchLineKind::CoverPage || begun == SketchLineKind::NewPage;
    SketchLine line;
    for (std::size_t i = 0; i < sources_.size(); ++i) {
      const Source& source = sources_[i];
      if (sketch_.columns[i].isNumber) {
        line.cells.push_back(NumberText(NumberAt(row, source.level)));
      } else if (hidesRepeated && !isFirstOfPage && source.level < values.changed) {
        line.cells.emplace_back();
      } else {
        line.cells.push_back(ValueText(source, values.values[source.level]));
      }
    }
    sketch_.lines.push_back(std::move(line));
  }

  /// The totals of the groups that begin, or end, with that row.
  void AddTotals(const std::set<std::size_t>& groups, std::size_t changed, std::size_t row, bool begin) {
    std::vector<std::size_t> levels(groups.lower_bound(changed), groups.end());
    if (!begin) std::reverse(levels.begin(), levels.end());
    for (const std::size_t level : levels) {
      const auto noSums = NoSumsFromCell(RawText(*levels_[level], u"NOSUMS"));
      if (noSums == PP_PRN_NOSUMS_ALWAYS) continue;
      std::size_t first = row;
      std::size_t last = row;
      while (!begin && first > 0 && rows_[first].changed > level) --first;
      while (begin && last + 1 < rows_.size() && rows_[last + 1].changed > level) ++last;
      const bool isOnCondition = noSums == PP_PRN_NOSUMS_CONDITION;
      AddSums(isOnCondition ? TranslatedText("Total, on condition") : TranslatedText("Total"), level, first, last);
      AddLayout(level);
    }
  }

  bool HasLayout(std::size_t level) const { return !RawText(*levels_[level], kTotalsLayout).empty(); }

  void AddLayout(std::size_t level) {
    if (!HasLayout(level) || !HasNumbers()) return;
    drawnLayouts_.insert(level);
    SketchLine line{.kind = SketchLineKind::TotalsLayout, .cells = std::vector<Text>(sources_.size())};
    line.cells[FirstColumnOf(level)] = LayoutLines(RawText(*levels_[level], kTotalsLayout), 1).front();
    sketch_.lines.push_back(std::move(line));
  }

  bool HasNumbers() const {
    return std::any_of(sketch_.columns.begin(), sketch_.columns.end(),
                       [](const SketchColumn& column) { return column.isNumber; });
  }

  std::size_t FirstColumnOf(std::size_t level) const {
    const auto first =
        std::find_if(sources_.begin(), sources_.end(), [&](const Source& source) { return source.level == level; });
    return static_cast<std::size_t>(first - sources_.begin());
  }

  void AddOverall() { AddSums(TranslatedText("Overall total"), 0, 0, rows_.size() - 1); }

  /// The words stand in the first column of the characteristic.
  void AddSums(const Text& words, std::size_t level, std::size_t first, std::size_t last) {
    if (!HasNumbers()) return;
    SketchLine line{.kind = SketchLineKind::Totals, .cells = std::vector<Text>(sources_.size())};
    for (std::size_t i = 0; i < sources_.size(); ++i) {
      if (!sketch_.columns[i].isNumber) continue;
      int sum = 0;
      for (std::size_t row = first; row <= last; ++row) sum += NumberAt(row, sources_[i].level);
      line.cells[i] = NumberText(sum);
    }
    if (!levels_.empty()) line.cells[FirstColumnOf(level)] = words;
    sketch_.lines.push_back(std::move(line));
  }

  /// A zero and numbers of either sign are among the first two rows.
  static int NumberAt(std::size_t row, std::size_t element) {
    static constexpr int numbers[] = {1250, -340, 0, 8075, 615, -1980, 47, 2400};
    return numbers[(row * 3 + element) % std::size(numbers)];
  }

  Text NumberText(int number) const {
    if (number == 0 && Flag(general_, u"HIDE_ZERO")) return {};
    Text text = Digits(std::abs(number));
    if (text.size() > 3) text.insert(text.size() - 3, TranslatedText(","));
    if (number < 0) {
      switch (SignPrsntFromCell(RawText(general_, u"SIGNPRSNT"))) {
        case PP_PRN_SIGN_PREFIX:
          text = u"-" + text;
          break;
        case PP_PRN_SIGN_POSTFIX:
          text += u"-";
          break;
        case PP_PRN_SIGN_BRACES:
          text = u"(" + text + u")";
          break;
      }
    }
    const auto position = CurrencyPosition();
    return position == PP_PRN_CUPOS_LEFT ? u"EUR " + text : position == PP_PRN_CUPOS_RIGHT ? text + u" EUR" : text;
  }

  const Snapshot& tables_;
  const Row& general_;
  Rows levels_;  ///< the print characteristics, in print order
  std::set<std::size_t> drawnLayouts_;
  std::vector<Source> sources_;
  std::vector<Values> rows_;
  PageSketch sketch_;
};

}  // namespace

Text PageLayoutName(std::size_t layout) {
  switch (layout) {
    case kTopPage:
      return WordFor(u"ID_PRN_TOPPAGE", "Top page");
    case kHeadPart:
      return WordFor(u"ID_PRN_HEADPART", "Head part");
    case kFootPart:
      return WordFor(u"ID_PRN_FOOTPART", "Foot part");
    default:
      return WordFor(u"ID_PRN_ENDPAGE", "End page");
  }
}

Text BreakName(SketchLineKind kind) {
  return kind == SketchLineKind::CoverPage ? WordFor(u"ID_PRN_QUERYBREAK", "new cover page")
         : kind == SketchLineKind::NewPage ? WordFor(u"ID_PRN_PAGEBREAK", "new page")
                                           : WordFor(u"ID_PRN_BREAKAREA", "new block");
}

PageSketch SketchOf(const Snapshot& readBack) { return Sketcher(readBack).Draw(); }

std::string WordsOf(const Snapshot& readBack) {
  std::ostringstream words;
  Show(readBack, false, words);
  std::string heading = "\n" + views::Translated("Layouts") + "\n";
  const auto add = [&](const Text& what, const Text& layout) {
    const Text text = Joined(LayoutLines(layout, kMostLayoutLines), u" ");
    if (!layout.empty()) words << std::exchange(heading, {}) << "  " << ToUtf8(what) << ": " << ToUtf8(text) << "\n";
  };
  const Row& general = *readBack.General().rows.at(0);
  for (std::size_t id = 0; id < kPageLayoutCount; ++id) add(PageLayoutName(id), RawText(general, kPageLayouts[id]));
  for (const RowRef& row : readBack.Dimension().rows) {
    if (!IsPrinted(*row)) continue;
    add(Filled(TranslatedText("Totals row of {0}"), {OwnerName(*row)}), RawText(*row, kTotalsLayout));
  }
  return words.str();
}

}  // namespace ORXKMPrintProp::host
