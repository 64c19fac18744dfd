#include <gtest/gtest.h>

#include <sstream>

#include "support/widget_text.h"
#include "views/Fitting.h"
#include "views/Keys.h"
#include "views/ListPointer.h"
#include "views/Places.h"
#include "views/SpokenName.h"

namespace ORXKMPrintProp::test {
namespace {

using namespace views;

TEST(Places, MeetAtTheirRoundedEdges) {
  // The transfer buttons' list and its label, whose edges fall between pixels.
  const Geometry upper{120, 1200, 1935, 255}, lower{120, 1455, 1935, 2595};
  for (const double dpi : {72.0, 96.0, 120.0, 144.0, 192.0}) {
    const Place above = PlaceOf(upper, {dpi, dpi}), below = PlaceOf(lower, {dpi, dpi});
    EXPECT_EQ(above.top + above.height, below.top) << dpi;
  }
  EXPECT_EQ(PlaceOf({128, 130, 56, 30}, {96, 144}), (Place{9, 13, 3, 3}));
  EXPECT_EQ(TabHeightAt({96, 144}), 29);
}

/// Every character is as wide as the letters are high, in tenths: ten characters of full size are 100 wide.
int TenthsOf(TextView text, int percent) { return static_cast<int>(text.size()) * percent / 10; }

TEST(Captions, GetSmallerAndAreThenCut) {
  const struct {
    const char16_t* text;
    int width;
    const char16_t* shown;
    int percent;
  } rows[] = {{u"", 0, u"", 100},
              {u"0123456789", 100, u"0123456789", 100},
              {u"0123456789", 99, u"0123456789", 95},
              {u"0123456789", 70, u"0123456789", 70},
              {u"0123456789", 69, u"01234567\u2026", 70},
              {u"0123456789", 14, u"0\u2026", 70},
              {u"0123456789", 3, u"\u2026", 70},
              {u"01\U0001F600456789", 28, u"01\u2026", 70}};
  for (const auto& row : rows) {
    const FittedText fitted = Fit(row.text, row.width, TenthsOf);
    EXPECT_EQ(std::tuple(fitted.text, fitted.percent, fitted.isCut),
              std::tuple(Text(row.shown), row.percent, row.shown != TextView(row.text)))
        << ToAscii(row.text) << " in " << row.width;
  }
  const auto tabs = [](int width) {
    const FittedTabs fitted = FitTabs(4, width, [](int tab, int percent) { return (tab + 1) * percent; });
    return std::to_string(fitted.percent) + (fitted.areCut ? " cut" : "");
  };
  EXPECT_EQ(tabs(1300) + ", " + tabs(1050) + ", " + tabs(900) + ", " + tabs(600), "100, 90, 75, 70 cut");
  EXPECT_EQ(ToolTipWith(u"cut", u"tip") + ToolTipWith(u"", u"tip") + ToolTipWith(u"cut", u""), u"cut\ntiptipcut");
}

TEST(TypedLetters, SearchForOneTextWhileTheyFollowEachOther) {
  Dialog dialog;
  auto& combo = dialog.Get<ComboBox>(u"cmbAttrChar");
  Fill(combo, "ab Ac b abc");
  combo.ListIndex(0);
  const struct {
    const char16_t* typed;
    int seconds;  ///< since the key before
    int found;    ///< -1 for none
  } rows[] = {{u"a", 9, 1}, {u"A", 0, 3}, {u"a", 0, 0}, {u"b", 9, 2},  {u"a", 9, 3},
              {u"b", 0, 3}, {u"c", 0, 3}, {u"b", 0, 2}, {u"x", 0, -1}, {u"c", 9, -1}};
  TypeAhead search;
  TypeAhead::Clock::time_point now;
  for (const auto& row : rows) {
    now += std::chrono::seconds(row.seconds);
    const auto found = search.Find(combo, row.typed, now);
    EXPECT_EQ(found.value_or(-1), row.found) << ToAscii(row.typed) << " at " << StateOf(combo);
    if (found) combo.ListIndex(*found);
  }
}

/// A list of which three entries are seen, each ten pixels high.
struct Glass : ListGlass {
  int Height() const override { return 30; }
  int EntryAt(int y) const override { return y < 0 || y >= 30 || top + y / 10 >= 5 ? -1 : top + y / 10; }
  void ScrollBy(int step) override { top = std::clamp(top + step, 0, 2); }
  void RunTimer(bool on) override { isRunning = on; }
  void ReleaseLater() override { isToBeReleased = true; }
  void Perform(const std::function<void()>& action) override { action(); }

  int top = 0;
  bool isRunning = false;
  bool isToBeReleased = false;
};

TEST(ThePointerInAList, EndsWhatItHasBegun) {
  Dialog dialog;
  dialog.TabStrip().Tab(kStrTab);
  auto& list = dialog.Get<ListBox>(u"lstPrint", kStrTab);
  std::string events;
  const auto note = [&](char name) {
    return [&events, &list, name](std::int16_t button) {
      events += name + std::to_string(button) + "@" + std::to_string(list.ListIndex()) + " ";
    };
  };
  list.MouseDown = note('d');
  list.MouseMove = note('m');
  list.MouseUp = note('u');
  Glass glass;
  const struct {
    const char* what;
    std::function<void(ListPointer&)> acts;
    const char* events;
  } rows[] = {
      {"a click", [](auto& p) { p.Press(1, false, 25), p.Release(1); }, "d1@2 u1@2 "},
      {"below the entries, another button, one that means nothing",
       [](auto& p) { p.Press(1, false, 31), p.Press(1, true, 5), p.Press(0, false, 5), p.Release(1); }, ""},
      {"a drag that pauses while another button is held",
       [](auto& p) { p.Press(1, false, 5), p.Move(true, true, 15), p.Move(true, false, 25), p.Release(1); },
       "d1@0 m1@2 u1@2 "},
      {"a drag that scrolls below",
       [&](auto& p) {
         p.Press(1, false, 5), p.Move(true, false, 40);
         EXPECT_TRUE(glass.isRunning);
         p.OnTimer(), p.OnTimer(), p.OnTimer(), p.Move(true, false, 15);
         EXPECT_FALSE(glass.isRunning);
         p.Move(true, false, -1), p.OnTimer(), p.OnTimer(), p.Release(1);
       },
       "d1@0 m1@2 m1@3 m1@4 m1@4 m1@3 m1@2 m1@1 m1@0 u1@0 "},
      {"a release that came to something else", [](auto& p) { p.Press(1, false, 5), p.Move(false, false, 9); },
       "d1@0 u1@0 "},
      {"a press after a release that did not come",
       [](auto& p) { p.Press(2, false, 5), p.Press(1, false, 15), p.Release(2); }, "d2@0 u2@0 d1@1 u1@1 "},
      {"a list that is disabled in a drag",
       [&](auto& p) {
         p.Press(1, false, 5), p.LetGo();
         EXPECT_TRUE(std::exchange(glass.isToBeReleased, false));
         p.Release(), p.LetGo();
         EXPECT_FALSE(glass.isToBeReleased);
       },
       "d1@0 u1@0 "},
  };
  for (const auto& row : rows) {
    list.Clear();
    Fill(list, "a b c d e");
    glass = Glass();
    events.clear();
    {
      ListPointer pointer(list, glass);
      row.acts(pointer);
    }
    EXPECT_EQ(events, row.events) << row.what;
  }
}

TEST(SpokenNames, AreThoseOfTheLabelsAboutAField) {
  Dialog dialog;
  dialog.ApplyTexts();
  dialog.Get<Label>(u"lblCharCol1").Caption(u"Key & more");
  const std::pair<TextView, TextView> names[] = {
      {u"txtGenPrnTitle", u"Print title"},
      {u"lstAvail(3)", u"Available structure elements"},
      {u"cmbCharColAlign2", u"Alignment, Column 2"},
      {u"txtCharColWidth1", u"Width, Key & more"},
      {u"chkAttrColEachPage2", u"On each page, Column 2"},
      {u"chkGenUseColors", u"Use Colors"},
      {u"cmdPrintLayout(4)", u"Totals row"},
      {u"cmdLeftToRight(1)", u"Transfer selected available characteristics to print characteristics"},
  };
  for (const auto& [widget, name] : names) {
    EXPECT_EQ(SpokenName(dialog, *dialog.FindSpelled(widget)).Spoken(), name) << ToAscii(widget);
  }
}

}  // namespace
}  // namespace ORXKMPrintProp::test
