#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>
#include <utility>
#include <vector>

#include "host/Check.h"
#include "temporary_folder.h"

namespace ORXKMPrintProp::host::test {
namespace {

using Json = nlohmann::ordered_json;

/// A document of a row of every kind, which a load and a read-back leave as it is.
Json Untouched() {
  return Json::parse(R"({
    "general": [ { "TITLE": "Sales", "PRINT_DIRECTION": "H", "MAX_PAGES": "20", "HIDE_ZERO": "X", "USE_COLORS": " ",
        "FRONTPAGE_LAYOUT": "", "HEADER_LAYOUT": "", "FOOTER_LAYOUT": "", "LASTPAGE_LAYOUT": "", "MARGIN_TOP": 1,
        "MARGIN_BOTTOM": 2, "MARGIN_LEFT": 3, "MARGIN_RIGHT": -4, "SUMPOSIT": "1", "NOMULTTXT": " ", "SIGNPRSNT": "3",
        "NO_LINES": " ", "CURUNITPOSITION": "T" } ],
    "dimension": [
      { "IOBJNM": "CUSTOMER", "IOBJTXT": "Customer", "POSIT": 1, "AXIS": "Y", "IOBJPRSNT": "0", "PR_COL1_FIX": "X",
        "PR_COL2_FIX": " ", "PR_AUTO_WIDTH": " ", "PR_COL1_WIDTH": 4, "PR_COL2_WIDTH": 5, "PR_COL1_ALIGN": "C",
        "PR_COL2_ALIGN": "R", "PR_COL1_HEADER": "Cust.", "PR_COL2_HEADER": "Cust.", "PR_PAGE_BREAK": " ",
        "PR_BREAK_AREA": " ", "PR_QUERY_BREAK": " ", "STRT_LVL": 0, "HRY_ACTIVE": " ", "PR_HRY_PRSNT": "*",
        "PR_SUM_LAYOUT": "", "HIENM": "", "VERSION": "", "DATETO": "", "NOSUMS": "C" },
      { "AXIS": "X", "IS_STRUCTURE": "X", "IOBJNM": "FIGURES", "IOBJTXT": "Figures", "POSIT": 1 } ],
    "member": [ { "IOBJNM": "FIGURES", "CHAVL": "PRICE", "CHAVLTXT": "Price", "POSIT": 1, "HIDDEN": " ",
        "PR_AUTO_WIDTH": "X", "PR_COL1_WIDTH": 0, "PR_COL1_ALIGN": "L", "PR_COL1_HEADER": "", "PR_COL2_HEADER": "" } ],
    "attribute": [ { "IOBJNM": "CUSTOMER", "ATTRITXT": "City", "ATTRINM": "CITY", "POSIT": 1, "HIDDEN": " ",
        "IOBJPRSNT": "1", "PR_COL1_FIX": " ", "PR_COL2_FIX": " ", "PR_AUTO_WIDTH": "X", "PR_COL1_WIDTH": 0,
        "PR_COL2_WIDTH": 0, "PR_COL1_ALIGN": "L", "PR_COL2_ALIGN": "L", "PR_COL1_HEADER": "", "PR_COL2_HEADER": "" } ]
    })");
}

struct Result {
  int status;
  std::string out;
  std::string err;
};

Result RunCheck(const std::vector<std::string>& files, bool json) {
  std::ostringstream out;
  std::ostringstream err;
  const int status = Check(files, json, out, err);
  return {status, out.str(), err.str()};
}

/// What is found in the document: "1 dimension 2 AXIS lost unknown code "x" -> " "", led by the exit status.
std::string Findings(const Json& document) {
  const TemporaryFolder folder;
  const Result result = RunCheck({folder.Write("d.json", document.dump())}, true);
  const Json object = Json::parse(result.out);
  EXPECT_EQ(object["status"], result.status);
  EXPECT_EQ(result.err, "");
  if (object.contains("error")) return std::to_string(result.status) + " " + object["error"].get<std::string>();
  std::ostringstream text;
  text << result.status;
  const char* separator = " ";
  for (const Json& finding : object["findings"]) {
    text << std::exchange(separator, "; ") << finding["table"].get<std::string>() << " " << finding["row"] << " ";
    if (finding.contains("column")) text << finding["column"].get<std::string>() << " ";
    text << (finding["loss"] ? "lost " : "kept ") << finding["kind"].get<std::string>();
    if (finding.contains("from")) text << " " << finding["from"] << " -> " << finding["to"];
  }
  return text.str();
}

TEST(Check, TellsForEveryCellWhetherItIsLostOrOnlyWrittenInAnotherWay) {
  EXPECT_EQ(Findings(Untouched()), "0");

  struct Case {
    const char* table;
    std::size_t row;
    const char* column;
    const char* cell;
    const char* found;
  };
  const Case cases[] = {
      // Columns that the control does not write.
      {"general", 0, "PAPER", R"("A4")", R"(1 general 1 PAPER lost column dropped "A4" -> null)"},
      {"general", 0, "PAPER", R"(" ")", R"(1 general 1 PAPER lost column dropped " " -> null)"},
      {"general", 0, "PAPER", R"("")", R"(0 general 1 PAPER kept column dropped "" -> null)"},
      {"member", 0, "", "0", "1 member 1  lost column dropped 0 -> null"},
      {"dimension", 0, "IS_STRUCTURE", R"("x")", R"(1 dimension 1 IS_STRUCTURE lost column dropped "x" -> null)"},
      {"dimension", 0, "IS_STRUCTURE", R"(" ")", R"(0 dimension 1 IS_STRUCTURE kept column dropped " " -> null)"},
      {"dimension", 1, "PR_COL1_WIDTH", "0", R"(1 dimension 2 PR_COL1_WIDTH lost column dropped 0 -> null)"},
      {"dimension", 1, "PR_COL1_FIX", R"(" ")", R"(0 dimension 2 PR_COL1_FIX kept column dropped " " -> null)"},
      // Columns that it writes and never reads.
      {"general", 0, "LASTPAGE_LAYOUT", R"("<end/>")",
       R"(1 general 1 LASTPAGE_LAYOUT lost layout emptied "<end/>" -> "")"},
      {"general", 0, "LASTPAGE_LAYOUT", "null", R"(0 general 1 LASTPAGE_LAYOUT kept cell filled null -> "")"},
      {"dimension", 0, "PR_SUM_LAYOUT", R"("s")", R"(1 dimension 1 PR_SUM_LAYOUT lost layout emptied "s" -> "")"},
      {"dimension", 0, "PR_COL2_HEADER", R"("No.")", R"(1 dimension 1 PR_COL2_HEADER lost replaced "No." -> "Cust.")"},
      {"dimension", 0, "PR_HRY_PRSNT", R"("+")", R"(1 dimension 1 PR_HRY_PRSNT lost replaced "+" -> "*")"},
      // Codes.
      {"dimension", 0, "AXIS", R"("X")", R"(0 dimension 1 AXIS kept code normalized "X" -> "Y")"},
      {"dimension", 0, "AXIS", R"("y")", R"(1 dimension 1 AXIS lost unknown code "y" -> " ")"},
      {"dimension", 1, "AXIS", R"("z")", R"(0 dimension 2 AXIS kept code normalized "z" -> "X")"},
      {"dimension", 0, "IOBJPRSNT", R"("")", R"(0 dimension 1 IOBJPRSNT kept cell filled "" -> "1")"},
      {"dimension", 0, "IOBJPRSNT", R"("  ")", R"(0 dimension 1 IOBJPRSNT kept code normalized "  " -> "1")"},
      {"dimension", 0, "IOBJPRSNT", "2", R"(0 dimension 1 IOBJPRSNT kept type changed 2 -> "2")"},
      {"dimension", 0, "IOBJPRSNT", R"("01")", R"(1 dimension 1 IOBJPRSNT lost unknown code "01" -> "1")"},
      {"general", 0, "PRINT_DIRECTION", R"("v")", R"(1 general 1 PRINT_DIRECTION lost unknown code "v" -> "V")"},
      {"general", 0, "HIDE_ZERO", "true", R"(1 general 1 HIDE_ZERO lost unknown code true -> " ")"},
      {"member", 0, "PR_COL1_ALIGN", R"("l")", R"(1 member 1 PR_COL1_ALIGN lost unknown code "l" -> "L")"},
      // Numbers and texts.
      {"general", 0, "MARGIN_TOP", "1.5", "1 general 1 MARGIN_TOP lost number changed 1.5 -> 2"},
      {"general", 0, "MARGIN_TOP", R"(" +7. ")", R"(0 general 1 MARGIN_TOP kept type changed " +7. " -> 7)"},
      {"general", 0, "MARGIN_TOP", "true", "0 general 1 MARGIN_TOP kept type changed true -> -1"},
      {"general", 0, "MAX_PAGES", R"("20 pages")", R"(1 general 1 MAX_PAGES lost number changed "20 pages" -> "20")"},
      {"general", 0, "MAX_PAGES", "true", R"(1 general 1 MAX_PAGES lost number changed true -> "0")"},
      {"general", 0, "MAX_PAGES", "20", R"(0 general 1 MAX_PAGES kept type changed 20 -> "20")"},
      {"general", 0, "MAX_PAGES", R"(" ")", R"(0 general 1 MAX_PAGES kept cell filled " " -> "0")"},
      {"general", 0, "TITLE", "2025", R"(0 general 1 TITLE kept type changed 2025 -> "2025")"},
      {"general", 0, "TITLE", R"(" x ")", "0"},
      {"attribute", 0, "IOBJNM", R"("Customer")", R"(1 attribute 1 IOBJNM lost text changed "Customer" -> "CUSTOMER")"},
  };
  for (const auto& [table, row, column, cell, found] : cases) {
    Json document = Untouched();
    document[table][row][column] = Json::parse(cell);
    EXPECT_EQ(Findings(document), found) << column << " " << cell;
  }
}

/// The rows become copies of those of the untouched document with these names: "S:" marks a structure.
Json WithRows(const std::vector<std::string>& dimension, const std::vector<std::string>& members,
              const std::vector<std::string>& attributes) {
  const Json base = Untouched();
  Json document = {{"general", base["general"]}};
  const auto add = [&](const char* table, Json row, const std::string& name) {
    row["IOBJNM"] = name;
    document[table].push_back(std::move(row));
  };
  for (const std::string& name : dimension) {
    const bool isStructure = name.starts_with("S:");
    add("dimension", base["dimension"][isStructure ? 1 : 0], isStructure ? name.substr(2) : name);
  }
  for (const std::string& name : members) add("member", base["member"][0], name);
  for (const std::string& name : attributes) add("attribute", base["attribute"][0], name);
  return document;
}

TEST(Check, FindsWhereEveryRowComesBack) {
  EXPECT_EQ(Findings(WithRows({"A", "B", "S:X", "S:Y"}, {"X", "X", "Y"}, {"A", "A", "B"})), "0");
  EXPECT_EQ(
      Findings(WithRows({"S:X", "A", "B"}, {}, {"B", "A"})),
      "0 dimension 2 kept row moved 2 -> 1; dimension 3 kept row moved 3 -> 2; dimension 1 kept row moved 1 -> 3; "
      "attribute 2 kept row moved 2 -> 1; attribute 1 kept row moved 1 -> 2");
  EXPECT_EQ(Findings(WithRows({"S:X", "S:Y", "S:Z"}, {"Y", "Z", "X", "A"}, {})),
            "1 dimension 3 lost row dropped; member 2 lost row dropped; member 4 lost row dropped; "
            "member 3 kept row moved 3 -> 1; member 1 kept row moved 1 -> 2");
  EXPECT_EQ(
      Findings(WithRows({"A", "S:X", "A", "B"}, {}, {"N", "B", "A"})),
      "1 dimension 3 kept row moved 3 -> 2; dimension 4 kept row moved 4 -> 3; dimension 2 kept row moved 2 -> 4; "
      "attribute 1 lost row dropped; attribute 3 kept row repeated null -> 2; "
      "attribute 3 kept row moved 3 -> 1; attribute 2 kept row moved 2 -> 3");
  EXPECT_EQ(Findings(WithRows({"S:", "A"}, {""}, {"B", "A"})),
            "1 dimension 1 lost row dropped; member 1 lost row dropped; attribute 1 lost row dropped");
  EXPECT_EQ(Findings(WithRows({"a"}, {}, {"A", "A"})),
            R"(1 attribute 1 IOBJNM lost text changed "A" -> "a"; attribute 2 lost row dropped)");
  EXPECT_EQ(Findings(WithRows({"a", "A"}, {}, {"A", "A"})), "0 attribute 1 kept row repeated null -> 2");
  EXPECT_EQ(Findings(WithRows({"A", "A", "S:X", "S:X"}, {"X"}, {"A"})),
            "0 member 1 kept row repeated null -> 2; attribute 1 kept row repeated null -> 2");
}

TEST(Check, ReportsForAPersonTableByTable) {
  Json document = WithRows({"S:X", "A", "B", "C", "S:Y", "S:Z"}, {"X"}, {"B", "B", "A", "A", "N"});
  for (Json& row : document["attribute"]) row["ATTRINM"] = "名";
  for (const auto row : {1u, 2u, 3u}) document["dimension"][row]["AXIS"] = "X";
  document["dimension"][0]["IOBJTXT"] = 7;
  document["general"][0]["HEADER_LAYOUT"] = "<header>\n  a layout that takes more than one line</header>";
  document["general"][0].erase("NO_LINES");
  document["attribute"][1]["HIDDEN"] = "no";
  const TemporaryFolder folder;
  const std::string file = folder.Write("d.json", document.dump());
  const Result result = RunCheck({file}, false);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out, file + R"(: 2 rows and 2 cells would be lost
  general: 1 row, comes back; 1 empty cell filled
    lost     row 1  HEADER_LAYOUT  "<header>\n  a layout that takes more tha…" -> ""  (a layout is written, never read)
  dimension: 6 rows, 5 come back, in the order 2-4, 1, 5
    lost     row 6 (Z)  does not come back: only two structures are kept
    changed  row 1 (X)  IOBJTXT  7 -> "7"  (same value)
    changed  rows 2-4   AXIS     "X" -> "Y"  (same meaning)
  member: 1 row, comes back
  attribute: 5 rows, 4 come back, in the order 3-4, 1-2
    lost     row 2 (名)  HIDDEN  "no" -> " "  (unknown code, counts as the default)
    lost     row 5 (名)  does not come back: "N" names no characteristic
)");

  Json many = Untouched();
  for (int i = 0; i < 20; ++i) many["attribute"].push_back(many["attribute"][0]);
  for (std::size_t i = 1; i < 21; i += 2) many["attribute"][i]["HIDDEN"] = "  ";
  folder.Write("d.json", many.dump());
  EXPECT_EQ(RunCheck({file}, false).out, file + R"(: nothing is lost
  general: 1 row, comes back
  dimension: 2 rows, all come back
  member: 1 row, comes back
  attribute: 21 rows, all come back
    changed  rows 2, 4, 6, 8, 10, 12, 14, 16 and 2 more  HIDDEN  "  " -> " "  (same meaning)
)");
}

TEST(Check, LooksAtEveryFileAndEndsWithTheWorstStatus) {
  const TemporaryFolder folder;
  const std::string good = folder.Write("good.json", Untouched().dump());
  const std::string bare = folder.Write("bare.json", R"({"general":[{"MARGIN_TOP":0,"MARGIN_BOTTOM":0,"MARGIN_LEFT":0,
                                                         "MARGIN_RIGHT":0}]})");
  const std::string none = folder.Write("none.json", R"({"general":[{},{}]})");
  const std::string cell = folder.Write("cell.json", R"({"general":[{"MARGIN_TOP":"a\n"}]})");
  const std::string bad = folder.Write("bad.json", "{");
  const std::string noFile = folder.Path("no\nfile");

  const std::string noneSays =
      none + ": the load fails: Table with general print properties GenPropTable must have exactly one row.";
  const std::string cellSays =
      cell + ": the load fails: GenPropTable, row 1, column MARGIN_TOP: The text \"a \" is no number.";
  const std::string badSays = bad +
                              ": line 1, column 2: syntax error while parsing object key - unexpected end of input; "
                              "expected string literal";
  const std::string noFileSays = folder.Path("no file") + ": No such file or directory";

  const Result result = RunCheck({noFile, good, none, bare, bad, cell}, false);
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.out, good + ": nothing is lost\n" + noneSays + "\n" + bare +
                            ": nothing is lost, 14 empty cells filled\n" + cellSays + "\n");
  EXPECT_EQ(result.err, "prnprop: " + noFileSays + "\nprnprop: " + badSays + "\n");
  EXPECT_EQ(RunCheck({good, cell, good}, false).status, 1);

  const auto line = [](const std::string& file, int status, const std::string& error) {
    Json object{{"file", file}, {"status", status}};
    if (!error.empty()) object["error"] = error;
    object["findings"] = Json::array();
    return object.dump() + "\n";
  };
  const Result json = RunCheck({noFile, good, none}, true);
  EXPECT_EQ(json.status, 3);
  EXPECT_EQ(json.out, line(noFile, 3, noFileSays) + line(good, 0, "") + line(none, 1, noneSays));
  EXPECT_EQ(json.err, "");
}

TEST(Check, FindsNothingLostInTheExamples) {
  const std::string folder = PRNPROP_EXAMPLES "/";
  const Result result = RunCheck({folder + "german.json", folder + "sales.json", folder + "small.json"}, false);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, folder + "german.json: nothing is lost, 8 empty cells filled\n" + folder +
                            "sales.json: nothing is lost, 19 empty cells filled\n" + folder +
                            "small.json: nothing is lost, 7 empty cells filled\n");
}

}  // namespace
}  // namespace ORXKMPrintProp::host::test
