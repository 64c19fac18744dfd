#include "host/Drive.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "host/DocumentError.h"
#include "temporary_folder.h"

namespace ORXKMPrintProp::host::test {
namespace {

const std::string kExamples = PRNPROP_EXAMPLES;

struct Outcome {
  int status;
  std::string out, err;
};

Outcome DriveIt(const DriveOptions& options) {
  std::ostringstream out, err;
  const int status = Drive(options, out, err);
  return {status, out.str(), err.str()};
}

std::string FileContent(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Drive, DoesWhatTheExampleScriptsSay) {
  for (const auto& [script, settings] : {std::pair{"take-two-into-print", "sales"}, std::pair{"set-breaks", "sales"},
                                         std::pair{"change-presentation", "small"}}) {
    DriveOptions options;
    options.settings = kExamples + "/" + settings + ".json";
    options.script = kExamples + "/scripts/" + script + ".drive";
    const Outcome outcome = DriveIt(options);
    EXPECT_EQ(outcome.out, FileContent(std::string(PRNPROP_EXPECTED) + "/" + script + ".jsonl")) << script;
    EXPECT_EQ(outcome.status, 0);
  }
}

/// Four characteristics, the last one hidden.
constexpr const char* kSettings = R"({
  "general": [{"TITLE": "T", "MARGIN_TOP": 1, "MARGIN_BOTTOM": 2, "MARGIN_LEFT": 3, "MARGIN_RIGHT": 4}],
  "dimension": [
    {"IOBJNM": "A", "IOBJTXT": "a", "AXIS": "Y", "POSIT": 1, "PR_COL1_WIDTH": 5, "PR_COL2_WIDTH": 0, "STRT_LVL": 0},
    {"IOBJNM": "B", "IOBJTXT": "b", "AXIS": "Y", "POSIT": 2, "PR_COL1_WIDTH": 0, "PR_COL2_WIDTH": 0, "STRT_LVL": 0},
    {"IOBJNM": "C", "IOBJTXT": "c", "AXIS": "Y", "POSIT": 3, "PR_COL1_WIDTH": 0, "PR_COL2_WIDTH": 0, "STRT_LVL": 0},
    {"IOBJNM": "H", "IOBJTXT": "h", "POSIT": 0, "PR_COL1_WIDTH": 0, "PR_COL2_WIDTH": 0, "STRT_LVL": 0}
  ],
  "texts": [{"TARGETID": "ID_PRN_MSGMAX10", "CAPTION": "Zehn"}, {"TARGETID": "ID_PRN_GENERAL", "CAPTION": "Allg."}]
})";

TEST(Drive, TellsEverythingThatHappensInItsOrder) {
  const TemporaryFolder folder;
  DriveOptions options;
  options.settings = folder.Write("settings.json", kSettings);
  const std::string other = folder.Write("other.json", R"({"general": [], "texts": [
      {"TARGETID": "ID_PRN_GENERAL", "CAPTION": "Two"}]})");
  const std::string bad = folder.Write("bad.json", R"({"general": [{"MARGIN_TOP": "x"}]})");
  const std::string generalRow =
      R"({"TITLE":"T","PRINT_DIRECTION":"V","MAX_PAGES":"0","HIDE_ZERO":" ","USE_COLORS":" ","FRONTPAGE_LAYOUT":"",)"
      R"("HEADER_LAYOUT":"","FOOTER_LAYOUT":"","LASTPAGE_LAYOUT":"","MARGIN_TOP":1,"MARGIN_BOTTOM":2,"MARGIN_LEFT":3,)"
      R"("MARGIN_RIGHT":4,"SUMPOSIT":"2","NOMULTTXT":" ","SIGNPRSNT":"1","NO_LINES":" ","CURUNITPOSITION":"N"})";
  const struct {
    std::string script, out;
  } rows[] = {
      {"tab 1\ntab 1\ntab 9", R"({"refused":"tab 9","why":"no such entry"})"},
      {"  # a remark\n\n \t\r\n state ORXQueryPrnProp ",
       R"({"widget":"ORXQueryPrnProp","kind":"UserControl","readOnly":false,"mousePointer":0})"},
      {"state tstPrint",
       R"({"widget":"tstPrint","kind":"SSTab","visible":true,"tooltip":"","font":"MS Sans Serif","tab":0,)"
       R"("captions":["Allg.","Characteristics","Attributes","Structures"]})"},
      {"texts " + other + "\nstate tstPrint\ntexts " + bad,
       R"({"widget":"tstPrint","kind":"SSTab","visible":true,"tooltip":"","font":"MS Sans Serif","tab":0,)"
       R"("captions":["Two","Characteristics","Attributes","Structures"]}
{"error":{"kind":"object","message":"There is no object where one is needed."}})"},
      {"tab 1\nclick lstPrint(1) 7\npress cmdPrintLayout(4)\npress cmdPrintLayout(0)\nrclick lstPrint(1) 0",
       R"~({"refused":"click lstPrint(1) 7","why":"no such entry"}
{"event":"ORXPrintLayoutGet","ButtonID":4,"CharIObjName":"A"}
{"refused":"press cmdPrintLayout(0)","why":"not on top"})~"},
      {"tab 1\npick cmbCharPresentation 2\npaste txtCharColWidth2 \"x y\"\nclick lstPrint(1) 0\nkeys txtCharColTitle x",
       R"({"refused":"paste txtCharColWidth2 \"x y\"","why":"hidden"}
{"refused":"keys txtCharColTitle x","why":"disabled"})"},
      {"tab 1\ndrag lstPrint(1) 0 2 1\ndrag lstPrint(1) 0 1 0\ndrag lstPrint(1) 0 3",
       R"({"event":"ORXOrderChanged"}
{"refused":"drag lstPrint(1) 0 3","why":"no such entry"})"},
      {"readonly on\ntoggle chkGenNoLines\nreadonly off\ntoggle chkGenNoLines\nstate chkGenNoLines",
       R"({"refused":"toggle chkGenNoLines","why":"disabled"}
{"widget":"chkGenNoLines","kind":"CheckBox","visible":true,"tooltip":"Don't print lines","font":"MS Sans Serif",)"
       R"("enabled":true,"caption":"Don't print lines","value":1})"},
      {"paste txtGenMaxPages 1x\nkeys txtGenMaxPages \"\\b2.3\"\nkeys txtGenMaxPages \\b\\b4\nstate txtGenMaxPages",
       R"({"widget":"txtGenMaxPages","kind":"TextBox","visible":true,"tooltip":"Maximal number of pages to be printed",)"
       R"("font":"MS Sans Serif","enabled":true,"text":"14"})"},
      {"layout 5 A x\nlayout \"4\" A x\nlayout \"four\" A x\nlayout 1 \"\" \"h \\u00e4\"\nread general",
       R"({"error":{"kind":"index","message":"There is no page layout 5, only 0 to 3."}}
{"error":{"kind":"index","message":"There is no page layout 4, only 0 to 3."}}
{"error":{"kind":"type","message":"The text \"four\" is no number."}}
{"table":"general","rows":[)" + std::string(generalRow).replace(generalRow.find("HEADER_LAYOUT") + 16, 0, "h \xc3\xa4") +
           "]}"},
      {"reload " + other + "\nreload " + bad + "\nread member",
       R"({"load":false,"errorText":"Table with general print properties GenPropTable must have exactly one row."}
{"error":{"kind":"type","message":"GenPropTable, row 1, column MARGIN_TOP: The text \"x\" is no number."}}
{"table":"member","rows":[]})"},
      {"read general\nread attribute",
       R"({"table":"general","rows":[)" + generalRow + "]}\n" + R"({"table":"attribute","rows":[]})"},
  };
  for (const auto& row : rows) {
    options.script = folder.Write("script", row.script);
    const Outcome outcome = DriveIt(options);
    EXPECT_EQ(outcome.out, "{\"load\":true}\n" + row.out + "\n") << row.script;
    EXPECT_EQ(outcome.status, 0);
  }

  options.script = folder.Write("script", "read all\nstate");
  const Outcome all = DriveIt(options);
  EXPECT_EQ(std::count(all.out.begin(), all.out.end(), '\n'), 1 + 4 + 112 + 1);

  options.readOnly = true;
  options.texts = other;
  options.script = folder.Write("script", "state ORXQueryPrnProp\npaste txtGenPrnTitle x");
  EXPECT_EQ(DriveIt(options).out,
            "{\"load\":true}\n"
            R"({"widget":"ORXQueryPrnProp","kind":"UserControl","readOnly":true,"mousePointer":0})"
            "\n{\"refused\":\"paste txtGenPrnTitle x\",\"why\":\"disabled\"}\n");
}

TEST(Drive, CarriesNothingOutWhenALineIsNotUnderstood) {
  const TemporaryFolder folder;
  DriveOptions options;
  options.settings = folder.Write("settings.json", kSettings);
  for (const char* line : {"jump",
                           "tab",
                           "tab one",
                           "tab \"1\"",
                           "tab 1 2",
                           "click lstPrint(1)",
                           "click lstPrint 0",
                           "click txtGenPrnTitle 0",
                           "drag lstPrint(1) 0",
                           "pick cmbNone 1",
                           "toggle cmdPrintLayout(0)",
                           "keys txtGenPrnTitle",
                           "keys txtGenPrnTitle \"x",
                           "paste txtGenPrnTitle \"x\"y",
                           "press cmdPrintLayout(5)",
                           "layout x A y",
                           "readonly maybe",
                           "read everything",
                           "state lstNone",
                           "TAB 1",
                           "keys txtGenPrnTitle \"\\q\""}) {
    options.script = folder.Write("script", std::string("state\n\n") + line);
    const Outcome outcome = DriveIt(options);
    EXPECT_EQ(outcome.out, "") << line;
    EXPECT_EQ(outcome.err, "prnprop: " + options.script + ": line 3 is not understood: " + line + "\n");
    EXPECT_EQ(outcome.status, 2);
  }
  options.script = folder.Write("script", "reload " + folder.Path("none.json"));
  EXPECT_THROW(DriveIt(options), DocumentError);
  options.script = folder.Path("none");
  EXPECT_THROW(DriveIt(options), DocumentError);
}

}  // namespace
}  // namespace ORXKMPrintProp::host::test
