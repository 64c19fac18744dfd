#pragma once

#include <array>
#include <string>
#include <vector>

#include "host/Snapshot.h"
#include "tables/PrnEnums.h"

namespace ORXKMPrintProp::host {

/// The layouts of the page, by their buttons' IDs.
enum PageLayout { kTopPage, kHeadPart, kFootPart, kEndPage };
inline constexpr TextView kPageLayoutNames[] = {u"Top page", u"Head part", u"Foot part", u"End page"};

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
  /// The lines of the page's layouts, in the order of `kPageLayoutNames`; no lines where none is set.
  std::array<std::vector<Text>, std::size(kPageLayoutNames)> layouts;
  std::vector<SketchColumn> columns;
  std::vector<SketchLine> lines;
  std::vector<Text> notes;  ///< what a single page can't show
};

/// Computed from the tables as the control gives them back, and nothing else.
PageSketch SketchOf(const Snapshot& readBack);

/// The page in words, lines in UTF-8: what `prnprop show` prints, and the layouts.
std::string WordsOf(const Snapshot& readBack);

}  // namespace ORXKMPrintProp::host
