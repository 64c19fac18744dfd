#include "host/editor/Editor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <filesystem>
#include <map>
#include <random>
#ifdef _WIN32
#include <share.h>

#include <cstdio>
#else
#include <unistd.h>
#endif

#include "control/SharedValues.h"
#include "host/Files.h"
#include "host/editor/EditorKeys.h"
#include "support/table_text.h"
#include "support/transcript.h"
#include "support/user_step.h"
#include "support/widget_text.h"

namespace ORXKMPrintProp::host::test {
namespace {

TEST(EditorKeys, AreThoseOfTheReadmeAndOfTheManPage) {
  std::string table = "| Where | Keys | What they do |\n|---|---|---|\n", page = ".SH KEYS\n", where;
  for (const EditorKey& key : EditorKeys(true)) {
    const bool isFurther = where == key.where;
    where = key.where;
    table += "| " + (isFurther ? std::string() : where) + " | " + key.keys + " | " + key.does + " |\n";
    if (!isFurther) page += ".SS " + where + "\n";
    page += std::string(".TP\n.B ") + key.keys + "\n" + key.does + "\n";
  }
  for (std::size_t at = 0; (at = page.find('-', at)) != std::string::npos; at += 2) page.insert(at, 1, '\\');
  EXPECT_NE(ReadFile(PRNPROP_ROOT "/README.md").find(table), std::string::npos) << table;
  EXPECT_NE(ReadFile(PRNPROP_ROOT "/share/man/man1/prnprop.1").find(page), std::string::npos) << page;
}

namespace fs = std::filesystem;
using namespace ORXKMPrintProp::test;

const std::map<std::string, Choice> kAnswers{{"Ok", Choice::Ok},
                                             {"Save", Choice::Save},
                                             {"Discard", Choice::Discard},
                                             {"Reload", Choice::Reload},
                                             {"SaveAs", Choice::SaveAs},
                                             {"ShowDifferences", Choice::ShowDifferences},
                                             {"SaveAllTheSame", Choice::SaveAllTheSame}};

/// The file can't be written while it lives, not even by the superuser.
class Protected {
 public:
  Protected(const Protected&) = delete;
  Protected& operator=(const Protected&) = delete;
#ifdef _WIN32
  explicit Protected(const std::string& file) : held_(::_fsopen(file.c_str(), "r", _SH_DENYWR)) {}
  ~Protected() { std::fclose(held_); }

 private:
  std::FILE* const held_;
#else
  explicit Protected(const std::string& file) : file_(file) {
    fs::permissions(file_, fs::perms::owner_write, fs::perm_options::remove);
    constexpr uid_t kNobody = 65534;
    EXPECT_TRUE(user_ != 0 || ::setresuid(kNobody, kNobody, 0) == 0);
  }
  ~Protected() {
    EXPECT_TRUE(user_ != 0 || ::setresuid(0, 0, 0) == 0);
    fs::permissions(file_, fs::perms::owner_write, fs::perm_options::add);
  }

 private:
  const fs::path file_;
  const uid_t user_ = ::getuid();
#endif
};

/// An editor in a window, with a user who answers as he is told: by Cancel unless told otherwise. He edits a.json, a
/// copy of an example. The steps are those of user_step.h and:
///
///     open, open read-only, open for FILE, open protected (the file can't be written), open new (no file)
///     new, load FILE, load (the file that is named), recent FILE, title
///     save, save as, close, refresh, undo, redo, revert
///     answer Discard, answer ShowDifferences Reload (to the next questions), name FILE (in the next dialog of files)
///     put OLD -> NEW (somebody else does, in the row of REGION), copy FILE (of the tests), remove (the file)
///     show FILE, look WIDGET WIDGET (and so on, what they hold)
///
/// Behind "--" stand the details of a question.
///
/// The state: "window", what is seen of it: modified, Apply can be pressed, the panel is older than a change; of each
/// file how often it has been written, with its general row; and aside "message", "steps", what can be undone, done
/// again and gone back from, and "recent", the files used last.
class EditorPlayer : public Player, public EditorWindow {
 public:
  EditorPlayer() : Player({"message", "steps", "recent"}) {
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
    TellAll(question.text + "\n" + question.further + (question.details.empty() ? "" : "\n--\n" + question.details));
    if (answers_.empty()) return Choice::Cancel;
    const Choice answer = answers_.front();
    answers_.pop_front();
    EXPECT_TRUE(std::ranges::count(question.choices, answer) == 1);
    return answer;
  }
  std::optional<Text> EditLayout(const Text&, const Text& layout, bool readOnly) override {
    Tell("layout: '" + ToAscii(layout) + "'");
    return readOnly ? std::nullopt : std::optional<Text>(u"<head>");
  }
  std::optional<std::string> PickFile(FileUse, const std::string& proposed) override {
    TellAll("proposed: " + proposed);
    return std::exchange(picked_, std::nullopt);
  }
  RecentFiles Remembered() override { return recent_; }
  void Remember(const RecentFiles& files) override { recent_ = files; }
  void Focus(const Widget& widget) override { Tell("focus: " + ToAscii(widget.Row().name.Spelled())); }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  std::string WithoutFolder(std::string text) const;
  void TellAll(const std::string& text);
  void Open(const std::string& how);
  void Put(const std::string& change);
  void Show(const std::string& file);
  void Look(const std::string& widget);

  const fs::path folder_ = fs::path(testing::TempDir()) / ("editor_test-" + std::to_string(std::random_device{}()));
  std::map<std::string, std::pair<std::string, int>> contents_;  ///< of the files, and how often they were written
  EditorState window_;
  std::deque<Choice> answers_;
  std::optional<std::string> picked_;
  RecentFiles recent_;
  std::unique_ptr<EditedSettings> settings_;
  std::unique_ptr<Editor> editor_;
};

void EditorPlayer::DoStep(const std::string& line) {
  const std::string verb = line.substr(0, line.find(' '));
  const std::string rest = line.substr(std::min(verb.size() + 1, line.size()));
  const auto answer = [this](bool yes) { Tell(yes ? "yes" : "no"); };
  const Steps steps{
      {"open", [&] { Open(rest); }},
      {"new", [&] { answer(editor_->New()); }},
      {"load", [&] { answer(rest.empty() ? editor_->Open() : editor_->Open(Path(rest))); }},
      {"recent", [&] { answer(editor_->OpenRecent(Path(rest))); }},
      {"title", [&] { Tell(editor_->Title("*")); }},
      {"save", [&] { answer(rest == "as" ? editor_->SaveAs() : editor_->Save()); }},
      {"close", [&] { answer(editor_->MayClose()); }},
      {"refresh", [&] { answer(editor_->Read()); }},
      {"undo", [&] { editor_->Undo(); }},
      {"redo", [&] { editor_->Redo(); }},
      {"revert", [&] { editor_->Revert(); }},
      {"answer",
       [&] { ForEach(rest, " ", [this](const std::string& name) { answers_.push_back(kAnswers.at(name)); }); }},
      {"name", [&] { picked_ = Path(rest); }},
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

std::string EditorPlayer::WithoutFolder(std::string text) const {
  const std::string folder = Path("");
  for (auto at = text.find(folder); at != std::string::npos; at = text.find(folder)) text.erase(at, folder.size());
  return text;
}

void EditorPlayer::TellAll(const std::string& text) {
  ForEach(WithoutFolder(text), "\n", [this](const std::string& line) {
    if (!line.empty()) Tell(line);
  });
}

void EditorPlayer::Open(const std::string& how) {
  EditOptions options{.file = how == "new" ? "" : Path("a.json"), .readOnly = how == "read-only"};
  if (how.starts_with("for ")) options.out = Path(how.substr(4));
  editor_.reset();
  std::optional<Protected> isProtected;
  if (how == "protected") {
    isProtected.emplace(options.file);
    options = ToEdit(options);
  }
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
          BriefOf(Kind::Attribute, *document.attribute) + BriefOf(Kind::Member, *document.member) +
          (document.schema ? "with a schema" : ""));
}

void EditorPlayer::Look(const std::string& widget) {
  Tell(widget + ": " + StateOf(*settings_->Control().GetDialog().FindSpelled(Wide(widget))));
}

Player::Lines EditorPlayer::State() {
  // Each system has other words for why a file can't be written.
  const std::size_t reason = window_.message.find(".json: ");
  const std::string message =
      WithoutFolder(window_.message.substr(0, reason)) + (reason < window_.message.size() ? ".json" : "");
  Lines lines{
      {"message", message.empty() ? "none" : message},
      {"window", std::string(window_.isModified ? "modified" : "unmodified") + (window_.canApply ? ", apply" : "") +
                     (window_.isStale ? ", older" : "")},
      {"steps", (window_.canUndo ? "undo " + window_.undo + "; " : "") +
                    (window_.canRedo ? "redo " + window_.redo + "; " : "") + (window_.canRevert ? "revert" : "")}};
  for (const std::string& file : recent_) lines["recent"] += WithoutFolder(file) + " ";
  for (const auto& entry : fs::directory_iterator(folder_)) {
    const std::string path = entry.path().string();
    auto& [content, times] = contents_[path];
    if (ReadFile(path) != std::exchange(content, ReadFile(path))) ++times;
    const SettingsDocument document = ReadSettings(path);
    const std::string general = BriefOf(Kind::General, *document.general);
    lines[entry.path().filename().string()] = "written " + std::to_string(times) + ", " +
                                              general.substr(0, general.find('\n')) +
                                              (document.texts ? ", with texts" : "");
  }
  return lines;
}

TEST(RecentFiles, AreTheLastTen) {
  RecentFiles files;
  for (char name = 'a'; name < 'l'; ++name) files = WithNewest(files, std::string(1, name));
  std::string names;
  for (const std::string& file : files) names += file.back();
  EXPECT_EQ(names, "kjihgfedcb");
}

TEST(Editor, KeepsItsRules) {
  PlayTranscript(PRNPROP_HOST_TESTS "/editor.txt", [] { return std::make_unique<EditorPlayer>(); });
}

}  // namespace
}  // namespace ORXKMPrintProp::host::test
