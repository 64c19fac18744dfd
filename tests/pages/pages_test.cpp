#include <gtest/gtest.h>

#include <sstream>

#include "pages/ListRoutines.h"
#include "support/stage.h"
#include "support/widget_text.h"
#include "tables/Conversions.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::test {
namespace {

using namespace ModPrnGen;

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

TEST(ListRoutines, InsertAheadOfTheFirstGreaterPosition) {
  // Positions by entry, "x" for an entry that stands for no item; the inserted ones have a plus sign.
  const struct {
    const char *entries, *inserted, *combo;
  } rows[] = {
      {"", "3 1 2 2", "+1 +2 +3"},
      {"5 3 7", "4 6 8 5", "+4 5 3 +6 7 +8"},
      {"5 3 7", "3", "+3 5 3 7"},
      {"x x 5 x", "4 9 1", "x x +1 +4 5 x +9"},
      {"32767 -32768", "32767 -32768 0", "+-32768 +0 32767 -32768"},
  };
  Dialog dialog;
  auto& combo = dialog.Get<ComboBox>(u"cmbAttrChar");
  for (const auto& row : rows) {
    std::vector<std::int16_t> positions;
    combo.Clear();
    Fill(combo, row.entries);
    for (std::int16_t i = 0; i < combo.ListCount(); ++i) {
      const bool isItem = combo.List(i) != u"x";
      positions.push_back(isItem ? ToInteger(combo.List(i)) : std::int16_t{0});
      combo.ItemData(i, isItem ? i + 1 : i - 1);
    }
    PositionInserter inserter(combo, [&](std::int32_t item) { return positions[static_cast<std::size_t>(item) - 1]; });
    std::istringstream inserted(row.inserted);
    for (std::int16_t position; inserted >> position;) {
      positions.push_back(position);
      inserter.Insert(u"+" + ToText(position), static_cast<std::int32_t>(positions.size()));
    }
    std::string text;
    for (std::int16_t i = 0; i < combo.ListCount(); ++i) {
      text += (i > 0 ? " " : "") + ToAscii(combo.List(i));
      if (combo.List(i) == u"x") continue;
      EXPECT_TRUE(combo.List(i).ends_with(ToText(positions.at(static_cast<std::size_t>(combo.ItemData(i)) - 1))));
    }
    EXPECT_EQ(text, row.combo);
  }
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
