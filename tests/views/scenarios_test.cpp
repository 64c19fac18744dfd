// What a user does in the window of a view, and what he sees of it: the same in every view.

#include <gtest/gtest.h>

#include "host/WidgetState.h"
#include "support/stage.h"
#include "support/widget_text.h"
#include "tables/RunTimeError.h"
#include "views/hand.h"

namespace ORXKMPrintProp::test {
namespace {

using Json = nlohmann::ordered_json;

/// A stage where the user acts by hand. What the view shows must be what the widgets hold behind each line. Of the
/// state there is also "focus".
class ViewStage : public Stage {
 public:
  ViewStage()
      : Stage((ReleaseSharedValues(), gDefaultFontName.clear(), PlatformUnderTest())),
        hand(MakeHand(Control().GetDialog(), [this](const std::string& why) { Tell("failed: " + why); })) {}

  std::unique_ptr<Hand> hand;

 protected:
  Lines State() override;
  Refusal Use(const UserStep& step) override;

 private:
  void Paste(const Widget& box, const std::string& text);
  void Press(const Widget& button);
  void UseMouse(const UserStep& step);
  void Walk(const Widget& from, const std::string& key);
};

Player::Lines ViewStage::State() {
  for (const auto& widget : Control().GetDialog().Controls()) {
    Json state = host::StateOf(*widget);
    state["enabled"] = widget->Enabled();
    if (state.contains("items")) {
      for (Json& item : state["items"]) item.erase("data");
    }
    Json seen = state;
    hand->See(*widget, seen);
    EXPECT_EQ(seen, state);
  }
  Lines lines = Stage::State();
  if (const Widget* const focused = hand->Focused()) lines["focus"] = ToAscii(focused->Row().name.Spelled());
  return lines;
}

Refusal ViewStage::Use(const UserStep& step) {
  const Widget& widget = *step.widget;
  const int number = step.numbers.empty() ? 0 : step.numbers[0];
  const Steps steps{
      {"tab", [&] { hand->ClickTab(number); }},
      {"focus", [&] { hand->Focus(widget); }},
      {"walk", [&] { Walk(widget, step.rest); }},
      {"key", [&] { hand->Key(widget, step.rest); }},
      {"keys", [&] { hand->Type(widget, step.rest); }},
      {"paste", [&] { Paste(widget, step.rest); }},
      {"pick", [&] { hand->PickEntry(widget, number); }},
      {"toggle", [&] { hand->Click(widget); }},
      {"press", [&] { Press(widget); }},
  };
  if (!DoOneOf(steps, step.verb)) UseMouse(step);
  return Refusal::None;
}

void ViewStage::Paste(const Widget& box, const std::string& text) {
  hand->PutIntoClipboard(text);
  hand->Key(box, "Ctrl+V");
}

void ViewStage::Press(const Widget& button) {
  hand->CloseMessage([this](const std::string& title, const std::string& text) { Tell(title + ": " + text); });
  hand->Click(button);
}

void ViewStage::UseMouse(const UserStep& step) {
  const auto button = step.verb == "rclick"   ? Hand::Button::Right
                      : step.verb == "mclick" ? Hand::Button::Middle
                                              : Hand::Button::Left;
  auto act = step.verb == "move" || step.verb == "up" ? Hand::Mouse::Move
             : step.verb == "double"                  ? Hand::Mouse::PressAgain
                                                      : Hand::Mouse::Press;
  for (const std::int16_t entry : step.numbers) {
    hand->Use(std::exchange(act, Hand::Mouse::Move), *step.widget, entry, button);
  }
  const bool stays = step.verb == "move" || step.verb == "down";
  if (!stays) hand->Use(Hand::Mouse::Release, *step.widget, step.numbers.back(), button);
}

void ViewStage::Walk(const Widget& from, const std::string& key) {
  std::string order = "order:";
  hand->Focus(from);
  while (const Widget* const widget = hand->Focused()) {
    order += " " + ToAscii(widget->Row().name.Spelled());
    hand->Key(*widget, key);
    if (hand->Focused() == widget || order.size() > 1000) break;
  }
  Tell(order);
}

TEST(View, ShowsWhatAUserDoes) {
  PlayTranscript(PRNPROP_SCENARIOS, [] { return std::make_unique<ViewStage>(); });
}

/// With handlers that do what those of the pages never do. Of the state the lists of the characteristics are told.
class ViewScenario : public testing::Test {
 protected:
  void Load(const std::string& names, const std::string& tab = "1") {
    stage.Play("watch lists 1; characteristics " + names + "; load; tab " + tab);
  }

  ViewStage stage;
  Hand& hand = *stage.hand;
  Dialog& dialog = stage.Control().GetDialog();
  ListBox& list = dialog.Get<ListBox>(u"lstPrint", kCharTab);
};

TEST_F(ViewScenario, ADragBelowTheListScrollsToItsEnd) {
  std::string words;
  for (char first = 'a'; first <= 'z'; ++first) words += std::string(" ") + first;
  Load(words);
  ASSERT_FALSE(hand.IsInSight(list, 25));
  stage.Play("down lstPrint(1) 1 99");
  EXPECT_TRUE(hand.WaitUntil([&] { return list.ListIndex() == 25 && hand.IsInSight(list, 25); }));
  EXPECT_EQ(list.List(25), u"b");
  stage.Play("move lstPrint(1) -1");
  EXPECT_TRUE(hand.WaitUntil([&] { return list.ListIndex() == 0; }));
  stage.Play("up lstPrint(1) -1");
  const std::string before = StateOf(list);
  EXPECT_EQ(before.substr(0, 16), ">*b:2 a:1 c:3 d:");
  int turns = 0;
  hand.WaitUntil([&] { return ++turns > 4; });
  EXPECT_EQ(StateOf(list), before) << "scrolling ends with the drag";
  stage.Play("key lstPrint(1) End");
  EXPECT_TRUE(hand.IsInSight(list, 25)) << "the caret is scrolled to";
}

TEST_F(ViewScenario, AFailureInADragIsReportedAndTheListGoesOn) {
  Load("a b c");
  const auto moved = std::exchange(
      list.MouseMove, [](std::int16_t) { throw RunTimeError(ErrorKind::Table, u"The order can't be k\u00e9pt."); });
  EXPECT_EQ(stage.Play("down lstPrint(1) 0 2"),
            "  failed: The order can't be k\u00e9pt.\n  lists 1: [] [a:1 b:2 >c:3]\n");
  list.MouseMove = moved;
  stage.Play("move lstPrint(1) 1; up lstPrint(1) 1");
  EXPECT_EQ(StateOf(list), "b:2 >*a:1 c:3");
}

TEST_F(ViewScenario, AHandlerMayEmptyRefillAndDisableTheListInADrag) {
  Load("a b c");
  int released = 0;
  list.MouseMove = [&](std::int16_t) {
    list.Clear();
    Fill(list, "x y");
    list.Enabled(false);
  };
  list.MouseUp = [&](std::int16_t) { ++released; };
  EXPECT_EQ(stage.Play("down lstPrint(1) 0 2"), "  lists 1: [] ([x y])\n");
  EXPECT_TRUE(hand.WaitUntil([&] { return released == 1; })) << "what has begun also ends";
  EXPECT_EQ(stage.Play("up lstPrint(1) 0"), "");
  EXPECT_EQ(released, 1);
}

TEST_F(ViewScenario, AViewThatGoesEndsWhatHasBegun) {
  Load("a b c");
  stage.Play("down lstPrint(1) 0 1");
  EXPECT_EQ(dialog.MousePointer(), Dialog::kDragPointer);
  stage.hand.reset();
  EXPECT_EQ(dialog.MousePointer(), Dialog::kDefaultPointer);
  EXPECT_EQ(StateOf(list), "b:2 >*a:1 c:3");
}

TEST_F(ViewScenario, ACaretBeginsAtWhatIsSelected) {
  Load("a b c", "3");
  auto& structures = dialog.Get<ListBox>(u"lstStrStructures");
  structures.Click = {};
  Fill(structures, "x y");
  stage.Play("focus tstPrint; key tstPrint Tab");
  EXPECT_EQ(StateOf(structures), "x y") << "a caret would select";
  stage.Play("key lstStrStructures Shift+Down; key lstStrStructures Ctrl+A");
  EXPECT_EQ(StateOf(structures), ">*x y");
  stage.Play("tab 1");
  list.Click = {};
  list.Selected(0, false);
  list.Selected(1, true);
  EXPECT_EQ(stage.Play("focus cmdRightToLeft(1); key cmdRightToLeft(1) Tab"), "  lists 1: [] [a:1 >*b:2 c:3]\n");
}

TEST_F(ViewScenario, OneEntryIsShownAnewWhereNothingElseChanges) {
  Load("a b c");
  list.Selected(1, true);
  list.List(2, u"other");
  EXPECT_EQ(stage.Play("move lstPrint(1) 0"), "  lists 1: [] [*a:1 *b:2 other:3]\n");
}

TEST_F(ViewScenario, AHandlerMayEmptyTheListThatIsBeingSelected) {
  Load("a b c d");
  list.Click = [&] {
    if (list.SelCount() == 3) list.Clear();
  };
  EXPECT_EQ(stage.Play("key lstPrint(1) Ctrl+A"), "  lists 1: [] []\n");
  Fill(list, "x y z");
  stage.Play("key lstPrint(1) Home; key lstPrint(1) Shift+End");
  EXPECT_EQ(StateOf(list), "");
}

TEST_F(ViewScenario, ABoxShowsWhatItsFilterLeavesWithoutALimit) {
  Load("a", "0");
  auto& box = dialog.Get<TextBox>(u"txtGenMaxPages");
  std::int16_t back = u'C';
  box.KeyPress = [&](std::int16_t& key) {
    key = key == TextBox::kBackspace ? std::exchange(back, std::int16_t{0}) : key == u'a' ? u'B' : key;
  };
  stage.Play("keys txtGenMaxPages a; key txtGenMaxPages Backspace; key txtGenMaxPages Backspace");
  EXPECT_EQ(box.GetText(), u"0BC");

  auto& title = dialog.Get<TextBox>(u"txtGenPrnTitle");
  const Text text = Text(40000, u'x') + u"&\u00fc\U0001F600";
  title.SetText(text);
  stage.Play("key txtGenPrnTitle Home; key txtGenPrnTitle <; key txtGenPrnTitle B; key txtGenPrnTitle >");
  EXPECT_EQ(title.GetText(), u"<b>" + text) << "there is no limit, and no markup";
}

TEST_F(ViewScenario, ACheckBoxShowsWhatItsHandlerLeaves) {
  Load("a", "0");
  auto& check = dialog.Get<CheckBox>(u"chkGenUseColors");
  const std::pair<std::function<void()>, std::string> rows[] = {
      {{}, "1"},
      {[&] { check.Value(1); }, "1"},
      {[] { throw std::runtime_error("refused by the host"); }, "0  failed: refused by the host\n"},
      {[] { throw 5; }, "1  failed: A handler failed without telling why.\n"},
  };
  for (const auto& [click, expected] : rows) {
    check.Click = click;
    const std::string told = stage.Play("key chkGenUseColors Space");
    EXPECT_EQ(StateOf(check) + told, expected);
  }
}

TEST_F(ViewScenario, AComboBoxShowsWhatItsHandlerLeaves) {
  Load("a", "0");
  auto& combo = dialog.Get<ComboBox>(u"cmbGenSignPrsnt");
  combo.Click = [] { throw std::runtime_error("refused"); };
  EXPECT_EQ(stage.Play("key cmbGenSignPrsnt Down"), "  failed: refused\n");
  EXPECT_EQ(StateOf(combo), "-X >X- (X)");
  combo.Click = [&] { combo.Clear(); };
  stage.Play("key cmbGenSignPrsnt Up");
  EXPECT_EQ(StateOf(combo), "");
}

TEST_F(ViewScenario, WhatTheLogicWritesIsSeen) {
  Load("a b c");
  list.Click = {};
  list.Selected(1, true);
  list.List(2, u"new\ntext");
  list.ListIndex(2);
  dialog.Get<CheckBox>(u"chkCharColAutoWidth").Enabled(false);
  dialog.Get<TextBox>(u"txtCharColTitle").SetText(u"written");
  dialog.Get<ComboBox>(u"cmbCharQueryBreak").AddItem(u"added");
  dialog.Get<Label>(u"lblCharCol1").Visible(false);
  list.List(2, u"other");
  EXPECT_EQ(stage.Play(""), "  lists 1: [] [*a:1 *b:2 >other:3]\n");
}

}  // namespace
}  // namespace ORXKMPrintProp::test
