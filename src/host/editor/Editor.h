#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "control/ORXQueryPrnProp.h"
#include "host/editor/EditedSettings.h"

namespace ORXKMPrintProp::host {

enum class Choice { Ok, Save, Discard, Cancel };

/// What a message box tells or asks; all of it is plain text in UTF-8.
struct Question {
  enum class Kind { Failure, Warning, Question };

  Kind kind = Kind::Failure;
  std::string text;
  std::string further;       ///< below the text
  std::string details = {};  ///< for whoever asks for them; empty for none
  std::vector<Choice> choices{Choice::Ok};
  Choice preset = Choice::Ok;  ///< what Enter takes; closing the box is Cancel
};

/// What a window shows of an editor's state.
struct EditorState {
  bool isModified = false;  ///< there is, or may be, something that the target does not hold
  bool canApply = false;    ///< a save may write something
  bool isStale = false;     ///< the meaning was read before the user's last change
  std::string note = {};    ///< what is to be told beside it; empty for nothing
};

/// The window of an editor, in whatever toolkit. Each call is answered at once.
class EditorWindow {
 public:
  virtual ~EditorWindow() = default;

  virtual void ShowMeaning(const Snapshot& file, const Snapshot& now) = 0;
  virtual void ShowState(const EditorState& state) = 0;
  virtual Choice Ask(const Question& question) = 0;
  /// Lets the user edit a layout, or only look at it. @return what it is now, none when it was left as it was.
  virtual std::optional<Text> EditLayout(const Text& name, const Text& layout, bool readOnly) = 0;
  /// Is to call `Editor::Read` when the user's action has come to its end; not while a message of the dialog, which
  /// stands in the middle of an action, is open.
  virtual void ReadLater() = 0;
};

/// The rules of an editor: what counts as changed, when the tables are read, and what is asked before they are saved.
///
/// Whether something has changed, only a read of the tables can tell, and a read commits the page on top. So the
/// editor reads where a commit is due anyway: after a change of the tab, after ORXOrderChanged, at OK, Apply, Cancel
/// and close, and when the user asks for it by Refresh. In between, any input that can change a setting counts as a
/// change, until the next read knows better.
class Editor : private ORXQueryPrnPropEvents {
 public:
  /// Both must outlive the editor. The window is called by `Show` first.
  Editor(EditedSettings& settings, EditorWindow& window);
  ~Editor() override;

  /// The window's title. @param modified what stands behind the name of a file that has changed.
  std::string Title(std::string_view modified) const;
  void Show();
  /// The user has done something with a widget, and all that it led to is done.
  void OnUsed(const Widget& widget);
  /// An operation of the user has failed. @param why one line
  void OnFailed(const std::string& why) { Tell("That could not be done.", why); }

  /// @return whether the tables could be read; else the user has been told.
  bool Read();
  /// Both may ask the user first, and tell him when it fails. @return whether the target holds the settings now.
  bool Save();
  /// The same, and the window is to close when it is done.
  bool Accept();
  /// Whether the window may close; may ask the user whether to save.
  bool MayClose();

 private:
  void ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) override;
  void ORXOrderChanged() override;

  std::vector<std::int32_t> PrintOrder() const;
  void MarkEdited();
  void ShowState();
  /// A line for each field of the dialog whose text can't be stored.
  std::vector<std::string> NotStored() const;
  bool AcceptsFields();
  bool AcceptsLosses();
  bool AcceptsOvertaking();
  bool AcceptsSave(std::string text, std::string further, std::string details = {});
  void Tell(const std::string& what, const std::string& why);

  EditedSettings& settings_;
  EditorWindow& window_;
  std::vector<std::int32_t> printOrder_;  ///< as the user has left it
  bool isEdited_ = false;                 ///< by the user, since the last read
  bool isTouched_ = false;                ///< the same since the last save
  bool isDone_ = false;
};

}  // namespace ORXKMPrintProp::host
