// The input is a settings document: it is parsed, written, compared with what comes back from a load, and shown on
// every page of the dialog.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "control/ORXQueryPrnProp.h"
#include "host/Changes.h"
#include "host/DocumentError.h"
#include "host/Load.h"
#include "host/SettingsDocument.h"
#include "host/WidgetState.h"
#include "support.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::fuzz {
namespace {

using namespace host;

/// What a host makes of each of the four tables. A failure counts as an answer: it must come again.
std::string ReadBack(ORXQueryPrnProp& control) {
  std::string answers;
  for (const auto read : {&ORXQueryPrnProp::ORXGenPropTable, &ORXQueryPrnProp::ORXDimTable,
                          &ORXQueryPrnProp::ORXMemTable, &ORXQueryPrnProp::ORXAtrTable}) {
    try {
      const auto table = std::dynamic_pointer_cast<MemoryTable>((control.*read)());
      answers += table ? ToLine(RowsToJson(*table)) : "none";
    } catch (const RunTimeError& error) {
      answers += error.what();
    }
    answers += '\n';
  }
  return answers;
}

void ShowPages(ORXQueryPrnProp& control) {
  const Dialog& dialog = control.GetDialog();
  for (std::int16_t tab = 0; tab < SSTab::kTabs; ++tab) {
    try {
      dialog.TabStrip().UserPick(tab);
    } catch (const RunTimeError&) {
    }
  }
  for (const auto& widget : dialog.Controls()) ToLine(StateOf(*widget));
}

void Use(const SettingsDocument& document) {
  const std::string json = ToJson(document);
  // Columns that only rows name may change places.
  Demand(nlohmann::json::parse(ToJson(ParseSettings(json, "written"))) == nlohmann::json::parse(json),
         "a document that is written reads as the same");
  try {
    ChangesOf(document);
  } catch (const LoadError&) {
  }
  Demand(ToJson(document) == json, "a look for changes leaves the document as it is");

  ORXQueryPrnProp control;
  try {
    if (document.texts) control.ORXControlTexts(document.texts);
    control.ORXSetPrnTables(document.general, document.dimension, document.member, document.attribute);
  } catch (const RunTimeError&) {
  }
  const std::string once = ReadBack(control);
  Demand(ReadBack(control) == once, "reading the tables twice gives the same");
  ShowPages(control);
}

}  // namespace
}  // namespace ORXKMPrintProp::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ORXKMPrintProp;
  fuzz::ResetSharedValues();
  try {
    fuzz::Use(host::ParseSettings({reinterpret_cast<const char*>(data), size}, "input"));
  } catch (const host::DocumentError&) {
  }
  return 0;
}
