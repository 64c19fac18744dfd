#pragma once

#include <iosfwd>
#include <vector>

#include "host/EventPrinter.h"
#include "host/Script.h"

namespace ORXKMPrintProp::host {

/// Does to a control without a window what a script says, and prints everything that happens. How the user acts, and
/// what is seen of it, can be another's.
class Driver : protected ScriptActions {
 public:
  explicit Driver(std::ostream& out);

  const Dialog& GetDialog() { return control_.GetDialog(); }

  void Start(const SettingsDocument& settings, const MemoryTableRef& texts, bool readOnly);
  virtual void Play(const ScriptStep& step);

 protected:
  Refusal Tab(SSTab& strip, std::int16_t tab) override { return strip.UserPick(tab); }
  Refusal Mouse(ListBox& list, const std::vector<std::int16_t>& entries, std::int16_t button) override;
  Refusal Pick(ComboBox& combo, std::int16_t entry) override { return combo.UserPick(entry); }
  Refusal Toggle(CheckBox& check) override { return check.UserToggle(); }
  Refusal Keys(TextBox& box, const Text& keys) override;
  Refusal Paste(TextBox& box, const Text& text) override { return box.UserEdit(text); }
  Refusal Press(CommandButton& button) override { return button.UserPress(); }

  void TellState(const Widget& widget) override;
  void TellState() override;

  /// Why a user can't get at one of the entries.
  static Refusal RefusesEntries(const EntryWidget& widget, const std::vector<std::int16_t>& entries);

  EventPrinter printer_;
  ORXQueryPrnProp control_;

 private:
  void Layout(const Variant& button, const Text& characteristic, const Text& layout) override;
  void ReadOnly(bool on) override { control_.ORXSetReadOnly(on); }
  void Texts(const SettingsDocument& document) override { Apply(document.texts); }
  void Apply(const MemoryTableRef& texts);
  void Load(const SettingsDocument& settings) override;
  void Read(const char* table, TableRef (ORXQueryPrnProp::*property)()) override;
};

}  // namespace ORXKMPrintProp::host
