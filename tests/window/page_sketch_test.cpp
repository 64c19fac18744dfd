#include "host/window/PageSketch.h"

#include <gtest/gtest.h>

#include "host/Load.h"
#include "host/Utf8.h"

namespace ORXKMPrintProp::host::test {
namespace {

/// The whole description, a line for each part of it.
std::string TextOf(const PageSketch& sketch) {
  static const char* const alignments[] = {"left", "right", "centered"};
  static const char* const breaks[] = {"-- cover page", "-- page", "-- block"};
  std::string text = ToUtf8(sketch.title) + "\nmargins";
  for (const int margin : sketch.margins) text += " " + std::to_string(margin);
  text += std::string(sketch.colored ? ", colored" : "") + (sketch.ruled ? ", ruled" : "") + "\n";
  for (const SketchColumn& column : sketch.columns) {
    text += ToUtf8(column.title) + ": " + ToUtf8(column.what) + " " + alignments[column.align] + " " +
            std::to_string(column.width) + (column.everyPage ? " each page" : "") + (column.isNumber ? " #" : "") +
            "\n";
  }
  for (const SketchLine& line : sketch.lines) {
    if (line.cells.empty()) text += breaks[static_cast<int>(line.kind)];
    if (line.kind == SketchLineKind::Totals) text += "=";
    for (const Text& cell : line.cells) text += "|" + ToUtf8(cell);
    text += "\n";
  }
  for (const Text& note : sketch.notes) text += ToUtf8(note) + "\n";
  return text;
}

PageSketch SketchOf(const SettingsDocument& document) {
  LoadAndReadBack(document);
  return host::SketchOf(SnapshotOf(document));
}

TEST(PageSketchTest, ShowsColumnsBreaksTotalsAndNumbersOfASmallDocument) {
  EXPECT_EQ(TextOf(SketchOf(ReadSettings(PRNPROP_EXAMPLES "/small.json"))),
            R"(Orders by region
margins 10 10 15 15, colored, ruled
Region: description left 24 each page
Region: key left 8
Customer: key right 0
Customer: description left 0
Industry: description left 18
Industry: key centered 6
City: description left 20
Quantity: Figures right 12 #
Net value: Figures right 0 #
=|Overall total|||||||EUR 9,032|EUR 2,675
=|Total|||||||EUR 9,325|EUR 275
|Region A|A10|A10|Customer A|Industry A|A-10|City A|EUR 1,250|EUR -340
|Region A|A10|B20|Customer B|Industry B|B-20|City B|EUR 8,075|EUR 615
-- page
=|Total|||||||EUR -293|EUR 2,400
|Region B|B20|A10|Customer A|Industry A|A-10|City A|EUR 47|EUR 2,400
|Region B|B20|B20|Customer B|Industry B|B-20|City B|EUR -340|EUR 0
At most 20 pages
Pages in vertical order
Columns with a thick line are on each page
Totals on condition of: Customer
)");
}

TEST(PageSketchTest, FollowsTheSettingsOfNumbersTotalsAndRepeatedTexts) {
  const char* const document = R"({
    "general": [{"MARGIN_TOP":0,"MARGIN_BOTTOM":0,"MARGIN_LEFT":0,"MARGIN_RIGHT":0,"PRINT_DIRECTION":"H",
      "SUMPOSIT":"2","SIGNPRSNT":"3","NOMULTTXT":"X","HIDE_ZERO":"X","NO_LINES":"X","CURUNITPOSITION":"T"}],
    "dimension": [
      {"IOBJNM":"INNER","POSIT":3,"AXIS":"Y","IOBJPRSNT":"2","PR_COL1_WIDTH":1,"PR_COL2_WIDTH":0,"STRT_LVL":0},
      {"IOBJNM":"MIDDLE","POSIT":2,"AXIS":"Y","IOBJPRSNT":"2","PR_COL1_WIDTH":1,"PR_COL2_WIDTH":0,"STRT_LVL":0,
        "PR_BREAK_AREA":"X","NOSUMS":"U"},
      {"IOBJNM":"OUTER","POSIT":1,"AXIS":"Y","IOBJPRSNT":"2","PR_COL1_WIDTH":1,"PR_COL2_WIDTH":0,"STRT_LVL":0,
        "PR_QUERY_BREAK":"X","NOSUMS":"C"},
      {"IOBJNM":"HIDDEN","POSIT":0,"AXIS":" ","PR_COL1_WIDTH":1,"PR_COL2_WIDTH":0,"STRT_LVL":0},
      {"IOBJNM":"S","IS_STRUCTURE":"X","POSIT":1}],
    "member": [{"IOBJNM":"S","CHAVL":"no","POSIT":0,"HIDDEN":"X","PR_COL1_WIDTH":5},
      {"IOBJNM":"S","CHAVL":"V","POSIT":1,"HIDDEN":" ","PR_COL1_WIDTH":5,"PR_COL1_ALIGN":"R"},
      {"IOBJNM":"S","CHAVL":"W","POSIT":2,"HIDDEN":" ","PR_COL1_WIDTH":5,"PR_COL1_ALIGN":"R"},
      {"IOBJNM":"S","CHAVL":"X","POSIT":3,"HIDDEN":" ","PR_COL1_WIDTH":5,"PR_COL1_ALIGN":"R"}]})";
  const std::string text = TextOf(SketchOf(ParseSettings(document, "settings")));
  EXPECT_EQ(text, R"(
margins 0 0 0 0
OUTER: key left 1
MIDDLE: key left 1
INNER: key left 1
V (EUR): S right 5 #
W (EUR): S right 5 #
X (EUR): S right 5 #
=|Overall total|||12,047|1,945|7,052
=|Total, on condition|||9,032|2,675|7,345
|A10|A10|A10|1,250|(340)|
|||B20|8,075|615|(1,980)
-- block
||B20|A10|47|2,400|1,250
|||B20|(340)||8,075
-- cover page
=|Total, on condition|||3,015|(730)|(293)
|B20|A10|A10|615|(1,980)|47
|||B20|2,400|1,250|(340)
Pages in horizontal order
No totals of: MIDDLE
Totals on condition of: OUTER
)");
}

TEST(PageSketchTest, TotalsBelowCloseTheirGroupsFromTheInside) {
  const char* const document = R"({
    "general": [{"MARGIN_TOP":0,"MARGIN_BOTTOM":0,"MARGIN_LEFT":0,"MARGIN_RIGHT":0,"SUMPOSIT":"1","SIGNPRSNT":"2",
      "CURUNITPOSITION":"R","NO_LINES":"X"}],
    "dimension": [
      {"IOBJNM":"A","POSIT":1,"AXIS":"Y","IOBJPRSNT":"2","PR_AUTO_WIDTH":"X","PR_COL1_WIDTH":9,"PR_COL2_WIDTH":0,
        "STRT_LVL":0,"PR_PAGE_BREAK":"X","PR_COL1_ALIGN":"C"},
      {"IOBJNM":"B","POSIT":2,"AXIS":"Y","IOBJPRSNT":"1","PR_COL1_WIDTH":1,"PR_COL2_WIDTH":0,"STRT_LVL":0,
        "PR_BREAK_AREA":"X"},
      {"IOBJNM":"C","POSIT":3,"AXIS":"Y","IOBJPRSNT":"2","PR_COL1_WIDTH":1,"PR_COL2_WIDTH":0,"STRT_LVL":0},
      {"IOBJNM":"S","IS_STRUCTURE":"X","POSIT":1}],
    "member": [{"IOBJNM":"S","CHAVL":"V","POSIT":1,"PR_COL1_WIDTH":5}]})";
  EXPECT_EQ(TextOf(SketchOf(ParseSettings(document, "settings"))), R"(
margins 0 0 0 0
A: key centered 0
B: description left 1
C: key left 1
V: S left 5 #
|A10|B A|A10|1,250 EUR
|A10|B A|B20|8,075 EUR
=||Total||9,325 EUR
-- block
|A10|B B|A10|47 EUR
|A10|B B|B20|340- EUR
=||Total||293- EUR
=|Total|||9,032 EUR
-- page
|B20|B A|A10|615 EUR
|B20|B A|B20|2,400 EUR
=||Total||3,015 EUR
=|Total|||3,015 EUR
=|Overall total|||12,047 EUR
Pages in vertical order
)");
}

TEST(PageSketchTest, NothingPrintedIsAnEmptyPage) {
  const auto document =
      ParseSettings(R"({"general":[{"MARGIN_TOP":0,"MARGIN_BOTTOM":0,"MARGIN_LEFT":0,"MARGIN_RIGHT":0}]})", "settings");
  const PageSketch sketch = SketchOf(document);
  EXPECT_TRUE(sketch.columns.empty());
  EXPECT_EQ(TextOf(sketch), "\nmargins 0 0 0 0, ruled\nPages in vertical order\n");
}

}  // namespace
}  // namespace ORXKMPrintProp::host::test
