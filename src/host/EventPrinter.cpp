#include "host/EventPrinter.h"

#include <nlohmann/json.hpp>
#include <ostream>

#include "control/SharedValues.h"
#include "host/SettingsDocument.h"
#include "host/Utf8.h"

namespace ORXKMPrintProp::host {

using Json = nlohmann::ordered_json;

void EventPrinter::Refused(const std::string& line, Refusal why) { Print({{"refused", line}, {"why", WordsOf(why)}}); }

void EventPrinter::Failed(const RunTimeError& error) {
  Print({{"error", {{"kind", NameOf(error.Kind())}, {"message", ToUtf8(error.Message())}}}});
}

void EventPrinter::Loaded(bool loaded) {
  if (loaded) {
    Print({{"load", true}});
  } else {
    Print({{"load", false}, {"errorText", ToUtf8(gErrorText)}});
  }
}

void EventPrinter::TableRead(const char* name, MemoryTable* table) {
  Print({{"table", name}, {"rows", table ? RowsToJson(*table) : Json()}});
}

void EventPrinter::ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) {
  Print({{"event", "ORXPrintLayoutGet"}, {"ButtonID", ButtonID}, {"CharIObjName", ToUtf8(CharIObjName)}});
}

void EventPrinter::ORXOrderChanged() { Print({{"event", "ORXOrderChanged"}}); }

void EventPrinter::MsgBox(const Text& text, const Text& title) {
  Print({{"message", ToUtf8(text)}, {"title", ToUtf8(title)}});
}

void EventPrinter::Print(const Json& line) { out_ << ToLine(line) << "\n"; }

}  // namespace ORXKMPrintProp::host
