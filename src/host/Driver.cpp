#include "host/Driver.h"

#include <algorithm>
#include <memory>
#include <nlohmann/json.hpp>

#include "host/WidgetState.h"

namespace ORXKMPrintProp::host {

Driver::Driver(std::ostream& out) : printer_(out) {
  control_.GetDialog().SetView(&printer_);
  control_.Connect(printer_);
}

void Driver::Start(const SettingsDocument& settings, const MemoryTableRef& texts, bool readOnly) {
  if (texts) Apply(texts);
  if (readOnly) control_.ORXSetReadOnly(true);
  Load(settings);
}

void Driver::Play(const ScriptStep& step) {
  printer_.Try([&] {
    const Refusal refusal = step.act(*this);
    if (refusal != Refusal::None) printer_.Refused(step.line, refusal);
  });
}

Refusal Driver::Mouse(ListBox& list, const std::vector<std::int16_t>& entries, std::int16_t button) {
  if (const Refusal refusal = RefusesEntries(list, entries); refusal != Refusal::None) return refusal;
  // The hand goes on whatever a handler makes of it.
  printer_.Try([&] { list.UserMouseDown(entries[0], button); });
  for (std::size_t i = 1; i < entries.size(); ++i) printer_.Try([&] { list.UserMouseMove(entries[i]); });
  list.UserMouseUp(button);
  return Refusal::None;
}

Refusal Driver::RefusesEntries(const EntryWidget& widget, const std::vector<std::int16_t>& entries) {
  const bool exist = std::all_of(entries.begin(), entries.end(),
                                 [&](std::int16_t entry) { return entry >= 0 && entry < widget.ListCount(); });
  const Refusal refusal = widget.Refuses();
  return refusal == Refusal::None && !exist ? Refusal::NoSuchEntry : refusal;
}

Refusal Driver::Keys(TextBox& box, const Text& keys) {
  Refusal refusal = box.Refuses();
  for (const char16_t key : keys) {
    if (refusal == Refusal::None) refusal = box.UserKey(key);
  }
  return refusal;
}

void Driver::TellState(const Widget& widget) { printer_.State(StateOf(widget)); }
void Driver::TellState() { printer_.State(StateOf(control_)); }

void Driver::Layout(const Variant& button, const Text& characteristic, const Text& layout) {
  control_.ORXSetPrintLayout(layout, button, characteristic);
}

void Driver::Apply(const MemoryTableRef& texts) {
  printer_.Try([&] { control_.ORXControlTexts(texts); });
}

void Driver::Load(const SettingsDocument& settings) {
  printer_.Try([&] {
    printer_.Loaded(
        control_.ORXSetPrnTables(settings.general, settings.dimension, settings.member, settings.attribute));
  });
}

void Driver::Read(const char* table, TableRef (ORXQueryPrnProp::*property)()) {
  printer_.Try(
      [&] { printer_.TableRead(table, std::dynamic_pointer_cast<MemoryTable>((control_.*property)()).get()); });
}

}  // namespace ORXKMPrintProp::host
