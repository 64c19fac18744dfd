#include "host/editor/EditedSettings.h"

#include <set>
#include <string_view>
#include <utility>

#include "control/SharedValues.h"
#include "host/Changes.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/Terminal.h"
#include "host/Utf8.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::host {

EditedSettings::EditedSettings(SettingsDocument document, const EditOptions& options, const MemoryTableRef& texts,
                               const Platform& platform)
    : document_(std::move(document)),
      target_(options.out.value_or(options.file)),
      targetIsBehind_(options.out && *options.out != options.file),
      targetStamp_(StampOf(target_)),
      file_(SnapshotOf(document_)),
      control_(platform),
      layouts_(LayoutsIn(file_)) {
  FindLosses();
  try {
    if (texts) control_.ORXControlTexts(texts);
    Load();
    HandBack(layouts_, control_);
    control_.ORXSetReadOnly(options.readOnly);
    Read();
  } catch (const RunTimeError& error) {
    throw LoadError(document_, error.Message());
  }
  SetUnchanged();
}

void EditedSettings::Load() {
  if (!control_.ORXSetPrnTables(document_.general, document_.dimension, document_.member, document_.attribute)) {
    throw LoadError(document_, gErrorText);
  }
}

void EditedSettings::FindLosses() {
  const std::set<std::int32_t> kept = RowsWithLayout(file_);
  for (const TableChanges& table : ChangesOf(document_)) {
    const bool isDimension = table.table == std::string_view("dimension");
    for (const Change& change : table.changes) {
      const bool isLayout = change.kind == ChangeKind::LayoutEmptied;
      if (!change.loss || (isLayout && (!isDimension || kept.contains(change.row)))) continue;
      std::string line = std::string(table.table) + ", row " + std::to_string(change.row);
      if (!change.column.empty()) line += ", column " + ToUtf8(change.column);
      line += ": " + (isLayout ? "only the first characteristic of a name keeps its layout" : change.reason);
      losses_.push_back(OneLine(line));
    }
  }
}

void EditedSettings::Read() {
  // Any of the four reads rewrites all tables.
  control_.ORXGenPropTable();
  now_ = SnapshotOf(document_);
  isChanged_ = !IsReadOnly() && !IsSame(now_, saved_);
}

void EditedSettings::SetUnchanged() {
  saved_ = now_;
  isChanged_ = false;
}

void EditedSettings::Save() {
  Read();
  SaveFile(target_, ToJson(document_));
  targetStamp_ = StampOf(target_);
  file_ = now_;
  SetUnchanged();
  targetIsBehind_ = false;
  losses_.clear();
}

Text EditedSettings::LayoutOf(const LayoutKey& key) const {
  const auto known = layouts_.find(key);
  return known == layouts_.end() ? Text() : known->second;
}

void EditedSettings::SetLayout(const LayoutKey& key, const Text& layout) {
  control_.ORXSetPrintLayout(layout, key.buttonId, key.characteristic);
  layouts_[key] = layout;
}

}  // namespace ORXKMPrintProp::host
