#include <gtest/gtest.h>

#include "dialog/Dialog.h"
#include "support/table_text.h"
#include "support/widget_text.h"
#include "tables/RunTimeError.h"
#include "texts/LookupText.h"

namespace ORXKMPrintProp::test {
namespace {

class WidgetsTest : public testing::Test {
 protected:
  WidgetsTest() {
    for (EntryWidget* const widget : std::initializer_list<EntryWidget*>{&multi, &single, &combo}) {
      Fill(*widget, "a b c d");
      widget->Click = [this, widget] { events += "Click" + std::to_string(widget->ListIndex()) + " "; };
    }
    check.Click = [this] { events += "Value" + std::to_string(check.Value()) + " "; };
    dialog.TabStrip().Tab(3);
  }

  /// The lists and the combo box, and what has been heard since the last time.
  std::string State() {
    return StateOf(multi) + " | " + StateOf(single) + " | " + StateOf(combo) + " | " + std::exchange(events, "");
  }

  Dialog dialog;
  ListBox& multi = dialog.Get<ListBox>(u"lstPrint", 3);
  ListBox& single = dialog.Get<ListBox>(u"lstStrStructures");
  ComboBox& combo = dialog.Get<ComboBox>(u"cmbStrColAlign");
  CheckBox& check = dialog.Get<CheckBox>(u"chkStrColAutoWidth");
  TextBox& box = dialog.Get<TextBox>(u"txtStrColTitle");
  std::string events;
};

TEST_F(WidgetsTest, AWriteRaisesClickWhereItChangesSomething) {
  for (const bool again : {false, true}) {
    multi.Selected(1, true);
    multi.Selected(3, true);
    multi.ListIndex(2);
    single.ListIndex(1);
    combo.ListIndex(2);
    check.Value(2);
    EXPECT_EQ(State(), std::string("a *b >c *d | a >*b c d | a b >c d | ") +
                           (again ? "" : "Click-1 Click-1 Click2 Click1 Click2 Value2 "));
  }
  single.Selected(0, true);
  EXPECT_EQ(State(), "a *b >c *d | >*a b c d | a b >c d | Click0 ");
  for (EntryWidget* const widget : std::initializer_list<EntryWidget*>{&multi, &single, &combo}) widget->ListIndex(-1);
  check.UserToggle();
  EXPECT_EQ(State(), "a *b c *d | a b c d | a b c d | Click-1 Click-1 Click-1 Value0 ");

  dialog.TabStrip().Click = [&](std::int16_t previous) {
    events += std::to_string(previous) + std::to_string(dialog.TabStrip().Tab()) + " ";
  };
  dialog.TabStrip().UserPick(3);
  dialog.TabStrip().UserPick(1);
  EXPECT_EQ(dialog.TabStrip().UserPick(4), Refusal::NoSuchEntry);
  dialog.TabStrip().Tab(0);
  EXPECT_EQ(events, "31 10 ");
}

TEST_F(WidgetsTest, EntriesKeepWhatBelongsToThemWhenOthersComeAndGo) {
  for (std::int16_t i = 0; i < 4; ++i) multi.ItemData(i, 10 + i);
  multi.Selected(1, true);
  multi.Selected(3, true);
  multi.ListIndex(2);
  combo.ListIndex(1);
  State();
  for (EntryWidget* const widget : std::initializer_list<EntryWidget*>{&multi, &combo}) {
    widget->AddItem(u"x", std::int16_t{1});
    EXPECT_EQ(widget->NewIndex(), 1);
    widget->RemoveItem(0);
    widget->AddItem(u"y", widget->ListCount());
    widget->List(0, u"X");
  }
  EXPECT_EQ(State() + std::to_string(multi.SelCount()), "X *b:11 >c:12 *d:13 y | a b c d | X >b c d y | 2");
  for (const std::int16_t gone : {std::int16_t{2}, std::int16_t{1}}) {
    multi.RemoveItem(gone);
    combo.RemoveItem(gone);
  }
  EXPECT_EQ(State() + std::to_string(multi.SelCount()), "X *d:13 y | a b c d | X d y | 1");
  multi.Clear();
  EXPECT_EQ(State() + std::to_string(multi.SelCount()), " | a b c d | X d y | 0");
}

TEST_F(WidgetsTest, OutOfRangeFailsAndChangesNothing) {
  multi.Selected(0, true);
  combo.ListIndex(1);
  const std::string before = State();
  for (const std::int16_t bad : {std::int16_t{-2}, std::int16_t{5}, std::int16_t{32767}}) {
    EXPECT_THROW(multi.AddItem(u"x", bad), RunTimeError);
    EXPECT_THROW(multi.RemoveItem(bad), RunTimeError);
    EXPECT_THROW(multi.List(bad), RunTimeError);
    EXPECT_THROW(multi.ItemData(bad, 1), RunTimeError);
    EXPECT_THROW(multi.Selected(bad, true), RunTimeError);
    EXPECT_THROW(combo.ListIndex(bad), RunTimeError);
    EXPECT_THROW(dialog.TabStrip().Tab(bad), RunTimeError);
    EXPECT_THROW(dialog.TabStrip().TabCaption(bad, u"x"), RunTimeError);
    EXPECT_THROW(dialog.TabStrip().TabCaption(bad), RunTimeError);
  }
  EXPECT_EQ(State() + "Click-1 Click1 ", before);
}

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
    const int what = count > 30 ? 1 : random(5);
    if (what == 0) {
      sorted.AddItem(text, random(count + 1));
    } else if (what == 1) {
      if (count > 0) sorted.RemoveItem(random(count));
    } else {
      std::int16_t place = 0;
      while (place < count && Platform::Plain().CompareTexts(sorted.List(place), text) <= 0) ++place;
      sorted.AddItem(text);
      ASSERT_EQ(sorted.NewIndex(), place) << step;
    }
  }
}

TEST_F(WidgetsTest, TheMouseTogglesOrSelectsAndHoldsTheCaret) {
  const auto note = [this](const char* name) {
    return [this, name](std::int16_t button) {
      events += name + std::to_string(button) + "@" + std::to_string(multi.ListIndex()) + " ";
    };
  };
  multi.MouseDown = note("Down");
  multi.MouseUp = note("Up");
  multi.MouseMove = note("Move");
  for (ListBox* const list : {&multi, &single, &single}) {
    list->UserMouseDown(1, ListBox::kLeftButton);
    list->UserMouseUp(ListBox::kLeftButton);
  }
  EXPECT_EQ(State(), "a >*b c d | a >*b c d | a b c d | Down1@1 Click1 Up1@1 Click1 ");
  for (ListBox* const list : {&multi, &single}) {
    list->UserMouseDown(2, ListBox::kRightButton);
    EXPECT_EQ(list->UserMouseMove(0), Refusal::None) << "without the left button nothing follows the pointer";
    list->UserMouseUp(ListBox::kRightButton);
  }
  EXPECT_EQ(State(), "a *b >c d | a *b >c d | a b c d | Down2@2 Up2@2 ");

  multi.UserMouseDown(0, ListBox::kLeftButton);
  multi.UserMouseMove(3);
  multi.RemoveItem(0);
  multi.AddItem(u"x", std::int16_t{1});
  EXPECT_EQ(multi.ListIndex(), 3) << "the entry under the pointer";
  EXPECT_EQ(multi.UserMouseMove(4), Refusal::NoSuchEntry);
  multi.RemoveItem(3);
  EXPECT_EQ(multi.ListIndex(), -1) << "none under the pointer any more";
  multi.UserMouseUp(ListBox::kLeftButton);
  multi.AddItem(u"y");
  EXPECT_EQ(State(), "*b x c y | a *b >c d | a b c d | Down1@0 Click0 Move1@3 Up1@-1 ");

  multi.UserMoveCaret(0);
  multi.UserToggle();
  multi.UserMoveCaret(1);
  single.UserMoveCaret(1);
  single.UserMoveCaret(0);
  EXPECT_EQ(State(), "b >x c y | >*a b c d | a b c d | Click0 Click0 ");
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
  EXPECT_EQ(State() + std::to_string(check.Value()), "new | a b c d | >a b c d | 0");
  multi.MouseDown = [this](std::int16_t) { multi.Clear(); };
  multi.UserMouseDown(0, ListBox::kLeftButton);
  multi.UserMouseUp(ListBox::kLeftButton);
  combo.UserPick(2);
  EXPECT_EQ(State(), " | a b c d | a b d | ");
}

TEST_F(WidgetsTest, KeysGoThroughTheFilterAndTheClipboardPastIt) {
  const auto type = [&](TextView keys) {
    for (const char16_t key : keys) box.UserKey(key);
    return ToAscii(box.GetText());
  };
  EXPECT_EQ(type(u"a b\n\x1b"), "a b");
  EXPECT_EQ(type(u"\b\bc"), "ac");
  EXPECT_EQ(type(u"\b\b\bx\U0001F600\b"), "x") << "both halves of a character go";
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

TEST_F(WidgetsTest, RefuseWhatAUserCouldNotDo) {
  auto& button = dialog.Get<CommandButton>(u"cmdLeftToRight", 3);
  button.Click = [&] { events += "Press "; };
  const auto state = [&] { return ToAscii(box.GetText()) + " | " + State(); };
  const auto refusals = [&] {
    std::string text;
    for (const Refusal refusal :
         {button.UserPress(), check.UserToggle(), box.UserKey(u'k'), box.UserEdit(u"p"), combo.UserPick(0),
          combo.UserPick(4), multi.UserMouseDown(0, ListBox::kLeftButton), multi.UserMouseDown(4, 1),
          multi.UserMouseMove(0), multi.UserMoveCaret(0), multi.UserToggle()}) {
      text += std::to_string(static_cast<int>(refusal));
    }
    multi.UserMouseUp(ListBox::kLeftButton);
    return text;
  };
  const std::initializer_list<Widget*> widgets{&button, &check, &box, &combo, &multi};
  for (Widget* const widget : widgets) widget->Enabled(false);
  EXPECT_EQ(refusals(), "33333333333");
  for (Widget* const widget : widgets) widget->Visible(false);
  EXPECT_EQ(refusals(), "22222222222");
  dialog.TabStrip().Tab(2);
  EXPECT_EQ(refusals(), "11111111111");
  EXPECT_EQ(state(), " | a b c d | a b c d | a b c d | ");
  dialog.TabStrip().Tab(3);
  for (Widget* const widget : widgets) {
    widget->Visible(true);
    widget->Enabled(true);
  }
  EXPECT_EQ(refusals(), "00000404000");
  EXPECT_EQ(state(), "p | >a b c d | a b c d | >a b c d | Press Value1 Click0 Click0 Click0 ");
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
