#include "RandomSettings.h"

#include <algorithm>
#include <string>
#include <vector>

#include "dialog/DialogTexts.h"
#include "tables/Conversions.h"
#include "tables/MemoryTable.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::test {
namespace {

/// What may stand in the cells of the columns whose names end so; the likely values stand more than once.
struct Cells {
  std::vector<TextView> endings;
  std::vector<std::string> values;
};

const std::vector<Cells>& AllCells() {
  static const std::vector<Cells> cells{
      {{u"PRINT_DIRECTION"}, {"'H'", "'V'", "'?'"}},
      {{u"MAX_PAGES"}, {"''", "'0'", "'20'", "'12abc'", "'x'", "'-4'", "'1.5'"}},
      {{u"SUMPOSIT"}, {"'1'", "'2'", "' '"}},
      {{u"SIGNPRSNT"}, {"'1'", "'2'", "'3'", ""}},
      {{u"CURUNITPOSITION"}, {"'L'", "'R'", "'T'", "'N'", "'?'"}},
      {{u"AXIS"}, {"'X'", "'Y'", "'Y'", "'X'", "' '", "' '", "''", "'?'"}},
      {{u"PRSNT"}, {"'0'", "'1'", "'2'", "'3'", "'9'", ""}},
      {{u"_ALIGN"}, {"'L'", "'R'", "'C'", "' '"}},
      {{u"_BREAK", u"BREAK_AREA"}, {"' '", "' '", "' '", "'X'"}},
      {{u"NOSUMS"}, {"' '", "'C'", "'U'", "'x'"}},
      {{u"HIENM"}, {"''", "'H'"}},
      {{u"STRT_LVL"}, {"0", "1", "8", "3"}},
      {{u"POSIT"}, {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "0", "-2", "400", "30000"}},
      {{u"HIDE_ZERO", u"HIDDEN", u"COLORS", u"NOMULTTXT", u"NO_LINES", u"_FIX", u"_AUTO_WIDTH", u"HRY_ACTIVE"},
       {"'X'", "' '", "'X'", "' '", "'X'", "' '", "''", "", "'x'", "True", "1"}},
      {{u"_WIDTH", u"MARGIN_TOP", u"MARGIN_BOTTOM", u"MARGIN_LEFT", u"MARGIN_RIGHT"},
       {"0", "0", "1", "7", "20", "31", "' 8 '", "12.25", "-3", "'5'"}},
      {{u"TITLE", u"TXT", u"_HEADER"}, {"''", "'a'", "'A'", "'alpha'", "'Alpha'", "'beta'", "'Z'", "' b'", "'9'"}},
      {{u"_LAYOUT"}, {"''", "'L1'", "'<layout/>'"}},
  };
  return cells;
}

Text Numbered(TextView head, int number) { return Text(head).append(ToText(std::int32_t{number})); }

class Maker {
 public:
  explicit Maker(std::uint64_t seed) : random_(seed) {}

  RandomSettings Make() {
    RandomSettings made{Settings("", "", "", "")};
    const Settings& tables = made.tables;
    const int general = random_.OneIn(12) ? random_.Of({0, 2}) : 1;
    for (int i = 0; i < general; ++i) AddRandomRow(tables.gen);
    const bool inOrder = random_.OneIn(2);
    const int characteristics = random_.Below(15);
    const int structures = random_.Below(4);
    for (int i = 1; i <= characteristics; ++i) {
      const Text name = Numbered(u"C", i);
      Row& row = *AddRandomRow(tables.dim);
      row.Value(u"IOBJNM", name);
      if (inOrder) row.Value(u"POSIT", std::int32_t{i});
      for (int a = random_.Below(7); a > 0; --a) {
        Row& attribute = *AddRandomRow(tables.atr);
        attribute.Value(u"IOBJNM", name);
        attribute.Value(u"ATTRINM", Numbered(u"A", a));
      }
    }
    for (int i = 1; i <= structures; ++i) {
      Row& row = *AddRandomRow(tables.dim);
      row.Value(u"IOBJNM", random_.OneIn(8) ? Text() : Numbered(u"S", i));
      row.Value(u"IS_STRUCTURE", Text(u"X"));
    }
    for (int i = random_.Below(15); i > 0; --i) {
      Row& row = *AddRandomRow(tables.mem);
      row.Value(u"IOBJNM", Text(random_.Of({u"S1", u"S1", u"S2", u"S2", u"S3", u"", u"nobody"})));
      row.Value(u"CHAVL", Numbered(u"E", i));
    }
    if (general != 1) made.end = LoadEnd::Refused;
    if (general == 1 && random_.OneIn(12)) {
      RowAt(*tables.gen, 1)->Value(u"MARGIN_TOP", Text(u"many"));
      made.end = LoadEnd::Fails;
    } else if (general == 1 && characteristics > 0 && random_.OneIn(12)) {
      // The rows of one characteristic do not stand together.
      for (const auto* name : {u"C1", u"between", u"C1"}) AddRandomRow(tables.atr)->Value(u"IOBJNM", Text(name));
      made.end = LoadEnd::Fails;
    }
    return made;
  }

 private:
  RowRef AddRandomRow(const TableRef& table) {
    const RowRef row = AddRow(*table);
    for (const Text& column : dynamic_cast<MemoryTable&>(*table).ColumnNames()) {
      const auto endsSo = [&](TextView ending) { return column.ends_with(ending); };
      for (const Cells& cells : AllCells()) {
        if (std::none_of(cells.endings.begin(), cells.endings.end(), endsSo)) continue;
        row->Value(column, VariantFrom(random_.Of(cells.values)));
        break;
      }
    }
    return row;
  }

  Random random_;
};

}  // namespace

RandomSettings SettingsFrom(std::uint64_t seed) { return Maker(seed).Make(); }

TableRef TextsFrom(std::uint64_t seed) {
  Random random(seed);
  auto texts = TableFrom(Kind::Texts, "");
  const Text mark = Numbered(u"T", random.Below(100));
  for (const DialogText& text : DialogTexts()) {
    if (!random.OneIn(3)) continue;
    Row& row = *AddRow(*texts);
    row.Value(u"TARGETID", Text(text.key));
    if (!random.OneIn(6)) row.Value(u"CAPTION", mark + Text(text.key));
  }
  return texts;
}

}  // namespace ORXKMPrintProp::test
