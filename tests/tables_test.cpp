#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <vector>

#include "support/table_text.h"
#include "tables/CellCodecs.h"
#include "tables/Collection.h"
#include "tables/Conversions.h"
#include "tables/MemoryTable.h"
#include "tables/RunTimeError.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::test {
namespace {

using namespace ModPrnGen;

/// What the action gives, or the kind of its failure.
std::string Outcome(const std::function<std::string()>& action) {
  try {
    return action();
  } catch (const RunTimeError& error) {
    return NameOf(error.Kind());
  }
}

template <class Decode, class Encode>
void ExpectCodes(Decode decode, Encode encode, const std::vector<std::pair<TextView, int>>& cells,
                 const std::vector<std::pair<int, TextView>>& values) {
  using Value = decltype(decode(TextView()));
  for (const auto& [cell, value] : cells) EXPECT_EQ(int{decode(cell)}, value) << ToAscii(cell);
  for (const auto& [value, cell] : values) {
    EXPECT_EQ(encode(static_cast<Value>(value)), cell) << value;
    if (value < 9) {
      EXPECT_EQ(int{decode(cell)}, value) << "comes back";
    }
  }
}

TEST(Codecs, ReadAndWriteEveryCodeAndFallBackOnTheirDefaults) {
  ExpectCodes(FlagFromCell, FlagToCell, {{u"X", 1}, {u" ", 0}, {u"", 0}, {u"x", 0}, {u"X ", 0}},
              {{1, u"X"}, {0, u" "}});
  ExpectCodes(AxisFromCell, AxisToCell, {{u"X", 1}, {u"Y", 1}, {u" ", 0}, {u"y", 0}, {u"", 0}}, {{1, u"Y"}, {0, u" "}});
  ExpectCodes(PresentationFromCell, PresentationToCell, {{u"", 1}, {u" ", 1}, {u"4", 1}, {u"00", 1}},
              {{0, u"0"}, {1, u"1"}, {2, u"2"}, {3, u"3"}, {9, u""}});
  ExpectCodes(AlignFromCell, AlignToCell, {{u"", 0}, {u"c", 0}, {u"X", 0}},
              {{0, u"L"}, {1, u"R"}, {2, u"C"}, {9, u"L"}});
  ExpectCodes(DirectionFromCell, DirectionToCell, {{u"", 1}, {u"x", 1}, {u"h", 1}}, {{0, u"H"}, {1, u"V"}, {9, u"V"}});
  ExpectCodes(SumPositFromCell, SumPositToCell, {{u"0", 0}, {u"", 0}, {u"11", 0}}, {{0, u"2"}, {1, u"1"}, {9, u"2"}});
  ExpectCodes(SignPrsntFromCell, SignPrsntToCell, {{u"", 0}, {u"0", 0}, {u"4", 0}},
              {{0, u"1"}, {1, u"2"}, {2, u"3"}, {9, u"3"}});
  ExpectCodes(CurUnitPositionFromCell, CurUnitPositionToCell, {{u"X", 3}, {u"", 3}, {u"l", 3}},
              {{0, u"L"}, {1, u"R"}, {2, u"T"}, {3, u"N"}, {9, u"N"}});
  ExpectCodes(NoSumsFromCell, NoSumsToCell, {{u"", 0}, {u"Y", 0}, {u"u", 0}},
              {{0, u" "}, {1, u"C"}, {2, u"U"}, {9, u"U"}});
}

TEST(Conversions, ReadWholeNumbersAndThoseAtTheHeadOfATextOnly) {
  const struct {
    const char* expected;  ///< as a number, and for a text the number at its head
    std::vector<const char*> cells;
  } rows[] = {
      {"type", {""}},
      {"-1", {"True", "-0.51"}},
      {"0", {"False", "0.5"}},
      {"2", {"1.5"}},
      {"-2", {"-2.5"}},
      {"32767", {"32767", "32767.4"}},
      {"-32768", {"-32768", "-32768.5"}},
      {"overflow", {"32768", "-32769", "32767.5"}},
      {"0 0", {"'.5'", "'1e-999'", "'-1e-99999999999999999999'", "'0e999'"}},
      {"2 2", {"'15E-1'", "' 2  '", "'+2.'"}},
      {"-8 -8", {"'-7.5'"}},
      {"1000 1000", {"'1e3'"}},
      {"overflow overflow", {"'40000'", "'1e999'", "'1e99999999999999999999'"}},
      {"type 0", {"''", "'  '", "'.'", "'-'", "'\t1'", "'0x10'", "'inf'"}},
      {"type 1", {"'1e'", "'1e+'", "'1,5'", "'1a'"}},
      {"type -1", {"'- 1'"}},
      {"type 12", {"'1 2'", "'12x'", "'11.5.7'"}},
      {"type 100", {"'1e2e3'", "'1 e 2'"}},
  };
  for (const auto& [expected, cells] : rows) {
    for (const char* const text : cells) {
      const Variant cell = VariantFrom(text);
      std::string numbers = Outcome([&] { return std::to_string(ToInteger(cell)); });
      if (const Text* const head = std::get_if<Text>(&cell)) {
        numbers += " " + Outcome([&] { return std::to_string(LeadingNumber(*head)); });
      }
      EXPECT_EQ(numbers, expected) << text;
    }
  }
  const double infinity = std::numeric_limits<double>::infinity();
  for (const Variant& cell :
       {Variant(infinity), Variant(infinity - infinity), Variant(ObjectRef()), Variant(u"\u0661")}) {
    EXPECT_THROW(ToInteger(cell), RunTimeError) << cell.index();
  }
  EXPECT_EQ(LeadingNumber(u"7\u00e4") + LeadingNumber(u"\u00e47"), 7);
}

TEST(Conversions, WriteNumbersInFull) {
  std::string texts;
  for (const Variant& cell : {Variant(), Variant(true), Variant(false), Variant(std::int16_t{-3}), Variant(100000),
                              Variant(0.1), Variant(-1e20), Variant(1.5e-7), Variant(u" x "), Variant(ObjectRef())}) {
    texts += Outcome([&] { return ToAscii(ToText(Variant(cell))); }) + ",";
  }
  EXPECT_EQ(texts, ",True,False,-3,100000,0.1,-100000000000000000000,0.00000015, x ,type,");
}

TEST(CollectionOfItems, KeepsNumbersAndKeysTogether) {
  Collection<std::string> items;
  const auto state = [&] {
    std::string text;
    for (const std::string& item : items) text += item;
    for (const TextView key : {u"k\u00e4", u"LAST"}) text += " " + Outcome([&] { return items.Item(key); });
    for (const int number : {0, 3, 4}) text += " " + Outcome([&] { return items.Item(number); });
    return text;
  };
  items.Add("a", u"K\u00c4");
  items.Add("b");
  items.Add("c", u"last");
  EXPECT_THROW(items.Add("d", u"LaSt"), RunTimeError);
  EXPECT_EQ(state(), "abc a c index c index");
  items.Remove(1);
  EXPECT_EQ(state(), "bc key c index index index");
  items.Remove(TextView(u"last"));
  EXPECT_EQ(state(), "b key key index index index");
  items.Add("e", u"last");
  EXPECT_EQ(state(), "be key e index index index");
}

TEST(TableInMemory, KeepsRowsThatAreHeldAndRefusesWhatItDoesNotHave) {
  EXPECT_THROW(MemoryTable::Create({u"A", u"A"}), RunTimeError);
  auto table = MemoryTable::Create({u"KEY", u"VALUE"});
  AddRow(*table)->Value(u"VALUE", std::int32_t{5});
  EXPECT_THROW(RowsOf(*table)->Item(u"a"), RunTimeError) << "without a key column";
  EXPECT_THROW(table->Columns()->KeyColumn(std::int32_t{3}), RunTimeError);
  const RowRef held = RowAt(*table, 1);
  RowsOf(*table)->RemoveAll();
  table.reset();
  EXPECT_EQ(ToString(held->Value(u"VALUE")), "5");
}

}  // namespace
}  // namespace ORXKMPrintProp::test
