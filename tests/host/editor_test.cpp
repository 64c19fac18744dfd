#include "host/editor/Editor.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <random>

#include "control/SharedValues.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/PrintRows.h"

namespace ORXKMPrintProp::host::test {
namespace {

namespace fs = std::filesystem;

/// A window with a user who answers as the test says.
class ScriptedWindow : public EditorWindow {
 public:
  ~ScriptedWindow() override { EXPECT_TRUE(answers.empty()) << "a question was expected that did not come"; }

  void ShowMeaning(const Snapshot&, const Snapshot&) override {}
  void ShowState(const EditorState& shown) override { state = shown; }
  Choice Ask(const Question& question) override {
    const std::string told = question.text + "\n" + question.further;
    const auto answer = answers.empty() ? std::pair(std::string("none expected"), Choice::Cancel) : answers.front();
    if (!answers.empty()) answers.pop_front();
    EXPECT_EQ(told, answer.first);
    return answer.second;
  }
  std::optional<Text> EditLayout(const Text&, const Text&, bool) override { return u"<head>"; }
  void ReadLater() override { readsLater = true; }

  EditorState state;
  std::deque<std::pair<std::string, Choice>> answers;
  bool readsLater = false;
};

class EditorTest : public testing::Test {
 protected:
  EditorTest() {
    gPrnProp.reset();
    gTextTable.reset();
    fs::create_directory(folder);
    SaveFile(file, before);
  }
  ~EditorTest() override {
    editor.reset();
    fs::remove_all(folder);
  }

  std::string Path(const char* name) const { return (folder / name).string(); }

  void Open(EditOptions options = {}) {
    options.file = file;
    editor.reset();
    settings = std::make_unique<EditedSettings>(ReadSettings(file), options, nullptr, Platform::Plain());
    editor = std::make_unique<Editor>(*settings, window);
    editor->Show();
  }

  /// What the editor makes of the user's hand on a widget.
  template <class W, class Operation>
  void Use(TextView name, Operation operate) {
    W& widget = dynamic_cast<W&>(*settings->Control().GetDialog().FindSpelled(name));
    operate(widget);
    editor->OnUsed(widget);
  }
  void Type(TextView name, const Text& text) {
    Use<TextBox>(name, [&](TextBox& box) { box.UserEdit(text); });
  }
  void TypeTitle(const Text& text) { Type(u"txtGenPrnTitle", text); }
  void PickTab(std::int16_t tab) {
    Use<SSTab>(u"tstPrint", [&](SSTab& strip) { strip.UserPick(tab); });
  }
  void Press(TextView name) { Use<CommandButton>(name, std::mem_fn(&CommandButton::UserPress)); }
  /// The user's action has come to its end.
  void End() {
    if (std::exchange(window.readsLater, false)) editor->Read();
  }

  /// What is seen of the window: modified, Apply can be pressed, the panel is older than a change.
  std::string State() const {
    return std::string(window.state.isModified ? "modified " : "") + (window.state.canApply ? "apply " : "") +
           (window.state.isStale ? "older" : "");
  }
  void Answer(Choice choice, const std::string& question) { window.answers.emplace_back(question, choice); }
  std::string Changed() const { return "The settings have changed.\nSave them in " + file + "?"; }

  const fs::path folder = fs::path(testing::TempDir()) / ("editor_test-" + std::to_string(std::random_device{}()));
  std::string before = ReadFile(PRNPROP_EXAMPLES "/small.json");
  const std::string file = Path("a.json");
  ScriptedWindow window;
  std::unique_ptr<EditedSettings> settings;
  std::unique_ptr<Editor> editor;
};

TEST_F(EditorTest, WhatASaveLosesIsToldBeforeTheFirstAndLayoutsAreHandedBack) {
  const std::string characteristic = R"({"POSIT":1,"AXIS":"Y","PR_COL1_WIDTH":1,"PR_COL2_WIDTH":1,"STRT_LVL":0,)";
  SaveFile(file, R"({"general":[{"TITLE":"Sales","MARGIN_TOP":1,"MARGIN_BOTTOM":2,"MARGIN_LEFT":3,
      "MARGIN_RIGHT":4,"HEADER_LAYOUT":"head","LASTPAGE_LAYOUT":"end"}],"dimension":[)" +
                     characteristic + R"("IOBJNM":"A","PR_SUM_LAYOUT":"<sum>\r\n of A"},)" + characteristic +
                     R"("IOBJNM":"A","PR_SUM_LAYOUT":"two","COLOR":"red"},)" + characteristic +
                     R"("IOBJNM":"B","PR_SUM_LAYOUT":"sum of B"},
      {"IS_STRUCTURE":"X","IOBJTXT":"nameless","POSIT":1}]})");
  before = ReadFile(file);
  SettingsDocument expected = ReadSettings(file);
  Open();
  EXPECT_EQ(State(), "");
  TypeTitle(u"Sales!");
  const std::string losses =
      "3 things that the file says can't be kept.\n"
      "• dimension, row 2, column PR_SUM_LAYOUT: only the first characteristic of a name keeps its layout\n"
      "• dimension, row 2, column COLOR: the control does not write this column\n"
      "• dimension, row 4: a structure without a name does not exist";
  Answer(Choice::Cancel, losses);
  EXPECT_FALSE(editor->Save());
  EXPECT_EQ(State(), "modified apply ");
  EXPECT_EQ(ReadFile(file), before);
  Answer(Choice::Save, losses);
  EXPECT_TRUE(editor->Save());
  EXPECT_EQ(State(), "");
  TypeTitle(u"Sales!?");
  EXPECT_TRUE(editor->Accept() && editor->MayClose()) << "it is told once";

  expected.general->Rows(1)->Value(u"TITLE", Text(u"Sales!?"));
  LoadAndReadBack(expected);
  expected.general->Rows(1)->Value(u"HEADER_LAYOUT", Text(u"head"));
  expected.general->Rows(1)->Value(u"LASTPAGE_LAYOUT", Text(u"end"));
  expected.dimension->Rows(1)->Value(u"PR_SUM_LAYOUT", Text(u"<sum>\r\n of A"));
  expected.dimension->Rows(3)->Value(u"PR_SUM_LAYOUT", Text(u"sum of B"));
  EXPECT_EQ(ReadFile(file), ToJson(expected));
}

TEST_F(EditorTest, ClosingAsksWhenSomethingHasChanged) {
  Open();
  TypeTitle(u"Orders by region!");
  TypeTitle(u"Orders by region");
  EXPECT_EQ(State(), "modified apply older") << "until a read tells better";
  EXPECT_TRUE(editor->MayClose());
  TypeTitle(u"Orders by region!");
  Answer(Choice::Cancel, Changed());
  EXPECT_FALSE(editor->MayClose());
  Answer(Choice::Discard, Changed());
  EXPECT_TRUE(editor->MayClose());
  EXPECT_EQ(ReadFile(file), before);
  Answer(Choice::Save, Changed());
  EXPECT_TRUE(editor->MayClose());
  EXPECT_NE(ReadFile(file).find("Orders by region!"), std::string::npos);
}

TEST_F(EditorTest, AFieldIsToldBeforeASaveWhenItsSettingCantTakeTheText) {
  Open();
  const std::tuple<TextView, const char16_t*, std::string> rows[] = {
      {u"txtGenMarginTop", u"32768", "Page margins, Top: 32768"},
      {u"txtGenMarginTop", u"", "Page margins, Top: (empty)"},
      {u"txtGenMarginTop", u"1e2", ""},
      {u"txtGenMaxPages", u"", ""},
      {u"txtGenMaxPages", u"32768", "General, Maximal number of pages: 32768"},
  };
  for (const auto& [box, text, told] : rows) {
    Type(box, text);
    EXPECT_EQ(window.state.note, told.empty() ? "" : "No whole number up to 32767: " + told);
    if (told.empty()) continue;
    Answer(Choice::Cancel, "Not everything is stored as it was typed.\nNo whole number up to 32767:\n" + told);
    EXPECT_FALSE(editor->Accept());
  }
  Type(u"txtGenMaxPages", u"");
  EXPECT_TRUE(editor->Save());
  EXPECT_NE(ReadFile(file).find("\"MARGIN_TOP\": 100"), std::string::npos);
}

TEST_F(EditorTest, WhoeverOnlyLooksChangesNothing) {
  // The commit of a page would write a 1, and no width beside an automatic one.
  const std::string name = "\"IOBJNM\": \"REGION\"";
  for (const auto& [from, to] :
       {std::pair(R"("POSIT": 1)", R"("POSIT": 0)"), std::pair(R"("PR_AUTO_WIDTH": " ")", R"("PR_AUTO_WIDTH": "X")")}) {
    before.replace(before.find(from, before.find(name)), std::string_view(from).size(), to);
  }
  SaveFile(file, before);
  for (const bool readOnly : {false, true}) {
    Open({.readOnly = readOnly});
    for (const std::int16_t tab : {kCharTab, kAttrTab, kStrTab, kCharTab}) {
      PickTab(tab);
      End();
    }
    Use<ListBox>(u"lstPrint(1)", [](ListBox& list) { list.UserMouseDown(1, ListBox::kLeftButton); });
    EXPECT_EQ(State() + window.state.note, "");
    EXPECT_TRUE(editor->Accept());
    EXPECT_EQ(ReadFile(file), before);
  }
}

TEST_F(EditorTest, AFileThatSomebodyElseHasWrittenIsNotReplacedUnasked) {
  Open();
  TypeTitle(u"mine");
  SaveFile(file, before += "\n");
  const std::string question = "The file has changed since it was opened.\nReplace " + file + " all the same?";
  Answer(Choice::Cancel, question);
  EXPECT_FALSE(editor->Accept());
  EXPECT_EQ(State(), "modified apply ");
  EXPECT_EQ(ReadFile(file), before);
  fs::remove(file);
  Answer(Choice::Save, "The file is gone since it was opened.\nSave in " + file + " all the same?");
  EXPECT_TRUE(editor->Save());
  TypeTitle(u"mine again");
  EXPECT_TRUE(editor->Save());
  EXPECT_NE(ReadFile(file).find("mine again"), std::string::npos);
}

TEST_F(EditorTest, AWriteThatFailsKeepsTheWindowAndAnotherTargetLeavesTheFile) {
  const std::string nowhere = Path("no/b.json");
  Open({.out = nowhere});
  EXPECT_EQ(editor->Title("*"), "b.json* - Print settings");
  TypeTitle(u"new");
  Answer(Choice::Ok, "The settings could not be saved.\n" + nowhere + ": No such file or directory");
  EXPECT_FALSE(editor->Accept());
  EXPECT_EQ(State(), "modified apply ");
  EXPECT_EQ(ReadFile(file), before);
  Answer(Choice::Discard, "The settings have changed.\nSave them in " + nowhere + "?");
  EXPECT_TRUE(editor->MayClose());

  before.insert(before.find("\"IOBJNM\": \"REGION\""), "\"COLOR\": \"red\", ");
  SaveFile(file, before);
  Open({.out = Path("b.json")});
  EXPECT_EQ(State(), "apply ") << "there is no such file yet";
  Answer(Choice::Save,
         "One thing that the file says can't be kept.\n"
         "• dimension, row 1, column COLOR: the control does not write this column");
  EXPECT_TRUE(editor->Save());
  EXPECT_EQ(State(), "");
  EXPECT_EQ(ReadFile(file), before);
  SettingsDocument expected = ReadSettings(PRNPROP_EXAMPLES "/small.json");
  LoadAndReadBack(expected);
  EXPECT_EQ(ReadFile(Path("b.json")), ToJson(expected));
}

TEST_F(EditorTest, WhatTheUserDoesCountsAsAChangeUntilTheNextRead) {
  Open();
  Press(u"cmdPrintLayout(1)");
  EXPECT_EQ(State(), "modified apply older");
  EXPECT_TRUE(editor->Save());
  EXPECT_EQ(RawText(*settings->Now().General().rows.at(0), u"HEADER_LAYOUT"), u"<head>");
  PickTab(kCharTab);
  End();
  Press(u"cmdLeftToRight(1)");
  EXPECT_EQ(State(), "") << "nothing is selected there";
  Press(u"cmdRightToLeft(1)");
  EXPECT_EQ(State(), "modified apply older");
  End();
  EXPECT_EQ(State(), "modified apply ");
  PickTab(kAttrTab);
  Use<ComboBox>(u"cmbAttrChar", [](ComboBox& combo) { combo.UserPick(0); });
  EXPECT_EQ(State(), "modified apply ") << "it picks what the page shows";
  Answer(Choice::Discard, Changed());
  EXPECT_TRUE(editor->MayClose());

  Open({.readOnly = true});
  EXPECT_EQ(editor->Title("*"), "a.json* (read-only) - Print settings");
  Press(u"cmdPrintLayout(0)");
  EXPECT_EQ(State(), "");
  EXPECT_TRUE(editor->MayClose());
}

}  // namespace
}  // namespace ORXKMPrintProp::host::test
