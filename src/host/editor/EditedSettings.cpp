#include "host/editor/EditedSettings.h"

#include <set>
#include <string_view>
#include <utility>

#include "control/SharedValues.h"
#include "host/Changes.h"
#include "host/DocumentError.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/Terminal.h"
#include "host/Utf8.h"
#include "host/Words.h"
#include "host/editor/NewSettings.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::host {
namespace {

using views::Filled;
using views::Translated;

/// @throws LoadError
std::vector<std::string> LossesOf(const SettingsDocument& document) {
  std::vector<std::string> losses;
  const std::set<std::int32_t> kept = RowsWithLayout(SnapshotOf(document));
  for (const TableChanges& table : ChangesOf(document)) {
    const bool isDimension = table.table == std::string_view("dimension");
    for (const Change& change : table.changes) {
      const bool isLayout = change.kind == ChangeKind::LayoutEmptied;
      if (!change.loss || (isLayout && (!isDimension || kept.contains(change.row)))) continue;
      std::string line = Filled(Translated("{0}, row {1}"), {table.table, std::to_string(change.row)});
      if (!change.column.empty()) line = Filled(Translated("{0}, column {1}"), {line, ToUtf8(change.column)});
      line += ": ";
      line += isLayout ? Translated("only the first characteristic of a name keeps its layout") : change.reason;
      losses.push_back(OneLine(line));
    }
  }
  return losses;
}

}  // namespace

EditedSettings::EditedSettings(const EditOptions& options, const Platform& platform) : control_(platform) {
  Open(options);
}

void EditedSettings::Open(const EditOptions& options) {
  const std::string target = options.out.value_or(options.file);
  const FileStamp stamp = StampOf(target);
  SettingsDocument document = options.file.empty() ? NewSettings() : ReadSettings(options.file);
  if (options.texts) texts_ = ReadSettings(*options.texts).texts;
  Take(std::move(document), options.readOnly);
  target_ = target;
  targetStamp_ = stamp;
  targetIsBehind_ = target.empty() || target != options.file;
  protection_ = options.protection;
}

void EditedSettings::Take(SettingsDocument document, bool readOnly) {
  std::vector<std::string> losses = LossesOf(document);
  UseTextsOf(document);
  document_ = std::move(document);
  file_ = SnapshotOf(document_);
  losses_ = std::move(losses);
  try {
    Load();
    now_ = {.tables = nullptr, .layouts = std::make_shared<Layouts>(LayoutsIn(file_))};
    HandBack(*now_.layouts, control_);
    control_.ORXSetReadOnly(readOnly);
    Read();
  } catch (const RunTimeError& error) {
    throw LoadError(document_, error.Message());
  }
  SetUnchanged();
}

void EditedSettings::UseTextsOf(const SettingsDocument& document) {
  const MemoryTableRef texts = texts_.value_or(document.texts);
  if (!texts && !gTextTable) return;
  std::optional<LoadError> failure;
  try {
    if (texts) return static_cast<void>(control_.ORXControlTexts(texts));
    gTextTable = nullptr;
  } catch (const RunTimeError& error) {
    failure.emplace(document, error.Message());
  }
  control_.GetDialog().ApplyTexts();
  if (failure) throw *failure;
}

void EditedSettings::Load() {
  if (!control_.ORXSetPrnTables(document_.general, document_.dimension, document_.member, document_.attribute)) {
    throw LoadError(document_, gErrorText);
  }
}

void EditedSettings::Read() {
  // Any of the four reads rewrites all tables.
  control_.ORXGenPropTable();
  Snapshot read = SnapshotOf(document_);
  if (now_.tables) ShareRows(read, *now_.tables);
  if (!now_.tables || !IsSame(read, *now_.tables)) now_.tables = std::make_shared<Snapshot>(std::move(read));
  FindChange();
}

void EditedSettings::FindChange() { isChanged_ = saved_ && !IsSame(*now_.tables, *saved_); }

void EditedSettings::SetUnchanged() {
  saved_ = now_.tables;
  isChanged_ = false;
}

void EditedSettings::SaveIn(const std::string& file) {
  Read();
  SaveFile(file, ToJson(document_));
  target_ = file;
  targetStamp_ = StampOf(target_);
  file_ = Now();
  if (!std::exchange(protection_, {}).empty()) control_.ORXSetReadOnly(false);
  SetUnchanged();
  targetIsBehind_ = false;
  losses_.clear();
}

void EditedSettings::Reload() {
  const FileStamp stamp = StampOf(target_);
  Take(ReadSettings(target_), IsReadOnly());
  targetStamp_ = stamp;
  targetIsBehind_ = false;
}

Text EditedSettings::LayoutOf(const LayoutKey& key) const {
  const auto known = now_.layouts->find(key);
  return known == now_.layouts->end() ? Text() : known->second;
}

void EditedSettings::SetLayout(const LayoutKey& key, const Text& layout) {
  control_.ORXSetPrintLayout(layout, key.buttonId, key.characteristic);
  const auto layouts = std::make_shared<Layouts>(*now_.layouts);
  (*layouts)[key] = layout;
  now_.layouts = layouts;
}

void EditedSettings::CheckRestorable(const Snapshot& readBack) {
  const SettingsDocument copy = DocumentOf(Loadable(readBack));
  const SharedValuesGuard guard;
  ORXQueryPrnProp control;
  bool isSame = control.ORXSetPrnTables(copy.general, copy.dimension, copy.member, copy.attribute);
  if (isSame) {
    HandBack(LayoutsIn(readBack), control);
    control.ORXGenPropTable();
    isSame = IsSame(SnapshotOf(copy), readBack);
  }
  if (!isSame) {
    throw RunTimeError(ErrorKind::Table,
                       TranslatedText("Names that stand more than once in the settings can't be told apart."));
  }
}

void EditedSettings::Restore(const HostSettings& settings) {
  SettingsDocument copy = DocumentOf(Loadable(*settings.tables));
  copy.file = document_.file;
  copy.texts = document_.texts;
  copy.schema = document_.schema;
  document_ = std::move(copy);
  Load();
  now_ = settings;
  HandBack(*now_.layouts, control_);
  FindChange();
}

EditOptions ToEdit(EditOptions options) {
  for (const std::string& file : {options.file, options.out.value_or("")}) {
    if (IsFolder(file)) throw DocumentError({.file = file}, "It is a folder; name a settings document in it");
  }
  if (!options.out && (options.readOnly || options.file.empty())) return options;
  try {
    CheckReplaceable(options.out.value_or(options.file));
  } catch (const DocumentError& error) {
    if (options.out) throw;
    options.readOnly = true;
    options.protection = error.what();
  }
  return options;
}

}  // namespace ORXKMPrintProp::host
