#include "host/editor/EditedSettings.h"

#include <set>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "control/SharedValues.h"
#include "host/Changes.h"
#include "host/DocumentError.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/Terminal.h"
#include "host/Utf8.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::host {
namespace {

void CheckTarget(const EditOptions& options) {
  try {
    CheckReplaceable(options.out.value_or(options.file));
  } catch (const DocumentError& error) {
    const char* const otherwise =
        options.out ? "" : "; it can be opened with --read-only, or with -o to save elsewhere";
    throw std::runtime_error(error.what() + std::string(otherwise));
  }
}

}  // namespace

EditedSettings::EditedSettings(const EditOptions& options, const Platform& platform)
    : document_(ReadSettings(options.file)),
      target_(options.out.value_or(options.file)),
      targetIsBehind_(options.out && *options.out != options.file),
      targetStamp_(StampOf(target_)),
      file_(SnapshotOf(document_)),
      control_(platform),
      layouts_(LayoutsIn(file_)) {
  const MemoryTableRef texts = options.texts ? ReadSettings(*options.texts).texts : document_.texts;
  FindLosses();
  try {
    Load(texts);
    HandBack(layouts_, control_);
    control_.ORXSetReadOnly(options.readOnly);
    Read();
  } catch (const RunTimeError& error) {
    throw LoadError(document_, error.Message());
  }
  SetUnchanged();
}

void EditedSettings::Load(const MemoryTableRef& texts) {
  if (texts) control_.ORXControlTexts(texts);
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

std::unique_ptr<EditedSettings> OpenToEdit(const EditOptions& options, const Platform& platform,
                                           const std::function<void(const std::string& words)>& tell) {
  try {
    if (!options.readOnly || options.out) CheckTarget(options);
    return std::make_unique<EditedSettings>(options, platform);
  } catch (const std::exception& error) {
    if (tell) tell(error.what());
    throw;
  }
}

}  // namespace ORXKMPrintProp::host
