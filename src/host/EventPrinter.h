#pragma once

#include <iosfwd>
#include <nlohmann/json_fwd.hpp>
#include <string>

#include "control/ORXQueryPrnProp.h"
#include "tables/MemoryTable.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::host {

/// Prints what happens to a control as JSON objects, a line each: messages as the dialog's view, events as a listener,
/// and the rest as it is called.
class EventPrinter : public View, public ORXQueryPrnPropEvents {
 public:
  explicit EventPrinter(std::ostream& out) : out_(out) {}

  void Refused(const std::string& line, Refusal why);
  void Failed(const RunTimeError& error);
  /// @param loaded what the load has given; where it is false, `gErrorText` says why.
  void Loaded(bool loaded);
  /// @param table null for none
  void TableRead(const char* name, MemoryTable* table);
  void State(const nlohmann::ordered_json& state) { Print(state); }

  /// Prints the failure of the operation, and goes on.
  template <class Operation>
  void Try(Operation operation) {
    try {
      operation();
    } catch (const RunTimeError& error) {
      Failed(error);
    }
  }

 private:
  void ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) override;
  void ORXOrderChanged() override;
  void MsgBox(const Text& text, const Text& title) override;

  void Print(const nlohmann::ordered_json& line);

  std::ostream& out_;
};

}  // namespace ORXKMPrintProp::host
