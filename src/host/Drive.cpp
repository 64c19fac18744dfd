#include "host/Drive.h"

#include <algorithm>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>

#include "host/EventPrinter.h"
#include "host/ExitStatus.h"
#include "host/Script.h"
#include "host/WidgetState.h"

namespace ORXKMPrintProp::host {
namespace {

/// Does to a control without a window what a script says.
class Driver : private ScriptActions {
 public:
  explicit Driver(std::ostream& out) : printer_(out) {
    control_.GetDialog().SetView(&printer_);
    control_.Connect(printer_);
  }

  const Dialog& GetDialog() { return control_.GetDialog(); }

  void Start(const SettingsDocument& settings, const MemoryTableRef& texts, bool readOnly) {
    if (texts) Apply(texts);
    if (readOnly) control_.ORXSetReadOnly(true);
    Load(settings);
  }

  void Play(const ScriptStep& step) {
    printer_.Try([&] {
      const Refusal refusal = step.act(*this);
      if (refusal != Refusal::None) printer_.Refused(step.line, refusal);
    });
  }

 private:
  Refusal Tab(SSTab& strip, std::int16_t tab) override { return strip.UserPick(tab); }

  Refusal Mouse(ListBox& list, const std::vector<std::int16_t>& entries, std::int16_t button) override {
    const bool exist = std::all_of(entries.begin(), entries.end(),
                                   [&](std::int16_t entry) { return entry >= 0 && entry < list.ListCount(); });
    if (list.Refuses() != Refusal::None) return list.Refuses();
    if (!exist) return Refusal::NoSuchEntry;
    // The hand goes on whatever a handler makes of it.
    printer_.Try([&] { list.UserMouseDown(entries[0], button); });
    for (std::size_t i = 1; i < entries.size(); ++i) printer_.Try([&] { list.UserMouseMove(entries[i]); });
    list.UserMouseUp(button);
    return Refusal::None;
  }

  Refusal Pick(ComboBox& combo, std::int16_t entry) override { return combo.UserPick(entry); }
  Refusal Toggle(CheckBox& check) override { return check.UserToggle(); }

  Refusal Keys(TextBox& box, const Text& keys) override {
    Refusal refusal = box.Refuses();
    for (const char16_t key : keys) {
      if (refusal == Refusal::None) refusal = box.UserKey(key);
    }
    return refusal;
  }

  Refusal Paste(TextBox& box, const Text& text) override { return box.UserEdit(text); }
  Refusal Press(CommandButton& button) override { return button.UserPress(); }

  void Layout(const Variant& button, const Text& characteristic, const Text& layout) override {
    control_.ORXSetPrintLayout(layout, button, characteristic);
  }
  void ReadOnly(bool on) override { control_.ORXSetReadOnly(on); }
  void Texts(const SettingsDocument& document) override { Apply(document.texts); }
  void Apply(const MemoryTableRef& texts) {
    printer_.Try([&] { control_.ORXControlTexts(texts); });
  }

  void Load(const SettingsDocument& settings) override {
    printer_.Try([&] {
      printer_.Loaded(
          control_.ORXSetPrnTables(settings.general, settings.dimension, settings.member, settings.attribute));
    });
  }

  void Read(const char* table, TableRef (ORXQueryPrnProp::*property)()) override {
    printer_.Try(
        [&] { printer_.TableRead(table, std::dynamic_pointer_cast<MemoryTable>((control_.*property)()).get()); });
  }

  void TellState(const Widget& widget) override { printer_.State(StateOf(widget)); }
  void TellState() override { printer_.State(StateOf(control_)); }

  EventPrinter printer_;
  ORXQueryPrnProp control_;
};

}  // namespace

int Drive(const DriveOptions& options, std::ostream& out, std::ostream& err) {
  const SettingsDocument settings = ReadSettings(options.settings);
  const MemoryTableRef texts = options.texts ? ReadSettings(*options.texts).texts : settings.texts;

  Driver driver(out);
  std::vector<ScriptStep> steps;
  try {
    steps = ReadScript(options.script, driver.GetDialog());
  } catch (const ScriptError& error) {
    err << "prnprop: " << error.what() << "\n";
    return kUsage;
  }
  driver.Start(settings, texts, options.readOnly);
  for (const ScriptStep& step : steps) driver.Play(step);
  return kSuccess;
}

}  // namespace ORXKMPrintProp::host
