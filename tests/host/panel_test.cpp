#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <sstream>

#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "host/Differences.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/Show.h"
#include "host/Terminal.h"
#include "host/UserLanguage.h"
#include "host/Utf8.h"
#include "host/editor/ComparedTable.h"
#include "host/editor/EditedSettings.h"
#include "host/editor/PageSketch.h"

namespace ORXKMPrintProp::host::test {
namespace {

/// The whole description, a line for each part of it.
std::string TextOf(const PageSketch& sketch) {
  static const char* const alignments[] = {"left", "right", "centered"};
  static const char* const breaks[] = {"-- cover page", "-- page", "-- block"};
  std::string text = ToUtf8(sketch.title) + "\nmargins";
  for (const int margin : sketch.margins) text += " " + std::to_string(margin);
  text += std::string(sketch.colored ? ", colored" : "") + (sketch.ruled ? ", ruled" : "") + "\n";
  for (std::size_t id = 0; id < sketch.layouts.size(); ++id) {
    if (sketch.layouts[id].empty()) continue;
    text += ToUtf8(PageLayoutName(id)) + ":";
    for (const Text& line : sketch.layouts[id]) text += "|" + ToUtf8(line);
    text += "\n";
  }
  for (const SketchColumn& column : sketch.columns) {
    text += ToUtf8(column.title) + ": " + ToUtf8(column.what) + " " + alignments[column.align] + " " +
            std::to_string(column.width) + (column.everyPage ? " each page" : "") + (column.isNumber ? " #" : "") +
            "\n";
  }
  for (const SketchLine& line : sketch.lines) {
    if (line.cells.empty()) text += breaks[static_cast<int>(line.kind)];
    if (line.kind == SketchLineKind::Totals) text += "=";
    if (line.kind == SketchLineKind::TotalsLayout) text += "~";
    for (const Text& cell : line.cells) text += "|" + ToUtf8(cell);
    text += "\n";
  }
  for (const Text& note : sketch.notes) text += ToUtf8(note) + "\n";
  return text;
}

TEST(PageSketchTest, DrawsWhatTheSettingsSay) {
  const std::string folder = PRNPROP_SKETCHES "/";
  const std::tuple<const char*, std::string, std::string> rows[] = {
      {"small", PRNPROP_EXAMPLES "/small.json", ""},  // columns, breaks, totals on top
      {"repeated", folder + "repeated.json", ""},     // numbers and repeated texts as the settings say, in print order
      {"below", folder + "below.json",                // totals below close their groups from the inside; layouts
       "\nLayouts\n  Top page: <top>  one two…\n  Head part: \n  Foot part: " + std::string(199, 'x') +
           "…\n  End page: end 2\n  Totals row of B: sum of B\n  Totals row of C: sum of C\n"},
      // More breaks than are drawn, texts that are repeated on each page alone, no numbers.
      {"many", folder + "many.json", "\nLayouts\n  Totals row of A: sum\n"},
      {"nothing", folder + "nothing.json", ""},
  };
  for (const auto& [name, file, layouts] : rows) {
    ReleaseSharedValues();
    const EditedSettings settings({.file = file}, Platform::Plain());
    EXPECT_EQ(TextOf(SketchOf(settings.Now())), ReadFile(folder + name + ".txt")) << name;
    std::ostringstream shown;
    Show({.file = file}, shown);
    EXPECT_EQ(WordsOf(settings.Now()), shown.str() + layouts) << name;
  }
}

TEST(PageSketchTest, SpeaksInTheWordsOfTheTextTableWhereItHasSome) {
  ReleaseSharedValues();
  SettingsDocument document = ReadSettings(PRNPROP_EXAMPLES "/german.json");
  document.general->Rows(1)->Value(u"MARGIN_TOP", 70);
  ORXQueryPrnProp control;
  control.ORXControlTexts(document.texts);
  const PageSketch sketch = SketchOf(SnapshotOf(document));
  std::vector<Text> words{sketch.columns[0].what, sketch.columns[1].what};
  for (const auto kind : {SketchLineKind::CoverPage, SketchLineKind::NewPage, SketchLineKind::NewBlock}) {
    words.push_back(BreakName(kind));
  }
  for (std::size_t layout = 0; layout < kPageLayoutCount; ++layout) words.push_back(PageLayoutName(layout));
  words.insert(words.end(), sketch.notes.begin(), sketch.notes.begin() + 3);
  std::string told;
  for (const Text& word : words) told += ToUtf8(word) + "\n";
  EXPECT_EQ(told, R"(Bezeichnung
Schlüssel
neues Deckblatt
neue Seite
neuer Block
Deckblatt
Kopfteil
Fußteil
Abschlußseite
Maximale Seitenzahl: 50
Seitenränder: Oben 70, Unten 15, Links 20, Rechts 10
Druckrichtung: Vertikal
)");
  ReleaseSharedValues();
}

TEST(ComparedTableTest, RowsStandBesideTheirOwnRowOfTheFile) {
  const auto rowsOf = [](const std::string& rows) {
    return SnapshotOf(ParseSettings(R"({"member":[)" + rows + "]}", "rows")).Member();
  };
  const ComparedTable table(rowsOf(R"({"CHAVL":"b","POSIT":"1"},{"CHAVL":"gone"},{"CHAVL":"a","POSIT":2,"HIDDEN":" "},)"
                                   R"({"CHAVL":"b","POSIT":5})"),
                            rowsOf(R"({"CHAVL":"a","POSIT":3},{"CHAVL":"b","POSIT":1},{"CHAVL":"b","POSIT":6},)"
                                   R"({"CHAVL":"new","POSIT":9})"),
                            {u"CHAVL"});
  std::string told;
  for (std::size_t row = 0; row < table.RowCount(); ++row) {
    if (table.IsGone(row)) told += "gone ";
    for (std::size_t column = 0; column < table.Columns().size(); ++column) {
      const auto cell = table.At(row, column);
      if (cell.differs) told += ToUtf8(cell.file) + "->";
      if (cell.differs || !cell.now.empty()) told += ToUtf8(cell.now) + " ";
    }
    told += "\n";
  }
  // POSIT is written behind CHAVL.
  EXPECT_EQ(told, "a 2->3 \nb 1 \nb 5->6 \n->new ->9 \ngone gone-> \n");

  // From one difference to the next and back; a row that stands alone is one.
  for (const bool forward : {true, false}) {
    std::string places;
    std::optional<ComparedTable::Place> place;
    while ((place = table.Difference(place, forward))) {
      places += std::to_string(place->first) + ToUtf8(u":" + table.Columns()[place->second] + u" ");
    }
    EXPECT_EQ(places, forward ? "0:POSIT 2:POSIT 3:CHAVL 4:CHAVL " : "4:CHAVL 3:CHAVL 2:POSIT 0:POSIT ");
  }
}

TEST(ComparedTableTest, ATextThatIsCutShowsWhatDiffers) {
  const std::tuple<Text, Text, Text> rows[] = {
      {u"abcdefghijkl", u"abcdefghijkL", u"\u2026fghijkl"},
      {u"abcdefghijkl", u"abcdefghijkl and more", u"\u2026ghijkl"},
      {u"abcdefgh", u"abcdefgH", u"abcdefgh"},  // nothing would be won
      {u"abc\U0001F600fghijk", u"abc\U0001F600fghijK", u"\u2026fghijk"},
      {u"abcdef", u"", u"abcdef"},
  };
  for (const auto& [text, other, cut] : rows) EXPECT_EQ(ToUtf8(CutToDifference(text, other)), ToUtf8(cut));
}

TEST(UserLanguageTest, IsWhatTheEnvironmentSaysOrTheSystemKnows) {
  const char* const names[] = {"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE"};
  const auto set = [](const char* name, const std::string& value) {
#ifdef _WIN32
    ::_putenv_s(name, value.c_str());
#else
    ::setenv(name, value.c_str(), 1);
#endif
  };
  std::vector<std::string> former;
  for (const char* const name : names) former.emplace_back(std::getenv(name) ? std::getenv(name) : "");
  const std::pair<std::array<const char*, 4>, std::string> rows[] = {
      {{"de_DE.UTF-8", "fr_FR", "en_US", ""}, "de"},
      {{"", "de_AT@euro", "en_US", ""}, "de"},
      {{"", "", "de", ""}, "de"},
      {{"", "", "en_US.UTF-8", "de_DE:en"}, "de"},
      {{"C.UTF-8", "de", "de", "de"}, ""},
      {{"", "", "POSIX", "de"}, ""},
      {{"", "", "", "de"}, SystemLanguage()},
  };
  for (const auto& [values, language] : rows) {
    for (std::size_t i = 0; i < std::size(names); ++i) set(names[i], values[i]);
    EXPECT_EQ(UserLanguage(), language) << values[0] << "|" << values[1] << "|" << values[2] << "|" << values[3];
  }
  for (std::size_t i = 0; i < std::size(names); ++i) set(names[i], former[i]);
}

TEST(Utf8, GoesBothWaysAndReplacesWhatIsNoCharacter) {
  const std::pair<std::string, Text> same[] = {
      {"a\x7f", u"a\x7f"},
      {"\xc2\x80\xdf\xbf", u"\u0080\u07ff"},
      {"\xe0\xa0\x80\xef\xbf\xbf", u"\u0800\uffff"},
      {"\xf0\x90\x80\x80\xf4\x8f\xbf\xbf", u"\U00010000\U0010ffff"},
      {std::string("a\0b", 3), Text(u"a\0b", 3)},
  };
  for (const auto& [utf8, text] : same) {
    EXPECT_EQ(ToUtf8(text), utf8);
    EXPECT_EQ(FromUtf8(utf8), text) << utf8;
  }
  const std::pair<Text, std::string> lone[] = {
      {{u'a', 0xD800}, "a\uFFFD"}, {{0xDC00, u'b'}, "\uFFFDb"}, {{0xD800, 0xD800, 0xDC00}, "\uFFFD\U00010000"}};
  for (const auto& [text, utf8] : lone) EXPECT_EQ(ToUtf8(text), utf8);
  const std::pair<std::string, Text> broken[] = {
      {"\xff(", u"\uFFFD("},                               // no first byte
      {"\xc3(", u"\uFFFD("},                               // no second one
      {"\xe2\x82", u"\uFFFD\uFFFD"},                       // cut off
      {"\xc0\xaf", u"\uFFFD\uFFFD"},                       // longer than need be
      {"\xed\xa0\x80", u"\uFFFD\uFFFD\uFFFD"},             // a surrogate
      {"\xf4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"}};  // behind the last character
  for (const auto& [utf8, text] : broken) EXPECT_EQ(FromUtf8(utf8), text);
}

TEST(Terminal, CountsColumnsAndKeepsToOneLine) {
  const std::pair<Text, int> widths[] = {{u"Gro\u036Fße", 5}, {u"数量", 4}, {u"ﾃﾞ", 2}, {u"\U0001F600\U00010400", 3}};
  for (const auto& [text, width] : widths) EXPECT_EQ(DisplayWidth(text), width) << ToUtf8(text);
  EXPECT_EQ(OneLine(TextView(u"a\nb\x1b[1m\u009b\x7f\u2028ü")), u"a b [1m   ü");
}

}  // namespace
}  // namespace ORXKMPrintProp::host::test
