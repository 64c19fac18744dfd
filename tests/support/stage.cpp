#include "support/stage.h"

#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "host/WidgetState.h"
#include "tables/RunTimeError.h"

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
  if (const auto* const box = dynamic_cast<const TextBox*>(&widget)) return "'" + ToAscii(box->GetText()) + "'";
  if (const auto* const check = dynamic_cast<const CheckBox*>(&widget)) return std::to_string(check->Value());
  if (const auto* const list = dynamic_cast<const ListBox*>(&widget)) return "[" + StateOf(*list) + "]";
  if (const auto* const combo = dynamic_cast<const ComboBox*>(&widget)) {
    return asList ? "[" + StateOf(*combo) + "]" : std::to_string(combo->ListIndex());
  }
  if (dynamic_cast<const CommandButton*>(&widget)) return widget.Enabled() ? "" : "#" + std::to_string(name.index);
  return name.name.ends_with(u"Col1") || name.name.ends_with(u"Col2") ? ToAscii(widget.Caption()) : "";
}

}  // namespace

Stage::Stage() {
  control.Connect(*this);
  control.GetDialog().SetView(this);
}

Stage::Stage(const Settings& settings) : Stage() { hasLoaded_ = settings.LoadInto(control); }

Stage::~Stage() { control.GetDialog().SetView(nullptr); }

std::string Stage::Play(const std::string& transcript) {
  std::istringstream in(transcript);
  std::string played;
  auto before = State();
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("  ")) continue;
    played += line + "\n";
    const bool isFirstLoad = !hasLoaded_;
    DoAll(line);
    const auto now = State();
    if (isFirstLoad && hasLoaded_) before = now;
    for (const auto& [name, text] : now) {
      if (before[name] != text) Tell(name + ": " + text);
    }
    before = now;
    played += std::exchange(told_, "");
  }
  return played;
}

std::string Stage::After(const std::string& steps, const std::vector<std::string>& lines) {
  DoAll(steps);
  told_.clear();
  auto state = State();
  std::string text;
  for (const std::string& line : lines) text += (text.empty() ? "" : " / ") + state[line];
  return std::regex_replace(std::regex_replace(text, std::regex(":-?[0-9]+"), ""), std::regex("<None>"), "0");
}

/// In lines that a page takes; what goes on begins further in.
void Stage::Tell(std::string line) {
  while (line.size() > 116) {
    const std::size_t end = line.rfind(' ', 116);
    told_ += "  " + line.substr(0, end) + "\n";
    line = "  " + line.substr(end + 1);
  }
  told_ += "  " + line + "\n";
}

void Stage::ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) {
  Tell("event: layout " + std::to_string(ButtonID) + " '" + ToAscii(CharIObjName) + "'");
}

void Stage::ORXOrderChanged() {
  Tell("event: order of " + ModelText());
  onOrderChanged();
}

void Stage::MsgBox(const Text& text, const Text& title) {
  Tell(ToAscii(title) + ": " + ToAscii(text));
  onMessage();
}

std::map<std::string, std::string> Stage::State() {
  const Dialog& dialog = control.GetDialog();
  std::map<std::string, std::string> lines{{"model", ModelText()}, {"pointer", std::to_string(dialog.MousePointer())}};
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

void Stage::DoAll(const std::string& steps) {
  for (std::size_t at = 0, end = 0; at < steps.size(); at = end + 2) {
    end = std::min(steps.find("; ", at), steps.size());
    try {
      Do(steps.substr(at, end - at));
    } catch (const RunTimeError& error) {
      Tell("error: " + ToAscii(error.Message()));
    }
  }
}

void Stage::Do(const std::string& step) {
  std::istringstream in(step);
  std::string verb, name, rest;
  in >> verb >> name;
  in.get();
  std::getline(in, rest);
  Dialog& dialog = control.GetDialog();
  if (verb == "tab") {
    dialog.TabStrip().UserPick(static_cast<std::int16_t>(std::stoi(name)));
  } else if (verb == "readonly") {
    control.ORXSetReadOnly(name == "on");
  } else if (verb == "load") {
    Load();
  } else if (verb == "general" || verb == "dimension" || verb == "attribute" || verb == "member") {
    rows_[verb] += step.substr(verb.size() + 1) + "\n";
  } else if (verb == "characteristics") {
    rows_["dimension"] += Characteristics(step.substr(verb.size()));
  } else if (verb == "read") {
    Read(name);
  } else if (verb == "see") {
    const std::string line = name + (rest.empty() ? "" : " " + rest);
    Tell(line + ": " + State()[line]);
  } else {
    Widget* const widget = dialog.FindSpelled(Wide(name));
    if (!widget) {
      ADD_FAILURE() << "no such step: " << step;
    } else if (DoTo(*widget, verb, rest) != Refusal::None) {
      Tell("refused");
    }
  }
}

void Stage::Load() {
  auto rows = std::exchange(rows_, {});
  const std::string general = rows.contains("general") ? rows["general"] : "TITLE='T'";
  if (!Settings(rows["dimension"], rows["attribute"], rows["member"], general).LoadInto(control)) Tell("false");
  hasLoaded_ = true;
}

void Stage::Read(const std::string& name) {
  static constexpr struct {
    const char* name;
    Kind kind;
    TableRef (ORXQueryPrnProp::*read)();
  } kTables[] = {{"general", Kind::General, &ORXQueryPrnProp::ORXGenPropTable},
                 {"dimension", Kind::Dimension, &ORXQueryPrnProp::ORXDimTable},
                 {"attribute", Kind::Attribute, &ORXQueryPrnProp::ORXAtrTable},
                 {"member", Kind::Member, &ORXQueryPrnProp::ORXMemTable}};
  for (const auto& table : kTables) {
    if (table.name != name) continue;
    const TableRef read = (control.*table.read)();
    std::istringstream rows(read ? BriefOf(table.kind, *read) : "none");
    for (std::string row; std::getline(rows, row);) Tell(row);
  }
}

Refusal Stage::DoTo(Widget& widget, const std::string& verb, const std::string& rest) {
  if (verb == "press") return dynamic_cast<CommandButton&>(widget).UserPress();
  if (verb == "toggle") return dynamic_cast<CheckBox&>(widget).UserToggle();
  if (verb == "edit") return dynamic_cast<TextBox&>(widget).UserEdit(Wide(rest));
  if (verb == "key") return dynamic_cast<TextBox&>(widget).UserKey(Wide(rest).at(0));
  std::vector<std::int16_t> entries;
  std::istringstream in(rest);
  for (std::int16_t entry = 0; in >> entry;) entries.push_back(entry);
  if (verb == "pick") return dynamic_cast<ComboBox&>(widget).UserPick(entries.at(0));

  auto& list = dynamic_cast<ListBox&>(widget);
  std::size_t place = 0;
  if (verb != "move" && verb != "up") {
    if (const Refusal refusal = list.UserMouseDown(entries.at(place++), ListBox::kLeftButton);
        refusal != Refusal::None) {
      return refusal;
    }
  }
  for (; place < entries.size(); ++place) list.UserMouseMove(entries[place]);
  if (verb != "move" && verb != "down") list.UserMouseUp(ListBox::kLeftButton);
  return Refusal::None;
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
