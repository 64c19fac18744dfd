#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <map>
#include <utility>

#include "support/table_text.h"
#include "support/transcript.h"
#include "tables/CellCodecs.h"
#include "tables/Collection.h"
#include "tables/Conversions.h"
#include "tables/MemoryTable.h"
#include "tables/PackedText.h"
#include "tables/RunTimeError.h"
#include "tables/TableCalls.h"
#include "texts/LookupText.h"

namespace ORXKMPrintProp::test {
namespace {

using namespace ModPrnGen;

/// Conversions by name. A line has cells, which stand apart by ", ", and what each of them becomes is told.
class ConversionPlayer : public Player {
 public:
  ~ConversionPlayer() override { gTextTable.reset(); }
  ConversionPlayer() : Player({}) {
    AddCodec("flag", FlagFromCell, FlagToCell);
    AddCodec("axis", AxisFromCell, AxisToCell);
    AddCodec("presentation", PresentationFromCell, PresentationToCell);
    AddCodec("alignment", AlignFromCell, AlignToCell);
    AddCodec("direction", DirectionFromCell, DirectionToCell);
    AddCodec("sums", SumPositFromCell, SumPositToCell);
    AddCodec("sign", SignPrsntFromCell, SignPrsntToCell);
    AddCodec("currency", CurUnitPositionFromCell, CurUnitPositionToCell);
    AddCodec("no-sums", NoSumsFromCell, NoSumsToCell);
    conversions_["integer"] = [](const Variant& cell) { return std::to_string(ToInteger(cell)); };
    conversions_["head"] = [](const Variant& cell) { return std::to_string(LeadingNumber(std::get<Text>(cell))); };
    conversions_["text"] = [](const Variant& cell) { return "'" + ToAscii(ToText(Variant(cell))) + "'"; };
    conversions_["look-up"] = [](const Variant& cell) {
      gTextTable = TableFrom(Kind::Texts, "TARGETID='k' CAPTION=" + ToString(cell));
      gTextTable->Columns()->KeyColumn(std::int32_t{1});
      const std::vector<Variant> values{u"D", u"A", u"B", Variant(), ObjectRef(), u"&2", std::int16_t{5}};
      return "'" + ToAscii(LookupText(u"k", values)) + "'";
    };
  }

 protected:
  void DoStep(const std::string& line) override {
    const std::size_t blank = line.find(' ');
    const auto& conversion = conversions_.at(line.substr(0, blank));
    std::string all;
    ForEach(line.substr(blank + 1), ", ", [&](const std::string& cell) {
      all += (all.empty() ? "" : ", ") + OutcomeOf([&] { return conversion(VariantFrom(cell)); });
    });
    Tell(all);
  }
  Lines State() override { return {}; }

 private:
  template <class Decode, class Encode>
  void AddCodec(const std::string& name, Decode decode, Encode encode) {
    using Value = decltype(decode(TextView()));
    conversions_["read-" + name] = [=](const Variant& cell) {
      return std::to_string(int{decode(std::get<Text>(cell))});
    };
    conversions_["write-" + name] = [=](const Variant& cell) {
      return "'" + ToAscii(encode(static_cast<Value>(std::get<std::int32_t>(cell)))) + "'";
    };
  }

  std::map<std::string, std::function<std::string(const Variant& cell)>> conversions_;
};

TEST(Conversions, GiveWhatTheTranscriptSays) {
  PlayTranscript(PRNPROP_PAGES "/conversions.txt", [] { return std::make_unique<ConversionPlayer>(); });
}

TEST(Conversions, RefuseWhatHasNoNotation) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const Variant& cell :
       {Variant(infinity), Variant(infinity - infinity), Variant(ObjectRef()), Variant(u"\u0661")}) {
    EXPECT_THROW(ToInteger(cell), RunTimeError) << cell.index();
  }
  EXPECT_EQ(LeadingNumber(u"7\u00e4") + LeadingNumber(u"\u00e47"), 7);
  EXPECT_THROW(ToText(ObjectRef()), RunTimeError);
  EXPECT_EQ(ToText(std::int16_t{-3}) + ToText(Variant(1.5e-7)), u"-30.00000015");
}

TEST(Conversions, ReadNumbersAsFarAsTheyGo) {
  EXPECT_EQ(LeadingNumber(u"5\u0131"), 5) << "ends ahead of what is no digit in any half";
  const Text zeros(330, u'0');
  EXPECT_EQ(LeadingNumber(u"0." + zeros + u"1e5"), 0);
  EXPECT_THROW(LeadingNumber(u"1" + zeros + u"e-5"), RunTimeError);
}

TEST(TextThatIsPacked, ComesBackAsItWas) {
  const Text texts[] = {u"",       u"X",      u"15 characters .",   u"16 characters ..", Text(u"\0a\0", 3),
                        u"\u00FF", u"\u0100", u"\u4E00 and \xD800", Text(300, u'a')};
  PackedText changing;
  for (const Text& text : texts) {
    const PackedText packed(text);
    PackedText copy = packed;
    changing = copy;
    EXPECT_EQ(PackedText(std::move(copy)).Unpacked(), text);
    EXPECT_EQ(changing.Unpacked(), text);
    EXPECT_EQ(packed.Unpacked(), text);
  }
}

TEST(CollectionOfItems, KeepsNumbersAndKeysTogether) {
  Collection<std::string> items;
  const auto state = [&] {
    std::string text;
    for (const std::string& item : items) text += item;
    for (const TextView key : {u"k\u00e4", u"LAST"}) text += " " + OutcomeOf([&] { return items.Item(key); });
    for (const int number : {0, 3, 4}) text += " " + OutcomeOf([&] { return items.Item(number); });
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
  EXPECT_THROW(AddRow(*MemoryTable::Create({}))->Value(u"A"), RunTimeError);
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
