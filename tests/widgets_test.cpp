#include <gtest/gtest.h>

#include <stdexcept>

#include "dialog/Dialog.h"
#include "support/table_text.h"
#include "support/transcript.h"
#include "support/user_step.h"
#include "support/widget_text.h"
#include "tables/RunTimeError.h"
#include "texts/LookupText.h"

namespace ORXKMPrintProp::test {
namespace {

/// The widgets of the last page without the page: a list of several selections, one of a single one, a combo box, a
/// check box, a text box and a button. The steps are those of user_step.h and a program's:
///
///     add LIST x, add LIST 1 x (there), remove LIST 0, clear LIST, text LIST 0 X, data LIST 0 7
///     index LIST 2, select LIST 1, deselect LIST 1, value CHECK 2, page 0, caption 0 (of that page's tab)
///     enable WIDGET, disable WIDGET, show WIDGET, hide WIDGET
///
/// The state: what each widget holds, with the number of selected entries for the first list; and "tab". Events are
/// told with the entry at the caret.
class WidgetPlayer : public Player {
 public:
  WidgetPlayer();

 protected:
  void DoStep(const std::string& line) override;
  Lines State() override;

 private:
  Widget& Named(const char* name) { return *dialog_.FindSpelled(Wide(name)); }
  void Hear(EntryWidget& widget);

  Dialog dialog_;
};

WidgetPlayer::WidgetPlayer() : Player({}) {
  dialog_.TabStrip().Tab(kStrTab);
  for (const char* const name : {"lstPrint(3)", "lstStrStructures", "cmbStrColAlign"}) {
    auto& widget = dynamic_cast<EntryWidget&>(Named(name));
    Fill(widget, "a b c d");
    Hear(widget);
  }
  auto& check = dynamic_cast<CheckBox&>(Named("chkStrColAutoWidth"));
  check.Click = [this, &check] { Tell("Click at value " + StateOf(check)); };
  dynamic_cast<CommandButton&>(Named("cmdLeftToRight(3)")).Click = [this] { Tell("Click of the button"); };
  dialog_.TabStrip().Click = [this](std::int16_t previous) {
    Tell("Click from tab " + std::to_string(previous) + " to " + StateOf(dialog_.TabStrip()));
  };
  shown_.lines = State();
}

void WidgetPlayer::Hear(EntryWidget& widget) {
  const auto tell = [this, &widget](const std::string& event) {
    Tell(event + " of " + ToAscii(widget.Row().name.Spelled()) + " at " + std::to_string(widget.ListIndex()));
  };
  const auto telling = [tell](const std::string& event) {
    return [tell, event](std::int16_t button) { tell(event + " " + std::to_string(button)); };
  };
  widget.Click = [tell] { tell("Click"); };
  auto* const list = dynamic_cast<ListBox*>(&widget);
  if (!list) return;
  list->MouseDown = telling("MouseDown");
  list->MouseMove = telling("MouseMove");
  list->MouseUp = telling("MouseUp");
}

void WidgetPlayer::DoStep(const std::string& line) {
  const UserStep step(dialog_, line);
  const std::int16_t number = step.numbers.empty() ? std::int16_t{-1} : step.numbers[0];
  const Text text = Wide(line.substr(line.rfind(' ') + 1));
  Widget* const widget = step.widget;
  auto* const entries = dynamic_cast<EntryWidget*>(widget);
  auto* const list = dynamic_cast<ListBox*>(widget);
  SSTab& tabs = dialog_.TabStrip();
  const Steps steps{
      {"add", [&] { step.numbers.empty() ? entries->AddItem(text) : entries->AddItem(text, number); }},
      {"remove", [&] { entries->RemoveItem(number); }},
      {"clear", [&] { entries->Clear(); }},
      {"text", [&] { entries->List(number, text); }},
      {"data", [&] { entries->ItemData(number, step.numbers.at(1)); }},
      {"index", [&] { entries->ListIndex(number); }},
      {"select", [&] { list->Selected(number, true); }},
      {"deselect", [&] { list->Selected(number, false); }},
      {"value", [&] { dynamic_cast<CheckBox&>(*widget).Value(number); }},
      {"page", [&] { tabs.Tab(static_cast<std::int16_t>(std::stoi(ToAscii(text)))); }},
      {"caption", [&] { tabs.TabCaption(static_cast<std::int16_t>(std::stoi(ToAscii(text))), u"x"); }},
      {"enable", [&] { widget->Enabled(true); }},
      {"disable", [&] { widget->Enabled(false); }},
      {"show", [&] { widget->Visible(true); }},
      {"hide", [&] { widget->Visible(false); }},
  };
  if (DoOneOf(steps, step.verb)) return;
  const Refusal refusal = step.Do();
  if (refusal != Refusal::None) Tell(std::string("refused: ") + WordsOf(refusal));
}

Player::Lines WidgetPlayer::State() {
  Lines lines{{"tab", StateOf(dialog_.TabStrip())}};
  for (const auto& widget : dialog_.Controls()) {
    if (widget->Row().page == kStrTab) lines[ToAscii(widget->Row().name.Spelled())] = StateOf(*widget);
  }
  const auto& list = dynamic_cast<const ListBox&>(Named("lstPrint(3)"));
  lines["lstPrint(3)"] += ", " + std::to_string(list.SelCount()) + " selected";
  return lines;
}

TEST(Widgets, DoWhatAProgramAndAUserSay) {
  PlayTranscript(PRNPROP_PAGES "/widgets.txt", [] { return std::make_unique<WidgetPlayer>(); });
}

class WidgetsTest : public testing::Test {
 protected:
  WidgetsTest() {
    dialog.TabStrip().Tab(kStrTab);
    for (EntryWidget* const widget : std::initializer_list<EntryWidget*>{&multi, &combo}) Fill(*widget, "a b c d");
  }

  Dialog dialog;
  ListBox& multi = dialog.Get<ListBox>(u"lstPrint", kStrTab);
  ComboBox& combo = dialog.Get<ComboBox>(u"cmbStrColAlign");
  CheckBox& check = dialog.Get<CheckBox>(u"chkStrColAutoWidth");
  TextBox& box = dialog.Get<TextBox>(u"txtStrColTitle");
};

TEST_F(WidgetsTest, ASortedListTakesAnEntryAheadOfTheFirstThatSortsBehindIt) {
  auto& sorted = dialog.Get<ListBox>(u"lstAvail", 1);
  for (const char16_t* const text : {u"b", u"a", u"C", u"B"}) sorted.AddItem(text);
  EXPECT_EQ(StateOf(sorted), "a b B C") << "regardless of case";
  unsigned next = 7;
  const auto random = [&](int below) {
    next = next * 1103515245u + 12345u;
    return static_cast<std::int16_t>((next >> 16) % static_cast<unsigned>(below));
  };
  for (int step = 0; step < 3000; ++step) {
    const Text text(1, static_cast<char16_t>((random(2) == 0 ? u'a' : u'A') + random(20)));
    const std::int16_t count = sorted.ListCount();
    const int what = count > 30 ? 1 : random(6);
    if (what == 0) {
      sorted.AddItem(text, random(count + 1));
    } else if (what == 1) {
      if (count > 0) sorted.RemoveItem(random(count));
    } else if (what == 2) {
      if (count > 0) sorted.List(random(count), text);
    } else {
      std::int16_t place = 0;
      while (place < count && Platform::Plain().CompareTexts(sorted.List(place), text) <= 0) ++place;
      sorted.AddItem(text);
      ASSERT_EQ(sorted.NewIndex(), place) << step;
    }
  }
}

TEST_F(WidgetsTest, AHandlerMayChangeItsOwnWidget) {
  multi.Click = [this] {
    if (multi.ListCount() > 0) multi.Clear();
    Fill(multi, "new");
  };
  multi.UserMouseDown(2, ListBox::kLeftButton);
  multi.UserMouseMove(0);
  multi.UserMouseUp(ListBox::kLeftButton);
  combo.Click = [this] {
    if (combo.ListIndex() == 1) combo.ListIndex(0);
    if (combo.ListIndex() == 2) combo.RemoveItem(2);
  };
  combo.UserPick(1);
  check.Click = [&] { check.Value(0); };
  check.UserToggle();
  EXPECT_EQ(StateOf(multi) + " | " + StateOf(combo) + " | " + StateOf(check), "new | >a b c d | 0");
  multi.MouseDown = [this](std::int16_t) { multi.Clear(); };
  multi.UserMouseDown(0, ListBox::kLeftButton);
  multi.UserMouseUp(ListBox::kLeftButton);
  combo.UserPick(2);
  EXPECT_EQ(StateOf(multi) + " | " + StateOf(combo), " | a b d");
}

TEST_F(WidgetsTest, AStepThatFailsLeavesNoButtonDown) {
  int moves = 0;
  multi.MouseMove = [&](std::int16_t) {
    ++moves;
    throw std::runtime_error("host");
  };
  multi.ListIndex(0);
  EXPECT_THROW(multi.UserDragStep(1), std::runtime_error);
  multi.UserMouseMove(2);
  EXPECT_EQ(moves, 1);
}

TEST_F(WidgetsTest, AListTakesWhatItsNumbersCount) {
  while (multi.ListCount() < 32767) multi.AddItem(u"");
  EXPECT_THROW(multi.AddItem(u"one more"), RunTimeError);
  EXPECT_EQ(multi.ListCount(), 32767);
}

TEST_F(WidgetsTest, KeysGoThroughTheFilterAndTheClipboardPastIt) {
  const auto type = [&](TextView keys) {
    for (const char16_t key : keys) box.UserKey(key);
    return ToAscii(box.GetText());
  };
  EXPECT_EQ(type(u"a b\n\x1b"), "a b");
  EXPECT_EQ(type(u"\b\bc"), "ac");
  EXPECT_EQ(type(u"\b\b\bx\U0001F600\b"), "x") << "both halves of a character go";
  box.UserEdit(u"\xDC00\xDC00");
  EXPECT_EQ(type(u"\b"), "?") << "two that are none go one by one";
  box.UserEdit(u"x");
  std::vector<int> codes;
  box.KeyPress = [&](std::int16_t& code) {
    codes.push_back(code);
    if (code == u'1') code = u'2';
    if (code == u'x') code = 0;
  };
  EXPECT_EQ(type(u"1x\uFFFD3"), "x2?3");
  EXPECT_EQ(codes, (std::vector<int>{u'1', u'x', -3, u'3'}));
  box.UserEdit(u"1x");
  EXPECT_EQ(box.GetText(), u"1x");
}

TEST(TheDialog, ShowsItsStoredCaptionsUntilTextsAreApplied) {
  gTextTable.reset();
  Dialog dialog;
  auto& combo = dialog.Get<ComboBox>(u"cmbGenSumPosit");
  const auto shown = [&] {
    const Text captions = dialog.TabStrip().TabCaption(1) + u"|" + dialog.Find({u"lblAttrChar"})->Caption() + u"|" +
                          dialog.Find({u"cmdPrintLayout", 4})->Caption() + u"|" +
                          dialog.Find({u"cmdLeftToRight", 2})->Caption() + u"|" +
                          dialog.Find({u"lstPrint", 2})->ToolTipText();
    return ToAscii(captions) + "|" + StateOf(combo);
  };
  EXPECT_EQ(shown(), "Merkmale|Merkmal|Summenzeile|>>||");
  dialog.ApplyTexts();
  EXPECT_EQ(shown(),
            "Characteristics|Characteristic|Totals row|>>|Attributes to be printed; selection of print order via drag "
            "and drop|top/left bottom/right");
  combo.ListIndex(1);
  combo.Click = [] { ADD_FAILURE() << "items change in place"; };
  gTextTable = TableFrom(Kind::Texts,
                         "TARGETID='ID_PRN_CHAR' CAPTION='C'\nTARGETID='ID_PRN_TTLSTCHARPRINT' CAPTION='L'\n"
                         "TARGETID='ID_PRN_SUMPOSIT_2' CAPTION='second'");
  gTextTable->Columns()->KeyColumn(std::int32_t{1});
  dialog.ApplyTexts();
  EXPECT_EQ(shown(), "C|C|Totals row|>>|L|top/left >second");
  gTextTable.reset();
}

}  // namespace
}  // namespace ORXKMPrintProp::test
