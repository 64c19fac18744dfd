// The input is a document and a script for it. The first character says which document: a digit is one of those
// that lie in documents/, "d" is the one that follows, up to a line with "%%" alone. The rest is the script.
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "host/DocumentError.h"
#include "host/Drive.h"
#include "host/ExitStatus.h"
#include "support.h"

namespace ORXKMPrintProp::fuzz {
namespace {

using namespace host;

/// A file in memory with a path.
class MemoryFile {
 public:
  MemoryFile() : file_(::memfd_create("fuzz", 0)) { Demand(file_ >= 0, "a file in memory can be made"); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  std::string Path() const { return "/proc/self/fd/" + std::to_string(file_); }
  void Write(std::string_view content) {
    const bool done = ::ftruncate(file_, 0) == 0 &&
                      ::pwrite(file_, content.data(), content.size(), 0) == static_cast<ssize_t>(content.size());
    Demand(done, "a file in memory can be written");
  }

 private:
  int file_;
};

bool IsPrepared(std::string_view name) { return name.size() == 1 && name[0] >= '0' && name[0] <= '3'; }
std::string PreparedPath(std::string_view name) { return PRNPROP_FUZZ_DOCUMENTS + std::string(name) + ".json"; }

/// The script without the lines that would open any other file than a prepared one, which stands there as its
/// digit.
std::string Harmless(std::string_view script) {
  std::istringstream lines{std::string(script)};
  std::string harmless;
  for (std::string line; std::getline(lines, line);) {
    const auto start = line.find_first_not_of(" \t\r");
    if (start != std::string::npos) line.erase(0, start);
    const std::string action = line.substr(0, line.find_first_of(" \t\r"));
    if (action == "texts" || action == "reload") {
      const std::string name = line.size() > action.size() ? line.substr(action.size() + 1) : "";
      if (!IsPrepared(name)) continue;
      line = action + " " + nlohmann::json(PreparedPath(name)).dump();
    }
    harmless += line + "\n";
  }
  return harmless;
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

void Use(std::string_view input) {
  static MemoryFile documentFile, scriptFile;
  if (input.empty()) return;

  DriveOptions options{.settings = PreparedPath(input.substr(0, 1)), .script = scriptFile.Path()};
  std::string_view script = input.substr(1);
  if (input[0] == 'd') {
    constexpr std::string_view kEnd = "\n%%\n";
    const auto end = script.find(kEnd);
    if (end == std::string_view::npos) return;
    documentFile.Write(script.substr(0, end));
    options.settings = documentFile.Path();
    script.remove_prefix(end + kEnd.size());
  } else if (!IsPrepared(input.substr(0, 1))) {
    return;
  }
  // Whatever came before, reading all tables twice must give the same.
  scriptFile.Write(Harmless(script) + "read all\nread all\n");

  std::ostringstream out, err;
  const int status = Drive(options, out, err);
  const std::vector<std::string> lines = LinesOf(out.str());
  for (const std::string& line : lines) Demand(nlohmann::json::accept(line), "each line of the output is JSON");
  if (status == kUsage) {
    Demand(lines.empty() && !err.str().empty(), "a script that is not understood does nothing and is complained of");
    return;
  }
  Demand(status == kSuccess && err.str().empty(), "a script that is understood ends well");
  constexpr std::size_t kTables = 4;
  Demand(lines.size() > 2 * kTables, "each table is read twice");
  Demand(
      std::vector(lines.end() - kTables, lines.end()) == std::vector(lines.end() - 2 * kTables, lines.end() - kTables),
      "reading the tables twice gives the same");
}

}  // namespace
}  // namespace ORXKMPrintProp::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ORXKMPrintProp;
  fuzz::ResetSharedValues();
  try {
    fuzz::Use({reinterpret_cast<const char*>(data), size});
  } catch (const host::DocumentError&) {
  }
  return 0;
}
