#include "host/Differences.h"

#include <algorithm>
#include <map>
#include <span>
#include <type_traits>
#include <utility>

#include "dialog/DialogTexts.h"
#include "host/Load.h"
#include "host/Pairs.h"
#include "host/PrintRows.h"
#include "host/Terminal.h"
#include "host/Utf8.h"
#include "texts/LookupText.h"
#include "views/Translation.h"

namespace ORXKMPrintProp::host {
namespace {

using views::Filled;

enum class ValueKind { Text, Number, Width, Flag, Choice, Layout };

/// How a setting is told.
struct Setting {
  /// Of the caption, among the texts of the dialog; empty when the words have one of their own.
  TextView key = {};
  ValueKind kind = {};
  std::span<const TextView> entries = {};  ///< of a choice: the keys of its entries' captions, by value
  int column = 0;                          ///< 1 or 2 of an item that has two
  TextView frame = {};                     ///< key of a caption without which the setting's own says too little
  Text DifferenceWords::*words = nullptr;  ///< the caption of what no page shows
};

template <class Item>
struct SettingOf : Setting {
  Variant (*value)(const Item&);
  bool (*applies)(const Item&) = nullptr;  ///< whether the value has an effect; none for always
};

template <class Item, auto Member>
using ValueOf = std::decay_t<decltype((std::declval<const Item&>().*Member)())>;

template <class Value>
constexpr ValueKind KindOf() {
  if constexpr (std::is_same_v<Value, Text>) return ValueKind::Text;
  if constexpr (std::is_same_v<Value, bool>) return ValueKind::Flag;
  if constexpr (std::is_same_v<Value, std::int16_t>) return ValueKind::Number;
  return ValueKind::Choice;
}

template <class Item, auto Member>
constexpr SettingOf<Item> Of(Setting setting, bool (*applies)(const Item&) = nullptr) {
  return {setting,
          [](const Item& item) -> Variant {
            if constexpr (std::is_enum_v<ValueOf<Item, Member>>) return static_cast<std::int32_t>((item.*Member)());
            return (item.*Member)();
          },
          applies};
}

/// Of the kind that the type of the property says.
template <class Item, auto Member>
constexpr SettingOf<Item> Of(TextView key, bool (*applies)(const Item&) = nullptr) {
  return Of<Item, Member>({.key = key, .kind = KindOf<ValueOf<Item, Member>>()}, applies);
}

template <class Item, auto Member>
constexpr SettingOf<Item> Choice(TextView key, std::span<const TextView> entries, int column = 0,
                                 bool (*applies)(const Item&) = nullptr) {
  return Of<Item, Member>({.key = key, .kind = ValueKind::Choice, .entries = entries, .column = column}, applies);
}

/// A number, or True while the width is automatic.
template <class Item, auto Member>
constexpr SettingOf<Item> Width(int column = 0, bool (*applies)(const Item&) = nullptr) {
  return {{.key = u"ID_PRN_COLWIDTH", .kind = ValueKind::Width, .column = column},
          [](const Item& item) -> Variant {
            if (item.ColAutoWidth()) return true;
            return (item.*Member)();
          },
          applies};
}

constexpr TextView kDirections[] = {u"ID_PRN_HORIZONTAL", u"ID_PRN_VERTICAL"};
constexpr TextView kSumPosits[] = {u"ID_PRN_SUMPOSIT_1", u"ID_PRN_SUMPOSIT_2"};
constexpr TextView kSigns[] = {u"ID_PRN_SIGNPRSNT_1", u"ID_PRN_SIGNPRSNT_2", u"ID_PRN_SIGNPRSNT_3"};
constexpr TextView kUnits[] = {u"ID_PRN_CURUNITPOS_1", u"ID_PRN_CURUNITPOS_2", u"", u"ID_PRN_CURUNITPOS_4"};
constexpr TextView kAlignments[] = {u"ID_PRN_COLALIGN1", u"ID_PRN_COLALIGN2", u"ID_PRN_COLALIGN3"};
constexpr TextView kPresentations[] = {u"ID_DLG_VALPRES_1", u"ID_DLG_VALPRES_2", u"ID_DLG_VALPRES_3",
                                       u"ID_DLG_VALPRES_4"};
constexpr TextView kNoSums[] = {u"ID_PRN_NOSUMS_1", u"ID_PRN_NOSUMS_2", u"ID_PRN_NOSUMS_3"};

using G = PrnPropCls;

template <auto Member>
constexpr SettingOf<G> Margin(TextView key) {
  return Of<G, Member>({.key = key, .kind = ValueKind::Number, .frame = u"ID_PRN_PAGEMARGINS"});
}

template <std::int16_t Index>
constexpr SettingOf<G> PageLayout(TextView key) {
  return {{.key = key, .kind = ValueKind::Layout}, [](const G& root) -> Variant { return root.FBLayout(Index); }};
}

constexpr SettingOf<G> kGeneral[] = {
    Of<G, &G::Title>(u"ID_PRN_PRINTTITLE"),
    Of<G, &G::MaxPages>(u"ID_PRN_MAXPAGES"),
    Choice<G, &G::Direction>(u"ID_PRN_PRINTDIRECTION", kDirections),
    Choice<G, &G::SumPosit>(u"ID_PRN_SUMPOSIT", kSumPosits),
    Choice<G, &G::SignPrsnt>(u"ID_PRN_SIGNPRSNT", kSigns),
    Choice<G, &G::CurUnitPosition>(u"ID_PRN_CURUNITPOS", kUnits),
    Of<G, &G::ShowNoZeros>(u"ID_DLG_CHK_SUPPRESSZEROS"),
    Of<G, &G::UseColors>(u"ID_PRN_USECOLORS"),
    Of<G, &G::NoMultTxt>(u"ID_PRN_NOMULTTEXTS"),
    Of<G, &G::NoLines>(u"ID_PRN_NOLINES"),
    Margin<&G::MarginTop>(u"ID_PRN_MARGINTOP"),
    Margin<&G::MarginBottom>(u"ID_PRN_MARGINBOTTOM"),
    Margin<&G::MarginLeft>(u"ID_PRN_MARGINLEFT"),
    Margin<&G::MarginRight>(u"ID_PRN_MARGINRIGHT"),
    PageLayout<0>(u"ID_PRN_TOPPAGE"),
    PageLayout<1>(u"ID_PRN_HEADPART"),
    PageLayout<2>(u"ID_PRN_FOOTPART"),
    PageLayout<3>(u"ID_PRN_ENDPAGE"),
};

using I = PrnColumnsCls;

bool HasColumn2(const I& item) {
  return item.Presentation() == PP_VALP_KEYTEXT || item.Presentation() == PP_VALP_TEXTKEY;
}

constexpr SettingOf<I> kTwoColumns[] = {
    Choice<I, &I::Presentation>(u"ID_PRN_PRESENTATION", kPresentations),
    Of<I, &I::ColTitle>(u"ID_PRN_COLTITLE"),
    Choice<I, &I::ColAlign1>(u"ID_PRN_ALIGNMENT", kAlignments, 1),
    Width<I, &I::ColWidth1>(1),
    Of<I, &I::ColFix1>({.key = u"ID_PRN_COLEACHPAGE", .kind = ValueKind::Flag, .column = 1}),
    Choice<I, &I::ColAlign2>(u"ID_PRN_ALIGNMENT", kAlignments, 2, HasColumn2),
    Width<I, &I::ColWidth2>(2, HasColumn2),
    Of<I, &I::ColFix2>({.key = u"ID_PRN_COLEACHPAGE", .kind = ValueKind::Flag, .column = 2}, HasColumn2),
};

using C = PrnCharCls;
constexpr SettingOf<C> kCharacteristic[] = {
    Of<C, &C::HryActive>(u"ID_PRN_HIERDISP"),
    Of<C, &C::HryLevel>(u"ID_PRN_HIERLEVEL", [](const C& item) { return item.HryActive(); }),
    Of<C, &C::HieNm>({.kind = ValueKind::Text, .words = &DifferenceWords::hierarchy}),
    Of<C, &C::Version>({.kind = ValueKind::Text, .words = &DifferenceWords::version}),
    Of<C, &C::DateTo>({.kind = ValueKind::Text, .words = &DifferenceWords::dateTo}),
    Choice<C, &C::NoSums>(u"ID_PRN_NOSUMS", kNoSums),
    Of<C, &C::FBLayout>({.key = u"ID_PRN_CMDRESULTLINE", .kind = ValueKind::Layout}),
};

struct Break {
  TextView key;  ///< of the caption of its selector
  FlagProperty C::*flag;
};
constexpr Break kBreaks[] = {
    {u"ID_PRN_QUERYBREAK", &C::QueryBreak}, {u"ID_PRN_PAGEBREAK", &C::PageBreak}, {u"ID_PRN_BREAKAREA", &C::BreakArea}};

using E = PrnStrElemCls;
constexpr SettingOf<E> kElement[] = {
    Of<E, &E::ColTitle>(u"ID_PRN_COLTITLE"),
    Choice<E, &E::ColAlign>(u"ID_PRN_ALIGNMENT", kAlignments),
    Width<E, &E::ColWidth>(),
};

using S = PrnStructureCls;
constexpr SettingOf<S> kStructure[] = {
    Of<S, &S::Position>({.kind = ValueKind::Number, .words = &DifferenceWords::position}),
};

constexpr TextView kPages[] = {u"ID_PRN_GENERAL", u"ID_PRN_CHAR", u"ID_PRN_ATTR", u"ID_PRN_STRUCT"};

bool IsPrinted(const PrnItemCls& item) { return !item.Hidden(); }
bool IsPrinted(const S&) { return true; }
int PrintPosition(const PrnItemCls& item) { return item.Position(); }
/// They print in the order in which they stand.
int PrintPosition(const S&) { return 0; }

TextView DefaultOf(TextView key) {
  const auto texts = DialogTexts();
  return std::find_if(texts.begin(), texts.end(), [&](const DialogText& text) { return text.key == key; })->text;
}

Text LookUp(TextView key, TextView text) { return OneLine(ModPrnGen::LookupText(key, text)); }
Text Caption(TextView key) { return LookUp(key, DefaultOf(key)); }

/// The caption within a line. A language that is not known keeps its capital.
Text InnerCaption(TextView key) {
  Text caption = Caption(key);
  if (caption == DefaultOf(key)) caption[0] += u'a' - u'A';
  return caption;
}

template <class Item>
using Items = std::vector<const Item*>;

template <class Collection>
auto ItemsOf(const Collection& collection) {
  Items<typename Collection::ItemRef::element_type> items;
  for (const auto& item : collection) items.push_back(item.get());
  return items;
}

/// An item as it was and as it is.
template <class Item>
struct Change : PairOf<const Item*> {
  Text name = {};        ///< that tells it from the others
  std::size_t from = 0;  ///< place in the print order before, counted from 1; 0 when it was not printed
  std::size_t to = 0;
  bool moved = false;
};

/// Those that are printed, in print order.
template <class Item>
Items<Item> PrintOrder(Items<Item> items) {
  std::erase_if(items, [](const Item* item) { return !IsPrinted(*item); });
  std::stable_sort(items.begin(), items.end(),
                   [](const Item* a, const Item* b) { return PrintPosition(*a) < PrintPosition(*b); });
  return items;
}

/// The indexes of a longest ascending part of the numbers: all that can stay where as few as possible move.
std::vector<std::size_t> LongestAscent(const std::vector<std::size_t>& numbers) {
  std::vector<std::size_t> ends;  // of the ascents of 1, 2, 3 ... numbers, the index that ends one with the least
  std::vector<std::size_t> ahead(numbers.size());
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const auto end = std::lower_bound(ends.begin(), ends.end(), numbers[i],
                                      [&](std::size_t index, std::size_t number) { return numbers[index] < number; });
    if (end != ends.begin()) ahead[i] = *std::prev(end);
    if (end == ends.end()) {
      ends.push_back(i);
    } else {
      *end = i;
    }
  }
  std::vector<std::size_t> ascent(ends.size());
  for (std::size_t i = ends.size(); i > 0; --i) {
    ascent[i - 1] = i == ends.size() ? ends.back() : ahead[ascent[i]];
  }
  return ascent;
}

class Comparison {
 public:
  explicit Comparison(const DifferenceWords& words) : words_(words) {}

  void AddGeneralLines(const G& before, const G& after, std::vector<Text>& lines) const {
    AddChanges<G>(kGeneral, before, after, {}, lines);
  }

  /// Those that are printed, in print order; behind them the others, and behind those what is gone.
  template <class Item>
  std::vector<Change<Item>> ChangesOf(const Items<Item>& before, const Items<Item>& after) const;

  /// @param owner whose items they are, empty for the query
  template <class Item>
  void AddItemLines(const std::vector<Change<Item>>& changes, const Text& owner, std::vector<Text>& lines) const;

  void AddBreakLines(const std::vector<Change<C>>& changes, std::vector<Text>& lines) const;

 private:
  struct Inside {
    bool anItem = false;
    bool twoColumns = false;
  };

  Text Quoted(TextView text) const { return Filled(words_.quoted, {text}); }
  Text CaptionOf(const Setting& setting, const Inside& inside) const;
  Text Shown(const Setting& setting, const Variant& value) const;
  Text ChangeOf(const Setting& setting, const Variant& before, const Variant& after, bool applied,
                const Inside& inside) const;

  template <class Item>
  void AddChanges(std::span<const SettingOf<Item>> settings, const Item& before, const Item& after,
                  const Inside& inside, std::vector<Text>& changes) const {
    for (const SettingOf<Item>& setting : settings) {
      const auto applies = [&](const Item& item) { return !setting.applies || setting.applies(item); };
      const Variant from = setting.value(before);
      const Variant to = setting.value(after);
      if (from == to || !applies(after)) continue;
      changes.push_back(ChangeOf(setting, from, to, applies(before), inside));
    }
  }

  void AddSettings(const I& before, const I& after, std::vector<Text>& changes) const {
    AddChanges<I>(kTwoColumns, before, after, {true, HasColumn2(before) || HasColumn2(after)}, changes);
  }
  void AddSettings(const C& before, const C& after, std::vector<Text>& changes) const {
    AddSettings(static_cast<const I&>(before), static_cast<const I&>(after), changes);
    AddChanges<C>(kCharacteristic, before, after, {true}, changes);
  }
  void AddSettings(const E& before, const E& after, std::vector<Text>& changes) const {
    AddChanges<E>(kElement, before, after, {true}, changes);
  }
  void AddSettings(const S& before, const S& after, std::vector<Text>& changes) const {
    AddChanges<S>(kStructure, before, after, {true}, changes);
  }

  template <class Item>
  Text NameOf(const Item& item) const {
    const Text name = OneLine(item.Text().empty() ? item.Name() : item.Text());
    return name.empty() ? words_.nameless : name;
  }
  template <class Item>
  void Name(std::vector<Change<Item>>& changes) const;

  /// What became of its place; empty for nothing.
  /// @param ahead the name of the item ahead of it in print, empty for none
  template <class Item>
  Text PlaceChange(const Change<Item>& change, const Text& subject, const Text& ahead) const;
  template <class Item>
  Text ItemLine(const Change<Item>& change, const Text& subject, const Text& ahead) const;

  const DifferenceWords& words_;
};

Text Comparison::CaptionOf(const Setting& setting, const Inside& inside) const {
  if (setting.words) return words_.*setting.words;
  if (!setting.frame.empty()) return Filled(words_.inFrame, {Caption(setting.frame), Caption(setting.key)});
  if (!inside.anItem) return Caption(setting.key);
  const Text caption = InnerCaption(setting.key);
  if (!inside.twoColumns || setting.column == 0) return caption;
  return Filled(words_.ofColumn, {InnerCaption(setting.column == 1 ? u"ID_PRN_COL1" : u"ID_PRN_COL2"), caption});
}

Text Comparison::Shown(const Setting& setting, const Variant& value) const {
  if (setting.kind == ValueKind::Choice) {
    const TextView key = setting.entries[static_cast<std::size_t>(std::get<std::int32_t>(value))];
    return key.empty() ? words_.inHeading : Quoted(Caption(key));
  }
  if (std::holds_alternative<bool>(value)) return words_.automatic;
  const Text text = OneLine(ToText(Variant(value)));
  if (setting.kind != ValueKind::Text) return text;
  return text.empty() ? words_.nothing : Quoted(text);
}

Text Comparison::ChangeOf(const Setting& setting, const Variant& before, const Variant& after, bool applied,
                          const Inside& inside) const {
  const Text caption = CaptionOf(setting, inside);
  const auto isEmpty = [](const Variant& value) { return value == Variant(Text()); };
  if (setting.kind == ValueKind::Flag) return Filled(std::get<bool>(after) ? words_.on : words_.off, {caption});
  if (setting.kind == ValueKind::Layout) {
    const Text& sentence = isEmpty(before)  ? words_.layoutNew
                           : isEmpty(after) ? words_.layoutGone
                                            : words_.layoutChanged;
    return Filled(sentence, {caption});
  }
  const Text from = Shown(setting, before);
  const Text to = Shown(setting, after);
  const bool isNew = !applied || isEmpty(before);
  const Text& sentence = isNew                                  ? words_.set
                         : std::holds_alternative<bool>(before) ? words_.notAutomatic
                         : inside.anItem                        ? words_.itemChanged
                                                                : words_.changed;
  return Filled(sentence, {caption, from, to});
}

/// Names that are alike get the technical name beside them, and a number where that is the same too.
template <class Item>
void Comparison::Name(std::vector<Change<Item>>& changes) const {
  const auto counts = [&] {
    std::map<Text, int> names;
    for (const Change<Item>& change : changes) ++names[change.name];
    return names;
  };
  const auto itemOf = [](const Change<Item>& change) -> const Item& {
    return change.after ? *change.after : *change.before;
  };
  for (Change<Item>& change : changes) change.name = NameOf(itemOf(change));
  auto names = counts();
  for (Change<Item>& change : changes) {
    const Text technical = OneLine(itemOf(change).Name());
    if (names[change.name] > 1 && !technical.empty() && technical != change.name)
      change.name += u" (" + technical + u")";
  }
  names = counts();
  std::map<Text, int> numbers;
  for (Change<Item>& change : changes) {
    if (names[change.name] > 1) change.name += u" #" + Digits(++numbers[change.name]);
  }
}

template <class Item>
std::vector<Change<Item>> Comparison::ChangesOf(const Items<Item>& before, const Items<Item>& after) const {
  std::vector<Change<Item>> changes;
  for (const auto& pair : Paired(before, after, [](const Item* item) { return item->Name(); }))
    changes.push_back({pair});
  Name(changes);

  std::map<const Item*, std::size_t> places;
  for (const auto& order : {PrintOrder(before), PrintOrder(after)}) {
    for (std::size_t i = 0; i < order.size(); ++i) places[order[i]] = i + 1;
  }
  for (Change<Item>& change : changes) {
    change.from = change.before ? places[change.before] : 0;
    change.to = change.after ? places[change.after] : 0;
  }
  const auto rank = [](const Change<Item>& change) { return std::pair(change.to == 0, change.to); };
  std::stable_sort(changes.begin(), changes.end(),
                   [&](const Change<Item>& a, const Change<Item>& b) { return rank(a) < rank(b); });

  std::vector<std::size_t> from;
  std::vector<Change<Item>*> printed;
  for (Change<Item>& change : changes) {
    if (change.from == 0 || change.to == 0) continue;
    from.push_back(change.from);
    printed.push_back(&change);
    change.moved = true;
  }
  for (const std::size_t index : LongestAscent(from)) printed[index]->moved = false;
  return changes;
}

template <class Item>
Text Comparison::PlaceChange(const Change<Item>& change, const Text& subject, const Text& ahead) const {
  if (!change.after) return Filled(words_.gone, {subject});
  if (!change.before) {
    const Text& sentence = change.to == 0 ? words_.newHidden : ahead.empty() ? words_.newFirst : words_.newBehind;
    return Filled(sentence, {subject, ahead});
  }
  if (change.moved)
    return Filled(words_.moved, {subject, Digits(static_cast<int>(change.from)), Digits(static_cast<int>(change.to))});
  if (change.to == 0) return change.from == 0 ? Text() : Filled(words_.notPrinted, {subject});
  if (change.from > 0) return {};
  return Filled(ahead.empty() ? words_.printedFirst : words_.printedBehind, {subject, ahead});
}

template <class Item>
Text Comparison::ItemLine(const Change<Item>& change, const Text& subject, const Text& ahead) const {
  Text line = PlaceChange(change, subject, ahead);
  if (!change.before || !change.after) return line;
  std::vector<Text> changes;
  if (change.before->Text() != change.after->Text()) {
    changes.push_back(Filled(words_.called, {subject, Quoted(NameOf(*change.before))}));
  }
  AddSettings(*change.before, *change.after, changes);
  for (const Text& further : changes) line += (line.empty() ? subject + u": " : u"; ") + further;
  return line;
}

template <class Item>
void Comparison::AddItemLines(const std::vector<Change<Item>>& changes, const Text& owner,
                              std::vector<Text>& lines) const {
  Text ahead;
  for (const Change<Item>& change : changes) {
    const Text subject = owner.empty() ? change.name : Filled(words_.below, {owner, change.name});
    if (Text line = ItemLine(change, subject, ahead); !line.empty()) lines.push_back(std::move(line));
    ahead = change.name;
  }
}

void Comparison::AddBreakLines(const std::vector<Change<C>>& changes, std::vector<Text>& lines) const {
  for (const Break& kind : kBreaks) {
    std::map<std::size_t, Text> before;  // by place in the print order
    std::map<std::size_t, Text> after;
    bool isSame = true;
    for (const Change<C>& change : changes) {
      const bool was = change.from > 0 && (change.before->*kind.flag)();
      const bool is = change.to > 0 && (change.after->*kind.flag)();
      if (was) before[change.from] = Quoted(change.name);
      if (is) after[change.to] = Quoted(change.name);
      isSame = isSame && was == is;
    }
    if (isSame) continue;
    const auto listed = [](const std::map<std::size_t, Text>& places) {
      std::vector<Text> names;
      for (const auto& [place, name] : places) names.push_back(name);
      return names.empty() ? LookUp(kNoneText.key, kNoneText.text) : Joined(names);
    };
    lines.push_back(Filled(words_.changed, {Caption(kind.key), listed(before), listed(after)}));
  }
}

Items<S> StructuresOf(const PrnPropCls& settings) {
  Items<S> structures{&settings.Structure1(), &settings.Structure2()};
  std::erase_if(structures, [](const S* structure) { return structure->Name().empty(); });
  return structures;
}

}  // namespace

std::vector<PageDifferences> DifferencesOf(const PrnPropCls& before, const PrnPropCls& after,
                                           const DifferenceWords& words) {
  const Comparison comparison(words);
  std::vector<Text> lines[std::size(kPages)];
  auto& [general, characteristics, attributes, structures] = lines;

  comparison.AddGeneralLines(before, after, general);

  const auto charChanges = comparison.ChangesOf(ItemsOf(before.Characteristics()), ItemsOf(after.Characteristics()));
  comparison.AddItemLines(charChanges, {}, characteristics);
  comparison.AddBreakLines(charChanges, characteristics);

  for (const auto& change : charChanges) {
    if (!change.before || !change.after) continue;
    const auto changes =
        comparison.ChangesOf(ItemsOf(change.before->Attributes()), ItemsOf(change.after->Attributes()));
    comparison.AddItemLines(changes, change.name, attributes);
  }

  const auto structureChanges = comparison.ChangesOf(StructuresOf(before), StructuresOf(after));
  comparison.AddItemLines(structureChanges, {}, structures);
  for (const auto& change : structureChanges) {
    if (!change.before || !change.after) continue;
    const auto changes = comparison.ChangesOf(ItemsOf(change.before->Elements()), ItemsOf(change.after->Elements()));
    comparison.AddItemLines(changes, change.name, structures);
  }

  std::vector<PageDifferences> differences;
  for (std::int16_t page = 0; auto& ofPage : lines) {
    if (!ofPage.empty()) differences.push_back({page, Caption(kPages[page]), std::move(ofPage)});
    ++page;
  }
  return differences;
}

std::vector<PageDifferences> DifferencesOf(const Snapshot& before, const Snapshot& after,
                                           const DifferenceWords& words) {
  return DifferencesOf(*SettingsOf(DocumentOf(before)), *SettingsOf(DocumentOf(after)), words);
}

std::vector<std::string> LinesOf(const std::vector<PageDifferences>& differences) {
  std::vector<std::string> lines;
  for (const PageDifferences& page : differences) {
    lines.push_back(ToUtf8(page.caption));
    for (const Text& line : page.lines) lines.push_back("  " + ToUtf8(line));
  }
  return lines;
}

}  // namespace ORXKMPrintProp::host
