#include <gtest/gtest.h>

#include <sstream>

#include "pages/Dialog.h"
#include "support/table_text.h"
#include "support/widget_text.h"
#include "tables/RunTimeError.h"
#include "texts/LookupText.h"

namespace ORXKMPrintProp::test {
namespace {

class WidgetsTest : public testing::Test {
 protected:
  WidgetsTest() {
    for (EntryWidget* const widget : std::initializer_list<EntryWidget*>{&multi, &sorted, &single, &combo}) {
      widget->Click = [this, widget] {
        events += std::string(events.empty() ? "" : " ") + "Click" + std::to_string(widget->ListIndex());
      };
    }
    dialog.TabStrip().Tab(3);
  }

  /// Whether the action fails with an index error.
  template <class Action>
  static bool IsOutOfRange(Action action) {
    try {
      action();
    } catch (const RunTimeError& error) {
      return error.Kind() == ErrorKind::Index;
    }
    return false;
  }

  std::string Events() { return std::exchange(events, ""); }

  Dialog dialog;
  ListBox& multi = dialog.Get<ListBox>(u"lstPrint", 3);
  ListBox& sorted = dialog.Get<ListBox>(u"lstAvail", 1);
  ListBox& single = dialog.Get<ListBox>(u"lstStrStructures");
  ComboBox& combo = dialog.Get<ComboBox>(u"cmbStrColAlign");
  std::string events;
};

TEST_F(WidgetsTest, EntriesKeepWhatBelongsToThemWhenOthersComeAndGo) {
  Fill(multi, "a b c d");
  for (std::int16_t i = 0; i < 4; ++i) multi.ItemData(i, 10 + i);
  multi.Selected(1, true);
  multi.Selected(3, true);
  multi.ListIndex(2);
  EXPECT_EQ(Events(), "Click-1 Click-1 Click2");
  EXPECT_EQ(StateOf(multi), "a:10 *b:11 >c:12 *d:13");

  multi.AddItem(u"x", std::int16_t{2});
  EXPECT_EQ(multi.NewIndex(), 2);
  EXPECT_EQ(StateOf(multi), "a:10 *b:11 x >c:12 *d:13");
  multi.RemoveItem(0);
  multi.AddItem(u"y", multi.ListCount());
  EXPECT_EQ(StateOf(multi), "*b:11 x >c:12 *d:13 y");
  EXPECT_EQ(multi.SelCount(), 2);
  multi.RemoveItem(0);
  multi.RemoveItem(1);
  EXPECT_EQ(StateOf(multi), "x *d:13 y") << "the caret goes with its entry";
  EXPECT_EQ(multi.SelCount(), 1);
  multi.Clear();
  EXPECT_EQ(StateOf(multi), "");
  EXPECT_EQ(multi.SelCount(), 0);
  EXPECT_EQ(Events(), "") << "coming and going raises nothing";
}

TEST_F(WidgetsTest, OutOfRangeFailsAndChangesNothing) {
  Fill(multi, "a b");
  Fill(combo, "a b");
  multi.Selected(0, true);
  combo.ListIndex(1);
  Events();
  for (const std::int16_t bad : {std::int16_t{-1}, std::int16_t{2}, std::int16_t{32767}}) {
    EXPECT_TRUE(IsOutOfRange([&] { multi.RemoveItem(bad); }));
    EXPECT_TRUE(IsOutOfRange([&] { multi.ItemData(bad, 1); }));
    EXPECT_TRUE(IsOutOfRange([&] { multi.ItemData(bad); }));
    EXPECT_TRUE(IsOutOfRange([&] { multi.List(bad); }));
    EXPECT_TRUE(IsOutOfRange([&] { multi.Selected(bad, true); }));
    EXPECT_TRUE(IsOutOfRange([&] { multi.Selected(bad); }));
    EXPECT_TRUE(IsOutOfRange([&] { combo.RemoveItem(bad); }));
    EXPECT_EQ(IsOutOfRange([&] { multi.AddItem(u"x", bad); }), bad != 2);
    EXPECT_EQ(IsOutOfRange([&] { combo.ListIndex(bad == -1 ? std::int16_t{-2} : bad); }), true);
    if (bad == 2) multi.RemoveItem(2);
  }
  EXPECT_TRUE(IsOutOfRange([&] { dialog.TabStrip().Tab(4); }));
  EXPECT_TRUE(IsOutOfRange([&] { dialog.TabStrip().TabCaption(-1, u"x"); }));
  EXPECT_EQ(StateOf(multi) + "|" + StateOf(combo) + "|" + Events(), "*a b|a >b|");
}

TEST_F(WidgetsTest, ClickComesWithAChangeOnly) {
  Fill(combo, "a b c");
  combo.ListIndex(2);
  combo.ListIndex(2);
  combo.ListIndex(-1);
  combo.ListIndex(-1);
  EXPECT_EQ(Events(), "Click2 Click-1");
  Fill(single, "a b");
  single.ListIndex(1);
  single.ListIndex(1);
  single.Selected(0, true);
  EXPECT_EQ(StateOf(single), ">*a b");
  single.ListIndex(-1);
  EXPECT_EQ(StateOf(single) + "|" + Events(), "a b|Click1 Click0 Click-1");

  auto& check = dialog.Get<CheckBox>(u"chkStrColAutoWidth");
  std::string values;
  check.Click = [&] { values += std::to_string(check.Value()); };
  check.Value(1);
  check.Value(1);
  check.Value(2);
  EXPECT_EQ(check.UserToggle(), Refusal::None);
  check.UserToggle();
  EXPECT_EQ(values, "1201");

  std::string pages;
  dialog.TabStrip().Click = [&](std::int16_t previous) {
    pages += std::to_string(previous) + std::to_string(dialog.TabStrip().Tab()) + " ";
  };
  dialog.TabStrip().UserPick(3);
  dialog.TabStrip().UserPick(1);
  dialog.TabStrip().Tab(0);
  EXPECT_EQ(dialog.TabStrip().UserPick(4), Refusal::NoSuchEntry);
  EXPECT_EQ(pages, "31 10 ");
}

TEST_F(WidgetsTest, TheShownEntryOfAComboStaysShown) {
  Fill(combo, "a b c");
  combo.ListIndex(1);
  combo.AddItem(u"x", std::int16_t{1});
  EXPECT_EQ(StateOf(combo), "a x >b c");
  combo.AddItem(u"y");
  combo.RemoveItem(0);
  EXPECT_EQ(StateOf(combo), "x >b c y");
  combo.List(1, u"B");
  combo.RemoveItem(2);
  EXPECT_EQ(StateOf(combo), "x >B y");
  combo.RemoveItem(1);
  EXPECT_EQ(StateOf(combo), "x y");
  EXPECT_EQ(Events(), "Click1");
}

TEST_F(WidgetsTest, ASortedListTakesAnEntryAheadOfTheFirstThatSortsBehindIt) {
  const struct {
    const char* entries;
    const char* added;
    const char* expected;
  } rows[] = {
      {"", "b a C B", "a b B C"},  // regardless of case, an equal one goes behind
      {"d b c a", "c", "c d b c a"},     {"b d a c", "c", "b c d a c"}, {"b d a c", "e", "b d a c e"},
      {"b d a c", "a B", "a b B d a c"}, {"z z", "z", "z z z"},
  };
  for (const auto& row : rows) {
    sorted.Clear();
    Fill(sorted, row.entries);
    std::istringstream added(row.added);
    for (std::string text; added >> text;) {
      sorted.AddItem(Wide(text));
      EXPECT_EQ(sorted.List(sorted.NewIndex()), Wide(text));
    }
    EXPECT_EQ(StateOf(sorted), row.expected) << row.entries << " + " << row.added;
  }
}

TEST_F(WidgetsTest, ASortedListFindsThePlaceThatAWalkFinds) {
  unsigned next = 7;
  const auto random = [&](unsigned below) {
    next = next * 1103515245u + 12345u;
    return (next >> 16) % below;
  };
  for (int step = 0; step < 3000; ++step) {
    const Text text(1, static_cast<char16_t>((random(2) ? u'a' : u'A') + random(20)));
    const auto count = static_cast<unsigned>(sorted.ListCount());
    switch (count > 30 ? 3 : random(5)) {
      case 0:
        sorted.AddItem(text, static_cast<std::int16_t>(random(count + 1)));
        break;
      case 3:
        if (count > 0) sorted.RemoveItem(static_cast<std::int16_t>(random(count)));
        break;
      default: {
        std::int16_t place = 0;
        while (place < sorted.ListCount() && dialog.GetView().CompareTexts(sorted.List(place), text) <= 0) ++place;
        sorted.AddItem(text);
        ASSERT_EQ(sorted.NewIndex(), place) << step;
      }
    }
  }
}

TEST_F(WidgetsTest, TheMouseTogglesOrSelectsAndHoldsTheCaret) {
  const auto note = [this](const char* name) {
    return [this, name](std::int16_t button) {
      events += std::string(" ") + name + std::to_string(button) + "@" + std::to_string(multi.ListIndex());
    };
  };
  multi.MouseDown = note("Down");
  multi.MouseUp = note("Up");
  multi.MouseMove = note("Move");
  Fill(multi, "a b c");
  multi.UserMouseDown(1, ListBox::kLeftButton);
  multi.UserMouseUp(ListBox::kLeftButton);
  EXPECT_EQ(Events(), " Down1@1 Click1 Up1@1");
  multi.UserMouseDown(2, ListBox::kRightButton);
  EXPECT_EQ(multi.UserMouseMove(0), Refusal::None) << "without the left button nothing follows the pointer";
  multi.UserMouseUp(ListBox::kRightButton);
  EXPECT_EQ(StateOf(multi) + Events(), "a *b >c Down2@2 Up2@2");

  multi.UserMouseDown(0, ListBox::kLeftButton);
  multi.UserMouseMove(2);
  multi.RemoveItem(0);
  multi.AddItem(u"x", std::int16_t{1});
  EXPECT_EQ(multi.ListIndex(), 2) << "the entry under the pointer";
  EXPECT_EQ(multi.UserMouseMove(3), Refusal::NoSuchEntry);
  multi.RemoveItem(2);
  EXPECT_EQ(multi.ListIndex(), -1) << "none under the pointer any more";
  multi.UserMouseUp(ListBox::kLeftButton);
  multi.AddItem(u"y");
  EXPECT_EQ(StateOf(multi) + Events(), "*b x y Down1@0 Click0 Move1@2 Up1@-1");

  Fill(single, "a b");
  single.UserMouseDown(1, ListBox::kLeftButton);
  single.UserMouseUp(ListBox::kLeftButton);
  single.UserMouseDown(1, ListBox::kLeftButton);
  single.UserMouseUp(ListBox::kLeftButton);
  single.UserMouseDown(0, ListBox::kRightButton);
  single.UserMouseUp(ListBox::kRightButton);
  EXPECT_EQ(StateOf(single) + "|" + Events(), ">a *b|Click1");

  multi.UserMoveCaret(0);
  multi.UserToggle();
  multi.UserMoveCaret(1);
  single.UserMoveCaret(1);
  EXPECT_EQ(StateOf(multi) + "|" + StateOf(single) + "|" + Events(), "b >x y|a >*b|Click0");
}

TEST_F(WidgetsTest, AHandlerMayChangeItsOwnWidget) {
  Fill(multi, "a b c");
  multi.Click = [this] {
    if (multi.ListCount() > 0) multi.Clear();
    Fill(multi, "new");
  };
  multi.UserMouseDown(2, ListBox::kLeftButton);
  multi.UserMouseMove(0);
  multi.UserMouseUp(ListBox::kLeftButton);
  EXPECT_EQ(StateOf(multi), "new") << "what was under the pointer is gone";
  multi.MouseDown = [this](std::int16_t) { multi.Clear(); };
  multi.UserMouseDown(0, ListBox::kLeftButton);
  multi.UserMouseUp(ListBox::kLeftButton);
  EXPECT_EQ(StateOf(multi), "");

  Fill(combo, "a b c");
  combo.Click = [this] {
    if (combo.ListIndex() == 1) combo.ListIndex(0);
    if (combo.ListIndex() == 2) combo.RemoveItem(2);
  };
  combo.UserPick(1);
  EXPECT_EQ(StateOf(combo), ">a b c");
  combo.UserPick(2);
  EXPECT_EQ(StateOf(combo), "a b");

  auto& check = dialog.Get<CheckBox>(u"chkStrColAutoWidth");
  check.Click = [&] { check.Value(0); };
  check.UserToggle();
  EXPECT_EQ(check.Value(), 0);
}

TEST_F(WidgetsTest, KeysGoThroughTheFilterAndTheClipboardPastIt) {
  auto& box = dialog.Get<TextBox>(u"txtStrColTitle");
  const auto type = [&](TextView keys) {
    for (const char16_t key : keys) box.UserKey(key);
    return ToAscii(box.GetText());
  };
  EXPECT_EQ(type(u"a b\n\x1b"), "a b");
  EXPECT_EQ(type(u"\b\bc"), "ac");
  EXPECT_EQ(type(u"\b\b\b"), "");
  type(u"x\U0001F600");
  EXPECT_EQ(box.GetText().size(), 3u);
  EXPECT_EQ(type(u"\b"), "x") << "both halves of a character go";
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
  int presses = 0;
  button.Click = [&] { ++presses; };
  auto& check = dialog.Get<CheckBox>(u"chkStrColAutoWidth");
  auto& box = dialog.Get<TextBox>(u"txtStrColTitle");
  Fill(multi, "a");
  Fill(combo, "a");
  const auto refusals = [&] {
    std::string text;
    for (const Refusal refusal :
         {button.UserPress(), check.UserToggle(), box.UserKey(u'k'), box.UserEdit(u"p"), combo.UserPick(0),
          combo.UserPick(1), multi.UserMouseDown(0, ListBox::kLeftButton), multi.UserMouseDown(1, 1),
          multi.UserMouseMove(0), multi.UserMoveCaret(0), multi.UserToggle()}) {
      text += std::to_string(static_cast<int>(refusal));
    }
    multi.UserMouseUp(ListBox::kLeftButton);
    return text;
  };
  const auto state = [&] {
    return std::to_string(presses) + std::to_string(check.Value()) + ToAscii(box.GetText()) + StateOf(combo) +
           StateOf(multi);
  };
  const std::string before = state();
  const std::initializer_list<Widget*> widgets{&button, &check, &box, &combo, &multi};
  for (Widget* const widget : widgets) widget->Enabled(false);
  EXPECT_EQ(refusals(), "33333333333");
  for (Widget* const widget : widgets) widget->Visible(false);
  EXPECT_EQ(refusals(), "22222222222");
  dialog.TabStrip().Tab(2);
  EXPECT_EQ(refusals(), "11111111111");
  EXPECT_EQ(state(), before);
  dialog.TabStrip().Tab(3);
  for (Widget* const widget : widgets) widget->Visible(true), widget->Enabled(true);
  EXPECT_EQ(refusals(), "00000404000");
  EXPECT_EQ(state(), "11p>a>a");
}

TEST(TheDialog, ShowsItsStoredCaptionsUntilTextsAreApplied) {
  gTextTable.reset();
  Dialog dialog;
  auto& combo = dialog.Get<ComboBox>(u"cmbGenSumPosit");
  const auto shown = [&] {
    return ToAscii(dialog.TabStrip().TabCaption(0) + u"|" + dialog.Find({u"lblAttrChar"})->Caption() + u"|" +
                   dialog.Find({u"cmdPrintLayout", 4})->Caption() + u"|" +
                   dialog.Find({u"cmdLeftToRight", 2})->Caption() + u"|" +
                   dialog.Find({u"lstPrint", 2})->ToolTipText()) +
           "|" + StateOf(combo);
  };
  EXPECT_EQ(shown(), "Allgemein|Merkmal|Summenzeile|>>||");
  dialog.ApplyTexts();
  EXPECT_EQ(shown(),
            "General|Characteristic|Totals row|>>|Attributes to be printed; selection of print order via drag and "
            "drop|top/left bottom/right");

  // A second pass changes the items in place.
  combo.ListIndex(1);
  int clicks = 0;
  combo.Click = [&] { ++clicks; };
  gTextTable = TableFrom(Kind::Texts,
                         "TARGETID='ID_PRN_CHAR' CAPTION='C'\nTARGETID='ID_PRN_TTLSTCHARPRINT' CAPTION='L'\n"
                         "TARGETID='ID_PRN_SUMPOSIT_2' CAPTION='second'");
  gTextTable->Columns()->KeyColumn(std::int32_t{1});
  dialog.ApplyTexts();
  EXPECT_EQ(shown(), "General|C|Totals row|>>|L|top/left >second");
  EXPECT_EQ(dialog.TabStrip().TabCaption(1), u"C");
  EXPECT_EQ(dialog.Find({u"lstPrint", 1})->ToolTipText(), u"L");
  EXPECT_EQ(dialog.Find({u"lstPrint", 3})->ToolTipText(),
            u"Structure elements to be printed; set print order via drag and drop");
  EXPECT_EQ(clicks, 0);
  gTextTable.reset();
}

/// A platform that counts how often it is asked.
class CountingPlatform : public RBDoubleByteCS::FontPlatform {
 public:
  Text GetTextFace(Context context, std::size_t length) override {
    ++asked;
    return FontPlatform::GetTextFace(context, length);
  }
  int asked = 0;
};

TEST(TheDialog, GivesEveryWidgetTheFaceThatThePlatformIsAskedForOnce) {
  gDefaultFontName.clear();
  CountingPlatform platform;
  for (int control = 0; control < 2; ++control) {
    Dialog dialog;
    dialog.Find({u"lblGenMaxPages"})->FontName(u"other");
    dialog.ApplyDialogFont(platform);
    for (const auto& widget : dialog.Controls()) {
      const Font& font = widget->GetFont();
      EXPECT_EQ(std::tuple(font.Name, font.Size, font.Weight), std::tuple(Text(u"MS Sans Serif"), 8.25, 400));
    }
  }
  EXPECT_EQ(platform.asked, 1);
}

}  // namespace
}  // namespace ORXKMPrintProp::test
