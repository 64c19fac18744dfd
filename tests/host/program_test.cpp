#include <gtest/gtest.h>
#include <pty.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

#include "host/DocumentError.h"
#include "host/Files.h"
#include "temporary_folder.h"

namespace ORXKMPrintProp::host::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSmall = PRNPROP_EXAMPLES "/small.json";

struct Result {
  int status;
  std::string out;
  std::string err;
};

/// Runs the program by way of the shell, in a folder of its own.
class ProgramTest : public testing::Test {
 protected:
  Result Run(const std::string& arguments) const {
    const std::string command = "cd " + folder_.Path() + " && { " + PRNPROP_PROGRAM + " " + arguments + "; } >" +
                                captured_.Path("out") + " 2>" + captured_.Path("err");
    const int status = std::system(command.c_str());
    return {WEXITSTATUS(status), captured_.Read("out"), captured_.Read("err")};
  }

  /// What stands in the folder, in alphabetical order.
  std::vector<std::string> Files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_.Path())) names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }

  TemporaryFolder folder_;
  TemporaryFolder captured_;
};

TEST_F(ProgramTest, EndsWithTheStatusThatScriptsRelyOn) {
  folder_.Write("loss.json", R"({"general":[{"MARGIN_TOP":0.5,"MARGIN_BOTTOM":0,"MARGIN_LEFT":0,"MARGIN_RIGHT":0}]})");
  folder_.Write("none.json", "{}");
  folder_.Write("bad.json", "[]");
  const std::string bad = "prnprop: bad.json: the document is an array, not an object of tables\n";
  const std::string none =
      "none.json: the load fails: Table with general print properties GenPropTable must have "
      "exactly one row.\n";
  const std::string usage = "prnprop --help tells how it is used.\n";
  const std::string lost =
      "loss.json: 1 cell would be lost\n"
      "  general: 1 row, comes back; 14 empty cells filled\n"
      "    lost     row 1  MARGIN_TOP  0.5 -> 0  (only a whole number is kept)\n";
  struct Case {
    std::string arguments;
    Result result;
  };
  const Case cases[] = {
      {"check loss.json", {1, lost, ""}},
      {"check none.json", {1, none, ""}},
      {"check bad.json none.json", {3, none, bad}},
      {"check - < bad.json", {3, "", "prnprop: standard input: the document is an array, not an object of tables\n"}},
      {"show none.json", {1, "", "prnprop: " + none}},
      {"show .", {3, "", "prnprop: .: Is a directory\n"}},
      {"readback none.json -o out.json", {1, "", "prnprop: " + none}},
      {"readback bad.json -o out.json", {3, "", bad}},
      {"readback loss.json -o no/out.json", {3, "", "prnprop: no/out.json: No such file or directory\n"}},
      {"", {2, "", "prnprop: A subcommand is required\n" + usage}},
      {"print", {2, "", "prnprop: there is no command print\n" + usage}},
      {"check", {2, "", "prnprop: FILE is required\n" + usage}},
      {"show --wide a.json", {2, "", "prnprop: The following argument was not expected: --wide\n" + usage}},
  };
  for (const auto& [arguments, expected] : cases) {
    const Result result = Run(arguments);
    EXPECT_EQ(result.status, expected.status) << arguments;
    EXPECT_EQ(result.out, expected.out) << arguments;
    EXPECT_EQ(result.err, expected.err) << arguments;
  }
  EXPECT_EQ(Files(), (std::vector<std::string>{"bad.json", "loss.json", "none.json"}));
  for (const char* arguments : {"--version", "--help", "check --help", "readback --help", "show --help"}) {
    const Result result = Run(arguments);
    EXPECT_EQ(result.status, 0) << arguments;
    EXPECT_TRUE(result.out.find("prnprop ") != std::string::npos && result.err.empty()) << arguments;
  }
}

TEST_F(ProgramTest, SaysSoWhenItsOutputGetsLost) {
  const std::string small = kSmall;
  const std::vector<std::pair<std::string, std::string>> rows{
      {"show " + small + " >/dev/full", "standard output: No space left on device"},
      {"readback " + small + " >/dev/full", "standard output: No space left on device"},
      {"check --json " PRNPROP_EXAMPLES "/*.json >/dev/full", "standard output: No space left on device"},
      {"--help >/dev/full", "standard output: No space left on device"},
      {"check " + small + " >&-", "standard output: Bad file descriptor"},
      {"readback " + small + " -o /dev/full", "/dev/full: No space left on device"}};
  for (const auto& [arguments, message] : rows) {
    const Result result = Run(arguments);
    EXPECT_EQ(result.status, 3) << arguments;
    EXPECT_EQ(result.err, "prnprop: " + message + "\n");
  }
}

TEST_F(ProgramTest, ReadsBackIntoAFileWhatGoesToStandardOutput) {
  folder_.Write("d.json", R"({ "texts": [ { "TARGETID": "A", "CAPTION": null, "NOTE": 1.5 } ], "$schema": "s",
    "attribute": [ { "IOBJNM": "C", "ATTRINM": "A", "POSIT": 1, "PR_COL1_WIDTH": 4, "PR_COL2_WIDTH": 5 } ],
    "dimension": [ { "IS_STRUCTURE": "X", "IOBJNM": "S", "POSIT": 3, "NOTE": 1 },
                   { "IOBJNM": "C", "POSIT": 1, "PR_COL1_WIDTH": 1, "PR_COL2_WIDTH": 2, "STRT_LVL": 0 } ],
    "general": [ { "TITLE": "T", "MARGIN_TOP": 1, "MARGIN_BOTTOM": 2, "MARGIN_LEFT": 3, "MARGIN_RIGHT": 4 } ] })");
  const std::string expected = R"({
  "$schema": "s",
  "general": [
    { "TITLE": "T", "PRINT_DIRECTION": "V", "MAX_PAGES": "0", "HIDE_ZERO": " ", "USE_COLORS": " ", "FRONTPAGE_LAYOUT": "", "HEADER_LAYOUT": "", "FOOTER_LAYOUT": "", "LASTPAGE_LAYOUT": "", "MARGIN_TOP": 1, "MARGIN_BOTTOM": 2, "MARGIN_LEFT": 3, "MARGIN_RIGHT": 4, "SUMPOSIT": "2", "NOMULTTXT": " ", "SIGNPRSNT": "1", "NO_LINES": " ", "CURUNITPOSITION": "N" }
  ],
  "dimension": [
    { "IOBJNM": "C", "IOBJTXT": "", "POSIT": 1, "AXIS": " ", "IOBJPRSNT": "1", "PR_COL1_FIX": " ", "PR_COL2_FIX": " ", "PR_AUTO_WIDTH": " ", "PR_COL1_WIDTH": 1, "PR_COL2_WIDTH": 2, "PR_COL1_ALIGN": "L", "PR_COL2_ALIGN": "L", "PR_COL1_HEADER": "", "PR_COL2_HEADER": "", "PR_PAGE_BREAK": " ", "PR_BREAK_AREA": " ", "PR_QUERY_BREAK": " ", "STRT_LVL": 0, "HRY_ACTIVE": " ", "PR_HRY_PRSNT": "*", "PR_SUM_LAYOUT": "", "HIENM": "", "VERSION": "", "DATETO": "", "NOSUMS": " " },
    { "AXIS": "X", "IS_STRUCTURE": "X", "IOBJNM": "S", "IOBJTXT": "", "POSIT": 3 }
  ],
  "member": [],
  "attribute": [
    { "IOBJNM": "C", "ATTRITXT": "", "ATTRINM": "A", "POSIT": 1, "HIDDEN": " ", "IOBJPRSNT": "1", "PR_COL1_FIX": " ", "PR_COL2_FIX": " ", "PR_AUTO_WIDTH": " ", "PR_COL1_WIDTH": 4, "PR_COL2_WIDTH": 5, "PR_COL1_ALIGN": "L", "PR_COL2_ALIGN": "L", "PR_COL1_HEADER": "", "PR_COL2_HEADER": "" }
  ],
  "texts": [
    { "TARGETID": "A", "NOTE": 1.5 }
  ]
}
)";
  EXPECT_EQ(Run("readback d.json").out, expected);
  EXPECT_EQ(Run("readback - -o - < d.json").out, expected);
  EXPECT_EQ(Run("readback d.json -o d.json").out, "");
  EXPECT_EQ(folder_.Read("d.json"), expected);
  EXPECT_EQ(Files(), (std::vector<std::string>{"d.json"}));
}

TEST_F(ProgramTest, ReplacesAFileInOneStep) {
  const std::string file = folder_.Write("old", "old");
  ::chmod(file.c_str(), 0640);
  fs::create_symlink("old", folder_.Path("link"));
  fs::create_symlink("new", folder_.Path("dangling"));
  fs::create_symlink("loop", folder_.Path("loop"));
  // A second name for the old file keeps the old content: the file is not written over.
  fs::create_hard_link(file, folder_.Path("other"));

  ReplaceFile(folder_.Path("link"), "content");
  ReplaceFile(folder_.Path("dangling"), "");
  EXPECT_THROW(ReplaceFile(folder_.Path("loop"), "content"), DocumentError);

  EXPECT_EQ(Files(), (std::vector<std::string>{"dangling", "link", "loop", "new", "old", "other"}));
  EXPECT_EQ(folder_.Read("old"), "content");
  EXPECT_EQ(folder_.Read("other"), "old");
  EXPECT_EQ(folder_.Read("new"), "");
  EXPECT_EQ(fs::read_symlink(folder_.Path("link")), "old");
  EXPECT_EQ(fs::read_symlink(folder_.Path("dangling")), "new");
  struct stat status {};
  ::stat(file.c_str(), &status);
  EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST_F(ProgramTest, LeavesTheOldFileAloneWhenTheNewOneCannotBeWritten) {
  folder_.Write("old.json", "old");
  // The shell's limit on the size of files stands in for a full disk.
  const std::string command = "cd " + folder_.Path() +
                              " && trap '' XFSZ && ulimit -f 1 && " PRNPROP_PROGRAM " readback " + kSmall +
                              " -o old.json 2>" + captured_.Path("err");
  EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 3);
  EXPECT_EQ(captured_.Read("err"), "prnprop: old.json: File too large\n");
  EXPECT_EQ(folder_.Read("old.json"), "old");
  EXPECT_EQ(Files(), (std::vector<std::string>{"old.json"}));
}

/// What `show` writes to a terminal.
std::string OnTerminal(const char* noColor) {
  int terminal = -1;
  const pid_t child = ::forkpty(&terminal, nullptr, nullptr, nullptr);
  if (child == 0) {
    noColor ? ::setenv("NO_COLOR", noColor, 1) : ::unsetenv("NO_COLOR");
    ::execl(PRNPROP_PROGRAM, "prnprop", "show", kSmall, nullptr);
    ::_exit(127);
  }
  std::string text;
  char buffer[4096];
  for (ssize_t count; (count = ::read(terminal, buffer, sizeof buffer)) > 0;) {
    text.append(buffer, static_cast<std::size_t>(count));
  }
  ::close(terminal);
  ::waitpid(child, nullptr, 0);
  std::erase(text, '\r');
  return text;
}

TEST_F(ProgramTest, ColorsOnlyATerminalThatWantsIt) {
  const std::string plain = Run("show " + std::string(kSmall)).out;
  std::string colored = OnTerminal(nullptr);
  EXPECT_EQ(OnTerminal(""), colored);
  EXPECT_EQ(OnTerminal("1"), plain);
  EXPECT_TRUE(colored.starts_with("\x1b[1mPage\x1b[0m\n"));
  for (const std::string mark : {"\x1b[1m", "\x1b[2m", "\x1b[0m"}) {
    for (std::size_t at; (at = colored.find(mark)) != std::string::npos;) colored.erase(at, mark.size());
  }
  EXPECT_EQ(colored, plain);
}

}  // namespace
}  // namespace ORXKMPrintProp::host::test
