#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "host/Snapshot.h"
#include "tables/PrnEnums.h"

namespace ORXKMPrintProp::host {

/// The layouts of the page, by their buttons' IDs.
enum PageLayout { kTopPage, kHeadPart, kFootPart, kEndPage };
inline constexpr std::size_t kPageLayoutCount = 4;
/// As their buttons are called.
Text PageLayoutName(std::size_t layout);

/// A column of the printed page.
struct SketchColumn {
  Text title;
  Text what = {};  ///< what prints in it: "key", "description", of an element the structure's name
  int width = 0;   ///< in characters, 0 for as wide as the content
  PP_Alignment align = PP_PRN_ALIGN_LEFT;
  bool everyPage = false;  ///< again on each page beside the first
  bool isNumber = false;
};

/// `TotalsLayout` has the layout of the totals row above it, in the column in which the row's words stand.
enum class SketchLineKind { CoverPage, NewPage, NewBlock, Values, Totals, TotalsLayout };

/// What a break of that kind is called.
Text BreakName(SketchLineKind kind);

struct SketchLine {
  SketchLineKind kind = SketchLineKind::Values;
  std::vector<Text> cells = {};  ///< one for each column; none in a break
};

/// What a page would look like that is printed with the settings, on made-up values and numbers. Layouts are opaque:
/// their text is shown as it is, cut to a few lines.
struct PageSketch {
  /// A margin that is out of all proportion must not hide the page.
  static constexpr int kMostMargin = 60;

  Text title;
  std::array<int, 4> margins{};  ///< top, bottom, left, right
  bool colored = false;          ///< the headings
  bool ruled = true;             ///< lines between the cells
  /// The lines of the page's layouts, by `PageLayout`; no lines where none is set.
  std::array<std::vector<Text>, kPageLayoutCount> layouts;
  std::vector<SketchColumn> columns;
  std::vector<SketchLine> lines;
  std::vector<Text> notes;  ///< what a single page can't show
};

/// Computed from the tables as the control gives them back, and nothing else. The words are those of the text table in
/// use, and where it has none ours in the language that the program speaks.
PageSketch SketchOf(const Snapshot& readBack);

/// The page in such words, lines in UTF-8: what `prnprop show` prints, and the layouts.
std::string WordsOf(const Snapshot& readBack);

}  // namespace ORXKMPrintProp::host
