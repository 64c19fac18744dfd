// Writes what a random user does as a script for `prnprop drive`, with the state behind each action, and the documents
// that it names: random_script SEED ACTIONS FOLDER. What no script can say is left out, so the settings that the script
// meets are not always those that the user has met.

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <utility>

#include "RandomUser.h"
#include "host/SettingsDocument.h"
#include "host/Utf8.h"

namespace ORXKMPrintProp::test {
namespace {

using host::MemoryTableRef;

MemoryTableRef InMemory(const TableRef& table) { return std::dynamic_pointer_cast<MemoryTable>(table); }

class ScriptWriter {
 public:
  explicit ScriptWriter(const std::string& folder) : folder_(folder), script_(folder + "/random.drive", std::ios::binary) {
    Save("empty.json", "{}");
    script_ << "# prnprop drive empty.json random.drive\n";
  }

  void Write(const std::string& logged) {
    const Words words(logged);
    const std::string line = Translated(words);
    if (words.verb == "move") held_ += " " + words.rest;
    if (!held_.empty() && (words.verb == "up" || words.verb == "down" || !line.empty())) {
      Say((isMoved_ ? "drag " : "click ") + std::exchange(held_, ""));
    }
    if (words.verb == "down") held_ = words.name + " " + words.rest;
    isMoved_ = words.verb == "move" || (isMoved_ && words.verb != "down");
    if (!line.empty()) Say(line);
  }

 private:
  /// Of a line of the log, also of one that has no word in the transcripts and is a remark there.
  struct Words {
    explicit Words(const std::string& logged) : line(logged.starts_with("# ") ? logged.substr(2) : logged) {
      std::istringstream words(line);
      words >> verb >> name;
      std::getline(words >> std::ws, rest);
    }
    std::string line, verb, name, rest;
  };

  void Say(const std::string& line) { script_ << line << "\nstate\n"; }

  /// In the words of scripts; none where they have no such words, or where it goes on.
  std::string Translated(const Words& words) {
    const auto& [all, verb, name, rest] = words;
    if (verb == "edit") return "paste " + name + " " + host::ToLine(rest);
    if (verb == "key") return "keys " + name + " " + host::ToLine(host::ToUtf8(Text(1, Code(rest))));
    if (verb == "load") return name == "the" ? "" : "reload " + SaveSettings(name);
    if (verb == "texts") return "texts " + SaveTexts(name);
    static constexpr const char* kSame[] = {"tab", "pick", "toggle", "press", "rclick", "readonly", "read", "layout"};
    const bool isSame = std::find(std::begin(kSame), std::end(kSame), verb) != std::end(kSame);
    return isSame ? all : "";
  }

  static char16_t Code(const std::string& number) { return static_cast<char16_t>(std::stoi(number)); }

  std::string SaveSettings(const std::string& seed) {
    const Settings tables = SettingsFrom(std::stoull(seed)).tables;
    host::SettingsDocument document;
    document.general = InMemory(tables.gen);
    document.dimension = InMemory(tables.dim);
    document.member = InMemory(tables.mem);
    document.attribute = InMemory(tables.atr);
    return Save("load-" + seed + ".json", host::ToJson(document));
  }
  std::string SaveTexts(const std::string& seed) {
    host::SettingsDocument document;
    document.texts = InMemory(TextsFrom(std::stoull(seed)));
    return Save("texts-" + seed + ".json", host::ToJson(document));
  }
  std::string Save(const std::string& name, const std::string& json) {
    std::ofstream(folder_ + "/" + name, std::ios::binary) << json;
    return name;
  }

  std::string folder_;
  std::ofstream script_;
  std::string held_;  ///< the list and the entries that the pointer has been on since the button went down
  bool isMoved_ = false;
};

}  // namespace
}  // namespace ORXKMPrintProp::test

int main(int argc, char** argv) {
  using namespace ORXKMPrintProp::test;
  if (argc != 4) {
    std::cerr << "Usage: random_script SEED ACTIONS FOLDER\n";
    return 2;
  }
  RandomUser user(std::strtoull(argv[1], nullptr, 10));
  for (int actions = std::atoi(argv[2]); actions > 0; --actions) user.Act();
  ScriptWriter writer(argv[3]);
  std::istringstream log(user.Script());
  for (std::string line; std::getline(log, line);) writer.Write(line);
}
