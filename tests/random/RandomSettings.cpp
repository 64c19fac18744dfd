#include "RandomSettings.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <vector>

#include "Random.h"
#include "tables/Conversions.h"
#include "tables/TableCalls.h"
#include "texts/DialogTexts.h"

namespace ORXKMPrintProp::test {
namespace {

using Codes = std::initializer_list<const char16_t*>;

constexpr const char16_t* kDisplayTexts[] = {u"",     u"a",    u"A", u"alpha", u"Alpha",  u"ALPHA",  u"b",  u"beta",
                                             u"Beta", u"zeta", u"Z", u" b",    u"\u00c4", u"\u00e4", u"10", u"9"};
constexpr const char16_t* kLayouts[] = {u"", u"L1", u"<layout/>"};

Text Numbered(TextView head, std::int32_t number) { return Text(head).append(ToText(number)); }

class Maker {
 public:
  explicit Maker(const LoadPlan& plan) : random_(plan.seed), kind_(plan.kind), most_(plan.most) {}

  PlannedSettings Make() {
    PlannedSettings planned{Settings("", "", "", "")};
    tables_ = &planned.tables;
    const int generalRows = kind_ == LoadKind::NoGeneralRow ? 0 : kind_ == LoadKind::TwoGeneralRows ? 2 : 1;
    for (int i = 0; i < generalRows; ++i) AddGeneral();
    AddDimension();
    AddMembers();
    planned.loads = generalRows == 1;
    if (kind_ == LoadKind::BadCell) {
      Spoil();
      planned.fails = ErrorKind::Type;
    }
    if (kind_ == LoadKind::SecondRun) {
      if (names_.empty()) AddCharacteristic(u"C0");
      for (const auto& name : {names_.front(), Text(u"between"), names_.front()}) AddAttribute(name);
      planned.fails = ErrorKind::Key;
    }
    return planned;
  }

 private:
  /// Mostly one of the codes, else something that is none.
  void Code(Row& row, TextView column, Codes codes) {
    if (!random_.OneIn(8)) return row.Value(column, Text(random_.Of(codes)));
    switch (random_.Below(6)) {
      case 0:
        return;
      case 1:
        return row.Value(column, Text());
      case 2:
        return row.Value(column, random_.OneIn(2));
      case 3:
        return row.Value(column, std::int32_t{random_.Below(4)});
      default:
        return row.Value(column, Text(random_.Of({u"x", u" ", u"X ", u"XX", u"?"})));
    }
  }
  void Flag(Row& row, TextView column) { Code(row, column, {u"X", u" "}); }

  void Number(Row& row, TextView column, std::int32_t number) {
    switch (random_.Below(8)) {
      case 0:
        return row.Value(column, Numbered(u" ", number).append(u" "));
      case 1:
        return row.Value(column, static_cast<double>(number) + 0.25);
      case 2:
        return row.Value(column, static_cast<std::int16_t>(number));
      default:
        return row.Value(column, number);
    }
  }
  std::int32_t Position() {
    switch (positions_) {
      case 0:
        return ++lastPosition_;
      case 1:
        return lastPosition_ += 1 + random_.Below(40);
      case 2:
        return random_.Below(5) - 2;
      case 3:
        return 0;
      default:
        return random_.Below(60000) - 30000;
    }
  }
  Text DisplayText() { return random_.Of(kDisplayTexts); }
  std::int32_t Width() { return random_.OneIn(4) ? 0 : random_.Below(60) - 3; }

  void Columns(Row& row) {
    Code(row, u"IOBJPRSNT", {u"0", u"1", u"2", u"3"});
    Flag(row, u"PR_COL1_FIX");
    Flag(row, u"PR_COL2_FIX");
    Flag(row, u"PR_AUTO_WIDTH");
    Number(row, u"PR_COL1_WIDTH", Width());
    Number(row, u"PR_COL2_WIDTH", Width());
    Code(row, u"PR_COL1_ALIGN", {u"L", u"R", u"C"});
    Code(row, u"PR_COL2_ALIGN", {u"L", u"R", u"C"});
    row.Value(u"PR_COL1_HEADER", DisplayText());
  }

  void AddGeneral() {
    Row& row = *AddRow(*tables_->gen);
    row.Value(u"TITLE", DisplayText());
    Code(row, u"PRINT_DIRECTION", {u"H", u"V"});
    row.Value(u"MAX_PAGES", Text(random_.Of({u"", u"0", u"20", u"12abc", u"x", u"-4", u"1.5"})));
    for (const auto* column : {u"HIDE_ZERO", u"USE_COLORS", u"NOMULTTXT", u"NO_LINES"}) Flag(row, column);
    for (const auto* column : {u"MARGIN_TOP", u"MARGIN_BOTTOM", u"MARGIN_LEFT", u"MARGIN_RIGHT"}) {
      Number(row, column, Width());
    }
    row.Value(u"HEADER_LAYOUT", Text(random_.Of(kLayouts)));
    Code(row, u"SUMPOSIT", {u"1", u"2"});
    Code(row, u"SIGNPRSNT", {u"1", u"2", u"3"});
    Code(row, u"CURUNITPOSITION", {u"L", u"R", u"T", u"N"});
  }

  void AddCharacteristic(const Text& name) {
    Row& row = *AddRow(*tables_->dim);
    names_.push_back(name);
    row.Value(u"IOBJNM", name);
    row.Value(u"IOBJTXT", DisplayText());
    Number(row, u"POSIT", Position());
    if (random_.Below(100) < printed_) {
      Code(row, u"AXIS", {u"X", u"Y"});
    } else {
      row.Value(u"AXIS", Text(u" "));
    }
    Columns(row);
    for (const auto* column : {u"PR_QUERY_BREAK", u"PR_PAGE_BREAK", u"PR_BREAK_AREA"}) {
      if (random_.OneIn(4)) row.Value(column, Text(u"X"));
    }
    Number(row, u"STRT_LVL", random_.Below(9));
    Flag(row, u"HRY_ACTIVE");
    if (random_.OneIn(2)) row.Value(u"HIENM", Text(u"H"));
    Code(row, u"NOSUMS", {u" ", u"C", u"U"});
  }

  void AddAttribute(const Text& characteristic) {
    Row& row = *AddRow(*tables_->atr);
    row.Value(u"IOBJNM", characteristic);
    row.Value(u"ATTRINM", Numbered(u"A", ++attributes_));
    row.Value(u"ATTRITXT", DisplayText());
    Number(row, u"POSIT", Position());
    Flag(row, u"HIDDEN");
    Columns(row);
  }

  void AddStructure(const Text& name) {
    Row& row = *AddRow(*tables_->dim);
    row.Value(u"IOBJNM", name);
    row.Value(u"IOBJTXT", DisplayText());
    Number(row, u"POSIT", Position());
    row.Value(u"IS_STRUCTURE", Text(u"X"));
  }

  void AddDimension() {
    positions_ = random_.Below(5);
    printed_ = random_.Of({0, 30, 70, 90, 100});
    const int characteristics = random_.Below(most_ + 1);
    const int structures = random_.Below(4);
    int structure = 0;
    for (int i = 0; i < characteristics; ++i) {
      while (structure < structures && random_.OneIn(6)) AddStructure(StructureName(++structure));
      AddCharacteristic(random_.OneIn(30) && i == 0 ? Text() : Numbered(u"C", i));
    }
    while (structure < structures) AddStructure(StructureName(++structure));

    std::vector<Text> owners = names_;
    if (random_.OneIn(3)) owners.insert(owners.begin() + random_.Below(static_cast<int>(owners.size())), u"nobody");
    for (const Text& owner : owners) {
      const int count = random_.Below(std::min(most_, 6) + 1);
      for (int i = 0; i < count; ++i) AddAttribute(owner);
    }
  }

  Text StructureName(int number) { return random_.OneIn(6) ? Text() : Numbered(u"S", number); }

  void AddMembers() {
    positions_ = random_.Below(5);
    const int members = random_.Below(most_ + 1);
    for (int i = 0; i < members; ++i) {
      Row& row = *AddRow(*tables_->mem);
      row.Value(u"IOBJNM", Text(random_.Of({u"S1", u"S1", u"S2", u"S2", u"S3", u"", u"nobody"})));
      row.Value(u"CHAVL", Numbered(u"E", i));
      row.Value(u"CHAVLTXT", DisplayText());
      Number(row, u"POSIT", Position());
      Flag(row, u"HIDDEN");
      Flag(row, u"PR_AUTO_WIDTH");
      Number(row, u"PR_COL1_WIDTH", Width());
      Code(row, u"PR_COL1_ALIGN", {u"L", u"R", u"C"});
      row.Value(u"PR_COL1_HEADER", DisplayText());
    }
  }

  /// One number that is none, in a row that is read.
  void Spoil() {
    const std::int32_t rows = tables_->dim->RowCount();
    const Variant bad = random_.OneIn(2) ? Variant(Text(u"many")) : Variant();
    if (rows > 0 && random_.OneIn(2)) {
      RowAt(*tables_->dim, 1)->Value(u"POSIT", bad);
    } else {
      RowAt(*tables_->gen, 1)->Value(Text(random_.Of({u"MARGIN_TOP", u"MARGIN_RIGHT"})), bad);
    }
  }

  Random random_;
  LoadKind kind_;
  int most_;
  Settings* tables_ = nullptr;
  std::vector<Text> names_;
  int positions_ = 0;  ///< how positions are chosen
  int printed_ = 0;    ///< of 100 characteristics
  std::int32_t lastPosition_ = 0;
  std::int32_t attributes_ = 0;
};

}  // namespace

std::string NameOf(const LoadPlan& plan) {
  static const char* const names[] = {"good", "no-general-row", "two-general-rows", "bad-cell", "second-run", "same"};
  return std::string(names[static_cast<int>(plan.kind)]) + "-" + std::to_string(plan.seed) + "-" +
         std::to_string(plan.most);
}

PlannedSettings SettingsOf(const LoadPlan& plan) { return Maker(plan).Make(); }

TableRef RandomTexts(std::uint64_t seed) {
  Random random(seed);
  auto texts = TableFrom(Kind::Texts, "");
  const Text mark = Numbered(u"T", random.Below(100));
  const auto add = [&](TextView key) {
    if (!random.OneIn(3)) return;
    Row& row = *AddRow(*texts);
    row.Value(u"TARGETID", Text(key));
    if (!random.OneIn(6)) row.Value(u"CAPTION", mark + Text(key));
  };
  for (const auto* key : {u"ID_PRN_NONE", u"ID_PRN_ERROR", u"ID_PRN_MSGMAX10"}) add(key);
  for (const DialogText& text : DialogTexts()) add(text.key);
  return texts;
}

}  // namespace ORXKMPrintProp::test
