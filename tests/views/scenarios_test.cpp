// What a user does in the window of a view, and what he sees of it: the same in every view.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "host/Drive.h"
#include "host/SettingsDocument.h"
#include "host/Utf8.h"
#include "host/WidgetState.h"
#include "support/loaded.h"
#include "support/stage.h"
#include "support/widget_text.h"
#include "tables/RunTimeError.h"
#include "views/hand.h"

namespace ORXKMPrintProp::test {
namespace {

using Json = nlohmann::ordered_json;

std::string HeldBy(const Widget& widget) {
  if (const auto* list = dynamic_cast<const ListBox*>(&widget)) return StateOf(*list);
  if (const auto* combo = dynamic_cast<const ComboBox*>(&widget)) return StateOf(*combo);
  if (const auto* box = dynamic_cast<const TextBox*>(&widget)) return host::ToUtf8(box->GetText());
  if (const auto* check = dynamic_cast<const CheckBox*>(&widget)) return std::to_string(check->Value());
  if (const auto* tabs = dynamic_cast<const SSTab*>(&widget)) return std::to_string(tabs->Tab());
  return "";
}

class ViewScenario : public testing::Test, private ORXQueryPrnPropEvents {
 protected:
  ViewScenario()
      : control((ReleaseSharedValues(), gDefaultFontName.clear(), PlatformUnderTest())),
        hand(MakeHand(dialog, [this](const std::string& why) { heard += " failed: " + why; })) {
    control.Connect(*this);
  }

  /// Loads characteristics, with - behind those that are not printed, and brings a page on top.
  void Load(const std::string& names, std::int16_t tab = kCharTab) {
    ASSERT_TRUE(Settings(Characteristics(names)).LoadInto(control));
    dialog.TabStrip().Tab(tab);
  }

  Widget& Named(const std::string& name) { return *dialog.FindSpelled(Wide(name)); }

  /// Does what a line says in the words of `prnprop drive`, where `click` and `drag` may end with "right" or "middle",
  /// or in one of these:
  ///   down, move, up, double LIST ENTRY   a part of a drag; the last is a second click
  ///   key WIDGET KEY                      such as Alt+Up
  void Do(const std::string& line);

  struct Step {
    const char* actions;  ///< separated by "; ", without the widget
    const char* state;    ///< of the widget, and behind it what the host heard
  };
  /// The view must show what the widgets hold after each step.
  void Play(const std::string& widget, std::initializer_list<Step> steps);

  ORXQueryPrnProp control;
  Dialog& dialog = control.GetDialog();
  std::string heard;
  std::unique_ptr<Hand> hand;

 private:
  void ORXPrintLayoutGet(std::int16_t button, const Text& characteristic) override {
    heard += " layout " + std::to_string(button) + ToAscii(characteristic);
  }
  void ORXOrderChanged() override { heard += " order"; }
};

void ViewScenario::Do(const std::string& line) {
  std::istringstream words(line);
  std::string action, name, rest;
  words >> action >> name;
  std::getline(words >> std::ws, rest);
  if (action == "tab") return hand->ClickTab(std::stoi(name));

  std::vector<int> entries;
  std::istringstream numbers(rest);
  for (int entry; numbers >> entry;) entries.push_back(entry);
  const Widget& widget = Named(name);
  if (action == "key") return hand->Key(widget, rest);
  if (action == "keys") return hand->Type(widget, rest);
  if (action == "toggle" || action == "press") return hand->Click(widget);
  if (action == "pick") return hand->PickEntry(widget, entries[0]);
  if (action == "move") return hand->Move(widget, entries[0]);

  const auto button = action == "rclick" || rest.ends_with("right") ? Hand::Button::Right
                      : rest.ends_with("middle")                    ? Hand::Button::Middle
                                                                    : Hand::Button::Left;
  if (action == "double") {
    hand->PressAgain(widget, entries[0]);
  } else if (action != "up") {
    hand->Press(widget, entries[0], button);
  }
  for (std::size_t i = 1; i < entries.size(); ++i) hand->Move(widget, entries[i]);
  if (action != "down") hand->Release(widget, entries.back(), button);
}

void ViewScenario::Play(const std::string& widget, std::initializer_list<Step> steps) {
  for (const Step& step : steps) {
    heard.clear();
    std::istringstream actions(step.actions);
    for (std::string action; std::getline(actions >> std::ws, action, ';');) {
      Do(action.insert(std::min(action.find(' '), action.size()), " " + widget));
    }
    EXPECT_EQ(HeldBy(Named(widget)) + heard, step.state) << widget << ": " << step.actions;
    for (const auto& each : dialog.Controls()) {
      Json state = host::StateOf(*each);
      state["enabled"] = each->Enabled();
      if (state.contains("items")) {
        for (Json& item : state["items"]) item.erase("data");
      }
      Json seen = state;
      hand->See(*each, seen);
      EXPECT_EQ(seen, state) << step.actions;
    }
  }
}

/// The state of a widget as a line. The typeface is the view's, and not what this is about.
std::string Line(Json state) {
  state.erase("font");
  return host::ToLine(state) + "\n";
}

TEST_F(ViewScenario, AHandDoesWhatTheScriptDoes) {
  host::DriveOptions options;
  options.settings = PRNPROP_EXAMPLES "/sales.json";
  options.script = PRNPROP_SCRIPT;
  const auto document = host::ReadSettings(options.settings);
  control.ORXSetPrnTables(document.general, document.dimension, document.member, document.attribute);
  std::ifstream script(options.script);
  for (std::string line; std::getline(script, line);) {
    if (line[0] != '#' && line != "state") Do(line);
  }
  std::string byHand;
  for (const auto& widget : dialog.Controls()) byHand += Line(host::StateOf(*widget));

  std::stringstream out, err;
  EXPECT_EQ(host::Drive(options, out, err), 0) << err.str();
  std::string byScript;
  for (std::string line; std::getline(out, line);) {
    const auto state = Json::parse(line);
    EXPECT_FALSE(state.contains("refused")) << line;
    if (state.contains("widget") && state["widget"] != "ORXQueryPrnProp") byScript += Line(state);
  }
  EXPECT_EQ(byHand, byScript);
  Play("tstPrint", {{"", "0"}});
}

TEST_F(ViewScenario, TheMouseDragsAndToggles) {
  Load("a b c");
  Play("lstPrint(1)", {{"click 2", "*a:1 b:2 >*c:3"},
                       {"click 0", ">a:1 b:2 *c:3"},
                       {"click 1", "a:1 >*b:2 *c:3"},
                       {"double 1", "a:1 >b:2 *c:3"},
                       {"click 0 right", ">a:1 b:2 *c:3"},
                       {"click 1 middle", ">a:1 b:2 *c:3"},
                       {"drag 3 1", ">a:1 b:2 *c:3"},
                       {"down 0", ">*a:1 b:2 *c:3"},
                       {"drag 1 2 right", ">*a:1 b:2 *c:3"}});
  EXPECT_EQ(hand->Pointer(), Dialog::kDefaultPointer);
  Play("lstPrint(1)", {{"move 1", "b:2 >*a:1 *c:3"}});
  EXPECT_EQ(hand->Pointer(), Dialog::kDragPointer);
  Play("lstPrint(1)", {{"move 2", "b:2 c:3 >*a:1"}, {"up 2", "b:2 c:3 >*a:1 order"}});
  EXPECT_EQ(hand->Pointer(), Dialog::kDefaultPointer);
}

TEST_F(ViewScenario, EverythingInAListGoesByKeyboard) {
  Load("a b c d");
  hand->Focus(Named("lstPrint(1)"));
  Play("lstPrint(1)", {{"key Down", ">*a:1 b:2 c:3 d:4"},
                       {"key Down", "*a:1 >b:2 c:3 d:4"},
                       {"key Space", "*a:1 >*b:2 c:3 d:4"},
                       {"key End", "*a:1 *b:2 c:3 >d:4"},
                       {"key Alt+Up", "*a:1 *b:2 >*d:4 c:3 order"},
                       {"key Home", ">*a:1 *b:2 *d:4 c:3"},
                       {"key Alt+Up", ">*a:1 *b:2 *d:4 c:3"},
                       {"key Alt+Down", "b:2 >*a:1 *d:4 c:3 order"},
                       {"key Space", "b:2 >a:1 *d:4 c:3"},
                       {"key PgDown", "b:2 a:1 *d:4 >c:3"},
                       {"key PgUp", ">b:2 a:1 *d:4 c:3"},
                       {"key D", "b:2 a:1 >*d:4 c:3"},
                       {"key Left", "b:2 >a:1 *d:4 c:3"}});
}

TEST_F(ViewScenario, ADragBelowTheListScrollsToItsEnd) {
  std::string words;
  for (char first = 'a'; first <= 'z'; ++first) words += std::string(" ") + first;
  Load(words);
  const auto& list = dialog.Get<ListBox>(u"lstPrint", kCharTab);
  ASSERT_FALSE(hand->IsInSight(list, 25));
  Do("down lstPrint(1) 1");
  Do("move lstPrint(1) 99");
  EXPECT_TRUE(hand->WaitUntil([&] { return list.ListIndex() == 25 && hand->IsInSight(list, 25); }));
  EXPECT_EQ(list.List(25), u"b");
  Do("move lstPrint(1) -1");
  EXPECT_TRUE(hand->WaitUntil([&] { return list.ListIndex() == 0; }));
  Do("up lstPrint(1) -1");
  const std::string before = StateOf(list);
  EXPECT_EQ(before.substr(0, 16), ">*b:2 a:1 c:3 d:");
  int turns = 0;
  hand->WaitUntil([&] { return ++turns > 4; });
  EXPECT_EQ(StateOf(list), before) << "scrolling ends with the drag";
  Do("key lstPrint(1) End");
  EXPECT_TRUE(hand->IsInSight(list, 25)) << "the caret is scrolled to";
}

TEST_F(ViewScenario, AFailureInADragIsReportedAndTheListGoesOn) {
  Load("a b c");
  auto& list = dialog.Get<ListBox>(u"lstPrint", kCharTab);
  const auto moved = std::exchange(
      list.MouseMove, [](std::int16_t) { throw RunTimeError(ErrorKind::Table, u"The order can't be k\u00e9pt."); });
  Play("lstPrint(1)", {{"down 0; move 2", "a:1 b:2 >c:3 failed: The order can't be k\u00e9pt."}});
  list.MouseMove = moved;
  Play("lstPrint(1)", {{"move 1; up 1", "b:2 >*a:1 c:3 order"}});
}

TEST_F(ViewScenario, AHandlerMayEmptyRefillAndDisableTheListInADrag) {
  Load("a b c");
  auto& list = dialog.Get<ListBox>(u"lstPrint", kCharTab);
  int released = 0;
  list.MouseMove = [&](std::int16_t) {
    list.Clear();
    Fill(list, "x y");
    list.Enabled(false);
  };
  list.MouseUp = [&](std::int16_t) { ++released; };
  Play("lstPrint(1)", {{"down 0; move 2", "x y"}});
  EXPECT_TRUE(hand->WaitUntil([&] { return released == 1; })) << "what has begun also ends";
  Play("lstPrint(1)", {{"up 0", "x y"}});
  EXPECT_EQ(released, 1);
}

TEST_F(ViewScenario, AViewThatGoesEndsWhatHasBegun) {
  Load("a b c");
  Do("down lstPrint(1) 0");
  Do("move lstPrint(1) 1");
  EXPECT_EQ(dialog.MousePointer(), Dialog::kDragPointer);
  hand.reset();
  EXPECT_EQ(dialog.MousePointer(), Dialog::kDefaultPointer);
  EXPECT_EQ(StateOf(dialog.Get<ListBox>(u"lstPrint", kCharTab)), "b:2 >*a:1 c:3");
}

TEST_F(ViewScenario, KeysPassTheFilterAndWhatIsPastedGoesPastIt) {
  Load("a", kGeneralTab);
  hand->PutIntoClipboard("a1");
  Play("txtGenMaxPages", {{"key Ctrl+A; key Del; keys 1a2 b3", "123"},
                          {"key Home; key Num+9; key X", "9123"},
                          {"key Right; key Backspace", "923"},
                          {"key Del", "93"},
                          {"key Ctrl+Z", "923"},
                          {"key Ctrl+A; key 5", "5"},
                          {"key Ctrl+V; key Home", "5a1"}});
  auto& box = dialog.Get<TextBox>(u"txtGenMaxPages");
  box.KeyPress = [](std::int16_t& key) { key = key == TextBox::kBackspace ? 0 : key == u'a' ? u'B' : key; };
  Play("txtGenMaxPages", {{"keys a; key Backspace", "5a1B"}});

  auto& title = dialog.Get<TextBox>(u"txtGenPrnTitle");
  const Text text = Text(40000, u'x') + u"&\u00fc\U0001F600";
  title.SetText(text);
  Do("key txtGenPrnTitle Home");
  for (const char* const key : {"<", "B", ">"}) hand->Key(title, key);
  EXPECT_EQ(title.GetText(), u"<b>" + text) << "there is no limit, and no markup";
}

TEST_F(ViewScenario, ACheckBoxShowsWhatItsHandlerLeaves) {
  auto& check = dialog.Get<CheckBox>(u"chkGenUseColors");
  Play("chkGenUseColors", {{"toggle", "1"}});
  check.Click = [&] {
    if (check.Value() == 0) check.Value(1);
  };
  Play("chkGenUseColors", {{"key Space", "1"}});
  check.Click = [] { throw std::runtime_error("refused by the host"); };
  Play("chkGenUseColors", {{"key Space", "0 failed: refused by the host"}});
  check.Click = [] { throw 5; };
  Play("chkGenUseColors", {{"key Space", "1 failed: A handler failed without telling why."}});
}

TEST_F(ViewScenario, AnEntryOfAComboBoxIsPickedByMouseAndKeyboard) {
  Load("a", kGeneralTab);
  auto& combo = dialog.Get<ComboBox>(u"cmbGenSignPrsnt");
  combo.Click = [&] { heard += " click"; };
  Play("cmbGenSignPrsnt", {{"pick 1", "-X >X- (X) click"},
                           {"key Down", "-X X- >(X) click"},
                           {"key Down", "-X X- >(X)"},
                           {"key Up", "-X >X- (X) click"},
                           {"key -", ">-X X- (X) click"},
                           {"key End", "-X X- >(X) click"},
                           {"key Ctrl+PgDown", "-X X- >(X)"}});
  EXPECT_EQ(dialog.TabStrip().Tab(), 1);
  EXPECT_EQ(gPrnProp->SignPrsnt(), PP_PRN_SIGN_BRACES) << "the page that is left is stored";
  Do("tab 0");
  combo.Click = [] { throw std::runtime_error("refused"); };
  Play("cmbGenSignPrsnt", {{"key Up", "-X >X- (X) failed: refused"}});
  combo.Click = [&] { combo.Clear(); };
  Play("cmbGenSignPrsnt", {{"key Up", ""}});
}

TEST_F(ViewScenario, ReadOnlyTakesNothingButLooksAndLayouts) {
  Load("a b c x-", kGeneralTab);
  control.ORXSetReadOnly(true);
  Play("txtGenMaxPages", {{"keys 55", "0"}});
  Play("chkGenUseColors", {{"toggle; key Space", "0"}});
  Play("cmbGenSignPrsnt", {{"pick 1; key Down", ">-X X- (X)"}});
  Play("cmdPrintLayout(2)", {{"press", " layout 2"}});
  Play("cmdPrintLayout(0)", {{"key Space", " layout 0"}, {"key Return", " layout 0"}});
  Do("tab 1");
  Play("cmdPrintLayout(4)", {{"press", " layout 4a"}});
  Play("lstPrint(1)", {{"drag 0 2", "a:1 b:2 >c:3"}});
  Play("lstAvail(1)", {{"click 0; key Space", "x:4"}});
  Play("cmdLeftToRight(1)", {{"press", ""}});
}

TEST_F(ViewScenario, ThePageOnTopIsPickedByMouseAndKeyboard) {
  Load("a b", kGeneralTab);
  Do("keys txtGenPrnTitle yped");
  Do("tab 2");
  EXPECT_EQ(gPrnProp->Title(), u"Typed") << "the page that is left is stored";
  Play("tstPrint", {{"key Left", "1"},
                    {"key Left", "0"},
                    {"key Left", "0"},
                    {"key End", "3"},
                    {"key Home", "0"},
                    {"key Right", "1"}});
  hand->Focus(Named("lstPrint(1)"));
  Do("key lstPrint(1) Ctrl+Num+PgUp");
  EXPECT_EQ(hand->Focused(), &dialog.TabStrip()) << "the focus stays in the dialog";
  Play("tstPrint", {{"", "0"}, {"key Ctrl+Shift+Backtab", "3"}, {"key Ctrl+PgDown", "0"}});
}

TEST_F(ViewScenario, TheTabKeyGoesThroughTheDialogAndLeavesItAtBothEnds) {
  Load("a b x-");
  hand->Focus(Named("lstAvail(1)"));
  const auto walk = [this](const char* key) {
    std::string order;
    while (const Widget* const widget = hand->Focused()) {
      order += ToAscii(widget->Row().name.Spelled()) + ' ';
      hand->Key(*widget, key);
      if (hand->Focused() == widget || order.size() > 1000) break;
    }
    return order;
  };
  EXPECT_EQ(
      walk("Tab"),
      "lstAvail(1) cmdLeftToRight(1) cmdRightToLeft(1) lstPrint(1) cmbCharQueryBreak cmbCharPageBreak "
      "cmbCharBreakArea txtCharColTitle cmbCharPresentation cmbCharColAlign1 chkCharColAutoWidth txtCharColWidth1 "
      "chkCharColEachPage1 cmbCharNoSums cmdPrintLayout(4) ");
  hand->Focus(Named("cmbCharQueryBreak"));
  EXPECT_EQ(walk("Shift+Backtab"),
            "cmbCharQueryBreak lstPrint(1) cmdRightToLeft(1) cmdLeftToRight(1) lstAvail(1) tstPrint ");
}

TEST_F(ViewScenario, AMessageWaitsForItsButton) {
  Load("a b c d e f g h i j x- y-");
  Do("click lstAvail(1) 1");
  hand->CloseMessage([this](const std::string& words) { heard += " " + words; });
  Play("cmdLeftToRight(1)", {{"press", " Error: You may only use up to ten print characteristics"}});
  Play("lstAvail(1)", {{"", "x:11 >*y:12"}});
  EXPECT_EQ(dialog.Get<ListBox>(u"lstPrint", kCharTab).ListCount(), 10);
}

TEST_F(ViewScenario, EntriesSortInTheOrderOfTheUsersLanguage) {
  Load("m K n M");
  Play("lstPrint(1)", {{"click 1; click 2; click 3", "*m:1 *K:2 *n:3 >*M:4"}});
  Do("press cmdRightToLeft(1)");
  Play("lstAvail(1)", {{"", "K:2 M:4 m:1 n:3"}});
}

TEST_F(ViewScenario, WhatTheLogicWritesIsSeen) {
  Load("a b c");
  auto& list = dialog.Get<ListBox>(u"lstPrint", kCharTab);
  list.Click = {};
  list.Selected(1, true);
  list.List(2, u"new\ntext");
  list.ListIndex(2);
  dialog.Get<CheckBox>(u"chkCharColAutoWidth").Enabled(false);
  dialog.Get<TextBox>(u"txtCharColTitle").SetText(u"written");
  dialog.Get<ComboBox>(u"cmbCharQueryBreak").AddItem(u"added");
  dialog.Get<Label>(u"lblCharCol1").Visible(false);
  list.List(2, u"other");
  Play("lstPrint(1)", {{"", "*a:1 *b:2 >other:3"}});
}

}  // namespace
}  // namespace ORXKMPrintProp::test
