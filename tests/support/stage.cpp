#include "support/stage.h"

#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "support/widget_text.h"
#include "tables/Conversions.h"
#include "tables/RunTimeError.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::test {
namespace {

template <class Item>
std::string ItemText(const Item& item) {
  std::string text = ToAscii(item.Text()) + (item.Hidden() ? "-" : "");
  if (!item.Hidden() || item.Position() != 0) text += std::to_string(item.Position());
  return text;
}

template <class Items>
std::string OwnedText(const Items& items) {
  std::string text;
  for (const auto& item : items) text += (text.empty() ? "(" : " ") + ItemText(*item);
  return text.empty() ? "" : text + ")";
}

std::string ModelText() {
  if (!gPrnProp) return "none";
  std::string text;
  for (const auto& c : gPrnProp->Characteristics()) {
    text += (text.empty() ? "" : " ") + ItemText(*c) + (c->QueryBreak() ? "Q" : "") + (c->PageBreak() ? "P" : "") +
            (c->BreakArea() ? "A" : "") + OwnedText(c->Attributes());
  }
  for (const PrnStructureCls* const structure : {&gPrnProp->Structure1(), &gPrnProp->Structure2()}) {
    if (structure->Name().empty()) continue;
    text += (text.empty() ? "" : " ") + ToAscii(structure->Text()) + OwnedText(structure->Elements());
  }
  return text;
}

/// The line of the state on which a widget stands.
std::string LineOf(const LayoutRow& row) {
  if (row.page == 0) return "general";
  if (row.parent == u"fraCharBreak") return "breaks";
  return (row.parent.ends_with(u"PrintProp") ? "frame " : "lists ") + std::to_string(row.page);
}

/// What a widget shows; of the labels, those that follow the presentation, and of the buttons, the disabled ones.
std::string FieldOf(const Widget& widget, bool asList) {
  const WidgetName& name = widget.Row().name;
  switch (widget.Row().kind) {
    case WidgetKind::TextBox:
      return "'" + StateOf(widget) + "'";
    case WidgetKind::ComboBox:
      if (!asList) return std::to_string(dynamic_cast<const ComboBox&>(widget).ListIndex());
      [[fallthrough]];
    case WidgetKind::ListBox:
      return "[" + StateOf(widget) + "]";
    case WidgetKind::CommandButton:
      return widget.Enabled() ? "" : "#" + std::to_string(name.index);
    case WidgetKind::Label:
      return name.name.ends_with(u"Col1") || name.name.ends_with(u"Col2") ? ToAscii(widget.Caption()) : "";
    default:
      return StateOf(widget);
  }
}

}  // namespace

Stage::Stage(const Platform& platform)
    : Player({"tab", "focus", "error"}), controls_{{ORXQueryPrnProp(platform), ORXQueryPrnProp(platform)}} {
  for (ORXQueryPrnProp& control : controls_) {
    control.Connect(*this);
    control.GetDialog().SetView(this);
  }
  shown_.lines = otherShown_.lines = State();
}

Stage::~Stage() {
  for (ORXQueryPrnProp& control : controls_) control.GetDialog().SetView(nullptr);
}

void Stage::ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) {
  Tell("event: layout " + std::to_string(ButtonID) + " '" + ToAscii(CharIObjName) + "'");
}

void Stage::ORXOrderChanged() {
  Tell("event: order of " + ModelText());
  DoAt("order");
}

void Stage::MsgBox(const Text& text, const Text& title) {
  Tell(ToAscii(title) + ": " + ToAscii(text));
  DoAt("message");
}

Player::Lines Stage::State() {
  const Dialog& dialog = Control().GetDialog();
  Lines lines{{"model", ModelText()},
              {"error", ToAscii(gErrorText)},
              {"pointer", std::to_string(dialog.MousePointer())},
              {"tab", StateOf(dialog.TabStrip())}};
  for (const auto& widget : dialog.Controls()) {
    if (widget->Row().page < 0) continue;
    const std::string line = LineOf(widget->Row());
    std::string field = FieldOf(*widget, !line.starts_with("frame") && line != "general");
    if (field.empty()) continue;
    if (!widget->Enabled()) field = "(" + field + ")";
    if (!widget->Visible()) field = "{" + field + "}";
    lines[line] += (lines[line].empty() ? "" : " ") + field;
  }
  const std::regex inside(R"(\)\} \{\(|\) \(|\} \{)");
  for (auto& [name, text] : lines) text = std::regex_replace(text, inside, " ");
  return lines;
}

void Stage::DoStep(const std::string& line) {
  const UserStep step(Control().GetDialog(), line);
  if (DoAsHost(step.verb, line.substr(std::min(step.verb.size() + 1, line.size())))) return;
  if (!step.widget) {
    ADD_FAILURE() << "no such step: " << line;
  } else if (Use(step) != Refusal::None) {
    Tell("refused");
  }
}

bool Stage::DoAsHost(const std::string& verb, const std::string& rest) {
  const auto addRow = [&] { rows_[lastRows_ = verb] += rest + "\n"; };
  const Steps steps{
      {"general", addRow},
      {"dimension", addRow},
      {"attribute", addRow},
      {"member", addRow},
      {"and", [&] { rows_[lastRows_].replace(rows_[lastRows_].size() - 1, 1, " " + rest + "\n"); }},
      {"characteristics", [&] { rows_["dimension"] += Characteristics(rest); }},
      {"load", [&] { Load(); }},
      {"read", [&] { Read(rest); }},
      {"tables", [&] { TellRows(tables_->Brief(), ""); }},
      {"readonly", [&] { Control().ORXSetReadOnly(rest == "on"); }},
      {"layout", [&] { SetLayout(rest); }},
      {"texts", [&] { SetTexts(rest); }},
      {"at", [&] { atEvents_[rest.substr(0, rest.find(' '))] = rest.substr(rest.find(' ') + 1); }},
      {"fail", [] { throw RunTimeError(ErrorKind::Table, u"host"); }},
      {"other", [&] { current_ = 1 - current_, std::swap(shown_, otherShown_); }},
  };
  return DoOneOf(steps, verb);
}

void Stage::SetLayout(const std::string& cells) {
  const RowRef row = RowAt(*TableFrom(Kind::Texts, cells), 1);
  Control().ORXSetPrintLayout(ToText(row->Value(u"LAYOUT")), row->Value(u"BUTTON"), ToText(row->Value(u"NAME")));
}

void Stage::SetTexts(const std::string& key) {
  gTextTable = key.empty() ? nullptr : MemoryTable::Create({u"TARGETID"});
  if (!gTextTable) return;
  AddRow(*gTextTable)->Value(u"TARGETID", Wide(key));
  gTextTable->Columns()->KeyColumn(std::int32_t{1});
}

void Stage::TellRows(const std::string& rows, const std::string& head) {
  ForEach(rows, "\n", [&](const std::string& row) { Tell(head + row); });
}

void Stage::DoAt(const std::string& event) {
  ForEach(atEvents_[event], ", ", [this](const std::string& step) { Do(step); });
}

void Stage::Load() {
  Lines rows = std::exchange(rows_, {});
  const std::string general = rows.contains("general") ? rows["general"] : "TITLE='T'";
  tables_.emplace(rows["dimension"], rows["attribute"], rows["member"], general);
  if (!tables_->LoadInto(Control())) Tell("false: " + ToAscii(gErrorText));
  if (!std::exchange(hasLoaded_[current_], true)) shown_.startsAnew = true;
}

void Stage::Read(const std::string& name) {
  for (const TableOfControl& table : kTables) {
    if (!name.empty() && table.name != name) continue;
    const TableRef read = (Control().*table.read)();
    TellRows(read ? BriefOf(table.kind, *read) : "none", name.empty() ? table.name + std::string(" ") : "");
  }
}

std::string Characteristics(const std::string& words) {
  std::istringstream in(words);
  std::string rows;
  int position = 0;
  for (std::string word; in >> word;) {
    const std::string name = "'" + word.substr(0, word.find_first_of("QPA-")) + "'";
    rows += "IOBJNM=" + name + " IOBJTXT=" + name;
    if (word.find('-') == std::string::npos) rows += " AXIS='Y' POSIT=" + std::to_string(++position);
    for (const auto& [letter, column] : {std::pair{'Q', "QUERY_BREAK"}, {'P', "PAGE_BREAK"}, {'A', "BREAK_AREA"}}) {
      if (word.find(letter) != std::string::npos) rows += std::string(" PR_") + column + "='X'";
    }
    rows += "\n";
  }
  return rows;
}

}  // namespace ORXKMPrintProp::test
