#include "host/editor/Editor.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "control/SharedValues.h"
#include "host/Files.h"
#include "support/table_text.h"
#include "support/transcript.h"
#include "support/user_step.h"
#include "support/widget_text.h"

namespace ORXKMPrintProp::host::test {
namespace {

namespace fs = std::filesystem;
using namespace ORXKMPrintProp::test;

/// An editor in a window, with a user who answers as he is told: by Cancel unless told otherwise. He edits a.json, a
/// copy of an example. The steps are those of user_step.h and:
///
///     open, open read-only, open for FILE
///     save, accept, close, refresh, undo, redo, revert
///     answer Discard (to the next question)
///     put OLD -> NEW (somebody else does, in the row of REGION), copy FILE (of the tests), remove (the file)
///     show FILE, look WIDGET WIDGET (and so on, what they hold)
///
/// The state: "window", what is seen of it: modified, Apply can be pressed, the panel is older than a change; of each
/// file how often it has been written, with its general row; and aside "message", and "steps", what can be undone, done
/// again and gone back from.
class EditorPlayer : public Player, public EditorWindow {
 public:
  EditorPlayer() : Player({"message", "steps"}) {
    ReleaseSharedValues();
    fs::create_directory(folder_);
    SaveFile(Path("a.json"), ReadFile(PRNPROP_EXAMPLES "/small.json"));
    shown_.lines = State();
  }
  ~EditorPlayer() override {
    editor_.reset();
    fs::remove_all(folder_);
  }

 protected:
  void DoStep(const std::string& line) override;
  Lines State() override;

 private:
  void ShowMeaning(const Snapshot&, const Snapshot&) override {}
  void ShowState(const EditorState& shown) override { window_ = shown; }
  Choice Ask(const Question& question) override {
    TellAll(question.text + "\n" + question.further);
    return std::exchange(answer_, Choice::Cancel);
  }
  std::optional<Text> EditLayout(const Text&, const Text& layout, bool) override {
    Tell("layout: '" + ToAscii(layout) + "'");
    return u"<head>";
  }
  void Focus(const Widget& widget) override { Tell("focus: " + ToAscii(widget.Row().name.Spelled())); }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  /// With the folder left out.
  void TellAll(std::string text);
  void Open(const std::string& how);
  void Put(const std::string& change);
  void Show(const std::string& file);
  void Look(const std::string& widget);

  const fs::path folder_ = fs::path(testing::TempDir()) / ("editor_test-" + std::to_string(std::random_device{}()));
  std::map<std::string, std::pair<std::string, int>> contents_;  ///< of the files, and how often they were written
  EditorState window_;
  Choice answer_ = Choice::Cancel;
  std::unique_ptr<EditedSettings> settings_;
  std::unique_ptr<Editor> editor_;
};

void EditorPlayer::DoStep(const std::string& line) {
  const std::string verb = line.substr(0, line.find(' '));
  const std::string rest = line.substr(std::min(verb.size() + 1, line.size()));
  const auto answer = [this](bool yes) { Tell(yes ? "yes" : "no"); };
  const Steps steps{
      {"open", [&] { Open(rest); }},
      {"save", [&] { answer(editor_->Save()); }},
      {"accept", [&] { answer(editor_->Accept()); }},
      {"close", [&] { answer(editor_->MayClose()); }},
      {"refresh", [&] { answer(editor_->Read()); }},
      {"undo", [&] { editor_->Undo(); }},
      {"redo", [&] { editor_->Redo(); }},
      {"revert", [&] { editor_->Revert(); }},
      {"answer", [&] { answer_ = rest == "Save" ? Choice::Save : Choice::Discard; }},
      {"put", [&] { Put(rest); }},
      {"copy", [&] { SaveFile(Path("a.json"), ReadFile(PRNPROP_HOST_TESTS "/" + rest)); }},
      {"remove", [&] { fs::remove(Path("a.json")); }},
      {"show", [&] { Show(rest); }},
      {"look", [&] { ForEach(rest, " ", [this](const std::string& name) { Look(name); }); }},
  };
  if (DoOneOf(steps, verb)) return;
  const UserStep step(settings_->Control().GetDialog(), line);
  ASSERT_TRUE(step.widget) << "no such step: " << line;
  step.Do();
  editor_->OnUsed(*step.widget);
}

void EditorPlayer::TellAll(std::string text) {
  const std::string folder = Path("");
  for (auto at = text.find(folder); at != std::string::npos; at = text.find(folder)) text.erase(at, folder.size());
  ForEach(text, "\n", [this](const std::string& line) { Tell(line); });
}

void EditorPlayer::Open(const std::string& how) {
  EditOptions options{.file = Path("a.json"), .readOnly = how == "read-only"};
  if (how.starts_with("for ")) options.out = Path(how.substr(4));
  editor_.reset();
  settings_ = std::make_unique<EditedSettings>(options, Platform::Plain());
  editor_ = std::make_unique<Editor>(*settings_, *this);
  editor_->Show();
  Tell(editor_->Title("*"));
}

void EditorPlayer::Put(const std::string& change) {
  const std::string from = change.substr(0, change.find(" -> "));
  std::string content = ReadFile(Path("a.json"));
  const std::size_t at = content.find(from, content.find("\"IOBJNM\": \"REGION\""));
  SaveFile(Path("a.json"), content.replace(at, from.size(), change.substr(from.size() + 4)));
}

void EditorPlayer::Show(const std::string& file) {
  const SettingsDocument document = ReadSettings(Path(file));
  TellAll(BriefOf(Kind::General, *document.general) + BriefOf(Kind::Dimension, *document.dimension) +
          BriefOf(Kind::Attribute, *document.attribute) + BriefOf(Kind::Member, *document.member));
}

void EditorPlayer::Look(const std::string& widget) {
  Tell(widget + ": " + StateOf(*settings_->Control().GetDialog().FindSpelled(Wide(widget))));
}

Player::Lines EditorPlayer::State() {
  Lines lines{
      {"message", window_.message.empty() ? "none" : window_.message},
      {"window", std::string(window_.isModified ? "modified" : "unmodified") + (window_.canApply ? ", apply" : "") +
                     (window_.isStale ? ", older" : "")},
      {"steps", (window_.canUndo ? "undo " + window_.undo + "; " : "") +
                    (window_.canRedo ? "redo " + window_.redo + "; " : "") + (window_.canRevert ? "revert" : "")}};
  for (const auto& entry : fs::directory_iterator(folder_)) {
    const std::string path = entry.path().string();
    auto& [content, times] = contents_[path];
    if (ReadFile(path) != std::exchange(content, ReadFile(path))) ++times;
    const std::string general = BriefOf(Kind::General, *ReadSettings(path).general);
    lines[entry.path().filename().string()] =
        "written " + std::to_string(times) + ", " + general.substr(0, general.find('\n'));
  }
  return lines;
}

TEST(Editor, KeepsItsRules) {
  PlayTranscript(PRNPROP_HOST_TESTS "/editor.txt", [] { return std::make_unique<EditorPlayer>(); });
}

}  // namespace
}  // namespace ORXKMPrintProp::host::test
