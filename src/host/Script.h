#pragma once

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "control/ORXQueryPrnProp.h"
#include "host/SettingsDocument.h"

namespace ORXKMPrintProp::host {

/// What a script can do, to a dialog and as its host. The user's side gives the reason when a user could not do it.
/// Entries and tabs are -1 for numbers that none can have.
class ScriptActions {
 public:
  virtual ~ScriptActions() = default;

  virtual Refusal Tab(SSTab& strip, std::int16_t tab) = 0;
  /// A click on one entry, or a drag from the first over all others to the last.
  virtual Refusal Mouse(ListBox& list, const std::vector<std::int16_t>& entries, std::int16_t button) = 0;
  virtual Refusal Pick(ComboBox& combo, std::int16_t entry) = 0;
  virtual Refusal Toggle(CheckBox& check) = 0;
  virtual Refusal Keys(TextBox& box, const Text& keys) = 0;
  virtual Refusal Paste(TextBox& box, const Text& text) = 0;
  virtual Refusal Press(CommandButton& button) = 0;

  virtual void Layout(const Variant& button, const Text& characteristic, const Text& layout) = 0;
  virtual void ReadOnly(bool on) = 0;
  virtual void Texts(const SettingsDocument& document) = 0;
  virtual void Load(const SettingsDocument& document) = 0;
  virtual void Read(const char* table, TableRef (ORXQueryPrnProp::*property)()) = 0;
  virtual void TellState(const Widget& widget) = 0;
  virtual void TellState() = 0;  ///< that of the control itself
};

/// A line of a script.
struct ScriptStep {
  std::string line;
  std::function<Refusal(ScriptActions& actions)> act;
};

/// A line that is not understood. `what()` is one line: the script, the number and the text of the line, and why.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What the script's lines say, of which none is carried out yet. Documents that it names are read now.
/// @param path "-" for standard input.
/// @param dialog whose widgets the script names; must outlive the steps.
/// @throws ScriptError; DocumentError when a file can't be read.
std::vector<ScriptStep> ReadScript(const std::string& path, const Dialog& dialog);

}  // namespace ORXKMPrintProp::host
