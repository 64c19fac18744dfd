#include <gtest/gtest.h>

#include "support/stage.h"
#include "tables/RunTimeError.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::test {
namespace {

/// What the General page shows, in the order in which it stores.
std::string GeneralPage_(Stage& stage) {
  std::string text;
  for (const auto* const box : {u"txtGenPrnTitle", u"txtGenMaxPages", u"txtGenMarginTop", u"txtGenMarginBottom",
                                u"txtGenMarginLeft", u"txtGenMarginRight"}) {
    text += "'" + ToAscii(stage.Box(box).GetText()) + "' ";
  }
  for (const auto* const combo :
       {u"cmbGenPrnDirection", u"cmbGenSumPosit", u"cmbGenSignPrsnt", u"cmbGenCurUnitPosition"}) {
    text += std::to_string(stage.Combo(combo).ListIndex()) + " ";
  }
  for (const auto* const check : {u"chkGenShowNoZeros", u"chkGenUseColors", u"chkGenNoMultTexts", u"chkGenNoLines"}) {
    text += std::to_string(stage.Check(check).Value());
  }
  return text;
}

constexpr const char* kGeneral =
    "TITLE=' Sales ' PRINT_DIRECTION='H' MAX_PAGES='20' HIDE_ZERO='X' MARGIN_TOP=1 MARGIN_BOTTOM=2 MARGIN_LEFT=-3 "
    "MARGIN_RIGHT=4 SUMPOSIT='1' NOMULTTXT='X' SIGNPRSNT='3' CURUNITPOSITION='R'";

TEST(GeneralPage, ShowsTheModelAndStoresIt) {
  Stage stage{Settings("", "", "", kGeneral)};
  EXPECT_EQ(GeneralPage_(stage), "' Sales ' '20' '1' '2' '-3' '4' 0 1 2 1 1010");
  stage.Box(u"txtGenPrnTitle").UserKey(u'x');
  stage.Box(u"txtGenMaxPages").UserEdit(u"007 or so");
  stage.Box(u"txtGenMarginTop").UserEdit(u" 1e1 ");
  stage.Combo(u"cmbGenPrnDirection").UserPick(1);
  stage.Combo(u"cmbGenSumPosit").UserPick(0);
  stage.Combo(u"cmbGenSignPrsnt").UserPick(1);
  stage.Combo(u"cmbGenCurUnitPosition").UserPick(2);
  stage.Check(u"chkGenShowNoZeros").UserToggle();
  stage.Check(u"chkGenUseColors").UserToggle();
  stage.Check(u"chkGenNoLines").UserToggle();
  stage.Press(u"cmdPrintLayout", 2);
  EXPECT_EQ(stage.Events(), "layout 2 '';");
  EXPECT_EQ(gPrnProp->Title(), u" Sales ") << "a layout button commits nothing";
  stage.Read();
  EXPECT_EQ(BriefOf(Kind::General, *stage.settings.gen),
            "TITLE=' Sales x' MAX_PAGES='7' USE_COLORS='X' MARGIN_TOP=10 MARGIN_BOTTOM=2 MARGIN_LEFT=-3 "
            "MARGIN_RIGHT=4 NOMULTTXT='X' SIGNPRSNT='2' NO_LINES='X'\n");
  EXPECT_EQ(ToAscii(stage.Box(u"txtGenMaxPages").GetText()), "007 or so") << "a commit changes no widget";
  stage.Tab(1);
  stage.Tab(0);
  EXPECT_EQ(GeneralPage_(stage), "' Sales x' '7' '10' '2' '-3' '4' 1 0 1 2 0111");
}

TEST(GeneralPage, KeepsANumberThatATextDoesNotGive) {
  const struct {
    const char16_t *margin, *pages;
    int storedMargin, storedPages;
  } rows[] = {
      {u"", u"", 1, 0},
      {u" ", u" ", 1, 0},
      {u"12a", u"12a", 1, 12},
      {u"32768", u"32768", 1, 20},
      {u"-5", u"-5", -5, -5},
      {u"1.5", u"1.5", 2, 2},
      {u"1 2", u"1 2", 1, 12},
      {u"x", u"x", 1, 0},
      {u"32767", u"32767.4", 32767, 32767},
      {u"1e99", u"1e99", 1, 20},
  };
  for (const auto& row : rows) {
    Stage stage{Settings("", "", "", kGeneral)};
    stage.Box(u"txtGenMarginTop").UserEdit(row.margin);
    stage.Box(u"txtGenMaxPages").UserEdit(row.pages);
    stage.Box(u"txtGenMarginRight").UserEdit(u"9");
    stage.Tab(2);
    EXPECT_EQ(gPrnProp->MarginTop(), row.storedMargin) << ToAscii(row.margin);
    EXPECT_EQ(gPrnProp->MaxPages(), row.storedPages) << ToAscii(row.pages);
    EXPECT_EQ(gPrnProp->MarginRight(), 9) << "the others are stored";
    stage.Tab(0);
    EXPECT_EQ(ToAscii(stage.Box(u"txtGenMarginTop").GetText()), std::to_string(row.storedMargin));
  }
}

TEST(GeneralPage, KeepsACurrencyPositionThatHasNoEntry) {
  const struct {
    const char* cell;
    std::int16_t shown, picked;
    const char* stored;
  } rows[] = {{"T", -1, -1, "T"}, {"T", -1, 2, "N"}, {"T", -1, 0, "L"}, {"N", 2, -1, "N"},
              {"", 2, 1, "R"},    {"L", 0, -1, "L"}, {"R", 1, 2, "N"}};
  for (const auto& row : rows) {
    Stage stage{Settings("", "", "", std::string("CURUNITPOSITION='") + row.cell + "'")};
    EXPECT_EQ(stage.Combo(u"cmbGenCurUnitPosition").ListIndex(), row.shown) << row.cell;
    if (row.picked >= 0) stage.Combo(u"cmbGenCurUnitPosition").UserPick(row.picked);
    stage.control.ORXGenPropTable();
    EXPECT_EQ(ToString(stage.settings.gen->Rows(1)->Value(u"CURUNITPOSITION")), "'" + std::string(row.stored) + "'");
  }
}

/// What the settings frame of the Attributes page shows.
std::string AttrFrame(Stage& stage) {
  std::string text;
  for (const auto* const combo : {u"cmbAttrPresentation", u"cmbAttrColAlign1", u"cmbAttrColAlign2"}) {
    text += std::to_string(stage.Combo(combo).ListIndex()) + " ";
  }
  for (const auto* const box : {u"txtAttrColTitle", u"txtAttrColWidth1", u"txtAttrColWidth2"}) {
    text += "'" + ToAscii(stage.Box(box).GetText()) + "' ";
  }
  for (const auto* const check : {u"chkAttrColAutoWidth", u"chkAttrColEachPage1", u"chkAttrColEachPage2"}) {
    text += std::to_string(stage.Check(check).Value());
  }
  return text;
}

std::string AttrPage_(Stage& stage) {
  return StateOf(stage.Combo(u"cmbAttrChar")) + " | " + stage.Lists(2) + " | " + AttrFrame(stage);
}

constexpr const char* kAttrProps =
    "ColTitle Presentation ColAlign1 ColAutoWidth ColWidth1 ColEachPage1 ColAlign2 ColWidth2 ColEachPage2";

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

TEST(AttrPage, ShowsTheAttributesOfThePickedCharacteristic) {
  Stage stage{WithAttributes()};
  stage.Tab(2);
  EXPECT_EQ(AttrPage_(stage), ">b:3 a:1 | t:1 |  | -1 -1 -1 '' '' '' 000");
  EXPECT_EQ(stage.EnabledOf(u"Attr"), "Char");
  stage.Combo(u"cmbAttrChar").UserPick(1);
  EXPECT_EQ(AttrPage_(stage), "b:3 >a:1 | q:2 s:4 | >*r:3 p:1 | 2 0 0 'R' '' '' 100");
  EXPECT_EQ(stage.EnabledOf(u"Attr"),
            "Char ColTitle Presentation ColAlign1 ColAutoWidth ColEachPage1 ColAlign2 ColEachPage2");
  EXPECT_EQ(stage.HiddenOf(u"Attr"), "ColAlign2 ColWidth2 ColEachPage2");
  stage.Check(u"chkAttrColAutoWidth").UserToggle();
  EXPECT_EQ(AttrFrame(stage), "2 0 0 'R' '31' '32' 000") << "the widths, since nothing has been stored";
  stage.Check(u"chkAttrColAutoWidth").UserToggle();

  ListBox& list = stage.List(u"lstPrint", 2);
  stage.Click(list, 1);
  EXPECT_EQ(AttrFrame(stage), "-1 -1 -1 '' '' '' 000");
  stage.Click(list, 0);
  EXPECT_EQ(AttrFrame(stage), "0 0 0 '' '11' '12' 000");
  EXPECT_EQ(std::string("Char ") + kAttrProps, stage.EnabledOf(u"Attr"));
  stage.Box(u"txtAttrColTitle").UserEdit(u"typed");
  stage.Click(list, 1);
  stage.Combo(u"cmbAttrChar").UserPick(0);
  stage.Combo(u"cmbAttrChar").UserPick(1);
  EXPECT_EQ(AttrPage_(stage), "b:3 >a:1 | q:2 s:4 | >*r:3 p:1 | 2 0 0 'R' '' '' 100");
  stage.Read();
  EXPECT_EQ(BriefOf(Kind::Attribute, *stage.settings.atr),
            "IOBJNM='A' ATTRITXT='p' ATTRINM='1' POSIT=2 IOBJPRSNT='0' PR_COL1_WIDTH=11 PR_COL2_WIDTH=12 "
            "PR_COL1_HEADER='typed' PR_COL2_HEADER='typed'\n"
            "IOBJNM='A' ATTRITXT='q' ATTRINM='2' HIDDEN='X'\n"
            "IOBJNM='A' ATTRITXT='r' ATTRINM='3' POSIT=1 IOBJPRSNT='2' PR_AUTO_WIDTH='X' PR_COL1_HEADER='R' "
            "PR_COL2_HEADER='R'\n"
            "IOBJNM='A' ATTRITXT='s' ATTRINM='4' HIDDEN='X'\n"
            "IOBJNM='H' ATTRITXT='u' ATTRINM='6' POSIT=3\n"
            "IOBJNM='B' ATTRITXT='t' ATTRINM='5' HIDDEN='X'\n");
}

TEST(AttrPage, TransfersAtOnceAndStoresADragWithTheNextStore) {
  const auto order = [] {
    std::string text;
    for (const auto& a : gPrnProp->Characteristics().Item(1)->Attributes()) {
      text += ToAscii(a->Text()) + (a->Hidden() ? "-" : "") + std::to_string(a->Position()) + " ";
    }
    return text;
  };
  const std::string loaded = "p2 q-0 r1 s-9 ";
  const struct {
    const char* what;
    std::function<void(Stage&)> action;
    std::string lists, order;
  } rows[] = {
      {"nothing", [](Stage&) {}, "q:2 s:4 | >*r:3 p:1", loaded},
      {"transfer to print",
       [](Stage& s) {
         s.Click(s.List(u"lstAvail", 2), 1);
         s.Press(u"cmdLeftToRight", 2);
       },
       "q:2 | >*r:3 p:1 s:4", "p2 q-0 r1 s3 "},
      {"transfer back, to the end", [](Stage& s) { s.Press(u"cmdRightToLeft", 2); }, "q:2 s:4 r:3 | p:1",
       "p1 q-0 r-0 s-0 "},
      {"drag",
       [](Stage& s) {
         s.Drag(s.List(u"lstPrint", 2), {0, 1});
       },
       "q:2 s:4 | p:1 >*r:3", loaded},
      {"drag, then another characteristic and back",
       [](Stage& s) {
         s.Drag(s.List(u"lstPrint", 2), {0, 1});
         s.Combo(u"cmbAttrChar").UserPick(0);
         s.Combo(u"cmbAttrChar").UserPick(1);
       },
       "q:2 s:4 | >*p:1 r:3", "p1 q-0 r2 s-0 "},
      {"drag away and back, then another characteristic and back",
       [](Stage& s) {
         s.Drag(s.List(u"lstPrint", 2), {0, 1, 0});
         s.Combo(u"cmbAttrChar").UserPick(0);
         s.Combo(u"cmbAttrChar").UserPick(1);
       },
       "q:2 s:4 | >*r:3 p:1", loaded},
      {"mere browsing",
       [](Stage& s) {
         s.Combo(u"cmbAttrChar").UserPick(0);
         s.Combo(u"cmbAttrChar").UserPick(1);
       },
       "q:2 s:4 | >*r:3 p:1", loaded},
      {"drag, then a read",
       [](Stage& s) {
         s.Drag(s.List(u"lstPrint", 2), {0, 1});
         s.control.ORXAtrTable();
       },
       "q:2 s:4 | p:1 >*r:3", "p1 q-0 r2 s-0 "},
      {"drag, then another page",
       [](Stage& s) {
         s.Drag(s.List(u"lstPrint", 2), {0, 1});
         s.Tab(0);
       },
       "q:2 s:4 | p:1 >*r:3", "p1 q-0 r2 s-0 "},
  };
  for (const auto& row : rows) {
    Stage stage{WithAttributes()};
    stage.Tab(2);
    stage.Combo(u"cmbAttrChar").UserPick(1);
    row.action(stage);
    EXPECT_EQ(stage.Lists(2) + " / " + order(), row.lists + " / " + row.order) << row.what;
    EXPECT_EQ(stage.Events(), "") << row.what;
  }
}

TEST(AttrPage, GoesOnWithTheLastCharacteristicWhenNoneIsPrinted) {
  Stage empty{Settings(Characteristics("a- b-"), "IOBJNM='a' ATTRINM='1' ATTRITXT='p'")};
  empty.Tab(2);
  EXPECT_EQ(AttrPage_(empty) + std::to_string(gCurAttrChar) + std::to_string(gCurAttr),
            " |  |  | -1 -1 -1 '' '' '' 00000");
  EXPECT_EQ(empty.EnabledOf(u"Attr"), std::string("Char ") + kAttrProps);
  empty.Check(u"chkAttrColAutoWidth").UserToggle();
  empty.Check(u"chkAttrColAutoWidth").UserToggle();
  EXPECT_EQ(AttrFrame(empty), "-1 -1 -1 '' '' '' 000");
  empty.Press(u"cmdRightToLeft", 2);
  EXPECT_EQ(empty.EnabledOf(u"Attr"), "Char");
  EXPECT_EQ(BriefOf(Kind::Attribute, *empty.settings.atr), "IOBJNM='a' ATTRITXT='p' ATTRINM='1'\n");

  Stage stage{WithAttributes()};
  stage.Tab(1);
  stage.Click(stage.List(u"lstPrint", 1), 1);
  stage.Press(u"cmdRightToLeft", 1);
  stage.Tab(2);
  EXPECT_EQ(AttrPage_(stage), " | t:1 |  | -1 -1 -1 '' '' '' 000") << "what was shown last";
  stage.Click(stage.List(u"lstAvail", 2), 0);
  stage.Press(u"cmdLeftToRight", 2);
  EXPECT_FALSE(gPrnProp->Characteristics().Item(3)->Attributes().Item(1)->Hidden());
}

std::string StrPage_(Stage& stage) {
  return StateOf(stage.List(u"lstStrStructures")) + " | " + stage.Lists(3) + " | '" +
         ToAscii(stage.Box(u"txtStrColTitle").GetText()) + "' " +
         std::to_string(stage.Combo(u"cmbStrColAlign").ListIndex()) + " " +
         std::to_string(stage.Check(u"chkStrColAutoWidth").Value()) + " '" +
         ToAscii(stage.Box(u"txtStrColWidth").GetText()) + "'";
}

constexpr const char* kTwoStructures =
    "IOBJNM='S1' IOBJTXT='one' IS_STRUCTURE='X' POSIT=5\nIOBJNM='S2' IOBJTXT='two' IS_STRUCTURE='X'";
constexpr const char* kElements =
    "IOBJNM='S1' CHAVL='1' CHAVLTXT='p' POSIT=2 PR_COL1_WIDTH=11 PR_COL1_ALIGN='R' PR_COL1_HEADER='P'\n"
    "IOBJNM='S2' CHAVL='2' CHAVLTXT='x' HIDDEN='X'\nIOBJNM='S1' CHAVL='3' CHAVLTXT='q' POSIT=1 PR_AUTO_WIDTH='X'\n"
    "IOBJNM='S1' CHAVL='4' CHAVLTXT='r' HIDDEN='X'";

TEST(StrPage, ShowsTheElementsOfThePickedStructure) {
  Stage stage{Settings(kTwoStructures, "", kElements)};
  stage.Tab(3);
  ListBox& structures = stage.List(u"lstStrStructures");
  ListBox& print = stage.List(u"lstPrint", 3);
  EXPECT_EQ(StrPage_(stage), ">*one:1 two:2 | r:3 | >*q:2 p:1 | '' 0 1 ''");
  EXPECT_EQ(stage.EnabledOf(u"Str"), "Structures ColTitle ColAlign ColAutoWidth");
  stage.Click(print, 1);
  EXPECT_EQ(StrPage_(stage), ">*one:1 two:2 | r:3 | *q:2 >*p:1 | '' -1 0 ''");
  EXPECT_EQ(stage.EnabledOf(u"Str"), "Structures");
  stage.Click(print, 0);
  EXPECT_EQ(StrPage_(stage), ">*one:1 two:2 | r:3 | >q:2 *p:1 | 'P' 1 0 '11'");
  stage.Box(u"txtStrColWidth").UserEdit(u"15 mm");
  stage.Click(structures, 1);
  EXPECT_EQ(StrPage_(stage), "one:1 >*two:2 | x:1 |  | '' -1 0 ''");
  stage.Click(structures, 1);
  stage.Click(structures, 0);
  EXPECT_EQ(StrPage_(stage), ">*one:1 two:2 | r:3 | >*q:2 p:1 | '' 0 1 ''");
  stage.Drag(print, {0, 1});
  stage.Click(structures, 1);
  stage.Click(stage.List(u"lstAvail", 3), 0);
  stage.Press(u"cmdLeftToRight", 3);
  EXPECT_EQ(StrPage_(stage), "one:1 >*two:2 |  | x:1 | '' -1 0 ''");
  stage.Read();
  EXPECT_EQ(BriefOf(Kind::Member, *stage.settings.mem),
            "IOBJNM='S1' CHAVL='1' CHAVLTXT='p' POSIT=1 PR_COL1_WIDTH=15 PR_COL1_ALIGN='R' PR_COL1_HEADER='P' "
            "PR_COL2_HEADER='P'\n"
            "IOBJNM='S1' CHAVL='3' CHAVLTXT='q' POSIT=2 PR_AUTO_WIDTH='X'\n"
            "IOBJNM='S1' CHAVL='4' CHAVLTXT='r' HIDDEN='X'\nIOBJNM='S2' CHAVL='2' CHAVLTXT='x' POSIT=1\n");
  EXPECT_EQ(BriefOf(Kind::Dimension, *stage.settings.dim),
            "IOBJNM='S1' IOBJTXT='one' POSIT=5 AXIS='X' IS_STRUCTURE='X'\n"
            "IOBJNM='S2' IOBJTXT='two' AXIS='X' IS_STRUCTURE='X'\n");
}

TEST(StrPage, FindsAStructureByItsEntry) {
  const struct {
    const char *dimension, *member;
    const char* page;
    const char* enabled;
  } rows[] = {
      {"", "", " |  |  | '' -1 0 ''", "Structures ColTitle ColAlign ColAutoWidth ColWidth"},
      {"IOBJNM='S1' IOBJTXT='one' IS_STRUCTURE='X'", kElements, ">*one:1 | r:3 | >*q:2 p:1 | '' 0 1 ''",
       "Structures ColTitle ColAlign ColAutoWidth"},
      {"IS_STRUCTURE='X' IOBJTXT='none'\nIOBJNM='S2' IOBJTXT='two' IS_STRUCTURE='X'",
       "IOBJNM='S2' CHAVL='2' CHAVLTXT='x' PR_COL1_WIDTH=7\nIOBJNM='' CHAVL='3'", ">*two:2 |  | >*x:1 | '' 0 0 '7'",
       "Structures ColTitle ColAlign ColAutoWidth ColWidth"},
  };
  for (const auto& row : rows) {
    Stage stage{Settings(row.dimension, "", row.member)};
    stage.Tab(3);
    EXPECT_EQ(StrPage_(stage), row.page);
    EXPECT_EQ(stage.EnabledOf(u"Str"), row.enabled);
    const std::string read = stage.Read();
    EXPECT_EQ(stage.Read(), read);
  }
  Stage stage;
  stage.Tab(3);
  stage.Check(u"chkStrColAutoWidth").UserToggle();
  stage.Check(u"chkStrColAutoWidth").UserToggle();
  stage.Press(u"cmdLeftToRight", 3);
  EXPECT_EQ(stage.EnabledOf(u"Str"), "Structures") << "blank and disabled";
}

/// What a user sees of a control that shows the settings of `WithAttributes` or others.
std::string Seen(Stage& stage) {
  return ToAscii(stage.Box(u"txtGenPrnTitle").GetText()) + " / " + stage.Lists(1) + " / " + AttrPage_(stage) + " / " +
         StrPage_(stage);
}

TEST(FurtherLoad, StartsThePagesAnew) {
  Stage fresh{Settings(Characteristics("x-"))};
  const std::string expected = Seen(fresh) + fresh.EnabledOf(u"Attr") + fresh.EnabledOf(u"Str");
  for (const bool readOnly : {false, true}) {
    Stage stage{WithAttributes()};
    const Settings structures(kTwoStructures, "", kElements);
    structures.LoadInto(stage.control);
    stage.Tab(2);
    stage.Tab(3);
    stage.Check(u"chkStrColAutoWidth").UserToggle();
    stage.control.ORXSetReadOnly(readOnly);
    const Settings next(Characteristics("x-"));
    next.LoadInto(stage.control);
    EXPECT_EQ(std::tuple(int{gCurAttrChar}, int{gCurAttr}, int{gCurStr}, int{gCurStrElem}), std::tuple(0, 0, 0, 0));
    EXPECT_EQ(Seen(stage) + stage.EnabledOf(u"Attr") + stage.EnabledOf(u"Str"),
              readOnly ? Seen(fresh) + "CharStructures" : expected);
    stage.Read();
    EXPECT_EQ(next.Brief(), "general:\nTITLE='T'\ndimension:\nIOBJNM='x' IOBJTXT='x'\nmember:\nattribute:\n");
  }
}

TEST(BeforeALoad, NothingIsCommittedOrFilled) {
  gPrnProp.reset();
  Stage stage{Settings("", "", "", "")};
  stage.Tab(1);
  stage.Press(u"cmdLeftToRight", 1);
  stage.Tab(3);
  stage.Check(u"chkStrColAutoWidth").UserToggle();
  EXPECT_EQ(stage.control.ORXDimTable(), nullptr);
  stage.control.ORXSetReadOnly(true);
  EXPECT_EQ(stage.EnabledOf(u"Char") + stage.EnabledOf(u"Gen") + stage.EnabledOf(u"Str"), "Structures");
  stage.control.ORXSetReadOnly(false);
  EXPECT_EQ(stage.EnabledOf(u"Str") + " " + stage.EnabledOf(u"Char"), "Structures QueryBreak PageBreak BreakArea")
      << "as for pages with nothing selected";
  stage.Tab(1);
  stage.Press(u"cmdPrintLayout", 4);
  stage.Tab(0);
  stage.Press(u"cmdPrintLayout", 1);
  EXPECT_EQ(stage.Events(), "layout 1 '';");
  EXPECT_EQ(stage.Dialog_().TabStrip().Tab(), 0);
}

TEST(TwoControls, ShareTheModelAndNeverCommitPagesOfAnother) {
  Stage a{WithAttributes()};
  a.Tab(1);
  a.Click(a.List(u"lstPrint", 1), 0);
  a.Click(a.List(u"lstPrint", 1), 1);
  a.Box(u"txtCharColTitle").UserEdit(u"lost with the settings it belonged to");
  Stage b{Settings(Characteristics("v w x-"), "", "", "TITLE='B'")};
  b.Tab(1);
  b.Click(b.List(u"lstPrint", 1), 0);
  b.Click(b.List(u"lstPrint", 1), 1);
  const std::string seen = Seen(b);

  a.Read();
  EXPECT_EQ(a.Lists(1), "x:3 | *v:1 w:2") << "filled with the model that is the program's now";
  EXPECT_EQ(
      BriefOf(Kind::Dimension, *a.settings.dim),
      "IOBJNM='v' IOBJTXT='v' POSIT=1 AXIS='Y'\nIOBJNM='w' IOBJTXT='w' POSIT=2 AXIS='Y'\nIOBJNM='x' IOBJTXT='x'\n");
  EXPECT_EQ(Seen(b), seen);

  // Each has its own selection: what b types goes to w, which it shows.
  b.Box(u"txtCharColTitle").UserEdit(u"for w");
  a.Box(u"txtCharColTitle").UserEdit(u"for v");
  b.Read();
  a.Read();
  EXPECT_EQ(BriefOf(Kind::Dimension, *a.settings.dim),
            "IOBJNM='v' IOBJTXT='v' POSIT=1 AXIS='Y' PR_COL1_HEADER='for v' PR_COL2_HEADER='for v'\n"
            "IOBJNM='w' IOBJTXT='w' POSIT=2 AXIS='Y' PR_COL1_HEADER='for w' PR_COL2_HEADER='for w'\n"
            "IOBJNM='x' IOBJTXT='x'\n");

  // A user's click on pages that show a model that is gone shows the new one instead.
  const Settings again(Characteristics("k l"));
  again.LoadInto(b.control);
  a.Press(u"cmdRightToLeft", 1);
  EXPECT_EQ(a.Lists(1) + a.Events(), " | *k:1 l:2");
}

TEST(FailedLoad, IsShownWhenACommitIsDue) {
  Stage stage{WithAttributes()};
  const std::string before = Seen(stage);
  stage.Box(u"txtGenPrnTitle").UserEdit(u"typed");
  const Settings bad("IOBJNM='N' IOBJTXT='n' AXIS='Y'\nIOBJNM='M' POSIT='x'", "", "", "TITLE='next'");
  EXPECT_THROW(bad.LoadInto(stage.control), RunTimeError);
  EXPECT_EQ(Seen(stage), "typed" + before.substr(1)) << "the pages go on showing the earlier content";
  stage.Tab(1);
  EXPECT_EQ(Seen(stage).substr(0, 17), "next /  | *n:1 / ");
  stage.Read();
  EXPECT_EQ(BriefOf(Kind::General, *stage.settings.gen), "TITLE='next'\n");
}

TEST(FailedFill, IsNeverCommitted) {
  const auto settings = [] {
    return Settings(Characteristics("aQ bP c") + std::string(kTwoStructures), "", kElements);
  };
  // A text table whose row for an entry of the selectors has no caption.
  const auto texts = MemoryTable::Create({u"TARGETID"});
  AddRow(*texts)->Value(u"TARGETID", u"ID_PRN_NONE");
  for (const std::int16_t tab : {std::int16_t{1}, std::int16_t{3}}) {
    Stage stage{settings()};
    stage.Tab(tab);
    stage.control.ORXControlTexts(texts);
    const Settings next = settings();
    EXPECT_THROW(next.LoadInto(stage.control), RunTimeError);
    EXPECT_THROW(stage.control.ORXDimTable(), RunTimeError);
    EXPECT_THROW(stage.control.ORXSetReadOnly(true), RunTimeError);
    stage.control.ORXControlTexts(TableFrom(Kind::Texts, ""));
    stage.control.ORXDimTable();
    const Settings untouched = settings();
    EXPECT_EQ(BriefOf(Kind::Dimension, *next.dim),
              "IOBJNM='a' IOBJTXT='a' POSIT=1 AXIS='Y' PR_QUERY_BREAK='X'\n"
              "IOBJNM='b' IOBJTXT='b' POSIT=2 AXIS='Y' PR_PAGE_BREAK='X'\nIOBJNM='c' IOBJTXT='c' POSIT=3 AXIS='Y'\n"
              "IOBJNM='S1' IOBJTXT='one' POSIT=5 AXIS='X' IS_STRUCTURE='X'\n"
              "IOBJNM='S2' IOBJTXT='two' AXIS='X' IS_STRUCTURE='X'\n");
    stage.control.ORXSetReadOnly(true);
    EXPECT_EQ(stage.EnabledOf(u"Gen"), "");
  }
  gTextTable.reset();
}

TEST(FailedShow, StoresNothingIntoTheItemItWasFor) {
  Stage stage{
      Settings("IOBJNM='A' AXIS='Y' IOBJPRSNT='0'\nIOBJNM='B' AXIS='Y' IOBJPRSNT='1' PR_COL1_HEADER='title' "
               "PR_COL1_WIDTH=22")};
  stage.Tab(1);
  const auto texts = MemoryTable::Create({u"TARGETID"});
  AddRow(*texts)->Value(u"TARGETID", u"ID_DLG_VALPRES_2");
  EXPECT_THROW(stage.control.ORXControlTexts(texts), RunTimeError) << "and the former texts stay in use";
  gTextTable = texts;
  texts->Columns()->KeyColumn(std::int32_t{1});
  stage.List(u"lstPrint", 1).UserMouseDown(0, ListBox::kLeftButton);
  EXPECT_THROW(stage.Click(stage.List(u"lstPrint", 1), 1), RunTimeError);
  gTextTable.reset();
  EXPECT_NE(stage.ReadDimension().find("PR_COL1_WIDTH=22 PR_COL1_HEADER='title'"), std::string::npos);
}

TEST(ClickOnPagesOfAModelThatIsGone, IsDropped) {
  Stage stage{Settings(Characteristics("a b c"))};
  stage.Tab(1);
  const Settings bad("IOBJNM='v' IOBJTXT='v' AXIS='Y'\nIOBJNM='w' IOBJTXT='w' AXIS='Y'\nIOBJNM='x' POSIT='x'");
  EXPECT_THROW(bad.LoadInto(stage.control), RunTimeError);
  stage.Click(stage.List(u"lstPrint", 1), 1);
  EXPECT_EQ(stage.Lists(1), " | *v:1 w:2");
}

TEST(Limits, AreThoseOfARowNumber) {
  const Settings settings;
  for (int i = 0; i < 32767; ++i) {
    const RowRef row = AddRow(*settings.dim);
    for (const char16_t* column : {u"PR_COL1_WIDTH", u"PR_COL2_WIDTH", u"STRT_LVL"})
      row->Value(column, std::int16_t{0});
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
  Stage stage;
  Listener first, second, third;
  for (Listener* const listener : {&first, &second}) stage.control.Connect(*listener);
  first.then = [&] {
    stage.control.Disconnect(second);
    stage.control.Connect(third);
    first.then = nullptr;
  };
  stage.Press(u"cmdPrintLayout", 0);
  stage.Press(u"cmdPrintLayout", 0);
  EXPECT_EQ(std::tuple(first.heard, second.heard, third.heard), std::tuple(2, 0, 1));
  stage.control.Disconnect(first);
  stage.control.Disconnect(third);
}

}  // namespace
}  // namespace ORXKMPrintProp::test
