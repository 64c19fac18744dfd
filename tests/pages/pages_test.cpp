#include <gtest/gtest.h>

#include <sstream>

#include "host/Files.h"
#include "support/stage.h"
#include "tables/RunTimeError.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::test {
namespace {

/// The text behind each "= ", with what stands ahead of the first of them at its beginning.
std::vector<std::pair<std::string, std::string>> ScenesOf(const std::string& transcript) {
  std::vector<std::pair<std::string, std::string>> scenes;
  std::istringstream in(transcript);
  std::string common;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("= ")) {
      scenes.emplace_back(line, common);
    } else {
      (scenes.empty() ? common : scenes.back().second) += line + "\n";
    }
  }
  return scenes;
}

class Pages : public testing::TestWithParam<std::string> {};

TEST_P(Pages, ShowTheModelAndStoreIt) {
  for (const auto& [what, scene] : ScenesOf(host::ReadFile(PRNPROP_PAGES + ("/" + GetParam()) + ".txt"))) {
    gPrnProp.reset();
    Stage stage;
    EXPECT_EQ(stage.Play(scene), scene) << what;
  }
}

INSTANTIATE_TEST_SUITE_P(Each, Pages,
                         testing::Values("general", "characteristics", "attributes", "structures", "order", "loads"),
                         [](const auto& transcript) { return transcript.param; });

TEST(TwoControls, ShareTheModelAndNeverCommitPagesOfAnother) {
  Stage a{Settings(Characteristics("a b"))};
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

TEST(FailedFill, IsNeverCommitted) {
  // A text table whose row for an entry of the selectors has no caption.
  const auto texts = MemoryTable::Create({u"TARGETID"});
  AddRow(*texts)->Value(u"TARGETID", u"ID_PRN_NONE");
  Stage stage{Settings(Characteristics("aQ bP c"))};
  stage.Play("tab 1");
  stage.control.ORXControlTexts(texts);
  stage.Play(
      "characteristics aQ bP c\ndimension IOBJNM='S' IOBJTXT='s' IS_STRUCTURE='X'\nmember IOBJNM='S' CHAVLTXT='x' "
      "POSIT=1");
  for (const std::string step : {"load\n", "read dimension\n", "readonly on\n"}) {
    EXPECT_TRUE(stage.Play(step).starts_with(step + "  error: The table has no column CAPTION.\n"));
  }
  gTextTable.reset();
  EXPECT_EQ(stage.After("read dimension; readonly on", {"breaks", "lists 1", "model"}),
            "([0 >a b] [0 >b] [>0]) / ([] #1 #1) [*a b c] / a1Q b2P c3 s(x1)");
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

TEST(Breaks, AreRebuiltForAnOrderThatAHostReadsInItsHandler) {
  // The new order is committed while the selections are still those of the old one.
  const struct {
    const char *drag, *during, *after;
  } rows[] = {{"1 4", "[>0 a c d e] [>0 a c d e] [>0 a c d e]", "[>0 a c d e] [>0 a c d e] [0 a c d >e]"},
              {"2 4", "[0 a >b d e] [>0 d e] [>0 d e]", "[>0 a b d e] [>0 a b d e] [0 a b d >e]"},
              {"3 4", "[0 a >b c e] [0 >c e] [0 >e]", "[>0 a b c e] [>0 a b c e] [0 a b c >e]"}};
  for (const auto& row : rows) {
    Stage stage{Settings(Characteristics("a bQ cP dA e"))};
    std::string during;
    stage.onOrderChanged = [&] { during = stage.After("read dimension", {"breaks"}); };
    EXPECT_EQ(stage.After(std::string("tab 1; click lstPrint(1) ") + row.drag, {"breaks"}), row.after);
    EXPECT_EQ(during, row.during);
  }
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
