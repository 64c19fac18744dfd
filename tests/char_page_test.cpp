#include <gtest/gtest.h>

#include <optional>
#include <sstream>

#include "pages/ListRoutines.h"
#include "support/stage.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::test {
namespace {

using namespace ModPrnGen;

TEST(ListRoutines, InsertAheadOfTheFirstGreaterPosition) {
  // Positions by entry, "x" for an entry that stands for no item; the inserted ones have a plus sign.
  const struct {
    const char *entries, *inserted, *list, *combo;
  } rows[] = {
      {"", "3 1 2 2", "+1 +2 +2 +3", "+1 +2 +3"},
      {"5 3 7", "4 6 8 5", "+4 5 3 +5 +6 7 +8", "+4 5 3 +6 7 +8"},
      {"5 3 7", "3", "+3 5 3 7", "+3 5 3 7"},
      {"x x 5 x", "4 9 1", "x x +1 +4 5 x +9", "x x +1 +4 5 x +9"},
      {"32767 -32768", "32767 -32768 0", "+-32768 +0 32767 -32768 +32767", "+-32768 +0 32767 -32768"},
  };
  Dialog dialog;
  const auto result = [](auto& widget, const auto& row) {
    std::vector<std::int16_t> positions;
    Fill(widget, row.entries);
    for (std::int16_t i = 0; i < widget.ListCount(); ++i) {
      const bool isItem = widget.List(i) != u"x";
      positions.push_back(isItem ? ToInteger(widget.List(i)) : std::int16_t{0});
      widget.ItemData(i, isItem ? i + 1 : i - 1);
    }
    PositionInserter inserter(widget, [&](std::int32_t item) { return positions[static_cast<std::size_t>(item) - 1]; });
    std::istringstream inserted(row.inserted);
    for (std::int16_t position; inserted >> position;) {
      positions.push_back(position);
      const std::int16_t index = inserter.Insert(u"+" + ToText(position), static_cast<std::int32_t>(positions.size()));
      EXPECT_EQ(positions.at(static_cast<std::size_t>(widget.ItemData(index)) - 1), position);
    }
    std::string text;
    for (std::int16_t i = 0; i < widget.ListCount(); ++i) text += (i > 0 ? " " : "") + ToAscii(widget.List(i));
    widget.Clear();
    return text;
  };
  for (const auto& row : rows) {
    EXPECT_EQ(result(dialog.Get<ListBox>(u"lstPrint", 1), row), row.list);
    EXPECT_EQ(result(dialog.Get<ComboBox>(u"cmbAttrChar"), row), row.combo);
  }
}

TEST(NumericBoxes, LetDigitsAndBackspaceThrough) {
  Stage stage;
  std::string filtered;
  for (const auto& widget : stage.control.GetDialog().Controls()) {
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

TEST(Order, FollowsTransfersAndDragsWithTheBreaks) {
  const struct {
    const char *what, *characteristics, *steps, *heard, *lists, *breaks, *committed;
  } rows[] = {
      {"flags of the last one", "a bQPA", "see model", "", "[] [*a b]", "[>0 a] [>0 a] [>0 a]", "a1 b2"},
      {"an earlier cover page resets what lies below", "a bQ cP dA e", "pick cmbCharQueryBreak 1", "",
       "[] [*a b c d e]", "[0 >a b c d] [>0 b c d] [>0 b c d]", "a1Q b2 c3 d4 e5"},
      {"a transfer resets them, with a block at the last", "a bQ cP dA e m-",
       "click lstAvail(1) 0; press cmdLeftToRight(1)", "order;", "[] [*a b c d e m]",
       "[>0 a b c d e] [>0 a b c d e] [0 a b c d >e]", "a1 b2 c3 d4 e5A m6"},
      {"so does one back, with what was selected gone", "a bQ cP dA e",
       "click lstPrint(1) 0; click lstPrint(1) 1; press cmdRightToLeft(1)", "order;", "[b] [a c d e]",
       "[>0 a c d] [>0 a c d] [0 a c >d]", "a1 b- c2 d3A e4"},
      {"a press with nothing selected keeps them", "a bQ cP dA e", "press cmdLeftToRight(1)", "", "[] [*a b c d e]",
       "[0 a >b c d] [0 >c d] [0 >d]", "a1 b2Q c3P d4A e5"},
      {"a drag resets them, and the entry that takes the old place loses its selection", "a bQ cP dA e",
       "click lstPrint(1) 1 0", "order;", "[] [>*b a c d e]", "[>0 b a c d] [>0 b a c d] [0 b a c >d]",
       "a2 b1 c3 d4A e5"},
      {"a drag away and back keeps them", "a bQ cP dA e", "click lstPrint(1) 1 4 1", "", "[] [*a >*b c d e]",
       "[0 a >b c d] [0 >c d] [0 >d]", "a1 b2Q c3P d4A e5"},
      {"a drag over several places is one", "a b c", "click lstPrint(1) 0; click lstPrint(1) 0 1 2 1", "order;",
       "[] [b >*a c]", "[>0 b a] [>0 b a] [0 b >a]", "a2A b1 c3"},
      {"the tenth", "a b c d e f g h i x- y-", "click lstAvail(1) 0; press cmdLeftToRight(1)", "order;",
       "[y] [*a b c d e f g h i x]", "[>0 a b c d e f g h i] [>0 a b c d e f g h i] [0 a b c d e f g h >i]",
       "a1 b2 c3 d4 e5 f6 g7 h8 i9A x10 y-"},
      {"the eleventh is refused", "a b c d e f g h i x- y-",
       "click lstAvail(1) 0; click lstAvail(1) 1; press cmdLeftToRight(1)", "message;", "[*x >*y] [*a b c d e f g h i]",
       "[>0 a b c d e f g h] [>0 a b c d e f g h] [>0 a b c d e f g h]", "a1 b2 c3 d4 e5 f6 g7 h8 i9 x- y-"},
      {"two keep their order", "a x- y-", "click lstAvail(1) 1; click lstAvail(1) 0; press cmdLeftToRight(1)", "order;",
       "[] [*a x y]", "[>0 a x] [>0 a x] [0 a >x]", "a1 x2A y3"},
      {"back to their places by text", "c d- K B-", "click lstPrint(1) 1; press cmdRightToLeft(1)", "order;",
       "[c d B K] []", "[>0] [>0] [>0]", "c- d- K- B-"},
  };
  for (const auto& row : rows) {
    Stage stage{Settings(Characteristics(row.characteristics))};
    std::string heard;
    stage.onOrderChanged = [&] { heard += "order;"; };
    stage.onMessage = [&] { heard += "message;"; };
    const std::string lists = row.lists + std::string(" / ") + row.breaks;
    EXPECT_EQ(stage.After(std::string("tab 1; ") + row.steps, {"lists 1", "breaks"}), lists) << row.what;
    EXPECT_EQ(stage.After("read dimension", {"lists 1", "breaks", "model"}), lists + " / " + row.committed) << row.what;
    EXPECT_EQ(heard, row.heard) << row.what;
  }
}

TEST(Order, IsHeardAsTheModelHasItThen) {
  ExpectAll({{"a drag is committed at its end", Settings(Characteristics("a b c")), R"(tab 1
click lstPrint(1) 0
  frame 1: ('' -1 -1 0 '' 0 0 '' -1 #4 -1 '' 0) Description Column 2
  lists 1: [] [>a:1 b:2 c:3]
down lstPrint(1) 0
  frame 1: '' 1 0 0 '0' 0 (0 '') 0 {0 '0' 0} Description {Column 2}
  lists 1: [] [>*a:1 b:2 c:3]
move lstPrint(1) 0
  pointer: 99
move lstPrint(1) 2
  lists 1: [] [b:2 c:3 >*a:1]
up lstPrint(1)
  event: order of a1 b2 c3
  breaks: [><None>:-1 b:2 c:3] [><None>:-1 b:2 c:3] [<None>:-1 b:2 >c:3]
  model: a3 b1 c2
  pointer: 0
)"},
             {"a transfer ahead of the event", Settings(Characteristics("a b c-")), R"(tab 1
click lstAvail(1) 0; press cmdLeftToRight(1)
  event: order of a1 b2 c3
  breaks: [><None>:-1 a:1 b:2] [><None>:-1 a:1 b:2] [<None>:-1 a:1 >b:2]
  lists 1: [] [*a:1 b:2 c:3]
  model: a1 b2 c3
)"},
             {"no more than ten", Settings(Characteristics("a b c d e f g h i j k-")), R"(tab 1
click lstAvail(1) 0; press cmdLeftToRight(1)
  Error: You may only use up to ten print characteristics
  lists 1: [>*k:11] [*a:1 b:2 c:3 d:4 e:5 f:6 g:7 h:8 i:9 j:10]
)"}});
}

TEST(Breaks, AreRebuiltForAnOrderThatAHostReadsInItsHandler) {
  // The new order is committed while the selections are still those of the old one.
  Stage stage{Settings(Characteristics("a bQ cP dA e"))};
  std::string during;
  stage.onOrderChanged = [&] { during = stage.After("read dimension", {"breaks"}); };
  EXPECT_EQ(stage.After("tab 1; click lstPrint(1) 3 4", {"lists 1", "breaks"}),
            "[] [*a b c e >*d] / [>0 a b c e] [>0 a b c e] [0 a b c >e]");
  EXPECT_EQ(during, "[0 a >b c e] [0 >c e] [0 >e]") << "the block falls on the last one that is left";
}

constexpr const char* kTwo =
    "IOBJNM='A' IOBJTXT='a' AXIS='Y' POSIT=1 IOBJPRSNT='0' PR_COL1_HEADER='T' PR_COL1_WIDTH=10 PR_COL2_WIDTH=20 "
    "PR_COL1_ALIGN='R' PR_COL2_ALIGN='C' PR_COL2_FIX='X' HIENM='H' HRY_ACTIVE='X' STRT_LVL=3 NOSUMS='C'\n"
    "IOBJNM='B' IOBJTXT='b' AXIS='Y' POSIT=2 IOBJPRSNT='2' PR_COL1_WIDTH=30 PR_COL2_WIDTH=40 PR_COL2_FIX='X' "
    "STRT_LVL=5";

TEST(CharPage, ShowsAndStoresTheOneSelectedCharacteristic) {
  ExpectAll({{"what the user picks", Settings(kTwo), R"(tab 1; pick cmbCharPresentation 3
  frame 1: 'T' 3 1 0 '10' 0 1 '3' 1 2 '20' 1 Description Key
edit txtCharColWidth1 99; toggle chkCharColAutoWidth
  frame 1: 'T' 3 1 1 ('') 0 1 '3' 1 2 ('') 1 Description Key
toggle chkCharColAutoWidth
  frame 1: 'T' 3 1 0 '10' 0 1 '3' 1 2 '20' 1 Description Key
toggle chkCharHierDisplay
  frame 1: 'T' 3 1 0 '10' 0 0 ('') 1 2 '20' 1 Description Key
edit txtCharColTitle x; edit txtCharColWidth1 32768; edit txtCharColWidth2 wide; pick cmbCharNoSums 2
  frame 1: 'x' 3 1 0 '32768' 0 0 ('') 2 2 'wide' 1 Description Key
toggle chkCharHierDisplay; toggle chkCharHierDisplay; toggle chkCharColEachPage1; pick cmbCharColAlign1 0; pick cmbCharColAlign2 1
  frame 1: 'x' 3 0 0 '32768' 1 0 ('') 2 1 'wide' 1 Description Key
read dimension
  IOBJNM='A' IOBJTXT='a' POSIT=1 AXIS='Y' IOBJPRSNT='3' PR_COL1_FIX='X' PR_COL2_FIX='X' PR_COL1_WIDTH=10
    PR_COL2_ALIGN='R' PR_COL1_HEADER='x' PR_COL2_HEADER='x' HIENM='H' NOSUMS='U'
  IOBJNM='B' IOBJTXT='b' POSIT=2 AXIS='Y' IOBJPRSNT='2' PR_COL2_FIX='X' PR_COL1_WIDTH=30 PR_COL2_WIDTH=40 STRT_LVL=5
pick cmbCharPresentation 1
  frame 1: 'x' 1 0 0 '32768' 1 0 ('') 2 {1 '0' 0} Description {Key}
pick cmbCharPresentation 2; toggle chkCharColAutoWidth
  frame 1: 'x' 2 0 1 ('') 1 0 ('') 2 {1 ('') 0} Key {Key}
read dimension
  IOBJNM='A' IOBJTXT='a' POSIT=1 AXIS='Y' IOBJPRSNT='2' PR_COL1_FIX='X' PR_AUTO_WIDTH='X' PR_COL2_ALIGN='R'
    PR_COL1_HEADER='x' PR_COL2_HEADER='x' HIENM='H' NOSUMS='U'
  IOBJNM='B' IOBJTXT='b' POSIT=2 AXIS='Y' IOBJPRSNT='2' PR_COL2_FIX='X' PR_COL1_WIDTH=30 PR_COL2_WIDTH=40 STRT_LVL=5
)"},
             {"read-only, the user may look but not touch", Settings(kTwo), R"(tab 1
readonly on
  breaks: ([><None>:-1 a:1] [><None>:-1 a:1] [><None>:-1 a:1])
  frame 1: ('T' 0 1 0 '10' 0 1 '3' 1 2 '20' 1) Key Description
  frame 3: ('' -1 0 '')
  general: ('T' 1 '0' 0 0 0 0 0 2 0 '0' '0' '0' '0')
  lists 1: ([] #1 #1) [*a:1 b:2]
  lists 2: [>a:1 b:2] ([] #2 #2) []
  lists 3: [] ([] #3 #3) []
edit txtCharColTitle x; pick cmbCharPageBreak 1; press cmdRightToLeft(1); toggle chkCharHierDisplay
  refused
  refused
  refused
  refused
click lstPrint(1) 0 1
  frame 1: ('' -1 -1 0 '' 0 0 '' -1 #4 -1 '' 0) Key Description
  lists 1: ([] #1 #1) [a:1 >b:2]
click lstPrint(1) 1; press cmdPrintLayout(4)
  event: layout 4 'B'
  frame 1: ('' 2 0 0 '30' 0 0 '' 0) {(0 '40' 1)} Key {Description}
  lists 1: ([] #1 #1) [a:1 >*b:2]
)"}});
  Stage stage{Settings(kTwo)};
  EXPECT_EQ(stage.After("tab 1; toggle chkCharColAutoWidth; readonly on; readonly off", {"frame 1", "lists 1"}),
            "'T' 0 1 1 '' 0 1 '3' 1 2 '' 1 Key Description / [] [*a b]")
      << "widths too, until the frame is shown again";
  EXPECT_EQ(stage.After("click lstPrint(1) 0; click lstPrint(1) 1; readonly on; readonly off", {"frame 1"}),
            "'' 2 0 0 '30' 0 (0 '') 0 {0 '40' 1} Key {Description}");
  stage.next = Settings("IOBJNM='C' IOBJTXT='c' AXIS='Y' HIENM='H' HRY_ACTIVE='X' STRT_LVL=7");
  EXPECT_EQ(stage.After("click lstPrint(1) 1; click lstPrint(1) 0; load", {"frame 1"}),
            "'' 1 0 0 '0' 0 1 '7' 0 {0 '0' 0} Description {Description}")
      << "the hierarchy of one characteristic after that of another";
}

TEST(HostInAnEvent, MayCallAnythingBack) {
  const auto load = [](const std::string& characteristics, ORXQueryPrnProp& control,
                       const char* general = "TITLE='T'") {
    Settings(characteristics, "", "", general).LoadInto(control);
  };
  const std::string next = Characteristics("v wP xA y z");
  const struct {
    const char* what;
    std::function<void(Stage&, ORXQueryPrnProp& other)> handler;
    const char *afterDrag, *afterTransfer;
  } rows[] = {
      {"load others, in which nothing is reset", [&](Stage& s, auto&) { load(next, s.control); },
       "[] [*v w x y z] / [>0 v w x y] [0 v >w x y] [0 >x y] / v1 w2P x3A y4 z5 / 0",
       "[] [*v w x y z] / [>0 v w x y] [0 v >w x y] [0 >x y] / v1 w2P x3A y4 z5 / 0"},
      {"load into another control", [&](Stage&, auto& other) { load(next, other); },
       "[] [b c >*a d] / [0 a >b c] [>0 c] [>0 c] / v1 w2P x3A y4 z5 / 0",
       "[a] [b c d] / [0 >b c] [>0 c] [>0 c] / v1 w2P x3A y4 z5 / 0"},
      {"set it read-only", [](Stage& s, auto&) { s.control.ORXSetReadOnly(true); },
       "([] #1 #1) [b c >*a d] / ([>0 b c a] [>0 b c a] [0 b c >a]) / a3 b1Q c2 d4 / 0",
       "([a] #1 #1) [b c d] / ([>0 b c] [>0 b c] [0 b >c]) / a- b1Q c2 d3 / 0"},
      {"fail", [](Stage&, auto&) { throw RunTimeError(ErrorKind::Table, u"host"); },
       "[] [b c >*a d] / [0 a >b c] [>0 c] [>0 c] / a1 b2Q c3 d4 / 0",
       "[a] [b c d] / [0 >b c] [>0 c] [>0 c] / a- b1Q c2 d3 / 0"},
  };
  for (const auto& row : rows) {
    for (const bool drag : {true, false}) {
      ORXQueryPrnProp other;
      Stage stage{Settings(Characteristics("a bQ c d"))};
      stage.onOrderChanged = [&] { row.handler(stage, other); };
      const char* const steps = drag ? "tab 1; click lstPrint(1) 0 2" : "tab 1; press cmdRightToLeft(1)";
      EXPECT_EQ(stage.After(steps, {"lists 1", "breaks", "model", "pointer"}), drag ? row.afterDrag : row.afterTransfer)
          << row.what;
    }
  }
  Stage stage{Settings(Characteristics("a b c d e f g h i j k-"))};
  stage.onMessage = [&] { load(next, stage.control); };
  EXPECT_EQ(stage.After("tab 1; click lstAvail(1) 0; press cmdLeftToRight(1)", {"lists 1"}), "[] [*v w x y z]");
}

}  // namespace
}  // namespace ORXKMPrintProp::test
