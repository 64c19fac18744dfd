#include "host/Diff.h"

#include <nlohmann/json.hpp>
#include <ostream>
#include <vector>

#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "host/Differences.h"
#include "host/ExitStatus.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/UserLanguage.h"
#include "host/Utf8.h"

namespace ORXKMPrintProp::host {
namespace {

using Json = nlohmann::ordered_json;

std::vector<PageDifferences> Compare(const DiffOptions& options) {
  const SharedValuesGuard guard;
  const SettingsDocument before = ReadSettings(options.before);
  const SettingsDocument after = ReadSettings(options.after);
  const MemoryTableRef texts = options.texts ? ReadSettings(*options.texts).texts
                               : after.texts ? after.texts
                                             : before.texts;
  const auto from = SettingsOf(before);
  const auto to = SettingsOf(after);
  ORXQueryPrnProp control;
  if (texts) control.ORXControlTexts(texts);
  // Without a text table the captions are English.
  return DifferencesOf(*from, *to, DifferenceWordsIn(texts ? UserLanguage() : "en"));
}

void PrintJson(const DiffOptions& options, int status, const char* error,
               const std::vector<PageDifferences>& differences, std::ostream& out) {
  Json changes = Json::array();
  for (const PageDifferences& page : differences) {
    for (const Text& line : page.lines) changes.push_back({{"page", page.page}, {"change", ToUtf8(line)}});
  }
  Json object{{"files", {InputName(options.before), InputName(options.after)}}, {"status", status}};
  if (error) object["error"] = error;
  object["changes"] = std::move(changes);
  out << ToLine(object) << "\n";
}

}  // namespace

int Diff(const DiffOptions& options, std::ostream& out) {
  std::vector<PageDifferences> differences;
  try {
    differences = Compare(options);
  } catch (const std::runtime_error& error) {
    if (!options.json) throw;
    PrintJson(options, kTrouble, error.what(), {}, out);
    return kTrouble;
  }
  const int status = differences.empty() ? kSame : kDifferent;
  if (options.json) {
    PrintJson(options, status, nullptr, differences, out);
  } else {
    for (const std::string& line : LinesOf(differences)) out << line << "\n";
  }
  return status;
}

}  // namespace ORXKMPrintProp::host
