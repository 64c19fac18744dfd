#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "control/ORXQueryPrnProp.h"
#include "host/editor/EditedSettings.h"
#include "host/editor/RecentFiles.h"
#include "host/editor/Steps.h"

namespace ORXKMPrintProp::host {

/// As the titles of its windows have it.
std::string ProgramName();

enum class Choice { Ok, Save, Discard, Reload, SaveAs, ShowDifferences, SaveAllTheSame, Cancel };

/// What a message box tells or asks; all of it is plain text in UTF-8, in the current language.
struct Question {
  enum class Kind { Failure, Warning, Question, Information };

  Kind kind = Kind::Failure;
  std::string text;
  std::string further;       ///< below the text
  std::string details = {};  ///< for whoever asks for them; empty for none
  std::vector<Choice> choices{Choice::Ok};
  Choice preset = Choice::Ok;  ///< what Enter takes; closing the box is Cancel
};

/// What a file is picked for.
enum class FileUse { Open, Save };

/// What a window shows of an editor's state.
struct EditorState {
  bool isModified = false;  ///< there is, or may be, something that the target does not hold
  bool canApply = false;    ///< a save may write something
  bool isStale = false;     ///< the meaning was read before the user's last change
  bool canUndo = false;
  bool canRedo = false;
  bool canRevert = false;
  std::string undo = {};  ///< what would be undone, in the words of the dialog
  std::string redo = {};
  std::string message = {};  ///< for a line below the dialog; empty for nothing
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
  /// Lets the user pick a settings document, and asks him before a save replaces one that is there.
  /// @param proposed that is shown at first, or empty. @return its path, none where he has picked none
  virtual std::optional<std::string> PickFile(FileUse use, const std::string& proposed) = 0;
  /// What was remembered last; none where nothing is.
  virtual RecentFiles Remembered() = 0;
  virtual void Remember(const RecentFiles& files) = 0;
  /// The focus is to go to a widget of the dialog, which is on the page on top.
  virtual void Focus(const Widget& widget) = 0;
};

/// The rules of an editor: what counts as changed, when the tables are read, what is asked before they are saved, and
/// what is undone.
///
/// Whether something has changed, only a read of the tables can tell, and a read commits the page on top. So the
/// editor reads where a commit is due anyway: after a change of the tab or of an order, when a layout has been stored,
/// at OK, Apply, Cancel and close, and when the user asks for it by Refresh. In between, any other content of a field
/// counts as a change, until the next read knows better.
///
/// A step that can be undone is what the user does to settings at one go: what he types into one field, a transfer, a
/// drag, a layout. What he looks at is no step, but comes back with them.
class Editor : private ORXQueryPrnPropEvents {
 public:
  /// Both must outlive the editor. The window is called by `Show` first.
  Editor(EditedSettings& settings, EditorWindow& window);
  ~Editor() override;

  // Each takes the place of what is edited, after the question whether to save that. @return whether it has.

  bool New();
  bool Open(const std::string& file);
  /// The user picks the file.
  bool Open();
  /// A file that is gone is remembered no longer.
  bool OpenRecent(const std::string& file);

  /// What is edited, and saved to; empty for new settings.
  const std::string& File() const { return settings_.Target(); }
  /// The window's title. @param modified what stands behind the name of a file that has changed.
  std::string Title(std::string_view modified) const;
  void Show();
  /// The user has done something with a widget, and all that it led to is done. May be told as often as the buttons of
  /// the mouse are, and read the tables.
  void OnUsed(const Widget& widget);
  /// An operation of the user has failed. @param why one line
  void OnFailed(const std::string& why);

  // Where there is nothing to undo, to do again, or to go back from, and while an entry is dragged, nothing happens.

  void Undo();
  void Redo();
  /// Back to what was opened or saved last, which is a step like others.
  void Revert();

  /// @return whether the tables could be read; else the user has been told.
  bool Read();
  /// Both may ask the user first, and tell him when it fails. @return whether the target holds the settings now.
  bool Save();
  /// The same in a file that the user names, which is the one that is edited from then on.
  bool SaveAs();
  /// Whether the window may close; may ask the user whether to save.
  bool MayClose();

 private:
  void ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) override;
  void ORXOrderChanged() override {}

  void Begin();
  bool OpenInPlace(const EditOptions& options);
  /// Puts what is edited among the recent files once it is there, unless it is a pipe or the like.
  void RememberFile();
  Dialog& GetDialog() const { return settings_.Control().GetDialog(); }
  std::vector<std::int32_t> PrintOrder(std::int16_t page) const;
  std::string NameOf(const Widget& widget) const;
  void BeginStep(const Widget* widget, std::string name);
  /// The step that has begun has led to what the control holds.
  void EndStep(PageContent content);
  void SetContent(PageContent content);
  void OnEdited(const Widget& widget, PageContent content);
  void OnLooked(PageContent content);
  bool GoTo(const Moment& moment);
  void ShowAgain(const PageContent& content, bool withAllBefore);
  bool IsModified() const;
  bool IsDragging() const;
  void ShowState();
  /// Empty where the file is not protected.
  std::string ProtectionNote() const;
  std::vector<std::string> LinesOfNotes() const;
  std::string Message() const;
  /// Tells what has changed since the file: a few lines below what is asked, many for whoever asks for them.
  void TellChanges(Question& question) const;
  /// What could not be stored has been told, and is forgotten where it stands no more.
  void DropNotes() { now_.notes = NotesOn(GetDialog(), *now_.page); }
  bool AcceptsFields();
  bool AcceptsLosses();
  /// What is to be done where somebody else has written the target: Save where nobody has.
  Choice ChoiceOnOvertaking();
  void ShowDifferences();
  /// What stands in the target takes the place of the user's settings, which is a step.
  void Reload();
  bool SaveElsewhere();
  bool SaveIn(const std::string& file);
  bool AcceptsSave(std::string text, std::string further, std::string details = {});
  void Tell(const std::string& what, const std::string& why);

  EditedSettings& settings_;
  EditorWindow& window_;
  Moment now_;
  Moment saved_;  ///< what was opened or saved last
  Steps steps_;
  std::vector<std::string> message_;  ///< what has come of what the user did last
  int lastNumber_ = 0;
  const Widget* typing_ = nullptr;        ///< the box in which a step may go on
  std::vector<std::int32_t> printOrder_;  ///< of the page on top, as the user has left it
  std::string remembered_;
};

}  // namespace ORXKMPrintProp::host
