#include <gtest/gtest.h>

#include "support/stage.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::test {
namespace {

TEST(GeneralPage, ShowsTheModelAndStoresIt) {
  const char* const general =
      "TITLE=' Sales ' PRINT_DIRECTION='H' MAX_PAGES='20' HIDE_ZERO='X' MARGIN_TOP=1 MARGIN_BOTTOM=2 MARGIN_LEFT=-3 "
      "MARGIN_RIGHT=4 SUMPOSIT='1' NOMULTTXT='X' SIGNPRSNT='3' CURUNITPOSITION='T'";
  ExpectAll({{"a currency position without an entry stays until one is picked", Settings("", "", "", general),
              R"(see general
  general: ' Sales ' 0 '20' 1 1 0 0 1 -1 2 '1' '2' '-3' '4'
edit txtGenMaxPages 007 or so; edit txtGenMarginTop 12a; edit txtGenMarginBottom 32768; edit txtGenMarginRight 1.5
  general: ' Sales ' 0 '007 or so' 1 1 0 0 1 -1 2 '12a' '32768' '-3' '1.5'
read general
  TITLE=' Sales ' PRINT_DIRECTION='H' MAX_PAGES='7' HIDE_ZERO='X' MARGIN_TOP=1 MARGIN_BOTTOM=2 MARGIN_LEFT=-3
    MARGIN_RIGHT=2 SUMPOSIT='1' NOMULTTXT='X' SIGNPRSNT='3' CURUNITPOSITION='T'
pick cmbGenPrnDirection 1; pick cmbGenSumPosit 0; pick cmbGenSignPrsnt 1; pick cmbGenCurUnitPosition 2; tab 1; tab 0
  general: ' Sales ' 1 '7' 1 1 0 0 0 2 1 '1' '2' '-3' '2'
key txtGenPrnTitle x; toggle chkGenShowNoZeros; toggle chkGenUseColors; toggle chkGenNoLines; read general
  TITLE=' Sales x' MAX_PAGES='7' USE_COLORS='X' MARGIN_TOP=1 MARGIN_BOTTOM=2 MARGIN_LEFT=-3 MARGIN_RIGHT=2
    NOMULTTXT='X' SIGNPRSNT='2' NO_LINES='X'
  general: ' Sales x' 1 '7' 0 1 1 1 0 2 1 '1' '2' '-3' '2'
edit txtGenMarginTop 9; edit txtGenMarginBottom 10; edit txtGenMarginLeft 8; toggle chkGenNoMultTexts; read general
  TITLE=' Sales x' MAX_PAGES='7' USE_COLORS='X' MARGIN_TOP=9 MARGIN_BOTTOM=10 MARGIN_LEFT=8 MARGIN_RIGHT=2
    SIGNPRSNT='2' NO_LINES='X'
  general: ' Sales x' 1 '7' 0 0 1 1 0 2 1 '9' '10' '8' '2'
)"}});
}

/// Characteristics a and b, printed in the order b, a, and a hidden one; a has four attributes, b one.
Settings WithAttributes() {
  return Settings(
      "IOBJNM='A' IOBJTXT='a' AXIS='Y' POSIT=2\nIOBJNM='H' IOBJTXT='h'\nIOBJNM='B' IOBJTXT='b' AXIS='Y' POSIT=1",
      "IOBJNM='A' ATTRINM='1' ATTRITXT='p' POSIT=2 IOBJPRSNT='0' PR_COL1_WIDTH=11 PR_COL2_WIDTH=12\n"
      "IOBJNM='A' ATTRINM='2' ATTRITXT='q' HIDDEN='X'\n"
      "IOBJNM='A' ATTRINM='3' ATTRITXT='r' POSIT=1 IOBJPRSNT='2' PR_AUTO_WIDTH='X' PR_COL1_WIDTH=31 "
      "PR_COL2_WIDTH=32 PR_COL1_HEADER='R'\n"
      "IOBJNM='A' ATTRINM='4' ATTRITXT='s' HIDDEN='X' POSIT=9\n"
      "IOBJNM='B' ATTRINM='5' ATTRITXT='t' HIDDEN='X'\nIOBJNM='H' ATTRINM='6' ATTRITXT='u' POSIT=3");
}

TEST(AttrPage, ShowsAndStoresTheAttributesOfThePickedCharacteristic) {
  ExpectAll({{"what is picked", WithAttributes(), R"(see frame 2; see lists 2; see model
  frame 2: ('' -1 -1 0 '' 0 -1 '' 0) Column 1 Column 2
  lists 2: [>b:3 a:1] [t:1] []
  model: a2(p2 q- r1 s-9) h-(u3) b1(t-)
tab 2; pick cmbAttrChar 1
  frame 2: 'R' 2 0 1 ('') 0 {0 ('') 0} Key {Column 2}
  lists 2: [b:3 >a:1] [q:2 s:4] [>*r:3 p:1]
toggle chkAttrColAutoWidth
  frame 2: 'R' 2 0 0 '31' 0 {0 '32' 0} Key {Column 2}
toggle chkAttrColAutoWidth; click lstPrint(2) 1
  frame 2: ('' -1 -1 0 '' 0 -1 '' 0) Key Column 2
  lists 2: [b:3 >a:1] [q:2 s:4] [*r:3 >*p:1]
click lstPrint(2) 0
  frame 2: '' 0 0 0 '11' 0 0 '12' 0 Key Description
  lists 2: [b:3 >a:1] [q:2 s:4] [>r:3 *p:1]
edit txtAttrColTitle typed; pick cmbAttrChar 0
  frame 2: ('' -1 -1 0 '' 0 -1 '' 0) Key Description
  lists 2: [>b:3 a:1] [t:1] []
pick cmbAttrChar 1; read attribute
  IOBJNM='A' ATTRITXT='p' ATTRINM='1' POSIT=2 IOBJPRSNT='0' PR_COL1_WIDTH=11 PR_COL2_WIDTH=12 PR_COL1_HEADER='typed'
    PR_COL2_HEADER='typed'
  IOBJNM='A' ATTRITXT='q' ATTRINM='2' HIDDEN='X'
  IOBJNM='A' ATTRITXT='r' ATTRINM='3' POSIT=1 IOBJPRSNT='2' PR_AUTO_WIDTH='X' PR_COL1_HEADER='R' PR_COL2_HEADER='R'
  IOBJNM='A' ATTRITXT='s' ATTRINM='4' HIDDEN='X'
  IOBJNM='H' ATTRITXT='u' ATTRINM='6' POSIT=3
  IOBJNM='B' ATTRITXT='t' ATTRINM='5' HIDDEN='X'
  frame 2: 'R' 2 0 1 ('') 0 {0 ('') 0} Key {Description}
  lists 2: [b:3 >a:1] [q:2 s:4] [>*r:3 p:1]
  model: a2(p2 q- r1 s-) h-(u3) b1(t-)
click lstPrint(2) 1 0; pick cmbAttrChar 0; pick cmbAttrChar 1
  frame 2: 'typed' 0 0 0 '11' 0 0 '12' 0 Key Description
  lists 2: [b:3 >a:1] [q:2 s:4] [>*p:1 r:3]
  model: a2(p1 q- r2 s-) h-(u3) b1(t-)
click lstAvail(2) 1; press cmdLeftToRight(2)
  lists 2: [b:3 >a:1] [q:2] [>*p:1 r:3 s:4]
  model: a2(p1 q- r2 s3) h-(u3) b1(t-)
edit txtAttrColTitle new; toggle chkAttrColEachPage1; read attribute
  IOBJNM='A' ATTRITXT='p' ATTRINM='1' POSIT=1 IOBJPRSNT='0' PR_COL1_FIX='X' PR_COL1_WIDTH=11 PR_COL2_WIDTH=12
    PR_COL1_HEADER='new' PR_COL2_HEADER='new'
  IOBJNM='A' ATTRITXT='q' ATTRINM='2' HIDDEN='X'
  IOBJNM='A' ATTRITXT='r' ATTRINM='3' POSIT=2 IOBJPRSNT='2' PR_AUTO_WIDTH='X' PR_COL1_HEADER='R' PR_COL2_HEADER='R'
  IOBJNM='A' ATTRITXT='s' ATTRINM='4' POSIT=3
  IOBJNM='H' ATTRITXT='u' ATTRINM='6' POSIT=3
  IOBJNM='B' ATTRITXT='t' ATTRINM='5' HIDDEN='X'
  frame 2: 'new' 0 0 0 '11' 1 0 '12' 0 Key Description
)"},
             {"none is printed", Settings(Characteristics("a- b-"), "IOBJNM='a' ATTRINM='1' ATTRITXT='p'"),
              R"(tab 2; see frame 2; see lists 2
  frame 2: '' -1 -1 0 '' 0 -1 '' 0 Column 1 Column 2
  lists 2: [] [] []
toggle chkAttrColAutoWidth
  frame 2: '' -1 -1 1 ('') 0 -1 ('') 0 Column 1 Column 2
toggle chkAttrColAutoWidth; press cmdRightToLeft(2)
  frame 2: ('' -1 -1 0 '' 0 -1 '' 0) Column 1 Column 2
read attribute
  IOBJNM='a' ATTRITXT='p' ATTRINM='1'
)"}});
}

constexpr const char* kTwoStructures =
    "IOBJNM='S1' IOBJTXT='one' IS_STRUCTURE='X' POSIT=5\nIOBJNM='S2' IOBJTXT='two' IS_STRUCTURE='X'";
constexpr const char* kElements =
    "IOBJNM='S1' CHAVL='1' CHAVLTXT='p' POSIT=2 PR_COL1_WIDTH=11 PR_COL1_ALIGN='R' PR_COL1_HEADER='P'\n"
    "IOBJNM='S2' CHAVL='2' CHAVLTXT='x' HIDDEN='X'\nIOBJNM='S1' CHAVL='3' CHAVLTXT='q' POSIT=1 PR_AUTO_WIDTH='X'\n"
    "IOBJNM='S1' CHAVL='4' CHAVLTXT='r' HIDDEN='X'";

TEST(StrPage, ShowsAndStoresTheElementsOfThePickedStructure) {
  ExpectAll({{"what is picked", Settings(kTwoStructures, "", kElements), R"(tab 3; see frame 3; see lists 3; see model
  frame 3: '' 0 1 ('')
  lists 3: [>*one:1 two:2] [r:3] [>*q:2 p:1]
  model: one(p2 q1 r-) two(x-)
click lstPrint(3) 0; click lstPrint(3) 1; edit txtStrColWidth 15 mm
  frame 3: 'P' 1 0 '15 mm'
  lists 3: [>*one:1 two:2] [r:3] [q:2 >*p:1]
click lstPrint(3) 0 1; click lstStrStructures 1; click lstAvail(3) 0; press cmdLeftToRight(3)
  frame 3: ('' -1 0 '')
  lists 3: [one:1 >*two:2] [] [x:1]
  model: one(p1 q2 r-) two(x1)
click lstPrint(3) 0; click lstStrStructures 1
  frame 3: '' 0 0 '0'
  lists 3: [one:1 >*two:2] [] [>*x:1]
edit txtStrColTitle X; read member
  IOBJNM='S1' CHAVL='1' CHAVLTXT='p' POSIT=1 PR_COL1_WIDTH=15 PR_COL1_ALIGN='R' PR_COL1_HEADER='P' PR_COL2_HEADER='P'
  IOBJNM='S1' CHAVL='3' CHAVLTXT='q' POSIT=2 PR_AUTO_WIDTH='X'
  IOBJNM='S1' CHAVL='4' CHAVLTXT='r' HIDDEN='X'
  IOBJNM='S2' CHAVL='2' CHAVLTXT='x' POSIT=1 PR_COL1_HEADER='X' PR_COL2_HEADER='X'
  frame 3: 'X' 0 0 '0'
)"},
             {"none", Settings(), R"(tab 3; see frame 3; see lists 3
  frame 3: '' -1 0 ''
  lists 3: [] [] []
toggle chkStrColAutoWidth; toggle chkStrColAutoWidth; press cmdLeftToRight(3)
  frame 3: ('' -1 0 '')
)"}});
}

TEST(FurtherLoad, StartsThePagesAnew) {
  Stage stage{WithAttributes()};
  stage.next = Settings(kTwoStructures, "", kElements);
  stage.Play("load; tab 2; tab 3; toggle chkStrColAutoWidth");
  stage.next = Settings(Characteristics("x-"));
  EXPECT_EQ(stage.After("load", {"frame 1", "frame 2", "frame 3", "lists 1", "lists 2", "lists 3", "model"}),
            "('' -1 -1 0 '' 0 0 '' -1 #4 -1 '' 0) Description Column 2 / '' -1 -1 0 '' 0 -1 '' 0 Column 1 Column 2 / "
            "'' -1 0 '' / [x] [] / [] [] [] / [] [] [] / x-");
  EXPECT_EQ(std::tuple(int{gCurAttrChar}, int{gCurAttr}, int{gCurStr}, int{gCurStrElem}), std::tuple(0, 0, 0, 0));
}

TEST(BeforeALoad, NothingIsCommittedOrFilled) {
  gPrnProp.reset();
  Stage stage{Settings("", "", "", "")};
  const std::string transcript = R"(tab 1; press cmdLeftToRight(1); press cmdPrintLayout(4); see frame 1
  frame 1: '' -1 -1 0 '' 0 0 '' -1 -1 '' 0 Spalte 1 Spalte 2
tab 3; toggle chkStrColAutoWidth; read general
  frame 3: '' -1 1 ''
tab 0; press cmdPrintLayout(1)
  event: layout 1 ''
)";
  EXPECT_EQ(stage.Play(transcript), transcript);
  EXPECT_EQ(stage.control.ORXDimTable(), nullptr);
  EXPECT_EQ(stage.After("readonly on", {"frame 3", "breaks"}), "('' -1 1 '') / ([] [] [])");
  EXPECT_EQ(stage.After("readonly off", {"frame 3", "breaks"}), "('' -1 1 '') / [] [] []") << "as with none selected";
}

TEST(TwoControls, ShareTheModelAndNeverCommitPagesOfAnother) {
  Stage a{WithAttributes()};
  a.Play("tab 1; edit txtCharColTitle lost with what it belonged to");
  Stage b{Settings(Characteristics("v w x-"))};
  b.Play("tab 1; click lstPrint(1) 0; click lstPrint(1) 1");
  const auto shown = b.State();
  EXPECT_EQ(a.After("read dimension", {"lists 1", "model"}), "[x] [*v w] / v1 w2 x-") << "the program's model now";
  EXPECT_EQ(b.State(), shown);

  // Each has its own selection: what b types goes to w, which it shows.
  b.Play("edit txtCharColTitle for w");
  a.Play("edit txtCharColTitle for v");
  b.Play("read dimension");
  EXPECT_EQ(a.Play("read dimension"), R"(read dimension
  IOBJNM='v' IOBJTXT='v' POSIT=1 AXIS='Y' PR_COL1_HEADER='for v' PR_COL2_HEADER='for v'
  IOBJNM='w' IOBJTXT='w' POSIT=2 AXIS='Y' PR_COL1_HEADER='for w' PR_COL2_HEADER='for w'
  IOBJNM='x' IOBJTXT='x'
)");
}

TEST(FailedLoad, IsShownWhenACommitIsDueAndDropsAClick) {
  for (const auto& [before, step] : {std::pair{"tab 0", "tab 1"}, std::pair{"tab 1", "click lstPrint(1) 1"}}) {
    Stage stage{WithAttributes()};
    stage.Play(std::string("edit txtGenPrnTitle typed; ") + before);
    stage.next = Settings("IOBJNM='N' IOBJTXT='n' AXIS='Y' POSIT=7\nIOBJNM='O' IOBJTXT='o' AXIS='Y' POSIT=8\nPOSIT='x'",
                          "", "", "TITLE='next'");
    const std::string transcript = R"(load
  error: it_dim, row 3, column POSIT: The text "x" is no number.
  model: n7 o8
)";
    EXPECT_EQ(stage.Play(transcript), transcript) << "the pages go on showing the earlier content";
    EXPECT_EQ(stage.After(step, {"general", "lists 1", "lists 2", "breaks", "model"}),
              "'next' 1 '0' 0 0 0 0 0 2 0 '0' '0' '0' '0' / [] [*n o] / [>n o] [] [] / [>0 n] [>0 n] [>0 n] / n7 o8");
  }
}

TEST(FailedFill, IsNeverCommitted) {
  // A text table whose row for an entry of the selectors has no caption.
  const auto texts = MemoryTable::Create({u"TARGETID"});
  AddRow(*texts)->Value(u"TARGETID", u"ID_PRN_NONE");
  Stage stage{Settings(Characteristics("aQ bP c"))};
  stage.Play("tab 1");
  stage.control.ORXControlTexts(texts);
  stage.next = Settings(Characteristics("aQ bP c") + kTwoStructures, "", kElements);
  for (const std::string step : {"load\n", "read dimension\n", "readonly on\n"}) {
    EXPECT_TRUE(stage.Play(step).starts_with(step + "  error: The table has no column CAPTION.\n"));
  }
  gTextTable.reset();
  EXPECT_EQ(stage.After("read dimension; readonly on", {"breaks", "lists 1", "model"}),
            "([0 >a b] [0 >b] [>0]) / ([] #1 #1) [*a b c] / a1Q b2P c3 one(p2 q1 r-) two(x-)");
}

TEST(FailedShow, StoresNothingIntoTheItemItWasFor) {
  Stage stage{Settings("IOBJNM='A' AXIS='Y' IOBJPRSNT='0'\nIOBJNM='B' AXIS='Y' PR_COL1_HEADER='t' PR_COL1_WIDTH=22")};
  const auto texts = MemoryTable::Create({u"TARGETID"});
  AddRow(*texts)->Value(u"TARGETID", u"ID_DLG_VALPRES_2");
  texts->Columns()->KeyColumn(std::int32_t{1});
  gTextTable = texts;
  EXPECT_NE(stage.Play("tab 1; click lstPrint(1) 0; click lstPrint(1) 1\n").find("error"), std::string::npos);
  gTextTable.reset();
  EXPECT_NE(stage.Play("read dimension\n").find("PR_COL1_WIDTH=22 PR_COL1_HEADER='t'"), std::string::npos);
}

TEST(Limits, AreThoseOfARowNumber) {
  Settings settings;
  for (int i = 0; i < 32767; ++i) {
    const RowRef row = AddRow(*settings.dim);
    for (const char16_t* column : {u"PR_COL1_WIDTH", u"PR_COL2_WIDTH", u"STRT_LVL"}) {
      row->Value(column, std::int16_t{0});
    }
    row->Value(u"POSIT", static_cast<std::int16_t>(i));
    row->Value(u"AXIS", u"Y");
    if (i == 32765) row->Value(u"PR_QUERY_BREAK", u"X");
  }
  ORXQueryPrnProp control;
  ASSERT_TRUE(settings.LoadInto(control));
  Dialog& dialog = control.GetDialog();
  dialog.TabStrip().UserPick(1);
  auto& list = dialog.Get<ListBox>(u"lstPrint", 1);
  auto& selector = dialog.Get<ComboBox>(u"cmbCharQueryBreak");
  EXPECT_EQ(std::tuple(list.ListCount(), selector.ListCount(), selector.ListIndex()), std::tuple(32767, 32767, 32766));
  // The one that is selected becomes the last.
  list.UserMouseDown(32766, ListBox::kLeftButton);
  list.UserMouseMove(0);
  list.UserMouseUp(ListBox::kLeftButton);
  EXPECT_EQ(std::tuple(selector.ListCount(), selector.ListIndex()), std::tuple(32767, 0));
}

TEST(Listeners, ComeAndGoInsideAnEvent) {
  struct Listener : ORXQueryPrnPropEvents {
    void ORXPrintLayoutGet(std::int16_t, const Text&) override {
      ++heard;
      if (then) then();
    }
    void ORXOrderChanged() override {}
    int heard = 0;
    std::function<void()> then;
  };
  Listener first, second, third;
  Stage stage;
  for (Listener* const listener : {&first, &second}) stage.control.Connect(*listener);
  first.then = [&] {
    stage.control.Disconnect(second);
    stage.control.Connect(third);
    first.then = nullptr;
  };
  stage.Play("press cmdPrintLayout(0); press cmdPrintLayout(0)");
  EXPECT_EQ(std::tuple(first.heard, second.heard, third.heard), std::tuple(2, 0, 1));
}

}  // namespace
}  // namespace ORXKMPrintProp::test
