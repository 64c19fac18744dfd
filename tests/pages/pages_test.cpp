#include <gtest/gtest.h>

#include "support/stage.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::test {
namespace {

class Pages : public testing::TestWithParam<std::string> {};

TEST_P(Pages, ShowTheModelAndStoreIt) {
  PlayTranscript(PRNPROP_PAGES + ("/" + GetParam()) + ".txt", [] {
    ReleaseSharedValues();
    return std::make_unique<Stage>();
  });
}

INSTANTIATE_TEST_SUITE_P(Each, Pages,
                         testing::Values("general", "characteristics", "attributes", "structures", "order", "loads",
                                         "hosts", "rounds"),
                         [](const auto& transcript) { return transcript.param; });

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
  const auto& list = dialog.Get<ListBox>(u"lstPrint", 1);
  const auto& selector = dialog.Get<ComboBox>(u"cmbCharQueryBreak");
  UserStep(dialog, "tab 1").Do();
  EXPECT_EQ(std::tuple(list.ListCount(), selector.ListCount(), selector.ListIndex()), std::tuple(32767, 32767, 32766));
  // The one that is selected becomes the last.
  UserStep(dialog, "click lstPrint(1) 32766 0").Do();
  EXPECT_EQ(std::tuple(selector.ListCount(), selector.ListIndex()), std::tuple(32767, 0));
}

TEST(NumericBoxes, LetDigitsAndBackspaceThrough) {
  Stage stage;
  std::string filtered;
  for (const auto& widget : stage.Control().GetDialog().Controls()) {
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
  for (Listener* const listener : {&first, &second}) stage.Control().Connect(*listener);
  first.then = [&] {
    stage.Control().Disconnect(second);
    stage.Control().Connect(third);
    first.then = nullptr;
  };
  stage.Play("press cmdPrintLayout(0); press cmdPrintLayout(0)");
  EXPECT_EQ(std::tuple(first.heard, second.heard, third.heard), std::tuple(2, 0, 1));
}

}  // namespace
}  // namespace ORXKMPrintProp::test
