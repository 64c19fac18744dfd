#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

#include "host/SettingsDocument.h"
#include "host/Terminal.h"
#include "host/Utf8.h"
#include "tables/Conversions.h"

namespace ORXKMPrintProp::host {
namespace {

TEST(Utf8, GoesBothWaysAndReplacesWhatIsNoCharacter) {
  const std::vector<std::pair<std::string, Text>> rows{
      {"", u""},
      {"a\x7f", u"a\x7f"},
      {"\xc2\x80\xdf\xbf", u"\u0080\u07ff"},
      {"\xe0\xa0\x80\xef\xbf\xbf", u"\u0800\uffff"},
      {"\xf0\x90\x80\x80\xf4\x8f\xbf\xbf", u"\U00010000\U0010ffff"},
      {std::string("a\0b", 3), Text(u"a\0b", 3)},
  };
  for (const auto& [utf8, text] : rows) {
    EXPECT_EQ(ToUtf8(text), utf8);
    EXPECT_EQ(FromUtf8(utf8), text) << utf8;
  }
  const std::vector<std::pair<Text, std::string>> lone{
      {{u'a', 0xD800}, "a\uFFFD"}, {{0xDC00, u'b'}, "\uFFFDb"}, {{0xD800, 0xD800, 0xDC00}, "\uFFFD\U00010000"}};
  for (const auto& [text, utf8] : lone) EXPECT_EQ(ToUtf8(text), utf8);
  const std::vector<std::pair<std::string, Text>> broken{
      {"\xff"
       "a",
       u"\uFFFDa"},                                        // no first byte
      {"\xc3(", u"\uFFFD("},                               // no second one
      {"\xe2\x82", u"\uFFFD\uFFFD"},                       // cut off
      {"\xc0\xaf", u"\uFFFD\uFFFD"},                       // longer than need be
      {"\xed\xa0\x80", u"\uFFFD\uFFFD\uFFFD"},             // a surrogate
      {"\xf4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"}};  // behind the last character
  for (const auto& [utf8, text] : broken) EXPECT_EQ(FromUtf8(utf8), text);
}

TEST(Terminal, CountsColumnsAndKeepsToOneLine) {
  const std::vector<std::pair<Text, int>> rows{{u"", 0},     {u"abc", 3}, {u"Größe", 5},      {u"Gro\u0308ße", 5},
                                               {u"数量", 4}, {u"ﾃﾞ", 2},  {u"\U0001F600", 2}, {u"\U00010400", 1}};
  for (const auto& [text, width] : rows) EXPECT_EQ(DisplayWidth(text), width) << ToUtf8(text);
  EXPECT_EQ(OneLine(TextView(u"a\nb\x1b[1m\u009b\x7f\u2028ü")), u"a b [1m   ü");
}

/// The document that the program would write.
std::string Rewritten(const std::string& json) { return ToJson(ParseSettings(json, "f.json")); }

TEST(SettingsDocument, IsWrittenARowALineInTheOrderOfTheControl) {
  const std::string json = R"({
    "texts": [ { "CAPTION": "Allgemein", "TARGETID": "ID_PRN_GENERAL" } ],
    "attribute": [ { "POSIT": 1, "ATTRINM": "CITY", "ATTRITXT": "City", "IOBJNM": "CUSTOMER", "PR_COL2_HEADER": "C" } ],
    "member": [ { "HIDDEN": "X", "CHAVL": "A", "IOBJNM": "FIGURES" }, {} ],
    "dimension": [
      { "ZONE": 1, "NOSUMS": "C", "AXIS": "Y", "POSIT": 1, "IOBJNM": "REGION" },
      { "ZONE": 2, "POSIT": 1, "NOSUMS": null, "IOBJNM": "FIGURES", "AREA": 3, "IS_STRUCTURE": "X", "AXIS": "X" } ],
    "general": [],
    "$schema": "a.json" })";
  EXPECT_EQ(Rewritten(json), R"({
  "$schema": "a.json",
  "general": [],
  "dimension": [
    { "IOBJNM": "REGION", "POSIT": 1, "AXIS": "Y", "NOSUMS": "C", "ZONE": 1 },
    { "AXIS": "X", "IS_STRUCTURE": "X", "IOBJNM": "FIGURES", "POSIT": 1, "ZONE": 2, "AREA": 3 }
  ],
  "member": [
    { "IOBJNM": "FIGURES", "CHAVL": "A", "HIDDEN": "X" },
    {}
  ],
  "attribute": [
    { "IOBJNM": "CUSTOMER", "ATTRITXT": "City", "ATTRINM": "CITY", "POSIT": 1, "PR_COL2_HEADER": "C" }
  ],
  "texts": [
    { "TARGETID": "ID_PRN_GENERAL", "CAPTION": "Allgemein" }
  ]
}
)");
  EXPECT_EQ(Rewritten(Rewritten(json)), Rewritten(json));
  EXPECT_EQ(Rewritten("\xef\xbb\xbf{}"),
            "{\n  \"general\": [],\n  \"dimension\": [],\n  \"member\": [],\n  \"attribute\": []\n}\n");
}

TEST(SettingsDocument, TellsCellsOfEveryTypeApart) {
  // By the cell's JSON: the type of the variant and what is written again.
  const std::vector<std::tuple<std::string, std::size_t, std::string>> rows{
      {"null", 0, ""},
      {"true", 1, "true"},
      {"0", 3, "0"},
      {"7.0", 3, "7"},
      {"-2147483648", 3, "-2147483648"},
      {"2147483647", 3, "2147483647"},
      {"2147483648", 4, "2147483648.0"},
      {"-2147483649", 4, "-2147483649.0"},
      {"18446744073709551616", 4, "1.8446744073709552e+19"},
      {"1.5", 4, "1.5"},
      {"1e-3", 4, "0.001"},
      {R"("")", 5, R"("")"},
      {R"(" 7 ")", 5, R"(" 7 ")"},
      {R"("\u00e4\ud83d\ude00\n\u0000\"")", 5, "\"ä\U0001F600\\n\\u0000\\\"\""},
  };
  for (const auto& [json, type, written] : rows) {
    const auto document = ParseSettings(R"({"general":[{"TITLE":)" + json + "}]}", "f.json");
    EXPECT_EQ(document.general->Rows(1)->Value(u"TITLE").index(), type) << json;
    const auto cells = RowsToJson(*document.general);
    EXPECT_EQ(cells.dump(), written.empty() ? "[{}]" : R"([{"TITLE":)" + written + "}]");
  }
}

TEST(SettingsDocument, RefusesWhatIsNoneAndNamesThePlace) {
  const std::string object = "not an object of columns and cells";
  const std::string cell = "; a cell is a text, a number, true, false or null";
  const std::vector<std::pair<std::string, std::string>> rows{
      {"[]", "the document is an array, not an object of tables"},
      {"null", "the document is null, not an object of tables"},
      {R"({"generals":[]})", "generals: there is no such table"},
      {R"({"member":[],"member":[]})", "member: there are two members of this name"},
      {R"({"$schema":1})", "$schema: is a number, not a text"},
      {R"({"$schema":"a","$schema":"a"})", "$schema: there are two members of this name"},
      {R"({"general":{}})", "general: is an object, not an array of rows"},
      {R"({"texts":[{},[]]})", "texts, row 2: is an array, " + object},
      {R"({"member":[{},{"HIDDEN":"X"},{"HIDDEN":[]}]})", "member, row 3, column HIDDEN: is an array" + cell},
      {R"({"member":[{"A\u001b\n":{}}]})", "member, row 1, column A  : is an object" + cell},
      {R"({"dimension":[{},{"AXIS":"X","POSIT":1,"AXIS":null}]})",
       "dimension, row 2, column AXIS: the row names this column twice"},
      {R"({"dimension":[{"ä":1,"\u00e4":1}]})", "dimension, row 1, column ä: the row names this column twice"},
      {"",
       "line 1, column 1: syntax error while parsing value - unexpected end of input; "
       "expected '[', '{', or a literal"},
      {"{\n \"general\": [\n",
       "line 3, column 1: syntax error while parsing value - unexpected end of input; "
       "expected '[', '{', or a literal"},
      {"{\"general\":[{\"ä\":tru}]}", "line 1, column 21: syntax error while parsing value - invalid literal"},
      {"{\"general\":[{\"TITLE\":\"\xff\"}]}",
       "line 1, column 23: syntax error while parsing value - invalid string: ill-formed UTF-8 byte"},
      {"{\"general\":[{\"TITLE\":1e999}]}", "line 1, column 26: the number is too large"},
      {"{} {}", "line 1, column 4: syntax error while parsing value - unexpected '{'; expected end of input"},
  };
  for (const auto& [json, message] : rows) {
    try {
      ParseSettings(json, "f.json");
      ADD_FAILURE() << json;
    } catch (const DocumentError& error) {
      EXPECT_EQ(error.what(), "f.json: " + message) << json;
    }
  }
  try {
    ParseSettings(R"({"member":[{},{"HIDDEN":[]}]})", "f.json");
    ADD_FAILURE();
  } catch (const DocumentError& error) {
    const auto& [file, table, row, column] = error.Where();
    EXPECT_EQ(std::tie(file, table, row, column), std::make_tuple("f.json", "member", 2, "HIDDEN"));
    EXPECT_EQ(error.Reason(), "is an array" + cell);
  }
}

}  // namespace
}  // namespace ORXKMPrintProp::host
