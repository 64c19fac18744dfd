#include "host/window/EditedSettings.h"

#include <gtest/gtest.h>

#include "control/SharedValues.h"
#include "host/DocumentError.h"
#include "host/Load.h"
#include "host/temporary_folder.h"
#include "host/window/ComparedTable.h"

namespace ORXKMPrintProp::host::test {
namespace {

constexpr const char* kGeneral = R"("general":[{"TITLE":"Sales","MARGIN_TOP":1,"MARGIN_BOTTOM":2,"MARGIN_LEFT":3,)"
                                 R"("MARGIN_RIGHT":4,"HEADER_LAYOUT":"head","LASTPAGE_LAYOUT":"end"}])";

std::string Characteristic(const std::string& name, const std::string& more = "") {
  return R"({"IOBJNM":")" + name + R"(","IOBJTXT":")" + name +
         R"(","POSIT":1,"AXIS":"Y","PR_COL1_WIDTH":1,"PR_COL2_WIDTH":1,"STRT_LVL":0)" + more + "}";
}

class EditedSettingsTest : public testing::Test {
 protected:
  EditedSettingsTest() {
    gPrnProp.reset();
    gTextTable.reset();
  }

  std::string Write(const std::string& dimension) const {
    return folder.Write("a.json", std::string("{") + kGeneral + R"(,"dimension":[)" + dimension + "]}");
  }
  EditedSettings Open(const EditOptions& options) {
    return EditedSettings(ReadSettings(options.file), options, nullptr, platform);
  }

  TemporaryFolder folder;
  RBDoubleByteCS::FontPlatform platform;
};

TEST_F(EditedSettingsTest, LayoutsSurviveALoadAndASave) {
  const std::string file =
      Write(Characteristic("A", R"(,"PR_SUM_LAYOUT":"<sum>\r\n of A")") + "," + Characteristic("B"));
  EditedSettings settings = Open({.file = file});
  EXPECT_TRUE(settings.Losses().empty()) << settings.Losses().front();
  EXPECT_EQ(settings.LayoutOf({.buttonId = 1}), u"head");
  settings.SetLayout({.buttonId = 4, .characteristic = u"B"}, u"sum of B");
  settings.Save();
  const SettingsDocument saved = ReadSettings(file);
  const auto cell = [&](MemoryTable& table, int row, TextView column) {
    return std::get<Text>(table.Rows(row)->Value(column));
  };
  EXPECT_EQ(cell(*saved.general, 1, u"FRONTPAGE_LAYOUT"), u"");
  EXPECT_EQ(cell(*saved.general, 1, u"HEADER_LAYOUT"), u"head");
  EXPECT_EQ(cell(*saved.general, 1, u"LASTPAGE_LAYOUT"), u"end");
  EXPECT_EQ(cell(*saved.dimension, 1, u"PR_SUM_LAYOUT"), u"<sum>\r\n of A");
  EXPECT_EQ(cell(*saved.dimension, 2, u"PR_SUM_LAYOUT"), u"sum of B");
}

TEST_F(EditedSettingsTest, OnlyWhatASaveLosesIsTold) {
  const std::string file = Write(Characteristic("A", R"(,"PR_SUM_LAYOUT":"one")") + "," +
                                 Characteristic("A", R"(,"PR_SUM_LAYOUT":"two","COLOR":"red")") + "," +
                                 R"({"IS_STRUCTURE":"X","IOBJTXT":"nameless","POSIT":1})");
  std::string told;
  EditedSettings settings = Open({.file = file});
  for (const std::string& loss : settings.Losses()) told += loss + "\n";
  EXPECT_EQ(told,
            "dimension, row 2, column PR_SUM_LAYOUT: only the first characteristic of a name keeps its layout\n"
            "dimension, row 2, column COLOR: the control does not write this column\n"
            "dimension, row 3: a structure without a name does not exist\n");
  settings.Save();
  EXPECT_TRUE(settings.Losses().empty()) << "they are gone now";
  EXPECT_EQ(std::get<Text>(ReadSettings(file).dimension->Rows(1)->Value(u"PR_SUM_LAYOUT")), u"one");
}

TEST_F(EditedSettingsTest, AChangeIsWhatTheControlReadsBackInAnotherWay) {
  const std::string file = Write(Characteristic("A"));
  EditedSettings settings = Open({.file = file});
  auto& title = settings.Control().GetDialog().Get<TextBox>(u"txtGenPrnTitle");
  EXPECT_FALSE(settings.IsToBeSaved());
  title.UserEdit(u"Costs");
  EXPECT_FALSE(settings.IsChanged()) << "only a read tells";
  settings.Read();
  EXPECT_TRUE(settings.IsChanged());
  title.UserEdit(u"Sales");
  settings.Read();
  EXPECT_FALSE(settings.IsChanged());
  settings.SetLayout({.buttonId = 0}, u"front");
  settings.Read();
  EXPECT_TRUE(settings.IsChanged());
  settings.Save();
  EXPECT_FALSE(settings.IsToBeSaved());
}

TEST_F(EditedSettingsTest, AnotherTargetLacksTheSettingsUntilTheFirstSave) {
  const std::string file = Write(Characteristic("A"));
  const std::string before = folder.Read("a.json");
  EditedSettings settings = Open({.file = file, .out = folder.Path("b.json")});
  EXPECT_TRUE(settings.IsToBeSaved());
  settings.Save();
  EXPECT_FALSE(settings.IsToBeSaved());
  EXPECT_EQ(folder.Read("a.json"), before);
  SettingsDocument expected = ReadSettings(file);
  LoadAndReadBack(expected);
  expected.general->Rows(1)->Value(u"HEADER_LAYOUT", Text(u"head"));
  expected.general->Rows(1)->Value(u"LASTPAGE_LAYOUT", Text(u"end"));
  EXPECT_EQ(folder.Read("b.json"), ToJson(expected));
}

TEST_F(EditedSettingsTest, ALoadThatFailsTellsFileAndReason) {
  const std::string file = folder.Write("none.json", "{}");
  try {
    Open({.file = file});
    FAIL();
  } catch (const LoadError& error) {
    EXPECT_EQ(error.what(), file +
                                ": the load fails: Table with general print properties GenPropTable must have "
                                "exactly one row.");
  }
}

TEST_F(EditedSettingsTest, ComparedRowsStandBesideTheirOwnRowOfTheFile) {
  const auto rowsOf = [&](const std::string& rows) {
    return SnapshotOf(ParseSettings(R"({"member":[)" + rows + "]}", "rows")).Member();
  };
  const TableSnapshot file =
      rowsOf(R"({"CHAVL":"b","POSIT":"1"},{"CHAVL":"gone"},{"CHAVL":"a","POSIT":2,"HIDDEN":" "},)"
             R"({"CHAVL":"b","POSIT":5})");
  const TableSnapshot now = rowsOf(R"({"CHAVL":"a","POSIT":3},{"CHAVL":"b","POSIT":1},{"CHAVL":"b","POSIT":6},)"
                                   R"({"CHAVL":"new"})");
  const ComparedTable table(file, now, {u"CHAVL"});
  std::string told;
  for (std::size_t row = 0; row < table.RowCount(); ++row) {
    if (table.IsGone(row)) told += "gone ";
    for (std::size_t column = 0; column < table.Columns().size(); ++column) {
      const auto cell = table.At(row, column);
      const std::string text(cell.now.begin(), cell.now.end());
      const std::string before(cell.file.begin(), cell.file.end());
      if (cell.differs) told += before + "->" + text + " ";
      if (!cell.differs && !text.empty()) told += text + " ";
    }
    told += "\n";
  }
  // POSIT is written behind CHAVL.
  EXPECT_EQ(told, "a 2->3 \nb 1 \nb 5->6 \n->new \ngone gone-> \n");
}

}  // namespace
}  // namespace ORXKMPrintProp::host::test
