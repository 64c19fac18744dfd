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

constexpr int kType = static_cast<int>(ErrorKind::Type);
constexpr int kIndex = static_cast<int>(ErrorKind::Index);
constexpr int kObject = static_cast<int>(ErrorKind::Object);

TEST(Control, EmptiesTheGeneralTableAndGivesTheTablesOfTheLastLoadBack) {
  ORXQueryPrnProp control;
  EXPECT_EQ(control.ORXGenPropTable(), nullptr);
  const Settings good("IOBJNM='A'", "IOBJNM='A'", "IOBJNM='S'");
  ASSERT_TRUE(good.LoadInto(control));
  EXPECT_EQ(good.Brief(), "general:\ndimension:\nIOBJNM='A'\nmember:\nIOBJNM='S'\nattribute:\nIOBJNM='A'\n");
  EXPECT_EQ(std::tuple(control.ORXGenPropTable(), control.ORXDimTable(), control.ORXMemTable(), control.ORXAtrTable()),
            std::tuple(good.gen, good.dim, good.mem, good.atr));

  const Settings failing("IOBJNM='B'\nIOBJNM='C' POSIT='x'");
  EXPECT_EQ(FailureOf([&] { failing.LoadInto(control); }), kType);
  EXPECT_EQ(failing.gen->RowCount(), 1);
  EXPECT_EQ(control.ORXDimTable(), good.dim);
  EXPECT_EQ(good.Brief(), "general:\nTITLE='T'\ndimension:\nIOBJNM='B'\nmember:\nattribute:\n")
      << "the model as far as it was read";

  const Settings refused("IOBJNM='B'", "IOBJNM='B'", "", "TITLE='1'\nTITLE='2'");
  EXPECT_FALSE(refused.LoadInto(control));
  EXPECT_EQ(refused.Brief(), "general:\ndimension:\nIOBJNM='B'\nmember:\nattribute:\nIOBJNM='B'\n");
  EXPECT_EQ(control.ORXDimTable(), refused.dim);
  EXPECT_EQ(refused.Brief(), "general:\nPRINT_DIRECTION='H' CURUNITPOSITION='L'\ndimension:\nmember:\nattribute:\n");
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

TEST(Control, RefusesATableThatIsNoneOrHollow) {
  const Settings settings("IOBJNM='A'"), other("IOBJNM='B'");
  ORXQueryPrnProp control;
  settings.LoadInto(control);
  const auto root = gPrnProp;
  for (const TableRef& table : {TableRef(), TableRef(std::make_shared<HollowTable>())}) {
    EXPECT_EQ(FailureOf([&] { control.ORXControlTexts(table); }), kObject);
    for (TableRef Settings::*const which : {&Settings::gen, &Settings::dim, &Settings::mem, &Settings::atr}) {
      Settings tables = other;
      tables.*which = table;
      if (table && which == &Settings::mem) continue;  // not asked without a structure
      EXPECT_EQ(FailureOf([&] { tables.LoadInto(control); }), kObject);
    }
    if (!table) {
      EXPECT_EQ(gPrnProp, root) << "nothing is changed";
    }
  }
  EXPECT_EQ(control.ORXDimTable(), settings.dim);
  EXPECT_EQ(other.gen->RowCount(), 1);
}

TEST(Control, StoresLayoutsWhereTheButtonSays) {
  gPrnProp.reset();
  ORXQueryPrnProp control;
  EXPECT_EQ(FailureOf([&] { control.ORXSetPrintLayout(u"x", std::int32_t{0}, u""); }), kIndex) << "before a load";
  const Settings settings("IOBJNM='A'\nIOBJNM='B'\nIOBJNM='B'");
  settings.LoadInto(control);
  const struct {
    Variant button;
    const char16_t *name, *layout;
    int failure = -1;
  } rows[] = {{{}, u"A", u"top"},
              {1.0, u"A", u"head"},
              {u" 2 ", u"A", u"foot"},
              {std::int16_t{3}, u"A", u"end"},
              {4.0, u"B", u"totals"},
              {std::int16_t{4}, u"b", u"of nobody"},
              {std::int32_t{5}, u"A", u"x", kIndex},
              {4.4, u"A", u"x", kIndex},
              {u"four", u"A", u"x", kType},
              {std::int32_t{40000}, u"A", u"x", kIndex}};
  for (const auto& row : rows) {
    EXPECT_EQ(FailureOf([&] { control.ORXSetPrintLayout(row.layout, row.button, row.name); }), row.failure)
        << ToString(row.button);
  }
  control.ORXGenPropTable();
  EXPECT_EQ(settings.Brief(),
            "general:\nTITLE='T' FRONTPAGE_LAYOUT='top' HEADER_LAYOUT='head' FOOTER_LAYOUT='foot' "
            "LASTPAGE_LAYOUT='end'\n"
            "dimension:\nIOBJNM='A'\nIOBJNM='B' PR_SUM_LAYOUT='totals'\nIOBJNM='B'\nmember:\nattribute:\n");
}

/// Calls line by line; those on the cells of one row stand on one line, without the values.
std::string Told(const std::vector<std::string>& calls) {
  std::string text, row;
  for (const std::string& call : calls) {
    const std::size_t cell = call.find(".Value(");
    const std::size_t end = call.find(')', cell);
    const std::string on = cell == std::string::npos ? "" : call.substr(0, cell) + call.substr(end + 1, 1);
    if (on.empty() || on != row) text += (text.empty() ? "" : "\n") + (on.empty() ? call : on);
    if (!on.empty()) text += " " + call.substr(cell + 7, end - cell - 7);
    row = on;
  }
  return text;
}

TEST(Control, MakesTheTextTablesKeyItsKeyColumn) {
  const auto watch = std::make_shared<Watch>();
  ORXQueryPrnProp control;
  EXPECT_FALSE(control.ORXControlTexts(Watched("texts", TableFrom(Kind::Texts, "CAPTION='c' TARGETID='k'"), watch)));
  EXPECT_EQ(watch->calls.size(), 4u + 2 * 164u) << "and one look-up for each text";
  watch->calls.resize(6);
  EXPECT_EQ(Told(watch->calls),
            "texts.Columns(TARGETID)\ntexts.TARGETID.Index\ntexts.Columns\ntexts.Columns.KeyColumn=1\n"
            "texts.Rows\ntexts.Rows.Item(ID_PRN_GENERAL)");
  EXPECT_EQ(FailureOf([&] { control.ORXControlTexts(MemoryTable::Create({u"CAPTION"})); }),
            static_cast<int>(ErrorKind::Table));
  gTextTable.reset();
}

TEST(Control, CallsTheTablesInTheOrderOfTheirColumns) {
  const Settings settings("IS_STRUCTURE='X' IOBJNM='S'\nIOBJNM='A'", "IOBJNM='A' ATTRINM='1'\nIOBJNM='C'",
                          "IOBJNM='T'\nIOBJNM='S' CHAVL='1'");
  const auto watch = std::make_shared<Watch>();
  ORXQueryPrnProp control;
  control.ORXSetPrnTables(Watched("gen", settings.gen, watch), Watched("dim", settings.dim, watch),
                          Watched("mem", settings.mem, watch), Watched("atr", settings.atr, watch));
  const std::string columns =
      " IOBJPRSNT PR_COL1_FIX PR_COL2_FIX PR_AUTO_WIDTH PR_COL1_WIDTH PR_COL2_WIDTH PR_COL1_ALIGN PR_COL2_ALIGN "
      "PR_COL1_HEADER";
  EXPECT_EQ(Told(watch->calls),
            "gen.RowCount\ngen.Rows(1)\ngen[1] TITLE PRINT_DIRECTION MAX_PAGES HIDE_ZERO USE_COLORS MARGIN_TOP "
            "MARGIN_BOTTOM MARGIN_LEFT MARGIN_RIGHT SUMPOSIT NOMULTTXT SIGNPRSNT NO_LINES CURUNITPOSITION\n"
            "dim.Rows\ndim.Rows.Enumerate\ndim.Next\ndim[1] IS_STRUCTURE\ndim[1].RowNumber\n"
            "dim.Next\ndim[2] IS_STRUCTURE IOBJNM IOBJTXT POSIT AXIS" +
                columns +
                " PR_PAGE_BREAK PR_BREAK_AREA PR_QUERY_BREAK STRT_LVL HRY_ACTIVE HIENM VERSION DATETO NOSUMS\n"
                "atr.RowCount\natr.RowCount\natr.Rows(1)\natr[1] IOBJNM\natr.Rows(2)\natr[2] IOBJNM\n"
                "dim[2] IOBJNM IOBJNM\natr.Rows(1)\natr[1] ATTRINM ATTRITXT POSIT HIDDEN" +
                columns +
                "\natr.RowCount\natr.Rows(2)\natr[2] IOBJNM\n"
                "dim.Next\ndim.Rows(1)\ndim[1] IOBJNM IOBJTXT POSIT IOBJNM\n"
                "mem.Rows\nmem.Rows.Enumerate\nmem.Next\nmem[1] IOBJNM\nmem.Next\nmem[2] IOBJNM CHAVL CHAVLTXT POSIT "
                "HIDDEN PR_AUTO_WIDTH PR_COL1_WIDTH PR_COL1_ALIGN PR_COL1_HEADER\nmem.Next\n"
                "gen.Rows\ngen.Rows.RemoveAll");
  watch->calls.clear();
  control.ORXDimTable();
  EXPECT_EQ(Told(watch->calls),
            "gen.Rows\ngen.Rows.RemoveAll\ndim.Rows\ndim.Rows.RemoveAll\nmem.Rows\nmem.Rows.RemoveAll\n"
            "atr.Rows\natr.Rows.RemoveAll\n"
            "gen.Rows\ngen.Rows.Add\ngen[1]= TITLE PRINT_DIRECTION MAX_PAGES HIDE_ZERO USE_COLORS FRONTPAGE_LAYOUT "
            "HEADER_LAYOUT FOOTER_LAYOUT LASTPAGE_LAYOUT MARGIN_TOP MARGIN_BOTTOM MARGIN_LEFT MARGIN_RIGHT SUMPOSIT "
            "NOMULTTXT SIGNPRSNT NO_LINES CURUNITPOSITION\n"
            "dim.Rows\ndim.Rows.Add\ndim[1]= IOBJNM IOBJTXT POSIT AXIS" +
                columns +
                " PR_COL2_HEADER PR_PAGE_BREAK PR_BREAK_AREA PR_QUERY_BREAK STRT_LVL HRY_ACTIVE PR_HRY_PRSNT "
                "PR_SUM_LAYOUT HIENM VERSION DATETO NOSUMS\n"
                "atr.Rows\natr.Rows.Add\natr[1]= IOBJNM ATTRITXT ATTRINM POSIT HIDDEN" +
                columns +
                " PR_COL2_HEADER\n"
                "dim.Rows\ndim.Rows.Add\ndim[2]= AXIS IS_STRUCTURE IOBJNM IOBJTXT POSIT\n"
                "mem.Rows\nmem.Rows.Add\nmem[1]= IOBJNM CHAVL CHAVLTXT POSIT HIDDEN PR_AUTO_WIDTH PR_COL1_WIDTH "
                "PR_COL1_ALIGN PR_COL1_HEADER PR_COL2_HEADER");
}

}  // namespace
}  // namespace ORXKMPrintProp::test
