#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "control/ORXQueryPrnProp.h"
#include "host/Files.h"
#include "host/SettingsDocument.h"
#include "host/Snapshot.h"
#include "host/editor/Layouts.h"

namespace ORXKMPrintProp::host {

struct EditOptions {
  std::string file = {};                  ///< none for new settings
  std::optional<std::string> texts = {};  ///< a document whose text table is used in the place of the file's
  std::optional<std::string> out = {};    ///< where to save, instead of the file itself
  bool readOnly = false;
  std::string protection = {};  ///< why the file can't be written, where that makes it read-only
};

/// What a host has of settings, apart from what stands in the dialog: enough to load them again.
struct HostSettings {
  std::shared_ptr<const Snapshot> tables;
  std::shared_ptr<const Layouts> layouts;
};

/// A document in a control, without the window: the load, the layouts that the control does not keep, what has
/// changed, and the save.
class EditedSettings {
 public:
  /// Reads and loads the document and hands its layouts back.
  /// @throws DocumentError for a document that can't be read; LoadError for one that does not load.
  EditedSettings(const EditOptions& options, const Platform& platform);

  ORXQueryPrnProp& Control() { return control_; }
  /// Empty until new settings have been saved.
  const std::string& Target() const { return target_; }
  bool IsReadOnly() const { return control_.IsReadOnly(); }
  /// Why it is read-only though nobody has asked for it; else empty.
  const std::string& Protection() const { return protection_; }

  /// One line for each row or cell of the file that a save does not bring back.
  const std::vector<std::string>& Losses() const { return losses_; }

  /// Loads another document in the place of this one.
  /// @param options a text table that was named once is used for all that are opened
  /// @throws DocumentError, LoadError; nothing is changed then.
  void Open(const EditOptions& options);

  /// What the file said when it was loaded, or was given by the last save.
  const Snapshot& File() const { return file_; }
  /// What the control has read back last.
  const Snapshot& Now() const { return *now_.tables; }
  /// The same with the layouts. The tables are the same object as long as reads give the same.
  const HostSettings& Host() const { return now_; }

  /// Reads the tables, which commits the page on top. @throws RunTimeError
  void Read();
  /// Whether the last read gave something else than the last one that counts as unchanged.
  bool IsChanged() const { return isChanged_; }
  /// Takes what was read last as unchanged: so it is after a load, after a save, and where the user has done nothing
  /// but look, since a page that is committed gets its numbers and codes as the control writes them.
  void SetUnchanged();
  /// The target has never held the settings.
  bool IsTargetBehind() const { return targetIsBehind_; }
  /// Whether a save would write something that the target does not hold yet.
  bool IsToBeSaved() const { return isChanged_ || targetIsBehind_; }
  /// Whether somebody else has written the target since it was loaded, or was saved last.
  bool IsTargetOvertaken() const { return StampOf(target_) != targetStamp_; }
  bool IsTargetThere() const { return StampOf(target_) != FileStamp{}; }

  /// Reads the tables and replaces the file, which is the target from then on. What was read-only since it could not be
  /// saved can be changed then.
  /// @throws RunTimeError, DocumentError; the file is untouched then.
  void SaveIn(const std::string& file);
  /// Loads what stands in the target now, which counts as unchanged. @throws DocumentError, LoadError; nothing is
  /// changed then.
  void Reload();

  /// The layout that the host knows, empty when there is none.
  Text LayoutOf(const LayoutKey& key) const;
  void SetLayout(const LayoutKey& key, const Text& layout);

  /// Whether `Restore` would bring back all of these tables. @throws RunTimeError when not; nothing is changed.
  static void CheckRestorable(const Snapshot& readBack);
  /// Loads what was read back once, which fills all pages. What stood in the fields is not stored.
  void Restore(const HostSettings& settings);

 private:
  /// @throws LoadError; nothing is changed then that was loaded before.
  void Take(SettingsDocument document, bool readOnly);
  /// @throws LoadError; the former ones are used then.
  void UseTextsOf(const SettingsDocument& document);
  void Load();
  void FindChange();

  SettingsDocument document_;
  std::optional<MemoryTableRef> texts_;  ///< used in the place of those of a document
  std::string target_;
  std::string protection_;
  bool targetIsBehind_ = false;
  FileStamp targetStamp_;
  Snapshot file_;
  ORXQueryPrnProp control_;
  std::vector<std::string> losses_;
  std::shared_ptr<const Snapshot> saved_;  ///< what was read when nothing had changed
  HostSettings now_;
  bool isChanged_ = false;
};

/// The same for a document that is to be edited: read-only where the file could not be saved.
/// @throws DocumentError for a folder, and where `out` could not be saved.
EditOptions ToEdit(EditOptions options);

}  // namespace ORXKMPrintProp::host
