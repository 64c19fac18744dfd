#include "control/ORXQueryPrnProp.h"

#include <gtest/gtest.h>

#include "control/SharedValues.h"
#include "support/loaded.h"
#include "support/watched_table.h"
#include "tables/RunTimeError.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::test {
namespace {

/// The kind of the action's failure, -1 for none.
template <class Action>
int FailureOf(Action action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    return static_cast<int>(error.Kind());
  }
  return -1;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

TEST(Control, EmptiesTheGeneralTableOnlyAndGivesTheHostsTablesBack) {
  const Settings settings("IOBJNM='A'", "IOBJNM='A'", "IOBJNM='S'");
  ORXQueryPrnProp control;
  EXPECT_EQ(control.ORXGenPropTable(), nullptr);
  ASSERT_TRUE(settings.LoadInto(control));
  EXPECT_EQ(settings.gen->RowCount(), 0);
  EXPECT_EQ(settings.dim->RowCount() + settings.mem->RowCount() + settings.atr->RowCount(), 3);
  EXPECT_EQ(control.ORXGenPropTable(), settings.gen);
  EXPECT_EQ(control.ORXDimTable(), settings.dim);
  EXPECT_EQ(control.ORXMemTable(), settings.mem);
  EXPECT_EQ(control.ORXAtrTable(), settings.atr);

  const Settings bad("IOBJNM='B'", "IOBJNM='B'", "", "TITLE='1'\nTITLE='2'");
  EXPECT_FALSE(bad.LoadInto(control));
  EXPECT_EQ(bad.Brief(), "general:\ndimension:\nIOBJNM='B'\nmember:\nattribute:\nIOBJNM='B'\n")
      << "only the general table is touched";
}

TEST(Control, HoldsTheTablesOfALoadThatGaveFalse) {
  const Settings good("IOBJNM='A'"), bad("IOBJNM='B'", "", "", "");
  ORXQueryPrnProp control;
  good.LoadInto(control);
  ASSERT_FALSE(bad.LoadInto(control));
  EXPECT_EQ(control.ORXDimTable(), bad.dim);
  EXPECT_EQ(bad.Brief(), "general:\nPRINT_DIRECTION='H' CURUNITPOSITION='L'\ndimension:\nmember:\nattribute:\n");
}

TEST(Control, KeepsItsTablesWhenALoadFailsOnAnError) {
  const Settings good("IOBJNM='A'"), bad("IOBJNM='B'\nIOBJNM='C' POSIT='x'");
  ORXQueryPrnProp control;
  good.LoadInto(control);
  EXPECT_EQ(FailureOf([&] { bad.LoadInto(control); }), static_cast<int>(ErrorKind::Type));
  EXPECT_EQ(bad.gen->RowCount(), 1);
  EXPECT_EQ(control.ORXDimTable(), good.dim);
  EXPECT_EQ(BriefOf(Kind::Dimension, *good.dim), "IOBJNM='B'\n") << "the model as far as it was read";
}

TEST(Control, RefusesATableThatIsNoneAndChangesNothing) {
  const Settings settings("IOBJNM='A'");
  ORXQueryPrnProp control;
  settings.LoadInto(control);
  const auto root = gPrnProp;
  const Settings other("IOBJNM='B'");
  const int object = static_cast<int>(ErrorKind::Object);
  EXPECT_EQ(FailureOf([&] { control.ORXSetPrnTables(nullptr, other.dim, other.mem, other.atr); }), object);
  EXPECT_EQ(FailureOf([&] { control.ORXSetPrnTables(other.gen, nullptr, other.mem, other.atr); }), object);
  EXPECT_EQ(FailureOf([&] { control.ORXSetPrnTables(other.gen, other.dim, nullptr, other.atr); }), object);
  EXPECT_EQ(FailureOf([&] { control.ORXSetPrnTables(other.gen, other.dim, other.mem, nullptr); }), object);
  EXPECT_EQ(FailureOf([&] { control.ORXControlTexts(nullptr); }), object);
  EXPECT_EQ(gPrnProp, root);
  EXPECT_EQ(control.ORXDimTable(), settings.dim);
  EXPECT_EQ(other.gen->RowCount(), 1);
}

TEST(Control, StoresLayoutsWhereTheButtonSays) {
  gPrnProp.reset();
  ORXQueryPrnProp control;
  const int index = static_cast<int>(ErrorKind::Index), type = static_cast<int>(ErrorKind::Type);
  EXPECT_EQ(FailureOf([&] { control.ORXSetPrintLayout(u"x", std::int32_t{0}, u""); }), index) << "before a load";

  const Settings settings("IOBJNM='A'\nIOBJNM='B'\nIOBJNM='B'");
  settings.LoadInto(control);
  const auto set = [&](const Variant& button, const char16_t* name, const char16_t* layout) {
    EXPECT_EQ(control.ORXSetPrintLayout(layout, button, name), Variant());
  };
  set(Variant(), u"A", u"top");
  set(1.0, u"A", u"head");
  set(u" 2 ", u"A", u"foot");
  set(std::int16_t{3}, u"A", u"end");
  set(4.0, u"B", u"totals");
  set(std::int16_t{4}, u"b", u"of nobody");
  const struct {
    Variant button;
    int failure;
  } refused[] = {{std::int32_t{5}, index},    {true, index}, {u"4", index}, {4.4, index}, {u"four", type}, {u"", type},
                 {std::int32_t{40000}, index}};
  for (const auto& row : refused) {
    EXPECT_EQ(FailureOf([&] { control.ORXSetPrintLayout(u"x", row.button, u"A"); }), row.failure)
        << ToString(row.button);
  }
  control.ORXGenPropTable();
  EXPECT_EQ(settings.Brief(),
            "general:\nTITLE='T' FRONTPAGE_LAYOUT='top' HEADER_LAYOUT='head' FOOTER_LAYOUT='foot' "
            "LASTPAGE_LAYOUT='end'\n"
            "dimension:\nIOBJNM='A'\nIOBJNM='B' PR_SUM_LAYOUT='totals'\nIOBJNM='B'\nmember:\nattribute:\n");

  const Settings next("IOBJNM='B'");
  next.LoadInto(control);
  control.ORXGenPropTable();
  EXPECT_EQ(next.Brief(), "general:\nTITLE='T'\ndimension:\nIOBJNM='B'\nmember:\nattribute:\n")
      << "nothing of the former model survives";
}

TEST(Control, MakesTheTextTablesKeyItsKeyColumn) {
  const auto texts = TableFrom(Kind::Texts, "CAPTION='c' TARGETID='k'");
  const auto watch = std::make_shared<Watch>();
  ORXQueryPrnProp control;
  EXPECT_FALSE(control.ORXControlTexts(Watched("texts", texts, watch)));
  EXPECT_EQ(watch->calls.size(), 4u + 2 * 164u) << "and one look-up for each text";
  watch->calls.resize(6);
  EXPECT_EQ(Joined(watch->calls),
            "texts.Columns(TARGETID)\ntexts.TARGETID.Index\ntexts.Columns\ntexts.Columns.KeyColumn=1\n"
            "texts.Rows\ntexts.Rows.Item(ID_PRN_GENERAL)\n");
  EXPECT_EQ(RowsOf(*gTextTable)->Item(u"k")->RowNumber(), 1);
  EXPECT_EQ(FailureOf([&] { control.ORXControlTexts(MemoryTable::Create({u"CAPTION"})); }),
            static_cast<int>(ErrorKind::Table));
  gTextTable.reset();
}

/// The cells of a row as calls on the contract, from the words of a list of columns.
std::string ReadsOf(const std::string& row, const std::vector<std::string>& columns) {
  std::string calls;
  for (const std::string& column : columns) calls += row + ".Value(" + column + ")\n";
  return calls;
}

TEST(Control, CallsTheTablesInTheOrderOfTheirColumns) {
  const Settings settings("IS_STRUCTURE='X' IOBJNM='S' POSIT=1\nIOBJNM='A'\nIOBJNM='B'",
                          "IOBJNM='B' ATTRINM='1'\nIOBJNM='B' ATTRINM='2'\nIOBJNM='C'",
                          "IOBJNM='T'\nIOBJNM='S' CHAVL='1'");
  const auto watch = std::make_shared<Watch>();
  ORXQueryPrnProp control;
  const TableRef dim = Watched("dim", settings.dim, watch);
  control.ORXSetPrnTables(Watched("gen", settings.gen, watch), dim, Watched("mem", settings.mem, watch),
                          Watched("atr", settings.atr, watch));
  const std::vector<std::string> characteristic = {
      "IOBJNM",         "IOBJTXT",       "POSIT",         "AXIS",           "IOBJPRSNT",     "PR_COL1_FIX",
      "PR_COL2_FIX",    "PR_AUTO_WIDTH", "PR_COL1_WIDTH", "PR_COL2_WIDTH",  "PR_COL1_ALIGN", "PR_COL2_ALIGN",
      "PR_COL1_HEADER", "PR_PAGE_BREAK", "PR_BREAK_AREA", "PR_QUERY_BREAK", "STRT_LVL",      "HRY_ACTIVE",
      "HIENM",          "VERSION",       "DATETO",        "NOSUMS"};
  const std::vector<std::string> attribute = {"ATTRINM",       "ATTRITXT",      "POSIT",         "HIDDEN",
                                              "IOBJPRSNT",     "PR_COL1_FIX",   "PR_COL2_FIX",   "PR_AUTO_WIDTH",
                                              "PR_COL1_WIDTH", "PR_COL2_WIDTH", "PR_COL1_ALIGN", "PR_COL2_ALIGN",
                                              "PR_COL1_HEADER"};
  EXPECT_EQ(Joined(watch->calls),
            "gen.RowCount\ngen.Rows(1)\n" +
                ReadsOf("gen[1]", {"TITLE", "PRINT_DIRECTION", "MAX_PAGES", "HIDE_ZERO", "USE_COLORS", "MARGIN_TOP",
                                   "MARGIN_BOTTOM", "MARGIN_LEFT", "MARGIN_RIGHT", "SUMPOSIT", "NOMULTTXT", "SIGNPRSNT",
                                   "NO_LINES", "CURUNITPOSITION"}) +
                "dim.Rows\ndim.Rows.Enumerate\n"
                "dim.Next\n" +
                ReadsOf("dim[1]", {"IS_STRUCTURE"}) +
                "dim[1].RowNumber\n"
                "dim.Next\n" +
                ReadsOf("dim[2]", {"IS_STRUCTURE"}) + ReadsOf("dim[2]", characteristic) +
                "atr.RowCount\natr.RowCount\n"
                "atr.Rows(1)\natr[1].Value(IOBJNM)\natr.Rows(2)\natr[2].Value(IOBJNM)\n"
                "atr.Rows(3)\natr[3].Value(IOBJNM)\n"
                "dim[2].Value(IOBJNM)\n"
                "dim.Next\n" +
                ReadsOf("dim[3]", {"IS_STRUCTURE"}) + ReadsOf("dim[3]", characteristic) +
                "dim[3].Value(IOBJNM)\ndim[3].Value(IOBJNM)\n"
                "atr.Rows(1)\n" +
                ReadsOf("atr[1]", attribute) +
                "atr.RowCount\natr.Rows(2)\natr[2].Value(IOBJNM)\n"
                "atr.Rows(2)\n" +
                ReadsOf("atr[2]", attribute) +
                "atr.RowCount\natr.Rows(3)\natr[3].Value(IOBJNM)\n"
                "dim.Next\n"
                "dim.Rows(1)\n" +
                ReadsOf("dim[1]", {"IOBJNM", "IOBJTXT", "POSIT", "IOBJNM"}) +
                "mem.Rows\nmem.Rows.Enumerate\n"
                "mem.Next\n" +
                ReadsOf("mem[1]", {"IOBJNM"}) + "mem.Next\n" +
                ReadsOf("mem[2]", {"IOBJNM", "CHAVL", "CHAVLTXT", "POSIT", "HIDDEN", "PR_AUTO_WIDTH", "PR_COL1_WIDTH",
                                   "PR_COL1_ALIGN", "PR_COL1_HEADER"}) +
                "mem.Next\n"
                "gen.Rows\ngen.Rows.RemoveAll\n");

  watch->calls.clear();
  EXPECT_EQ(control.ORXDimTable(), dim);
  EXPECT_EQ(
      Joined(watch->calls),
      "gen.Rows\ngen.Rows.RemoveAll\ndim.Rows\ndim.Rows.RemoveAll\nmem.Rows\nmem.Rows.RemoveAll\natr.Rows\n"
      "atr.Rows.RemoveAll\n"
      "gen.Rows\ngen.Rows.Add\n"
      "gen[1].Value(TITLE)='T'\ngen[1].Value(PRINT_DIRECTION)='V'\ngen[1].Value(MAX_PAGES)='0'\n"
      "gen[1].Value(HIDE_ZERO)=' '\ngen[1].Value(USE_COLORS)=' '\ngen[1].Value(FRONTPAGE_LAYOUT)=''\n"
      "gen[1].Value(HEADER_LAYOUT)=''\ngen[1].Value(FOOTER_LAYOUT)=''\ngen[1].Value(LASTPAGE_LAYOUT)=''\n"
      "gen[1].Value(MARGIN_TOP)=0\ngen[1].Value(MARGIN_BOTTOM)=0\ngen[1].Value(MARGIN_LEFT)=0\n"
      "gen[1].Value(MARGIN_RIGHT)=0\ngen[1].Value(SUMPOSIT)='2'\ngen[1].Value(NOMULTTXT)=' '\n"
      "gen[1].Value(SIGNPRSNT)='1'\ngen[1].Value(NO_LINES)=' '\ngen[1].Value(CURUNITPOSITION)='N'\n"
      "dim.Rows\ndim.Rows.Add\n"
      "dim[1].Value(IOBJNM)='A'\ndim[1].Value(IOBJTXT)=''\ndim[1].Value(POSIT)=0\ndim[1].Value(AXIS)=' '\n"
      "dim[1].Value(IOBJPRSNT)='1'\ndim[1].Value(PR_COL1_FIX)=' '\ndim[1].Value(PR_COL2_FIX)=' '\n"
      "dim[1].Value(PR_AUTO_WIDTH)=' '\ndim[1].Value(PR_COL1_WIDTH)=0\ndim[1].Value(PR_COL2_WIDTH)=0\n"
      "dim[1].Value(PR_COL1_ALIGN)='L'\ndim[1].Value(PR_COL2_ALIGN)='L'\ndim[1].Value(PR_COL1_HEADER)=''\n"
      "dim[1].Value(PR_COL2_HEADER)=''\ndim[1].Value(PR_PAGE_BREAK)=' '\ndim[1].Value(PR_BREAK_AREA)=' '\n"
      "dim[1].Value(PR_QUERY_BREAK)=' '\ndim[1].Value(STRT_LVL)=0\ndim[1].Value(HRY_ACTIVE)=' '\n"
      "dim[1].Value(PR_HRY_PRSNT)='*'\ndim[1].Value(PR_SUM_LAYOUT)=''\ndim[1].Value(HIENM)=''\n"
      "dim[1].Value(VERSION)=''\ndim[1].Value(DATETO)=''\ndim[1].Value(NOSUMS)=' '\n"
      "dim.Rows\ndim.Rows.Add\n"
      "dim[2].Value(IOBJNM)='B'\ndim[2].Value(IOBJTXT)=''\ndim[2].Value(POSIT)=0\ndim[2].Value(AXIS)=' '\n"
      "dim[2].Value(IOBJPRSNT)='1'\ndim[2].Value(PR_COL1_FIX)=' '\ndim[2].Value(PR_COL2_FIX)=' '\n"
      "dim[2].Value(PR_AUTO_WIDTH)=' '\ndim[2].Value(PR_COL1_WIDTH)=0\ndim[2].Value(PR_COL2_WIDTH)=0\n"
      "dim[2].Value(PR_COL1_ALIGN)='L'\ndim[2].Value(PR_COL2_ALIGN)='L'\ndim[2].Value(PR_COL1_HEADER)=''\n"
      "dim[2].Value(PR_COL2_HEADER)=''\ndim[2].Value(PR_PAGE_BREAK)=' '\ndim[2].Value(PR_BREAK_AREA)=' '\n"
      "dim[2].Value(PR_QUERY_BREAK)=' '\ndim[2].Value(STRT_LVL)=0\ndim[2].Value(HRY_ACTIVE)=' '\n"
      "dim[2].Value(PR_HRY_PRSNT)='*'\ndim[2].Value(PR_SUM_LAYOUT)=''\ndim[2].Value(HIENM)=''\n"
      "dim[2].Value(VERSION)=''\ndim[2].Value(DATETO)=''\ndim[2].Value(NOSUMS)=' '\n"
      "atr.Rows\natr.Rows.Add\n"
      "atr[1].Value(IOBJNM)='B'\natr[1].Value(ATTRITXT)=''\natr[1].Value(ATTRINM)='1'\natr[1].Value(POSIT)=0\n"
      "atr[1].Value(HIDDEN)=' '\natr[1].Value(IOBJPRSNT)='1'\natr[1].Value(PR_COL1_FIX)=' '\n"
      "atr[1].Value(PR_COL2_FIX)=' '\natr[1].Value(PR_AUTO_WIDTH)=' '\natr[1].Value(PR_COL1_WIDTH)=0\n"
      "atr[1].Value(PR_COL2_WIDTH)=0\natr[1].Value(PR_COL1_ALIGN)='L'\natr[1].Value(PR_COL2_ALIGN)='L'\n"
      "atr[1].Value(PR_COL1_HEADER)=''\natr[1].Value(PR_COL2_HEADER)=''\n"
      "atr.Rows\natr.Rows.Add\n"
      "atr[2].Value(IOBJNM)='B'\natr[2].Value(ATTRITXT)=''\natr[2].Value(ATTRINM)='2'\natr[2].Value(POSIT)=0\n"
      "atr[2].Value(HIDDEN)=' '\natr[2].Value(IOBJPRSNT)='1'\natr[2].Value(PR_COL1_FIX)=' '\n"
      "atr[2].Value(PR_COL2_FIX)=' '\natr[2].Value(PR_AUTO_WIDTH)=' '\natr[2].Value(PR_COL1_WIDTH)=0\n"
      "atr[2].Value(PR_COL2_WIDTH)=0\natr[2].Value(PR_COL1_ALIGN)='L'\natr[2].Value(PR_COL2_ALIGN)='L'\n"
      "atr[2].Value(PR_COL1_HEADER)=''\natr[2].Value(PR_COL2_HEADER)=''\n"
      "dim.Rows\ndim.Rows.Add\n"
      "dim[3].Value(AXIS)='X'\ndim[3].Value(IS_STRUCTURE)='X'\ndim[3].Value(IOBJNM)='S'\ndim[3].Value(IOBJTXT)=''\n"
      "dim[3].Value(POSIT)=1\n"
      "mem.Rows\nmem.Rows.Add\n"
      "mem[1].Value(IOBJNM)='S'\nmem[1].Value(CHAVL)='1'\nmem[1].Value(CHAVLTXT)=''\nmem[1].Value(POSIT)=0\n"
      "mem[1].Value(HIDDEN)=' '\nmem[1].Value(PR_AUTO_WIDTH)=' '\nmem[1].Value(PR_COL1_WIDTH)=0\n"
      "mem[1].Value(PR_COL1_ALIGN)='L'\nmem[1].Value(PR_COL1_HEADER)=''\nmem[1].Value(PR_COL2_HEADER)=''\n");
}

/// A table that hands out no part of itself.
class HollowTable : public Table {
 public:
  std::int32_t RowCount() override { return 1; }
  RowListRef Rows() override { return nullptr; }
  RowRef Rows(std::int32_t) override { return nullptr; }
  ColumnListRef Columns() override { return nullptr; }
  ColumnRef Columns(TextView) override { return nullptr; }
};

TEST(Control, SurvivesTablesThatGiveNoObject) {
  const Settings settings("IOBJNM='A'");
  const TableRef hollow = std::make_shared<HollowTable>();
  ORXQueryPrnProp control;
  const int object = static_cast<int>(ErrorKind::Object);
  EXPECT_EQ(FailureOf([&] { control.ORXSetPrnTables(hollow, settings.dim, settings.mem, settings.atr); }), object);
  EXPECT_EQ(FailureOf([&] { control.ORXSetPrnTables(settings.gen, hollow, settings.mem, settings.atr); }), object);
  EXPECT_EQ(FailureOf([&] { control.ORXSetPrnTables(settings.gen, settings.dim, settings.mem, hollow); }), object);
  EXPECT_EQ(FailureOf([&] { control.ORXControlTexts(hollow); }), object);
  gTextTable.reset();
}

}  // namespace
}  // namespace ORXKMPrintProp::test
