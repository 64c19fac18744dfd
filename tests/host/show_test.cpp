#include <gtest/gtest.h>

#include <sstream>

#include "host/Load.h"
#include "host/Show.h"
#include "temporary_folder.h"

namespace ORXKMPrintProp::host::test {
namespace {

std::string Shown(const std::string& json, bool color) {
  const TemporaryFolder folder;
  std::ostringstream out;
  Show(folder.Write("d.json", json), color, out);
  return out.str();
}

constexpr const char* kBare = R"({ "general": [ { "MARGIN_TOP": 0, "MARGIN_BOTTOM": 0, "MARGIN_LEFT": 0,
                                                  "MARGIN_RIGHT": 0 } ] })";

// Positions are equal, negative and out of order; names are wide, combined, missing and shared.
constexpr const char* kFull = R"({
  "general": [ { "TITLE": "Sales\nby region", "PRINT_DIRECTION": "H", "MAX_PAGES": "1", "NO_LINES": "X", "USE_COLORS": "X",
      "MARGIN_TOP": 10, "MARGIN_BOTTOM": 0, "MARGIN_LEFT": 0, "MARGIN_RIGHT": -5, "SUMPOSIT": "1", "SIGNPRSNT": "3",
      "CURUNITPOSITION": "T" } ],
  "dimension": [
    { "IOBJNM": "QTY", "IOBJTXT": "数量", "POSIT": 2, "AXIS": "X", "IOBJPRSNT": "3", "PR_COL1_FIX": "X", "PR_COL1_WIDTH": 8,
      "PR_COL2_WIDTH": 0, "PR_COL2_ALIGN": "C", "PR_COL1_HEADER": "数", "PR_PAGE_BREAK": "X", "STRT_LVL": 2,
      "HRY_ACTIVE": "X", "HIENM": "TREE", "VERSION": "V1", "DATETO": "2025-12-31", "NOSUMS": "U" },
    { "IS_STRUCTURE": "X", "IOBJNM": "FIGURES", "POSIT": 1 },
    { "IOBJNM": "OFF", "IOBJTXT": "Off, hidden", "POSIT": 1, "AXIS": " ", "PR_COL1_WIDTH": 0, "PR_COL2_WIDTH": 0,
      "STRT_LVL": 0, "PR_QUERY_BREAK": "X" },
    { "IOBJNM": "SIZE", "IOBJTXT": "Gro\u0308ße", "POSIT": 2, "AXIS": "Y", "IOBJPRSNT": "2", "PR_AUTO_WIDTH": "X",
      "PR_COL1_ALIGN": "R", "PR_COL1_WIDTH": 0, "PR_COL2_WIDTH": 0, "STRT_LVL": 0, "PR_COL2_FIX": "X", "NOSUMS": "C" },
    { "IOBJNM": "QTY", "POSIT": -1, "AXIS": "Y", "IOBJPRSNT": "0", "PR_COL1_WIDTH": 0, "PR_COL2_WIDTH": 3,
      "STRT_LVL": 0, "PR_QUERY_BREAK": "X", "PR_BREAK_AREA": "X" } ],
  "member": [
    { "IOBJNM": "FIGURES", "CHAVL": "A", "CHAVLTXT": "Gross", "POSIT": 2, "PR_COL1_WIDTH": 14, "PR_COL1_ALIGN": "R" },
    { "IOBJNM": "FIGURES", "CHAVL": "B", "POSIT": 1, "PR_COL1_WIDTH": 0, "PR_AUTO_WIDTH": "X", "PR_COL1_HEADER": "Net" },
    { "IOBJNM": "FIGURES", "CHAVL": "C", "CHAVLTXT": "Cost", "POSIT": 0, "HIDDEN": "X", "PR_COL1_WIDTH": 0 } ],
  "attribute": [
    { "IOBJNM": "QTY", "ATTRINM": "UNIT", "ATTRITXT": "Unit", "POSIT": 1, "PR_COL1_WIDTH": 4, "PR_COL2_WIDTH": 0 },
    { "IOBJNM": "QTY", "ATTRINM": "BASE", "POSIT": 2, "HIDDEN": "X", "PR_COL1_WIDTH": 4, "PR_COL2_WIDTH": 0 },
    { "IOBJNM": "OFF", "ATTRINM": "OWNER", "ATTRITXT": "Owner", "POSIT": 1, "PR_COL1_WIDTH": 4, "PR_COL2_WIDTH": 0 } ] })";

TEST(Show, TellsWhatIsPrintedInPrintOrderAndWhatIsNot) {
  EXPECT_EQ(Shown(kFull, false), R"(Page
  Title              Sales by region
  Page order         horizontal
  At most            1 page
  Margins            top 10, right -5
  Totals             bottom right
  Signs              (X)
  Currency and unit  in the heading
  Options            no lines, colored headers

Print characteristics  Title  Column 1                        Column 2
   1  QTY                     key, left                       description, left 3
      new cover page; new block
       1  Unit                description, left 4
   2  数量             数     description, left 8, each page  key, centered
      new page; with hierarchy TREE, level 2, version V1, to 2025-12-31; totals always suppressed
       1  Unit                description, left 4
   3  Größe                   key, right auto
      totals suppressed on condition

FIGURES      Title  Column
   1  B      Net    left auto
   2  Gross         right 14

Not printed
  Characteristics     Off, hidden
  Attributes          QTY: BASE
                      数量: BASE
                      Off, hidden: Owner
  Structure elements  FIGURES: Cost
)");
}

TEST(Show, LeavesOutWhatIsNotSetAndColorsForATerminal) {
  EXPECT_EQ(Shown(kBare, false), R"(Page
  Page order         vertical
  Totals             top left
  Signs              -X
  Currency and unit  not displayed

Print characteristics  Title  Column 1  Column 2
  none
)");
  EXPECT_EQ(Shown(kBare, true),
            "\x1b[1mPage\x1b[0m\n"
            "  Page order         vertical\n"
            "  Totals             top left\n"
            "  Signs              -X\n"
            "  Currency and unit  not displayed\n"
            "\n"
            "\x1b[1mPrint characteristics  Title  Column 1  Column 2\x1b[0m\n"
            "\x1b[2m  none\x1b[0m\n");
  EXPECT_THROW(Shown("{}", false), LoadError);
}

}  // namespace
}  // namespace ORXKMPrintProp::host::test
