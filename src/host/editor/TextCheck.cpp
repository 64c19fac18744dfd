#include "host/editor/TextCheck.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "control/SharedValues.h"
#include "dialog/DialogLayout.h"
#include "host/SettingsColumns.h"
#include "host/Spelling.h"
#include "host/Terminal.h"
#include "host/Utf8.h"
#include "tables/Conversions.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::host {
namespace {

constexpr TextView kKey = u"TARGETID";
constexpr TextView kText = u"CAPTION";

/// A key, with all places that its text goes to; a message box is a place without a widget.
struct KnownKey {
  TextView key;
  std::vector<DialogText> places;
};

/// In the order of the dialog.
const std::vector<KnownKey>& KnownKeys() {
  static const std::vector<KnownKey> known = [] {
    std::vector<KnownKey> keys;
    const auto add = [&](const DialogText& place) {
      const auto at = std::find_if(keys.begin(), keys.end(), [&](const KnownKey& key) { return key.key == place.key; });
      if (at == keys.end()) {
        keys.push_back({place.key, {place}});
      } else {
        at->places.push_back(place);
      }
    };
    for (const DialogText& text : DialogTexts()) {
      add(text);
      // What the columns hold is their caption, once something is shown.
      if (text.key != u"ID_DLG_VALPRES_2" && text.key != u"ID_DLG_VALPRES_3") continue;
      for (const TextView label : {u"lblCharCol1", u"lblCharCol2", u"lblAttrCol1", u"lblAttrCol2"}) {
        add({text.key, text.text, {label}, Receives::Caption});
      }
    }
    for (const TextView selector : {u"cmbCharQueryBreak", u"cmbCharPageBreak", u"cmbCharBreakArea"}) {
      add({kNoneText.key, kNoneText.text, {selector}, Receives::Item});
    }
    add({kTooManyText.key, kTooManyText.text, {}, Receives::Caption});
    add({kErrorText.key, kErrorText.text, {}, Receives::Caption});
    return keys;
  }();
  return known;
}

const KnownKey* FindKey(TextView key) {
  const auto& keys = KnownKeys();
  const auto found = std::find_if(keys.begin(), keys.end(), [&](const KnownKey& known) { return known.key == key; });
  return found == keys.end() ? nullptr : &*found;
}

std::string DidYouMeanKey(const Text& key) {
  std::vector<std::string> keys;
  for (const KnownKey& known : KnownKeys()) keys.push_back(ToAscii(Text(known.key)));
  return DidYouMean(ToUtf8(key), keys);
}

Text Quoted(TextView text) { return u"\"" + OneLine(text) + u"\""; }
Text Digits(int number) { return ToText(std::int32_t{number}); }

/// A row whose text the dialog shows.
struct UsedRow {
  int number;
  const KnownKey* known;
  Text text;                ///< as it stands in the table
  std::vector<Text> shown;  ///< in each place
};

class Checker {
 public:
  Checker(const MemoryTableRef& texts, const MeasureTexts& measure) : texts_(texts), measure_(measure) {}

  std::vector<TextFinding> Check() {
    const SharedValuesGuard guard;
    RowListRef rows = texts_->Rows();
    texts_->Columns()->KeyColumn(texts_->Columns(kKey)->Index());
    gTextTable = texts_;
    for (const RowRef& row : AllRows(*texts_)) CheckRow(*row, *rows);
    CheckRooms();
    CheckSame();
    std::stable_sort(findings_.begin(), findings_.end(),
                     [](const TextFinding& a, const TextFinding& b) { return a.row < b.row; });
    for (const KnownKey& known : KnownKeys()) {
      if (rows->Item(Text(known.key))) continue;
      Add(Kind::Missing, 0, Text(known.key), u"the dialog shows " + Quoted(known.places.front().text));
    }
    return std::move(findings_);
  }

 private:
  using Kind = TextFinding::Kind;

  TextFinding& Add(Kind kind, int row, TextView key, Text words) {
    findings_.push_back({.kind = kind, .row = row, .key = Text(key), .words = std::move(words)});
    return findings_.back();
  }

  void CheckRow(const Row& row, RowList& rows) {
    const int number = row.RowNumber();
    const Text key = ToText(row.Value(kKey));
    const RowRef used = rows.Item(key);
    const KnownKey* const known = used ? FindKey(key) : nullptr;
    if (!known) {
      const Text unknown = u"the dialog has no text of this key" + FromUtf8(DidYouMeanKey(key));
      Add(Kind::Unknown, number, key, key.empty() ? u"the row has no TARGETID" : unknown);
      return;
    }
    Text text = ToText(row.Value(kText));
    if (used->RowNumber() != number) {
      const Text other = ToText(used->Value(kText));
      Add(Kind::Doubled, number, key, u"row " + Digits(used->RowNumber()) + u" counts, which has " + Quoted(other));
      return;
    }
    std::vector<Text> shown;
    for (const DialogText& place : known->places) shown.push_back(ModPrnGen::LookupText(place.key, place.text));
    const bool isTip = std::all_of(known->places.begin(), known->places.end(),
                                   [](const DialogText& place) { return place.receives == Receives::ToolTipText; });
    if (text.empty() && !isTip) {
      Add(Kind::Empty, number, key, u"the dialog shows nothing for " + Quoted(known->places.front().text));
    }
    if (shown.front() != text) {
      Add(Kind::Placeholder, number, key,
          Quoted(text) + u" is shown as " + Quoted(shown.front()) + u": & begins a placeholder, which has no value");
    }
    used_.push_back({number, known, std::move(text), std::move(shown)});
  }

  void CheckRooms() {
    std::vector<ShownText> shown;
    for (const UsedRow& row : used_) {
      for (std::size_t i = 0; i < row.shown.size(); ++i) {
        const DialogText& place = row.known->places[i];
        if (place.widget.name.empty() || place.receives == Receives::ToolTipText) continue;
        shown.push_back({place, row.shown[i]});
      }
    }
    const TextRooms measured = measure_(texts_, shown);
    std::size_t at = 0;
    for (const UsedRow& row : used_) {
      // Of several widgets the one that lacks most.
      std::optional<TextFinding::Measured> worst;
      Text text;
      for (; at < shown.size() && shown[at].place.key == row.known->key; ++at) {
        const auto& room = measured.rooms[at];
        if (!room || room->needed - room->room <= (worst ? worst->room.needed - worst->room.room : 0)) continue;
        worst = {shown[at].place.widget.Spelled(), *room, measured.dpi};
        text = shown[at].text;
      }
      if (!worst) continue;
      Add(Kind::TooLong, row.number, row.known->key,
          Quoted(text) + u" needs " + Digits(worst->room.needed) + u" of " + Digits(worst->room.room) + u" pixels at " +
              Digits(worst->dpi) + u" dpi")
          .measured = worst;
    }
  }

  /// Whether a user sees one beside the other and has to tell them apart.
  static bool AreCompared(const DialogText& a, const DialogText& b) {
    const auto isTip = [](const DialogText& place) { return place.receives == Receives::ToolTipText; };
    const auto isItem = [](const DialogText& place) { return place.receives == Receives::Item; };
    if (isItem(a) || isItem(b)) return isItem(a) && isItem(b) && a.widget == b.widget;
    return isTip(a) == isTip(b);
  }

  void CheckSame() {
    for (auto row = used_.begin(); row != used_.end(); ++row) {
      const auto other = std::find_if(used_.begin(), row, [&](const UsedRow& above) { return IsMixedUp(*row, above); });
      if (other == row) continue;
      Add(Kind::Same, row->number, row->known->key,
          Quoted(row->text) + u" is also row " + Digits(other->number) + u", " + Text(other->known->key) +
              u", which is " + Quoted(other->known->places.front().text) + u" by default, this " +
              Quoted(row->known->places.front().text));
    }
  }

  static bool IsMixedUp(const UsedRow& a, const UsedRow& b) {
    if (a.text.empty() || a.text != b.text) return false;
    bool areCompared = false;
    for (const DialogText& one : a.known->places) {
      for (const DialogText& other : b.known->places) {
        if (one.text == other.text) return false;
        areCompared = areCompared || AreCompared(one, other);
      }
    }
    return areCompared;
  }

  const MemoryTableRef& texts_;
  const MeasureTexts& measure_;
  std::vector<UsedRow> used_;
  std::vector<TextFinding> findings_;
};

}  // namespace

std::unique_ptr<ORXQueryPrnProp> ControlWith(const MemoryTableRef& texts, const Platform& platform) {
  auto control = std::make_unique<ORXQueryPrnProp>(platform);
  control->ORXControlTexts(texts);
  return control;
}

std::vector<TextFinding> FindingsOf(const MemoryTableRef& texts, const MeasureTexts& measure) {
  return Checker(texts, measure).Check();
}

MemoryTableRef DefaultTexts() {
  const auto table = MemoryTable::Create(KnownColumns("texts"));
  for (const KnownKey& known : KnownKeys()) {
    const RowRef row = AddRow(*table);
    row->Value(kKey, Text(known.key));
    row->Value(kText, Text(known.places.front().text));
  }
  return table;
}

}  // namespace ORXKMPrintProp::host
