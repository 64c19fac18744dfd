#include "host/editor/Editor.h"

#include <algorithm>
#include <filesystem>
#include <span>
#include <utility>

#include "host/Differences.h"
#include "host/DocumentError.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/Utf8.h"
#include "host/editor/StatusMessage.h"
#include "tables/RunTimeError.h"
#include "views/SpokenName.h"
#include "views/Translation.h"

namespace ORXKMPrintProp::host {
namespace {

using views::Filled;
using views::Translated;

std::string Joined(std::span<const std::string> lines, const char* separator) {
  std::string joined;
  for (const std::string& line : lines) joined += (joined.empty() ? "" : separator) + line;
  return joined;
}

bool IsField(const Widget& widget) {
  const WidgetKind kind = widget.Row().kind;
  return kind == WidgetKind::TextBox || kind == WidgetKind::CheckBox || kind == WidgetKind::ComboBox;
}

}  // namespace

std::string ProgramName() { return Translated("Print settings"); }

Editor::Editor(EditedSettings& settings, EditorWindow& window) : settings_(settings), window_(window) {
  Begin();
  settings.Control().Connect(*this);
}

Editor::~Editor() { settings_.Control().Disconnect(*this); }

void Editor::Begin() {
  now_ = {.host = settings_.Host(), .page = std::make_shared<PageContent>(ContentOf(GetDialog()))};
  saved_ = now_;
  message_.clear();
  steps_ = {};
  typing_ = nullptr;
  printOrder_ = PrintOrder(now_.page->page);
}

bool Editor::New() { return MayClose() && OpenInPlace({}); }

bool Editor::Open(const std::string& file) { return MayClose() && OpenInPlace({.file = file}); }

bool Editor::Open() {
  if (!MayClose()) return false;
  const auto file = window_.PickFile(FileUse::Open, settings_.Target());
  return file && OpenInPlace({.file = *file});
}

bool Editor::OpenRecent(const std::string& file) {
  if (StampOf(file) != FileStamp{}) return Open(file);
  Tell(Translated("The file is no longer there."), file);
  window_.Remember(Without(window_.Remembered(), file));
  return false;
}

bool Editor::OpenInPlace(const EditOptions& options) {
  try {
    settings_.Open(ToEdit(options));
  } catch (const std::exception& error) {
    Tell(Translated("The file could not be opened."), error.what());
    return false;
  }
  Begin();
  Show();
  return true;
}

void Editor::RememberFile() {
  if (settings_.Target() == remembered_) return;
  std::error_code error;
  if (!std::filesystem::is_regular_file(FromUtf8(settings_.Target()), error)) return;
  remembered_ = settings_.Target();
  const RecentFiles former = window_.Remembered();
  const RecentFiles files = WithNewest(former, remembered_);
  if (files != former) window_.Remember(files);
}

std::string Editor::Title(std::string_view modified) const {
  const Text name = std::filesystem::path(FromUtf8(settings_.Target())).filename().u16string();
  return (name.empty() ? Translated("Untitled") : ToUtf8(name)) + std::string(modified) +
         (settings_.IsReadOnly() ? " " + Translated("(read-only)") : "") + " - " + ProgramName();
}

void Editor::OnFailed(const std::string& why) { Tell(Translated("That could not be done."), why); }

void Editor::Show() {
  RememberFile();
  window_.ShowMeaning(settings_.File(), settings_.Now());
  ShowState();
}

void Editor::OnUsed(const Widget& widget) {
  // What a drag leads to is told with its end.
  if (IsDragging()) return;
  PageContent content = ContentOf(GetDialog());
  const PageContentRef shown = now_.page;
  const PageContent& former = *shown;
  message_.clear();
  const bool isSameList = former.page != content.page || former.owner == content.owner;
  if (isSameList && PrintOrder(former.page) != printOrder_) {
    BeginStep(&widget, NameOf(widget));
    EndStep(std::move(content));
    if (Read()) steps_.Last().after = now_;
    message_ = WordsOnOrder(GetDialog(), widget, former, *now_.page);
  } else if (IsField(widget) && IsSamePlace(former, content) && !HaveSameFields(former, content)) {
    OnEdited(widget, std::move(content));
  } else {
    OnLooked(std::move(content));
  }
  printOrder_ = PrintOrder(now_.page->page);
  ShowState();
}

void Editor::OnEdited(const Widget& widget, PageContent content) {
  content.before = now_.page->before;
  content.isEdited = true;
  const bool goesOn = &widget == typing_;
  if (goesOn && HaveSameFields(*steps_.Last().before.page, content)) {
    now_ = steps_.Last().before;
    steps_.Drop();
    typing_ = nullptr;
    return;
  }
  if (!goesOn) BeginStep(&widget, NameOf(widget));
  EndStep(std::move(content));
  if (widget.Row().kind == WidgetKind::TextBox) typing_ = &widget;
}

void Editor::OnLooked(PageContent content) {
  const PageContentRef former = now_.page;
  const bool isSamePlace = IsSamePlace(*former, content);
  content.before = former->isEdited && !isSamePlace ? former : former->before;
  content.isEdited = former->isEdited && isSamePlace;
  SetContent(std::move(content));
  typing_ = nullptr;
  if (now_.page->page != former->page) Read();
}

void Editor::SetContent(PageContent content) {
  now_.notes = NotesAfter(std::move(now_.notes), GetDialog(), *now_.page, content);
  now_.page = std::make_shared<PageContent>(std::move(content));
}

void Editor::BeginStep(const Widget* widget, std::string name) {
  steps_.Add({.before = now_, .after = {}, .widget = widget, .name = std::move(name)});
}

void Editor::EndStep(PageContent content) {
  now_.host = settings_.Host();
  SetContent(std::move(content));
  now_.number = ++lastNumber_;
  steps_.Last().after = now_;
  typing_ = nullptr;
}

std::string Editor::NameOf(const Widget& widget) const {
  return ToUtf8(views::SpokenName(GetDialog(), widget).Spoken());
}

void Editor::Undo() {
  const Step* const step = steps_.ToUndo();
  if (!step || !GoTo(step->before)) return;
  if (step->widget) window_.Focus(*step->widget);
  message_ = {Filled(Translated("Undone: {0}"), {step->name})};
  steps_.Undone();
  ShowState();
}

void Editor::Redo() {
  const Step* const step = steps_.ToRedo();
  if (!step || !GoTo(step->after)) return;
  if (step->widget) window_.Focus(*step->widget);
  message_ = {Filled(Translated("Done again: {0}"), {step->name})};
  steps_.Redone();
  ShowState();
}

void Editor::Revert() {
  if (!IsModified()) return;
  PageContent place = *now_.page;
  place.before = nullptr;
  place.isEdited = false;
  place.fields.clear();
  const Moment before = now_;
  Moment target = saved_;
  target.page = std::make_shared<PageContent>(std::move(place));
  target.notes.clear();
  if (!GoTo(target)) return;
  steps_.Add({.before = before, .after = now_, .name = Translated("Revert")});
  message_ = {Translated("All is as it was saved")};
  ShowState();
}

/// Loads what the tables held then, unless they hold it still, and does again what the user had done since.
bool Editor::GoTo(const Moment& moment) {
  if (IsDragging()) return false;
  const Dialog& dialog = GetDialog();
  const bool loads = moment.host.tables != now_.host.tables || moment.page->before != now_.page->before ||
                     !IsSamePlace(*moment.page, *now_.page) || moment.page->fields.empty();
  if (loads) {
    try {
      EditedSettings::CheckRestorable(*moment.host.tables);
    } catch (const RunTimeError& error) {
      Tell(Translated("That can't be undone."), ToUtf8(error.Message()));
      return false;
    }
    // Ahead of the load: the page that is left is stored.
    dialog.TabStrip().UserPick(moment.page->page);
    settings_.Restore(moment.host);
  }
  ShowAgain(*moment.page, loads);
  PageContent content = ContentOf(dialog);
  content.before = moment.page->before;
  content.isEdited = moment.page->isEdited;
  message_.clear();
  now_ = moment;
  now_.page = std::make_shared<PageContent>(std::move(content));
  typing_ = nullptr;
  printOrder_ = PrintOrder(moment.page->page);
  if (loads) window_.ShowMeaning(settings_.File(), settings_.Now());
  return true;
}

void Editor::ShowAgain(const PageContent& content, bool withAllBefore) {
  if (withAllBefore && content.before) {
    ShowAgain(*content.before, true);
    // What it has changed is stored, though it may be what is shown next.
    PageContent none = *content.before;
    none.print.selected.clear();
    none.fields.clear();
    host::Show(GetDialog(), none);
  }
  host::Show(GetDialog(), content);
}

bool Editor::IsDragging() const {
  const ListBox* const list = PrintListOf(GetDialog(), GetDialog().TabStrip().Tab());
  return list && list->IsHeld();
}

/// What stands in the print list of the page.
std::vector<std::int32_t> Editor::PrintOrder(std::int16_t page) const {
  std::vector<std::int32_t> order;
  if (const ListBox* const list = PrintListOf(GetDialog(), page)) {
    for (std::int16_t i = 0; i < list->ListCount(); ++i) order.push_back(list->ItemData(i));
  }
  return order;
}

bool Editor::Read() {
  try {
    settings_.Read();
  } catch (const RunTimeError& error) {
    Tell(Translated("The settings can't be read back."), ToUtf8(error.Message()));
    return false;
  }
  now_.host = settings_.Host();
  SetContent(ContentOf(GetDialog()));
  now_.readNumber = now_.number;
  typing_ = nullptr;
  if (now_.number == saved_.number) {
    settings_.SetUnchanged();
    saved_ = now_;
  }
  Show();
  return true;
}

bool Editor::IsModified() const {
  return now_.number != saved_.number && (now_.number != now_.readNumber || settings_.IsChanged());
}

std::vector<std::string> Editor::LinesOfNotes() const {
  std::vector<std::string> lines;
  for (const Note& note : now_.notes) lines.push_back(note.words);
  return lines;
}

std::string Editor::Message() const {
  std::vector<std::string> words = message_;
  for (const auto& further : {WordsOnPage(GetDialog()), LinesOfNotes()}) {
    words.insert(words.end(), further.begin(), further.end());
  }
  if (const std::string note = ProtectionNote(); !note.empty()) words.push_back(note);
  return Joined(words, ". ");
}

void Editor::ShowState() {
  const Step* const undo = steps_.ToUndo();
  const Step* const redo = steps_.ToRedo();
  window_.ShowState({.isModified = IsModified(),
                     .canApply = IsModified() || settings_.IsTargetBehind(),
                     .isStale = now_.number != now_.readNumber,
                     .canUndo = undo != nullptr,
                     .canRedo = redo != nullptr,
                     .canRevert = IsModified(),
                     .undo = undo ? undo->name : "",
                     .redo = redo ? redo->name : "",
                     .message = Message()});
}

std::string Editor::ProtectionNote() const {
  const std::string& why = settings_.Protection();
  return why.empty() ? "" : Translated("Opened read-only, since it could not be saved.") + " " + why;
}

bool Editor::Save() {
  message_.clear();
  if (!Read() || !AcceptsFields()) return false;
  if (!settings_.IsToBeSaved()) {
    DropNotes();
    ShowState();
    return true;
  }
  if (!AcceptsLosses()) return false;
  if (settings_.Target().empty()) return SaveElsewhere();
  switch (ChoiceOnOvertaking()) {
    case Choice::Save:
    case Choice::SaveAllTheSame:
      return SaveIn(settings_.Target());
    case Choice::SaveAs:
      return SaveElsewhere();
    case Choice::Reload:
      Reload();
      return false;
    default:
      return false;
  }
}

bool Editor::SaveAs() {
  message_.clear();
  return Read() && AcceptsFields() && AcceptsLosses() && SaveElsewhere();
}

bool Editor::SaveElsewhere() {
  const auto file = window_.PickFile(FileUse::Save, settings_.Target());
  return file && SaveIn(*file);
}

bool Editor::SaveIn(const std::string& file) {
  const auto fail = [this](const std::string& why) {
    Tell(Translated("The settings could not be saved."), why);
    return false;
  };
  try {
    settings_.SaveIn(file);
  } catch (const DocumentError& error) {
    return fail(error.what());
  } catch (const RunTimeError& error) {
    return fail(ToUtf8(error.Message()));
  }
  now_.host = settings_.Host();
  DropNotes();
  saved_ = now_;
  message_ = {Translated("Saved")};
  Show();
  return true;
}

void Editor::Reload() {
  try {
    settings_.Reload();
  } catch (const std::exception& error) {
    return Tell(Translated("The file could not be loaded again."), error.what());
  }
  BeginStep(nullptr, Translated("Reload"));
  now_.notes.clear();
  EndStep(ContentOf(GetDialog()));
  now_.readNumber = now_.number;
  steps_.Last().after = saved_ = now_;
  printOrder_ = PrintOrder(now_.page->page);
  message_ = {Translated("Loaded again")};
  Show();
}

bool Editor::AcceptsFields() {
  return now_.notes.empty() ||
         AcceptsSave(Translated("Not everything is stored as it was typed."), Joined(LinesOfNotes(), "\n"));
}

bool Editor::AcceptsLosses() {
  constexpr std::size_t kShown = 3;
  std::vector<std::string> lines;
  for (const std::string& loss : settings_.Losses()) lines.push_back("\u2022 " + loss);
  if (lines.empty()) return true;
  const std::string count = lines.size() == 1 ? Translated("One thing that the file says can't be kept.")
                                              : Filled(Translated("{0} things that the file says can't be kept."),
                                                       {std::to_string(lines.size())});
  const std::string all = Joined(lines, "\n");
  if (lines.size() <= kShown) return AcceptsSave(count, all);
  return AcceptsSave(count, Joined(std::span(lines).first(kShown), "\n") + "\n\u2026", all);
}

Choice Editor::ChoiceOnOvertaking() {
  while (settings_.IsTargetOvertaken()) {
    Question question{
        .kind = Question::Kind::Warning,
        .text = Translated("The file has changed since it was opened."),
        .further = Filled(Translated("A save would replace what now stands in {0}."), {settings_.Target()}),
        .choices = {Choice::Reload, Choice::SaveAs, Choice::ShowDifferences, Choice::SaveAllTheSame, Choice::Cancel},
        .preset = Choice::Cancel};
    if (!settings_.IsTargetThere()) {
      question.text = Translated("The file is gone since it was opened.");
      question.further = Filled(Translated("A save would make {0} anew."), {settings_.Target()});
      question.choices = {Choice::SaveAs, Choice::SaveAllTheSame, Choice::Cancel};
    }
    const Choice choice = window_.Ask(question);
    if (choice != Choice::ShowDifferences) return choice;
    ShowDifferences();
  }
  return Choice::Save;
}

void Editor::ShowDifferences() {
  std::vector<std::string> lines;
  try {
    const auto file = SettingsOf(ReadSettings(settings_.Target()));
    const auto now = SettingsOf(DocumentOf(settings_.Now()));
    lines = LinesOf(DifferencesOf(*file, *now, DifferenceWordsIn(views::CurrentLanguage().code)));
  } catch (const std::exception& error) {
    return Tell(Translated("The file can't be compared."), error.what());
  }
  constexpr std::size_t kShown = 15;
  Question told{.kind = Question::Kind::Information,
                .text = lines.empty() ? Translated("The settings say the same as the file.")
                                      : Translated("A save changes this in the file:"),
                .further = Joined(lines, "\n")};
  if (lines.size() > kShown) {
    told.details = std::exchange(told.further, Joined(std::span(lines).first(kShown), "\n") + "\n\u2026");
  }
  window_.Ask(told);
}

bool Editor::AcceptsSave(std::string text, std::string further, std::string details) {
  Question question{.kind = Question::Kind::Warning,
                    .text = std::move(text),
                    .further = std::move(further),
                    .details = std::move(details),
                    .choices = {Choice::Save, Choice::Cancel},
                    .preset = Choice::Cancel};
  TellChanges(question);
  return window_.Ask(question) == Choice::Save;
}

void Editor::TellChanges(Question& question) const {
  constexpr std::size_t kFew = 6;
  std::vector<std::string> lines;
  try {
    lines = LinesOf(DifferencesOf(settings_.File(), settings_.Now(), DifferenceWordsIn(views::CurrentLanguage().code)));
  } catch (const std::exception&) {
    // The question is asked all the same.
  }
  if (lines.empty()) return;
  lines.insert(lines.begin(), Translated("What has changed:"));
  std::string& place = lines.size() <= kFew ? question.further : question.details;
  place += (place.empty() ? "" : "\n\n") + Joined(lines, "\n");
}

bool Editor::MayClose() {
  if (Read() && !settings_.IsChanged()) return true;
  Question question{.kind = Question::Kind::Question,
                    .text = Translated("The settings have changed."),
                    .further = settings_.Target().empty()
                                   ? Translated("Save them?")
                                   : Filled(Translated("Save them in {0}?"), {settings_.Target()}),
                    .choices = {Choice::Save, Choice::Discard, Choice::Cancel},
                    .preset = Choice::Save};
  TellChanges(question);
  switch (window_.Ask(question)) {
    case Choice::Save:
      return Save();
    case Choice::Discard:
      return true;
    default:
      return false;
  }
}

void Editor::ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) {
  const LayoutKey key{.buttonId = ButtonID, .characteristic = CharIObjName};
  const auto& button = GetDialog().Get<CommandButton>(u"cmdPrintLayout", ButtonID);
  Text name = button.Caption();
  if (!CharIObjName.empty()) name += u" " + CharIObjName;
  const auto layout = window_.EditLayout(name, settings_.LayoutOf(key), settings_.IsReadOnly());
  if (!layout) return;
  BeginStep(&button, ToUtf8(button.Caption()));
  settings_.SetLayout(key, *layout);
  EndStep(*now_.page);
  if (Read()) steps_.Last().after = now_;
}

void Editor::Tell(const std::string& what, const std::string& why) { window_.Ask({.text = what, .further = why}); }

}  // namespace ORXKMPrintProp::host
