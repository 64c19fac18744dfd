#include <gtest/gtest.h>

#include <sstream>

#include "dialog/Dialog.h"
#include "pages/ListRoutines.h"
#include "support/widget_text.h"
#include "tables/Conversions.h"

namespace ORXKMPrintProp::test {
namespace {

using namespace ModPrnGen;

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

}  // namespace
}  // namespace ORXKMPrintProp::test
