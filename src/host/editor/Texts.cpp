#include "host/editor/Texts.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>

#include "host/ExitStatus.h"
#include "host/Files.h"
#include "host/Terminal.h"
#include "host/Utf8.h"

namespace ORXKMPrintProp::host {
namespace {

using Json = nlohmann::ordered_json;

const char* NameOf(TextFinding::Kind kind) {
  static constexpr const char* kNames[] = {"missing", "unknown", "doubled", "empty", "placeholder", "too long", "same"};
  return kNames[static_cast<std::size_t>(kind)];
}

Json ToJson(const TextFinding& finding) {
  Json json{{"kind", NameOf(finding.kind)}};
  if (finding.row > 0) json["row"] = finding.row;
  json["key"] = ToUtf8(finding.key);
  if (finding.measured) {
    json["widget"] = ToUtf8(finding.measured->widget);
    json["needed"] = finding.measured->room.needed;
    json["room"] = finding.measured->room.room;
    json["dpi"] = finding.measured->dpi;
  }
  json["reason"] = ToUtf8(finding.words);
  return json;
}

void Print(const std::vector<TextFinding>& findings, std::ostream& out) {
  // As wide as the longest.
  std::size_t kindWidth = 0, rowWidth = 0, keyWidth = 0;
  const auto rowOf = [](const TextFinding& finding) {
    return finding.row > 0 ? "row " + std::to_string(finding.row) : std::string();
  };
  const auto keyOf = [](const TextFinding& finding) { return OneLine(finding.key); };
  const auto widthOf = [](const Text& text) { return static_cast<std::size_t>(DisplayWidth(text)); };
  for (const TextFinding& finding : findings) {
    kindWidth = std::max(kindWidth, std::string_view(NameOf(finding.kind)).size());
    rowWidth = std::max(rowWidth, rowOf(finding).size());
    keyWidth = std::max(keyWidth, widthOf(keyOf(finding)));
  }
  for (const TextFinding& finding : findings) {
    const std::string kind = NameOf(finding.kind), row = rowOf(finding);
    out << "  " << kind << std::string(kindWidth - kind.size() + 2, ' ') << row
        << std::string(rowWidth - row.size() + (rowWidth > 0 ? 2 : 0), ' ') << ToUtf8(keyOf(finding))
        << std::string(keyWidth - widthOf(keyOf(finding)) + 2, ' ') << ToUtf8(finding.words) << "\n";
  }
}

}  // namespace

int CheckTexts(const std::string& path, bool json, const MeasureTexts& measure, std::ostream& out, std::ostream& err) {
  Json object{{"file", InputName(path)}, {"status", kBadFile}};
  try {
    const SettingsDocument document = ReadSettings(path);
    if (!document.texts) throw DocumentError({.file = document.file}, "there is no table texts");
    const auto findings = FindingsOf(document.texts, measure);
    const int status = findings.empty() ? kSuccess : kLoss;
    if (json) {
      object["status"] = status;
      object["findings"] = Json::array();
      for (const TextFinding& finding : findings) object["findings"].push_back(ToJson(finding));
      out << ToLine(object) << "\n";
    } else {
      out << document.file << ": " << document.texts->RowCount() << " texts, "
          << (findings.empty() ? "all is well" : std::to_string(findings.size()) + " to look at") << "\n";
      Print(findings, out);
    }
    return status;
  } catch (const DocumentError& error) {
    if (!json) {
      err << "prnprop: " << error.what() << "\n";
      return kBadFile;
    }
    object["error"] = error.what();
    object["findings"] = Json::array();
    out << ToLine(object) << "\n";
    return kBadFile;
  }
}

std::string NewTexts() {
  SettingsDocument document;
  document.texts = DefaultTexts();
  return ToJson(document);
}

}  // namespace ORXKMPrintProp::host
