#include "control/ORXQueryPrnProp.h"

#include <gtest/gtest.h>

#include "control/SharedValues.h"
#include "host/Files.h"
#include "support/loaded.h"
#include "support/transcript.h"
#include "support/watched_table.h"
#include "tables/RunTimeError.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::test {
namespace {

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
    EXPECT_EQ(OutcomeOf([&] { return control.ORXControlTexts(table) ? "yes" : "no"; }), "object");
    for (TableRef Settings::*const which : {&Settings::gen, &Settings::dim, &Settings::mem, &Settings::atr}) {
      Settings tables = other;
      tables.*which = table;
      if (table && which == &Settings::mem) continue;  // not asked without a structure
      EXPECT_EQ(OutcomeOf([&] { return tables.LoadInto(control) ? "yes" : "no"; }), "object");
    }
    EXPECT_EQ(gPrnProp == root, !table) << "a table that is none changes nothing";
  }
  EXPECT_EQ(control.ORXDimTable(), settings.dim);
  EXPECT_EQ(other.gen->RowCount(), 1);
}

/// The calls of a load and, below a blank line, of a read-back stand in table_calls.txt.
TEST(Control, CallsTheTablesInTheOrderOfTheirColumns) {
  const Settings settings("IS_STRUCTURE='X' IOBJNM='S' POSIT=1\nIOBJNM='A'\nIOBJNM='B'",
                          "IOBJNM='B' ATTRINM='1'\nIOBJNM='B' ATTRINM='2'\nIOBJNM='C'",
                          "IOBJNM='T'\nIOBJNM='S' CHAVL='1'");
  const auto watch = std::make_shared<Watch>();
  ORXQueryPrnProp control;
  const TableRef dim = Watched("dim", settings.dim, watch);
  control.ORXSetPrnTables(Watched("gen", settings.gen, watch), dim, Watched("mem", settings.mem, watch),
                          Watched("atr", settings.atr, watch));
  watch->calls.emplace_back();
  EXPECT_EQ(control.ORXDimTable(), dim);
  std::string calls;
  for (const std::string& call : watch->calls) calls += call + "\n";
  EXPECT_EQ(calls, host::ReadFile(PRNPROP_TABLE_CALLS));
}

TEST(Control, MakesTheTextTablesKeyItsKeyColumn) {
  const auto watch = std::make_shared<Watch>();
  ORXQueryPrnProp control;
  EXPECT_FALSE(control.ORXControlTexts(Watched("texts", TableFrom(Kind::Texts, "CAPTION='c' TARGETID='k'"), watch)));
  EXPECT_EQ(watch->calls.size(), 4u + 2 * 164u) << "and one look-up for each text";
  watch->calls.resize(6);
  EXPECT_EQ(watch->calls,
            (std::vector<std::string>{"texts.Columns(TARGETID)", "texts.TARGETID.Index", "texts.Columns",
                                      "texts.Columns.KeyColumn=1", "texts.Rows", "texts.Rows.Item(ID_PRN_GENERAL)"}));
  const TableRef former = gTextTable;
  EXPECT_THROW(control.ORXControlTexts(MemoryTable::Create({u"CAPTION"})), RunTimeError);
  EXPECT_EQ(gTextTable, former) << "the former texts stay in use";
  gTextTable.reset();
}

TEST(Load, TakesAsManyRowsAsARowNumberHas) {
  const Settings settings("IOBJNM='A'", "IOBJNM='A'");
  const auto addRow = [&] {
    const RowRef row = AddRow(*settings.atr);
    row->Value(u"IOBJNM", u"A");
    for (const char16_t* column : {u"POSIT", u"PR_COL1_WIDTH", u"PR_COL2_WIDTH"}) row->Value(column, std::int32_t{0});
  };
  while (settings.atr->RowCount() < 32767) addRow();
  ORXQueryPrnProp control;
  EXPECT_TRUE(settings.LoadInto(control));
  control.ORXDimTable();
  ASSERT_EQ(settings.atr->RowCount(), 32767);
  addRow();
  EXPECT_THROW(settings.LoadInto(control), RunTimeError);
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

TEST(SharedValues, AreSetAsideForALookUpAndReleasedAtAnEnd) {
  const auto texts = MemoryTable::Create({u"TARGETID", u"CAPTION"});
  const Settings settings("IOBJNM='A' AXIS='Y'"), other("IOBJNM='B' AXIS='Y'");
  ORXQueryPrnProp control;
  control.ORXControlTexts(texts);
  settings.LoadInto(control);
  control.GetDialog().TabStrip().UserPick(kCharTab);
  control.GetDialog().Get<TextBox>(u"txtCharColTitle").UserEdit(u"typed");
  gErrorText = u"said before";
  {
    const SharedValuesGuard guard;
    EXPECT_FALSE(gPrnProp || gTextTable || !gErrorText.empty());
    ORXQueryPrnProp lookUp;
    other.LoadInto(lookUp);
    EXPECT_EQ(lookUp.ORXDimTable(), other.dim);
    Settings("", "", "", "").LoadInto(lookUp);
  }
  EXPECT_EQ(gErrorText, u"said before");
  control.ORXGenPropTable();
  EXPECT_EQ(settings.Brief(),
            "general:\nTITLE='T'\ndimension:\nIOBJNM='A' POSIT=1 AXIS='Y' PR_COL1_HEADER='typed' "
            "PR_COL2_HEADER='typed'\nmember:\nattribute:\n");

  ReleaseSharedValues();
  EXPECT_EQ(texts.use_count(), 1);
  EXPECT_EQ(control.ORXDimTable(), nullptr);
}

}  // namespace
}  // namespace ORXKMPrintProp::test
