#include <gtest/gtest.h>

#include "control/SharedValues.h"
#include "support/loaded.h"
#include "tables/RunTimeError.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::test {
namespace {

/// What the four tables hold after a load and a read-back, in brief; for a load that fails, why.
std::string RoundOf(const Settings& settings) {
  gErrorText.clear();
  ORXQueryPrnProp control;
  try {
    if (!settings.LoadInto(control)) return "False: " + ToAscii(gErrorText);
    control.ORXDimTable();
  } catch (const RunTimeError& error) {
    return "error: " + ToAscii(error.Message());
  }
  return settings.Brief();
}

struct Round {
  const char* what;
  Settings settings;
  std::string expected;
};

TEST(Load, KeepsWhatTheModelHoldsAndNothingElse) {
  const std::string columns =
      " IOBJPRSNT='3' PR_COL1_FIX='X' PR_COL2_FIX='X' PR_AUTO_WIDTH='X' PR_COL1_WIDTH=10 PR_COL2_WIDTH=20 "
      "PR_COL1_ALIGN='R' PR_COL2_ALIGN='C' PR_COL1_HEADER='def'";
  const Round rounds[] = {
      {"every column: layouts and unknown ones are gone, the title stands in both",
       Settings("IOBJNM='A' IOBJTXT='Text' POSIT='3' AXIS='X'" + columns +
                    " PR_COL2_HEADER='abc' PR_PAGE_BREAK='X' PR_BREAK_AREA='X' PR_QUERY_BREAK='X' STRT_LVL=2 "
                    "HRY_ACTIVE='X' PR_HRY_PRSNT='1' PR_SUM_LAYOUT='s' HIENM='H' VERSION='V' DATETO='D' NOSUMS='C' "
                    "OTHER='o'\nIOBJNM='S' IOBJTXT='Text' POSIT=7 IS_STRUCTURE='X' IOBJPRSNT='1' STRT_LVL=4",
                "IOBJNM='A' ATTRINM='N' ATTRITXT='Text' POSIT=1 HIDDEN='X'" + columns + " PR_COL2_HEADER='abc' OTHER=1",
                "IOBJNM='S' CHAVL='E' CHAVLTXT='Element' POSIT=2 HIDDEN='X' PR_AUTO_WIDTH='X' PR_COL1_WIDTH='9' "
                "PR_COL1_ALIGN='C' PR_COL1_HEADER='def' PR_COL2_HEADER='abc' OTHER='o'",
                "TITLE=' Sales ' PRINT_DIRECTION='H' MAX_PAGES='20 pages' HIDE_ZERO='X' USE_COLORS='X' "
                "FRONTPAGE_LAYOUT='f' HEADER_LAYOUT='h' FOOTER_LAYOUT='o' LASTPAGE_LAYOUT='l' MARGIN_TOP='1' "
                "MARGIN_BOTTOM=2 MARGIN_LEFT=2.5 MARGIN_RIGHT=-4 SUMPOSIT='1' NOMULTTXT='X' SIGNPRSNT='3' "
                "NO_LINES='X' CURUNITPOSITION='T'"),
       "general:\nTITLE=' Sales ' PRINT_DIRECTION='H' MAX_PAGES='20' HIDE_ZERO='X' USE_COLORS='X' MARGIN_TOP=1 "
       "MARGIN_BOTTOM=2 MARGIN_LEFT=2 MARGIN_RIGHT=-4 SUMPOSIT='1' NOMULTTXT='X' SIGNPRSNT='3' NO_LINES='X' "
       "CURUNITPOSITION='T'\n"
       "dimension:\nIOBJNM='A' IOBJTXT='Text' POSIT=3 AXIS='Y'" +
           columns +
           " PR_COL2_HEADER='def' PR_PAGE_BREAK='X' PR_BREAK_AREA='X' PR_QUERY_BREAK='X' STRT_LVL=2 HRY_ACTIVE='X' "
           "HIENM='H' VERSION='V' DATETO='D' NOSUMS='C'\n"
           "IOBJNM='S' IOBJTXT='Text' POSIT=7 AXIS='X' IS_STRUCTURE='X'\n"
           "member:\nIOBJNM='S' CHAVL='E' CHAVLTXT='Element' POSIT=2 HIDDEN='X' PR_AUTO_WIDTH='X' PR_COL1_WIDTH=9 "
           "PR_COL1_ALIGN='C' PR_COL1_HEADER='def' PR_COL2_HEADER='def'\n"
           "attribute:\nIOBJNM='A' ATTRITXT='Text' ATTRINM='N' POSIT=1 HIDDEN='X'" +
           columns + " PR_COL2_HEADER='def'\n"},
      {"blank codes, numbers as texts, a hidden row that keeps its position",
       Settings("IOBJNM=1 IOBJTXT=True POSIT=' 4 ' AXIS='' IOBJPRSNT='' PR_COL1_ALIGN='' NOSUMS=''\n"
                "IOBJNM=2.5 POSIT=1.5 AXIS='y'"),
       "general:\nTITLE='T'\ndimension:\nIOBJNM='1' IOBJTXT='True' POSIT=4\nIOBJNM='2.5' POSIT=2\n"
       "member:\nattribute:\n"},
      {"structure rows anywhere, a third one passed over, members apart",
       Settings("IS_STRUCTURE='X' IOBJNM='S1'\nIOBJNM='A' IS_STRUCTURE='x'\nIS_STRUCTURE='X' IOBJNM='S2'\n"
                "IOBJNM='B'\nIS_STRUCTURE='X' IOBJNM='S3'\nIOBJNM='C'",
                "",
                "IOBJNM='S2' CHAVL='1'\nIOBJNM='S1' CHAVL='2'\nIOBJNM='S3' CHAVL='3'\nIOBJNM='S2' CHAVL='4'\n"
                "IOBJNM='s1' CHAVL='5'"),
       "general:\nTITLE='T'\n"
       "dimension:\nIOBJNM='A'\nIOBJNM='B'\nIOBJNM='C'\nIOBJNM='S1' AXIS='X' IS_STRUCTURE='X'\n"
       "IOBJNM='S2' AXIS='X' IS_STRUCTURE='X'\n"
       "member:\nIOBJNM='S1' CHAVL='2'\nIOBJNM='S2' CHAVL='1'\nIOBJNM='S2' CHAVL='4'\nattribute:\n"},
      {"a structure without a name is not written, the second one is",
       Settings("IS_STRUCTURE='X'\nIS_STRUCTURE='X' IOBJNM='S2'", "", "IOBJNM='' CHAVL='1'\nIOBJNM='S2' CHAVL='2'"),
       "general:\nTITLE='T'\ndimension:\nIOBJNM='S2' AXIS='X' IS_STRUCTURE='X'\nmember:\nIOBJNM='S2' CHAVL='2'\n"
       "attribute:\n"},
      {"runs of attributes in another order, of nobody, of one row, for two of one name, at the end",
       Settings("IOBJNM='A'\nIOBJNM='C'\nIOBJNM='C'\nIOBJNM='D'",
                "IOBJNM='C' ATTRINM='1'\nIOBJNM='NONE' ATTRINM='2'\nIOBJNM='A' ATTRINM='3'\nIOBJNM='A' ATTRINM='4'\n"
                "IOBJNM='D' ATTRINM='5'\nIOBJNM='D' ATTRINM='6'"),
       "general:\nTITLE='T'\ndimension:\nIOBJNM='A'\nIOBJNM='C'\nIOBJNM='C'\nIOBJNM='D'\nmember:\n"
       "attribute:\nIOBJNM='A' ATTRINM='3'\nIOBJNM='A' ATTRINM='4'\nIOBJNM='C' ATTRINM='1'\nIOBJNM='C' ATTRINM='1'\n"
       "IOBJNM='D' ATTRINM='5'\nIOBJNM='D' ATTRINM='6'\n"},
      {"a run is found in another case, and left at its second row",
       Settings("IOBJNM='a'", "IOBJNM='A' ATTRINM='1'\nIOBJNM='A' ATTRINM='2'"),
       "general:\nTITLE='T'\ndimension:\nIOBJNM='a'\nmember:\nattribute:\nIOBJNM='a' ATTRINM='1'\n"},
  };
  for (const Round& round : rounds) EXPECT_EQ(RoundOf(round.settings), round.expected) << round.what;

  RoundOf(Settings("IS_STRUCTURE='X'\nIS_STRUCTURE='X'\nIS_STRUCTURE='X'\nIOBJNM='A'\nIS_STRUCTURE='X'"));
  EXPECT_EQ(ToAscii(gErrorText), "Only two structures allowed. Found third structure in row 5 of it_dim.");
}

TEST(Load, FailsWithThePlace) {
  const std::string oneRow = "False: Table with general print properties GenPropTable must have exactly one row.";
  const Round rounds[] = {
      {"no general row", Settings("", "", "", ""), oneRow},
      {"two general rows", Settings("IOBJNM='A' POSIT='bad'", "", "", "TITLE='1'\nTITLE='2'"), oneRow},
      {"page limit", Settings("", "", "", "MAX_PAGES='40000'"),
       "error: GenPropTable, row 1, column MAX_PAGES: The number 40000 does not fit into 16 bits."},
      {"dimension", Settings("IOBJNM='A'\nIOBJNM='B' STRT_LVL='2a'"),
       "error: it_dim, row 2, column STRT_LVL: The text \"2a\" is not a number."},
      {"structure", Settings("IOBJNM='A'\nIS_STRUCTURE='X' POSIT=''"),
       "error: it_dim, row 2, column POSIT: The text \"\" is not a number."},
      {"attribute", Settings("IOBJNM='A'", "IOBJNM='N'\nIOBJNM='A' PR_COL2_WIDTH=-32769"),
       "error: it_atr, row 2, column PR_COL2_WIDTH: The number -32769 does not fit into 16 bits."},
      {"member", Settings("IS_STRUCTURE='X' IOBJNM='S'", "", "IOBJNM='S'\nIOBJNM='S' PR_COL1_WIDTH=''"),
       "error: it_mem, row 2, column PR_COL1_WIDTH: The text \"\" is not a number."},
      {"second run in another case", Settings("IOBJNM='B'", "IOBJNM='A'\nIOBJNM='B'\nIOBJNM='a'"),
       "error: The rows of \"a\" do not stand together: a second run begins in row 3 of it_atr."},
  };
  for (const Round& round : rounds) EXPECT_EQ(RoundOf(round.settings), round.expected) << round.what;
}

TEST(Load, TakesAsManyRowsAsARowNumberHas) {
  const Settings settings("IOBJNM='A'", "IOBJNM='A'");
  const auto addRow = [&] {
    const RowRef row = AddRow(*settings.atr);
    row->Value(u"IOBJNM", u"A");
    for (const char16_t* column : {u"POSIT", u"PR_COL1_WIDTH", u"PR_COL2_WIDTH"}) row->Value(column, std::int32_t{0});
  };
  while (settings.atr->RowCount() < 32767) addRow();
  RoundOf(settings);
  ASSERT_EQ(settings.atr->RowCount(), 32767);
  addRow();
  EXPECT_EQ(RoundOf(settings), "error: The number 32768 does not fit into 16 bits.");
}

TEST(StructureElements, AreAddedWithTheirKey) {
  PrnStrElemCollCls elements;
  elements.Add(u"N", u"U", true, 3, u"Title", PP_PRN_ALIGN_CENTER, true, 12, u"key");
  elements.Add(u"M", u"");
  const auto& element = *elements.Item(TextView(u"KEY"));
  EXPECT_EQ(std::tuple(element.Name(), element.UID(), element.Text(), element.Hidden(), element.Position(),
                       element.ColTitle(), element.ColAlign(), element.ColAutoWidth(), element.ColWidth()),
            std::tuple(Text(u"N"), Text(u"U"), Text(), true, 3, Text(u"Title"), PP_PRN_ALIGN_CENTER, true, 12));
  EXPECT_THROW(elements.Add(u"O", u"", false, 0, u"", PP_PRN_ALIGN_LEFT, false, 0, u"Key"), RunTimeError);
  EXPECT_EQ(elements.Count(), 2);
}

}  // namespace
}  // namespace ORXKMPrintProp::test
