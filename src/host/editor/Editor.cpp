#include "host/editor/Editor.h"

#include <filesystem>
#include <span>
#include <utility>

#include "host/DocumentError.h"
#include "host/Utf8.h"
#include "tables/RunTimeError.h"
#include "views/SpokenName.h"

namespace ORXKMPrintProp::host {
namespace {

const std::string kNoNumber = "No whole number up to 32767:";

std::string Joined(std::span<const std::string> lines, const char* separator) {
  std::string joined;
  for (const std::string& line : lines) joined += (joined.empty() ? "" : separator) + line;
  return joined;
}

}  // namespace

Editor::Editor(EditedSettings& settings, EditorWindow& window)
    : settings_(settings), window_(window), printOrder_(PrintOrder()) {
  settings.Control().Connect(*this);
}

Editor::~Editor() { settings_.Control().Disconnect(*this); }

std::string Editor::Title(std::string_view modified) const {
  return std::filesystem::path(settings_.Target()).filename().string() + std::string(modified) +
         (settings_.IsReadOnly() ? " (read-only)" : "") + " - Print settings";
}

void Editor::Show() {
  window_.ShowMeaning(settings_.File(), settings_.Now());
  ShowState();
}

void Editor::OnUsed(const Widget& widget) {
  const TextView name = widget.Row().name.name;
  const auto before = std::exchange(printOrder_, PrintOrder());
  switch (widget.Row().kind) {
    case WidgetKind::SSTab:
      // It is reported before its page is filled.
      return window_.ReadLater();
    case WidgetKind::TextBox:
    case WidgetKind::CheckBox:
      return MarkEdited();
    case WidgetKind::ComboBox:
      // This one only picks what the page shows.
      if (name != u"cmbAttrChar") MarkEdited();
      return;
    default:
      // The structures pick a list, the others order it.
      if (name != u"lstStrStructures" && before != printOrder_) MarkEdited();
  }
}

/// A drag is reported before its order is stored.
void Editor::ORXOrderChanged() {
  MarkEdited();
  window_.ReadLater();
}

/// What stands in the print lists.
std::vector<std::int32_t> Editor::PrintOrder() const {
  std::vector<std::int32_t> order;
  for (const std::int16_t page : {kCharTab, kAttrTab, kStrTab}) {
    const auto& list = settings_.Control().GetDialog().Get<ListBox>(u"lstPrint", page);
    for (std::int16_t i = 0; i < list.ListCount(); ++i) order.push_back(list.ItemData(i));
    order.push_back(-1);
  }
  return order;
}

void Editor::MarkEdited() {
  if (settings_.IsReadOnly()) return;
  isEdited_ = isTouched_ = true;
  ShowState();
}

bool Editor::Read() {
  try {
    settings_.Read();
  } catch (const RunTimeError& error) {
    Tell("The settings can't be read back.", ToUtf8(error.Message()));
    return false;
  }
  isEdited_ = false;
  printOrder_ = PrintOrder();
  if (!isTouched_) settings_.SetUnchanged();
  Show();
  return true;
}

/// The dialog leaves a setting as it was when its field holds what it can't take.
std::vector<std::string> Editor::NotStored() const {
  const Dialog& dialog = settings_.Control().GetDialog();
  std::vector<std::string> fields;
  for (const auto& widget : dialog.Controls()) {
    const auto* const box = dynamic_cast<const TextBox*>(widget.get());
    if (!box || !box->Enabled() || box->IsStorable()) continue;
    const LayoutRow& row = box->Row();
    const Widget& parent = *dialog.Find({row.parent});
    const Text& where = &parent == &dialog.TabStrip() ? dialog.TabStrip().TabCaption(row.page) : parent.Caption();
    const Text text = box->GetText().empty() ? u"(empty)" : box->GetText();
    fields.push_back(ToUtf8(where + u", " + views::SpokenName(dialog, *box).Spoken() + u": " + text));
  }
  return fields;
}

void Editor::ShowState() {
  const auto fields = NotStored();
  window_.ShowState({.isModified = isEdited_ || settings_.IsChanged(),
                     .canApply = isEdited_ || settings_.IsToBeSaved(),
                     .isStale = isEdited_,
                     .note = fields.empty() ? "" : kNoNumber + " " + Joined(fields, "; ")});
}

bool Editor::Accept() { return isDone_ = Save(); }

bool Editor::Save() {
  if (!Read()) return false;
  if (!AcceptsFields()) return false;
  if (!settings_.IsToBeSaved()) return true;
  if (!AcceptsLosses() || !AcceptsOvertaking()) return false;
  static constexpr const char* kFailed = "The settings could not be saved.";
  try {
    settings_.Save();
  } catch (const DocumentError& error) {
    Tell(kFailed, error.what());
    return false;
  } catch (const RunTimeError& error) {
    Tell(kFailed, ToUtf8(error.Message()));
    return false;
  }
  isTouched_ = false;
  Show();
  return true;
}

bool Editor::AcceptsFields() {
  const auto fields = NotStored();
  return fields.empty() ||
         AcceptsSave("Not everything is stored as it was typed.", kNoNumber + "\n" + Joined(fields, "\n"));
}

bool Editor::AcceptsLosses() {
  constexpr std::size_t kShown = 3;
  std::vector<std::string> lines;
  for (const std::string& loss : settings_.Losses()) lines.push_back("\u2022 " + loss);
  if (lines.empty()) return true;
  const std::string count = lines.size() == 1
                                ? "One thing that the file says can't be kept."
                                : std::to_string(lines.size()) + " things that the file says can't be kept.";
  const std::string all = Joined(lines, "\n");
  if (lines.size() <= kShown) return AcceptsSave(count, all);
  return AcceptsSave(count, Joined(std::span(lines).first(kShown), "\n") + "\n\u2026", all);
}

bool Editor::AcceptsOvertaking() {
  if (!settings_.IsTargetOvertaken()) return true;
  const std::string& target = settings_.Target();
  return settings_.IsTargetThere()
             ? AcceptsSave("The file has changed since it was opened.", "Replace " + target + " all the same?")
             : AcceptsSave("The file is gone since it was opened.", "Save in " + target + " all the same?");
}

bool Editor::AcceptsSave(std::string text, std::string further, std::string details) {
  return window_.Ask({.kind = Question::Kind::Warning,
                      .text = std::move(text),
                      .further = std::move(further),
                      .details = std::move(details),
                      .choices = {Choice::Save, Choice::Cancel},
                      .preset = Choice::Cancel}) == Choice::Save;
}

bool Editor::MayClose() {
  if (isDone_ || (Read() && !settings_.IsChanged())) return true;
  switch (window_.Ask({.kind = Question::Kind::Question,
                       .text = "The settings have changed.",
                       .further = "Save them in " + settings_.Target() + "?",
                       .choices = {Choice::Save, Choice::Discard, Choice::Cancel},
                       .preset = Choice::Save})) {
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
  Text name = settings_.Control().GetDialog().Get<CommandButton>(u"cmdPrintLayout", ButtonID).Caption();
  if (!CharIObjName.empty()) name += u" " + CharIObjName;
  const auto layout = window_.EditLayout(name, settings_.LayoutOf(key), settings_.IsReadOnly());
  if (!layout) return;
  settings_.SetLayout(key, *layout);
  MarkEdited();
}

void Editor::Tell(const std::string& what, const std::string& why) { window_.Ask({.text = what, .further = why}); }

}  // namespace ORXKMPrintProp::host
