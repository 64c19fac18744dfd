#include <gtest/gtest.h>

#include <optional>

#include "pages/ListRoutines.h"
#include "support/stage.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::test {
namespace {

using namespace ModPrnGen;

TEST(ListRoutines, MoveTheSelectedEntriesInTheirOrder) {
  Dialog dialog;
  auto& source = dialog.Get<ListBox>(u"lstPrint", 1);
  const struct {
    const char* selected;
    std::int16_t target;
    const char* expected;
  } rows[] = {
      {"", 2, "a:1 b:2 c:3 d:4 | x:9"},
      {"bd", 2, "a:1 c:3 | x:9 b:2 d:4"},
      {"abcd", 2, " | x:9 a:1 b:2 c:3 d:4"},
      {"bd", 1, "a:1 c:3 | b:2 d:4 x:9"},
  };
  for (const auto& row : rows) {
    auto& target = dialog.Get<ListBox>(u"lstAvail", row.target);
    source.Clear();
    target.Clear();
    Fill(source, "a b c d");
    Fill(target, "x");
    target.ItemData(0, 9);
    const std::string selected = row.selected;
    for (std::int16_t i = 0; i < 4; ++i) {
      source.ItemData(i, i + 1);
      source.Selected(i, selected.find(static_cast<char>('a' + i)) != std::string::npos);
    }
    EXPECT_EQ(MoveSelectedItems(source, target), static_cast<std::int16_t>(selected.size()));
    EXPECT_EQ(StateOf(source) + " | " + StateOf(target), row.expected) << selected;
  }
}

/// The place that a walk over the entries finds, -1 - i where a combo box has the position at i already.
int WalkedPlace(const EntryWidget& widget, const std::vector<std::int16_t>& positions, std::int16_t position,
                bool once) {
  for (std::int16_t i = 0; i < widget.ListCount(); ++i) {
    if (widget.ItemData(i) <= 0) continue;
    const std::int16_t other = positions[static_cast<std::size_t>(widget.ItemData(i)) - 1];
    if (once && other == position) return -1 - i;
    if (position < other) return i;
  }
  return widget.ListCount();
}

TEST(ListRoutines, InsertWhereAWalkWould) {
  Dialog dialog;
  auto& list = dialog.Get<ListBox>(u"lstPrint", 1);
  auto& combo = dialog.Get<ComboBox>(u"cmbAttrChar");
  unsigned next = 3;
  const auto random = [&](unsigned below) {
    next = next * 1103515245u + 12345u;
    return (next >> 16) % below;
  };
  for (int round = 0; round < 60; ++round) {
    std::vector<std::int16_t> positions;
    const unsigned spread = 1 + random(12);
    for (int item = 0; item < 20; ++item) positions.push_back(static_cast<std::int16_t>(random(spread)) - 3);
    positions[0] = 32767, positions[1] = -32768;
    const PositionOf positionOf = [&](std::int32_t item) { return positions[static_cast<std::size_t>(item) - 1]; };
    const auto compare = [&](auto& widget, bool once, auto insert) {
      widget.Clear();
      // In any order, and some that stand for no item.
      for (std::int16_t i = 0; i < 6; ++i) {
        widget.AddItem(u"e", i);
        widget.ItemData(i, static_cast<std::int32_t>(random(21)) - 1);
      }
      std::optional<PositionInserter> inserter(std::in_place, widget, positionOf);
      for (int i = 0; i < 20; ++i) {
        const auto item = static_cast<std::int32_t>(1 + random(20));
        const int place = WalkedPlace(widget, positions, positionOf(item), once);
        const std::int16_t count = widget.ListCount();
        const bool free = random(2) == 0;
        ASSERT_EQ(free ? insert(item) : inserter->Insert(u"n", item), place < 0 ? -1 - place : place);
        ASSERT_EQ(widget.ListCount(), count + (place >= 0));
        if (place >= 0) {
          ASSERT_EQ(widget.ItemData(static_cast<std::int16_t>(place)), item);
        }
        if (free) inserter.emplace(widget, positionOf);
      }
    };
    compare(list, false, [&](std::int32_t item) { return ListInsertByPosition(list, u"n", item, positionOf); });
    compare(combo, true, [&](std::int32_t item) { return ComboInsertByPosition(combo, u"n", item, positionOf); });
  }
  list.Clear();
  Fill(list, "a");
  EXPECT_EQ(ListInsertByPosition(list, u"b", -1, nullptr), 1);
  EXPECT_EQ(StateOf(list), "a b:-1");
  EXPECT_EQ(std::tuple(BoolToCheck(true), BoolToCheck(false), CheckToBool(1), CheckToBool(2), CheckToBool(0)),
            std::tuple(1, 0, true, true, false));
}

TEST(NumericBoxes, LetDigitsAndBackspaceThrough) {
  Stage stage{Settings(Characteristics("a"))};
  std::string filtered;
  for (const auto& widget : stage.Dialog_().Controls()) {
    auto* const box = dynamic_cast<TextBox*>(widget.get());
    if (!box) continue;
    std::string passed;
    for (const char16_t key : std::u16string_view(u"0a9\b-+.,eE \r\x7f\u0660\u00b2")) {
      if (box->FilterKey(key) == key) passed += ToAscii(Text(1, key));
    }
    if (passed == "09\b") filtered += ToAscii(widget->Row().name.name.substr(3)) + " ";
  }
  EXPECT_EQ(filtered,
            "GenMaxPages GenMarginTop GenMarginBottom GenMarginLeft GenMarginRight CharColWidth1 CharHierLevel "
            "CharColWidth2 AttrColWidth1 AttrColWidth2 StrColWidth ");
}

TEST(Breaks, OfferWhatLiesBelowTheSelectionAbove) {
  const struct {
    const char* characteristics;
    const char* selectors;
    const char* stored;  ///< flags after a commit
  } rows[] = {
      {"a b c d e", ">0 a b c d / >0 a b c d / >0 a b c d", ""},
      {"a bQ cP dA e", "0 a >b c d / 0 >c d / 0 >d", "Qb Pc Ad "},
      {"aP b cQ d e", "0 a b >c d / >0 d / >0 d", "Qc "},
      {"a b c d eQ", ">0 a b c d / >0 a b c d / >0 a b c d", ""},
      {"a bQ c dQ e", "0 a b c >d / >0 / >0", "Qd "},
      {"a b- cQP d e-", "0 a >c / >0 / >0", "Qc "},
      {"a- b-QPA c-", ">0 / >0 / >0", ""},
      {"aQPA", ">0 / >0 / >0", ""},
      {"a bQ", ">0 a / >0 a / >0 a", ""},
      {"a bQ cA d", "0 a >b c / >0 c / 0 >c", "Qb Ac "},
  };
  const auto shortened = [](std::string text) {
    const std::pair<const char*, const char*> shorter[] = {{"<None>:-1", "0"}, {":1", ""}, {":2", ""}, {":3", ""},
                                                           {":4", ""},         {":5", ""}, {":6", ""}};
    for (const auto& [from, to] : shorter) {
      for (std::size_t at; (at = text.find(from)) != std::string::npos;) text.replace(at, std::string(from).size(), to);
    }
    return text;
  };
  const auto flags = [] {
    std::string text;
    for (const auto& c : gPrnProp->Characteristics()) {
      if (c->QueryBreak()) text += "Q" + ToAscii(c->Text()) + " ";
      if (c->PageBreak()) text += "P" + ToAscii(c->Text()) + " ";
      if (c->BreakArea()) text += "A" + ToAscii(c->Text()) + " ";
    }
    return text;
  };
  for (const auto& row : rows) {
    Stage stage{Settings(Characteristics(row.characteristics))};
    EXPECT_EQ(shortened(stage.Breaks()), row.selectors) << row.characteristics;
    stage.Tab(1);
    stage.Read();
    EXPECT_EQ(shortened(stage.Breaks()), row.selectors) << "a commit leaves them: " << row.characteristics;
    EXPECT_EQ(flags(), row.stored) << row.characteristics;
  }

  // What the user then does, each on its own.
  const struct {
    const char* what;
    const char* characteristics;
    std::function<void(Stage&)> action;
    const char* selectors;
    const char* stored;
  } actions[] = {
      {"an earlier cover page resets what lies below", "a bQ cP dA e",
       [](Stage& s) { s.Combo(u"cmbCharQueryBreak").UserPick(1); }, "0 >a b c d / >0 b c d / >0 b c d", "Qa "},
      {"the last offered leaves nothing below", "a bQ cP dA e",
       [](Stage& s) { s.Combo(u"cmbCharQueryBreak").UserPick(4); }, "0 a b c >d / >0 / >0", "Qd "},
      {"a page break narrows the block", "a b c d e", [](Stage& s) { s.Combo(u"cmbCharPageBreak").UserPick(2); },
       ">0 a b c d / 0 a >b c d / >0 c d", "Pb "},
      {"a transfer resets them, with a block at the last", "a bQ cP dA e m-",
       [](Stage& s) {
         s.Click(s.List(u"lstAvail", 1), 0);
         s.Press(u"cmdLeftToRight", 1);
       },
       ">0 a b c d e / >0 a b c d e / 0 a b c d >e", "Ae "},
      {"so does one back, with what was selected gone", "a bQ cP dA e",
       [](Stage& s) {
         s.Click(s.List(u"lstPrint", 1), 0);
         s.Click(s.List(u"lstPrint", 1), 1);
         s.Press(u"cmdRightToLeft", 1);
       },
       ">0 a c d / >0 a c d / 0 a c >d", "Ad "},
      {"two are left", "a b c",
       [](Stage& s) {
         s.Click(s.List(u"lstPrint", 1), 0);
         s.Click(s.List(u"lstPrint", 1), 2);
         s.Press(u"cmdRightToLeft", 1);
       },
       ">0 a / >0 a / 0 >a", "Aa "},
      {"a press with nothing selected stores and keeps", "a bQ cP dA e",
       [](Stage& s) { s.Press(u"cmdLeftToRight", 1); }, "0 a >b c d / 0 >c d / 0 >d", "Qb Pc Ad "},
      {"a drag resets them", "a bQ cP dA e",
       [](Stage& s) {
         s.Drag(s.List(u"lstPrint", 1), {1, 0});
       },
       ">0 b a c d / >0 b a c d / 0 b a c >d", "Ad "},
      {"a drag away and back keeps them", "a bQ cP dA e",
       [](Stage& s) {
         s.Drag(s.List(u"lstPrint", 1), {1, 4, 1});
       },
       "0 a >b c d / 0 >c d / 0 >d", "Qb Pc Ad "},
  };
  for (const auto& row : actions) {
    Stage stage{Settings(Characteristics(row.characteristics))};
    stage.Tab(1);
    row.action(stage);
    EXPECT_EQ(shortened(stage.Breaks()), row.selectors) << row.what;
    stage.Read();
    EXPECT_EQ(shortened(stage.Breaks()), row.selectors) << "committed: " << row.what;
    EXPECT_EQ(flags(), row.stored) << row.what;
  }
}

TEST(Breaks, AreRebuiltForAnOrderThatChangesUnderThem) {
  // A host that reads in its handler commits the new order while the selections are still those of the old one.
  Stage stage{Settings(Characteristics("a bQ cP dA e"))};
  std::string during;
  stage.onOrderChanged = [&] {
    stage.control.ORXDimTable();
    during = stage.Breaks();
  };
  stage.Tab(1);
  stage.Drag(stage.List(u"lstPrint", 1), {3, 4});
  EXPECT_EQ(during, "<None>:-1 a:1 >b:2 c:3 e:5 / <None>:-1 >c:3 e:5 / <None>:-1 >e:5")
      << "the block falls on the last one that is left";
  stage.Drag(stage.List(u"lstPrint", 1), {1, 0});
  EXPECT_EQ(during, ">" + std::string("<None>:-1 b:2 a:1 c:3 e:5 / ><None>:-1 b:2 a:1 c:3 e:5 / "
                                      "<None>:-1 b:2 a:1 c:3 >e:5"));
}

TEST(PositionsOnLoad, OrderTheListAndStandOnceInASelector) {
  Stage stage{
      Settings("IOBJNM='a' IOBJTXT='a' AXIS='Y' POSIT=7\nIOBJNM='h' IOBJTXT='h' POSIT=9\n"
               "IOBJNM='b' IOBJTXT='b' AXIS='Y' POSIT=-1\nIOBJNM='c' IOBJTXT='c' AXIS='Y' POSIT=7\n"
               "IOBJNM='B' IOBJTXT='B' POSIT=1\nIOBJNM='d' IOBJTXT='d' AXIS='Y' POSIT=8 PR_QUERY_BREAK='X'")};
  EXPECT_EQ(stage.Lists(1), "h:2 B:5 | *b:3 a:1 c:4 d:6");
  EXPECT_EQ(StateOf(stage.Combo(u"cmbCharQueryBreak")), "><None>:-1 b:3 a:1");
  EXPECT_EQ(StateOf(stage.Combo(u"cmbAttrChar")), ">b:3 a:1 d:6");
  EXPECT_EQ(stage.ReadDimension(),
            "IOBJNM='a' IOBJTXT='a' POSIT=7 AXIS='Y'\nIOBJNM='h' IOBJTXT='h' POSIT=9\n"
            "IOBJNM='b' IOBJTXT='b' POSIT=-1 AXIS='Y'\nIOBJNM='c' IOBJTXT='c' POSIT=7 AXIS='Y'\n"
            "IOBJNM='B' IOBJTXT='B' POSIT=1\nIOBJNM='d' IOBJTXT='d' POSIT=8 AXIS='Y' PR_QUERY_BREAK='X'\n")
      << "nothing of it is committed before the page is left";
  stage.Tab(1);
  EXPECT_EQ(stage.ReadDimension(),
            "IOBJNM='a' IOBJTXT='a' POSIT=2 AXIS='Y'\nIOBJNM='h' IOBJTXT='h'\nIOBJNM='b' IOBJTXT='b' POSIT=1 AXIS='Y'\n"
            "IOBJNM='c' IOBJTXT='c' POSIT=3 AXIS='Y'\nIOBJNM='B' IOBJTXT='B'\n"
            "IOBJNM='d' IOBJTXT='d' POSIT=4 AXIS='Y'\n");
}

TEST(Transfer, KeepsTheLimitAndTellsTheHost) {
  const std::string message = "Error: You may only use up to ten print characteristics;";
  const struct {
    const char* characteristics;
    std::vector<std::int16_t> available, printed;  ///< clicked ahead of the press
    const char* button;
    std::string events, lists;
  } rows[] = {
      {"a b c d e f g h i x- y-", {0}, {}, "L", "order;", "y:11 | *a:1 b:2 c:3 d:4 e:5 f:6 g:7 h:8 i:9 x:10"},
      {"a b c d e f g h i x- y-", {0, 1}, {}, "L", message, "*x:10 >*y:11 | *a:1 b:2 c:3 d:4 e:5 f:6 g:7 h:8 i:9"},
      {"a b c d e f g h i j x-", {0}, {}, "L", message, ">*x:11 | *a:1 b:2 c:3 d:4 e:5 f:6 g:7 h:8 i:9 j:10"},
      {"a b c d e f g h i j x-", {}, {}, "L", "", "x:11 | *a:1 b:2 c:3 d:4 e:5 f:6 g:7 h:8 i:9 j:10"},
      {"a b c d e f g h i j k", {}, {}, "L", message, " | *a:1 b:2 c:3 d:4 e:5 f:6 g:7 h:8 i:9 j:10 k:11"},
      {"a b c d e f g h i j k", {}, {2, 0}, "R", "order;", "c:3 | a:1 b:2 d:4 e:5 f:6 g:7 h:8 i:9 j:10 k:11"},
      {"c d- K B-", {}, {1}, "R", "order;", "c:1 d:2 B:4 K:3 | "},
      {"a-", {0}, {}, "R", "", ">*a:1 | "},
  };
  for (const auto& row : rows) {
    Stage stage{Settings(Characteristics(row.characteristics))};
    stage.Tab(1);
    for (const std::int16_t entry : row.available) stage.Click(stage.List(u"lstAvail", 1), entry);
    for (const std::int16_t entry : row.printed) stage.Click(stage.List(u"lstPrint", 1), entry);
    std::string model;
    stage.onOrderChanged = [&] {
      for (const auto& c : gPrnProp->Characteristics()) {
        if (!c->Hidden()) model += ToAscii(c->Text()) + std::to_string(c->Position());
      }
    };
    stage.Press(row.button == std::string("L") ? u"cmdLeftToRight" : u"cmdRightToLeft", 1);
    // The caret of the print list is not what this is about.
    std::string lists = stage.Lists(1);
    const std::size_t printed = lists.find(" | ");
    if (const std::size_t caret = lists.find('>', printed); caret != std::string::npos) lists.erase(caret, 1);
    EXPECT_EQ(stage.Events() + " " + lists, row.events + " " + row.lists) << row.characteristics;
    if (row.events == "order;" && row.lists.ends_with("x:10")) {
      EXPECT_EQ(model, "a1b2c3d4e5f6g7h8i9x10") << "the model has the order when the host hears of it";
    }
  }
}

TEST(Drag, MovesAnEntryAndCommitsAtTheEnd) {
  const struct {
    std::vector<std::int16_t> path;
    const char* list;
    const char* events;
    std::int16_t shown;
  } rows[] = {
      {{0, 2}, "b:2 c:3 >*a:1", "order;", 1},
      {{2, 0}, ">*c:3 a:1 b:2", "order;", 3},
      {{0, 1, 2, 1}, "b:2 >*a:1 c:3", "order;", 1},
      {{1, 0, 1}, "a:1 >*b:2 c:3", "", 2},
      {{1, 1}, "a:1 >*b:2 c:3", "", 2},
      {{1}, "a:1 >*b:2 c:3", "", 2},
  };
  for (const auto& row : rows) {
    Stage stage{Settings(Characteristics("a b c"))};
    stage.Tab(1);
    ListBox& list = stage.List(u"lstPrint", 1);
    stage.Click(list, 0);
    list.UserMouseDown(row.path[0], ListBox::kRightButton);
    list.UserMouseUp(ListBox::kRightButton);
    EXPECT_EQ(stage.Events(), "");
    list.UserMouseDown(row.path[0], ListBox::kLeftButton);
    EXPECT_EQ(stage.Dialog_().MousePointer(), 0);
    for (std::size_t i = 1; i < row.path.size(); ++i) {
      list.UserMouseMove(row.path[i]);
      EXPECT_EQ(stage.Dialog_().MousePointer(), 99);
    }
    EXPECT_EQ(stage.Events(), "") << "nothing is raised before the button is released";
    list.UserMouseUp(ListBox::kLeftButton);
    EXPECT_EQ(stage.Dialog_().MousePointer(), 0);
    EXPECT_EQ(StateOf(list) + " " + stage.Events(), std::string(row.list) + " " + row.events);
    EXPECT_EQ(gCurChar, row.shown);
    std::string positions;
    for (std::int16_t i = 0; i < 3; ++i) {
      positions += std::to_string(gPrnProp->Characteristics().Item(list.ItemData(i))->Position());
    }
    EXPECT_EQ(positions, "123");
  }
}

constexpr const char* kTwo =
    "IOBJNM='A' IOBJTXT='a' AXIS='Y' POSIT=1 IOBJPRSNT='0' PR_COL1_HEADER='T' PR_COL1_WIDTH=10 PR_COL2_WIDTH=20 "
    "PR_COL1_ALIGN='R' PR_COL2_ALIGN='C' PR_COL2_FIX='X' HIENM='H' HRY_ACTIVE='X' STRT_LVL=3 NOSUMS='C'\n"
    "IOBJNM='B' IOBJTXT='b' AXIS='Y' POSIT=2 IOBJPRSNT='2' PR_COL1_WIDTH=30 PR_COL2_WIDTH=40 PR_COL2_FIX='X' "
    "STRT_LVL=5";

/// What the settings frame shows.
std::string Frame_(Stage& stage) {
  std::string text;
  for (const auto* const combo : {u"cmbCharPresentation", u"cmbCharColAlign1", u"cmbCharColAlign2", u"cmbCharNoSums"}) {
    text += std::to_string(stage.Combo(combo).ListIndex()) + " ";
  }
  for (const auto* const box : {u"txtCharColTitle", u"txtCharColWidth1", u"txtCharColWidth2", u"txtCharHierLevel"}) {
    text += "'" + ToAscii(stage.Box(box).GetText()) + "' ";
  }
  for (const auto* const check :
       {u"chkCharColAutoWidth", u"chkCharColEachPage1", u"chkCharColEachPage2", u"chkCharHierDisplay"}) {
    text += std::to_string(stage.Check(check).Value());
  }
  return text + " " + ToAscii(stage.Dialog_().Find({u"lblCharCol1"})->Caption()) + "," +
         ToAscii(stage.Dialog_().Find({u"lblCharCol2"})->Caption());
}

constexpr const char* kAllProps =
    "ColTitle Presentation ColAlign1 ColAutoWidth ColWidth1 ColEachPage1 HierDisplay HierLevel NoSums ColAlign2 "
    "ColWidth2 ColEachPage2 QueryBreak PageBreak BreakArea";

TEST(CharFrame, ShowsTheOneSelectedCharacteristic) {
  Stage stage{Settings(kTwo)};
  stage.Tab(1);
  ListBox& list = stage.List(u"lstPrint", 1);
  CommandButton& totals = stage.Button(u"cmdPrintLayout", 4);
  const std::string first = "0 1 2 1 'T' '10' '20' '3' 0011 Key,Description";
  EXPECT_EQ(Frame_(stage), first);
  EXPECT_EQ(stage.EnabledOf(u"Char"), kAllProps);
  EXPECT_EQ(stage.HiddenOf(u"Char"), "");
  stage.Press(u"cmdPrintLayout", 4);
  EXPECT_EQ(stage.Events(), "layout 4 'A';");

  stage.Click(list, 1);
  EXPECT_EQ(Frame_(stage), "-1 -1 -1 -1 '' '' '' '' 0000 Key,Description") << "two are selected";
  EXPECT_EQ(stage.EnabledOf(u"Char"), "QueryBreak PageBreak BreakArea");
  EXPECT_FALSE(totals.Enabled());

  stage.Click(list, 0);
  EXPECT_EQ(Frame_(stage), "2 0 0 0 '' '30' '40' '' 0010 Key,Description");
  EXPECT_EQ(stage.HiddenOf(u"Char"), "ColAlign2 ColWidth2 ColEachPage2");
  EXPECT_EQ(stage.EnabledOf(u"Char"),
            "ColTitle Presentation ColAlign1 ColAutoWidth ColWidth1 ColEachPage1 NoSums ColAlign2 ColWidth2 "
            "ColEachPage2 QueryBreak PageBreak BreakArea");
  EXPECT_TRUE(totals.Enabled());

  // Typed settings survive the change of selection; a hidden second column keeps its values.
  stage.Box(u"txtCharColWidth1").UserEdit(u" 5 0 mm");
  stage.Click(list, 1);
  stage.Click(list, 0);
  EXPECT_EQ(Frame_(stage), first);
  EXPECT_EQ(stage.ReadDimension(),
            "IOBJNM='A' IOBJTXT='a' POSIT=1 AXIS='Y' IOBJPRSNT='0' PR_COL2_FIX='X' PR_COL1_WIDTH=10 PR_COL2_WIDTH=20 "
            "PR_COL1_ALIGN='R' PR_COL2_ALIGN='C' PR_COL1_HEADER='T' PR_COL2_HEADER='T' STRT_LVL=3 HRY_ACTIVE='X' "
            "HIENM='H' NOSUMS='C'\n"
            "IOBJNM='B' IOBJTXT='b' POSIT=2 AXIS='Y' IOBJPRSNT='2' PR_COL2_FIX='X' PR_COL1_WIDTH=50 "
            "PR_COL2_WIDTH=40\n");
}

TEST(CharFrame, FollowsWhatTheUserPicks) {
  const struct {
    const char* what;
    std::function<void(Stage&)> action;
    std::string frame, enabled;
    const char* stored;  ///< the row of the characteristic then, from IOBJPRSNT on
  } rows[] = {
      {"one column", [](Stage& s) { s.Combo(u"cmbCharPresentation").UserPick(1); },
       "1 1 2 1 'T' '10' '0' '3' 0001 Description,Description", kAllProps,
       "PR_COL1_WIDTH=10 PR_COL1_ALIGN='R' PR_COL2_ALIGN='C' PR_COL1_HEADER='T' PR_COL2_HEADER='T' STRT_LVL=3 "
       "HRY_ACTIVE='X' HIENM='H' NOSUMS='C'"},
      {"the other way round", [](Stage& s) { s.Combo(u"cmbCharPresentation").UserPick(3); },
       "3 1 2 1 'T' '10' '20' '3' 0011 Description,Key", kAllProps,
       "IOBJPRSNT='3' PR_COL2_FIX='X' PR_COL1_WIDTH=10 PR_COL2_WIDTH=20 PR_COL1_ALIGN='R' PR_COL2_ALIGN='C' "
       "PR_COL1_HEADER='T' PR_COL2_HEADER='T' STRT_LVL=3 HRY_ACTIVE='X' HIENM='H' NOSUMS='C'"},
      {"automatic width", [](Stage& s) { s.Check(u"chkCharColAutoWidth").UserToggle(); },
       "0 1 2 1 'T' '' '' '3' 1011 Key,Description",
       "ColTitle Presentation ColAlign1 ColAutoWidth ColEachPage1 HierDisplay HierLevel NoSums ColAlign2 "
       "ColEachPage2 QueryBreak PageBreak BreakArea",
       "IOBJPRSNT='0' PR_COL2_FIX='X' PR_AUTO_WIDTH='X' PR_COL1_ALIGN='R' PR_COL2_ALIGN='C' PR_COL1_HEADER='T' "
       "PR_COL2_HEADER='T' STRT_LVL=3 HRY_ACTIVE='X' HIENM='H' NOSUMS='C'"},
      {"automatic width there and back, with typed text gone",
       [](Stage& s) {
         s.Box(u"txtCharColWidth1").UserEdit(u"99");
         s.Check(u"chkCharColAutoWidth").UserToggle();
         s.Check(u"chkCharColAutoWidth").UserToggle();
       },
       "0 1 2 1 'T' '10' '20' '3' 0011 Key,Description", kAllProps,
       "IOBJPRSNT='0' PR_COL2_FIX='X' PR_COL1_WIDTH=10 PR_COL2_WIDTH=20 PR_COL1_ALIGN='R' PR_COL2_ALIGN='C' "
       "PR_COL1_HEADER='T' PR_COL2_HEADER='T' STRT_LVL=3 HRY_ACTIVE='X' HIENM='H' NOSUMS='C'"},
      {"no hierarchy", [](Stage& s) { s.Check(u"chkCharHierDisplay").UserToggle(); },
       "0 1 2 1 'T' '10' '20' '' 0010 Key,Description",
       "ColTitle Presentation ColAlign1 ColAutoWidth ColWidth1 ColEachPage1 HierDisplay NoSums ColAlign2 ColWidth2 "
       "ColEachPage2 QueryBreak PageBreak BreakArea",
       "IOBJPRSNT='0' PR_COL2_FIX='X' PR_COL1_WIDTH=10 PR_COL2_WIDTH=20 PR_COL1_ALIGN='R' PR_COL2_ALIGN='C' "
       "PR_COL1_HEADER='T' PR_COL2_HEADER='T' HIENM='H' NOSUMS='C'"},
      {"a number that does not fit keeps the old one, no number is 0",
       [](Stage& s) {
         s.Box(u"txtCharColWidth1").UserEdit(u"32768");
         s.Box(u"txtCharColWidth2").UserEdit(u"wide");
         s.Box(u"txtCharHierLevel").UserEdit(u"1e9");
         s.Box(u"txtCharColTitle").UserEdit(u" x ");
       },
       "0 1 2 1 ' x ' '32768' 'wide' '1e9' 0011 Key,Description", kAllProps,
       "IOBJPRSNT='0' PR_COL2_FIX='X' PR_COL1_WIDTH=10 PR_COL1_ALIGN='R' PR_COL2_ALIGN='C' PR_COL1_HEADER=' x ' "
       "PR_COL2_HEADER=' x ' STRT_LVL=3 HRY_ACTIVE='X' HIENM='H' NOSUMS='C'"},
  };
  for (const auto& row : rows) {
    Stage stage{Settings(kTwo)};
    stage.Tab(1);
    row.action(stage);
    EXPECT_EQ(Frame_(stage), row.frame) << row.what;
    EXPECT_EQ(stage.EnabledOf(u"Char"), row.enabled) << row.what;
    const std::string dimension = stage.ReadDimension();
    EXPECT_EQ(dimension.substr(0, dimension.find('\n')),
              std::string("IOBJNM='A' IOBJTXT='a' POSIT=1 AXIS='Y' ") + row.stored)
        << row.what;
  }
}

TEST(CharFrame, CommitsTheCharacteristicThatLeavesThePrintList) {
  Stage stage{Settings(kTwo)};
  stage.Tab(1);
  stage.Box(u"txtCharColTitle").UserEdit(u"typed");
  stage.Press(u"cmdRightToLeft", 1);
  EXPECT_EQ(stage.Lists(1), "a:1 | b:2");
  EXPECT_EQ(gCurChar, -1);
  EXPECT_EQ(gPrnProp->Characteristics().Item(1)->ColTitle(), u"typed");
  EXPECT_EQ(Frame_(stage), "-1 -1 -1 -1 '' '' '' '' 0000 Key,Description");
  stage.Press(u"cmdPrintLayout", 4);
  EXPECT_EQ(stage.Events(), "order;") << "the totals row has no characteristic";
  stage.Tab(0);
  stage.Tab(1);
  EXPECT_EQ(stage.Lists(1) + " " + std::to_string(gCurChar), "a:1 | *b:2 2");
}

TEST(ReadOnly, LetsTheUserLookButNotTouch) {
  Stage stage{Settings(kTwo)};
  stage.Tab(1);
  ListBox& list = stage.List(u"lstPrint", 1);
  stage.control.ORXSetReadOnly(true);
  EXPECT_EQ(stage.EnabledOf(u"Char") + stage.EnabledOf(u"Gen") + stage.EnabledOf(u"Avail") +
                stage.EnabledOf(u"LeftToRight") + stage.EnabledOf(u"RightToLeft"),
            "");
  EXPECT_EQ(stage.EnabledOf(u"Print"), "Layout Layout Layout Layout  Layout  ")
      << "print lists and layout buttons stay usable";
  stage.Drag(list, {0, 1});
  EXPECT_EQ(stage.Lists(1) + " " + stage.Events(), " | a:1 >b:2 ") << "a drag does nothing but toggle";
  stage.Click(list, 1);
  EXPECT_EQ(Frame_(stage), "2 0 0 0 '' '30' '40' '' 0010 Key,Description");
  EXPECT_EQ(stage.EnabledOf(u"Char"), "");
  stage.Press(u"cmdPrintLayout", 4);
  EXPECT_EQ(stage.Events(), "layout 4 'B';");

  stage.Click(list, 1);
  stage.Click(list, 0);
  stage.Check(u"chkCharColAutoWidth").Value(1);
  stage.control.ORXSetReadOnly(false);
  EXPECT_EQ(stage.EnabledOf(u"Char"), kAllProps) << "widths too, until the frame is shown again";
}

TEST(HostInAnEvent, MayCallAnythingBack) {
  const std::string dim = Characteristics("a bQ c d");
  const Settings other(Characteristics("v wP xA y z"));
  const auto drag = [](Stage& stage) { stage.Drag(stage.List(u"lstPrint", 1), {0, 2}); };
  const auto transfer = [](Stage& stage) { stage.Press(u"cmdRightToLeft", 1); };
  for (const bool byDrag : {true, false}) {
    const auto act = [&](Stage& stage) {
      stage.Tab(1);
      byDrag ? drag(stage) : transfer(stage);
    };
    {
      Stage stage{Settings(dim)};
      std::string read;
      stage.onOrderChanged = [&] { read = stage.ReadDimension(); };
      act(stage);
      EXPECT_EQ(read.substr(0, 40),
                byDrag ? "IOBJNM='a' IOBJTXT='a' POSIT=3 AXIS='Y'\n" : "IOBJNM='a' IOBJTXT='a'\nIOBJNM='b' IOBJTX");
    }
    {
      const Settings next(Characteristics("v wP xA y z"));
      Stage stage{Settings(dim)};
      stage.onOrderChanged = [&] { next.LoadInto(stage.control); };
      act(stage);
      EXPECT_EQ(stage.Lists(1), " | *v:1 w:2 x:3 y:4 z:5");
      EXPECT_EQ(stage.Breaks(), "><None>:-1 v:1 w:2 x:3 y:4 / <None>:-1 v:1 >w:2 x:3 y:4 / <None>:-1 >x:3 y:4")
          << "nothing is reset in the settings that have just been loaded";
    }
    {
      Stage stage{Settings(dim)};
      stage.onOrderChanged = [&] { stage.control.ORXSetReadOnly(true); };
      act(stage);
      EXPECT_EQ(stage.EnabledOf(u"Char"), "");
      EXPECT_EQ(stage.Dialog_().MousePointer(), 0);
    }
    {
      Stage stage{Settings(dim)};
      stage.onOrderChanged = [] { throw RunTimeError(ErrorKind::Table, u"host"); };
      EXPECT_THROW(act(stage), RunTimeError);
      stage.onOrderChanged = [] {};
      stage.Events();
      stage.Drag(stage.List(u"lstPrint", 1), {0, 1});
      EXPECT_EQ(stage.Events(), "order;") << "the dialog stays usable";
    }
  }
  // Whoever loads in the handler, and however it goes: the list of the old settings is never stored into the new ones.
  for (const int how : {0, 1, 2}) {
    Stage other{Settings(Characteristics("k"))};
    Stage stage{Settings(dim)};
    const Settings next(Characteristics("vQ wP xA y z"), "", "", how == 1 ? "" : "TITLE='N'");
    const Settings bad("IOBJNM='v' AXIS='Y' POSIT=1\nIOBJNM='w' POSIT='x'");
    stage.onOrderChanged = [&] {
      if (how == 0) next.LoadInto(other.control);
      if (how == 1) next.LoadInto(stage.control);
      if (how == 2) bad.LoadInto(stage.control);
    };
    stage.Tab(1);
    if (how == 2) {
      EXPECT_THROW(drag(stage), RunTimeError);
    } else {
      drag(stage);
    }
    std::string model;
    for (const auto& c : gPrnProp->Characteristics()) {
      model += ToAscii(c->Name()) + std::to_string(c->Position()) + (c->QueryBreak() ? "Q" : "") + " ";
    }
    EXPECT_EQ(model, how == 0 ? "v1Q w2 x3 y4 z5 " : how == 1 ? "" : "v1 ");
  }
  Stage stage{Settings(Characteristics("a b c d e f g h i j k-"))};
  stage.onMessage = [&] { other.LoadInto(stage.control); };
  stage.Tab(1);
  stage.Click(stage.List(u"lstAvail", 1), 0);
  stage.Press(u"cmdLeftToRight", 1);
  EXPECT_EQ(stage.Lists(1), " | *v:1 w:2 x:3 y:4 z:5");
}

}  // namespace
}  // namespace ORXKMPrintProp::test
