#include "Action.h"

#include "support/table_text.h"

namespace ORXKMPrintProp::test {
namespace {

std::string Quoted(TextView text) {
  static const char* const digits = "0123456789abcdef";
  std::string quoted = "\"";
  for (const char16_t c : text) {
    if (c >= u' ' && c < 0x7F && c != u'"' && c != u'\\') {
      quoted += static_cast<char>(c);
    } else {
      quoted += "\\u";
      for (int shift = 12; shift >= 0; shift -= 4) quoted += digits[(c >> shift) & 15];
    }
  }
  return quoted + "\"";
}

std::string Bare(const Action& action) {
  static const char* const tables[] = {"general", "dimension", "member", "attribute"};
  const std::string widget = NameOf(DialogLayout()[action.widget]);
  std::string entries;
  for (const std::int16_t entry : action.entries) entries.append(" ").append(std::to_string(entry));
  switch (action.kind) {
    case Action::Kind::Tab:
      return "tab" + entries;
    case Action::Kind::Click:
      return "click " + widget + entries;
    case Action::Kind::RightClick:
      return "rclick " + widget + entries;
    case Action::Kind::Drag:
      return "drag " + widget + entries;
    case Action::Kind::Caret:
      return "# caret " + widget + entries;
    case Action::Kind::ToggleCaret:
      return "# toggle caret " + widget;
    case Action::Kind::Pick:
      return "pick " + widget + entries;
    case Action::Kind::Toggle:
      return "toggle " + widget;
    case Action::Kind::Keys:
      return "keys " + widget + " " + Quoted(action.text);
    case Action::Kind::Paste:
      return "paste " + widget + " " + Quoted(action.text);
    case Action::Kind::Press:
      return "press " + widget;
    case Action::Kind::Layout: {
      const Text* const text = std::get_if<Text>(&action.button);
      return "layout " + (text ? Quoted(*text) : ToString(action.button)) + " " + Quoted(action.name) + " " +
             Quoted(action.text);
    }
    case Action::Kind::ReadOnly:
      return action.on ? "readonly on" : "readonly off";
    case Action::Kind::Texts:
      return "texts texts-" + std::to_string(action.load.seed);
    case Action::Kind::Load:
      return "reload " + NameOf(action.load);
    case Action::Kind::Read:
      return std::string("read ") + tables[action.table];
    case Action::Kind::ReadThrice:
      return "read all (three times)";
  }
  return "";
}

}  // namespace

std::string NameOf(const LayoutRow& row) {
  std::string name = ToAscii(row.name.name);
  if (row.name.index != WidgetName::kNoIndex) name.append("(").append(std::to_string(row.name.index)).append(")");
  return name;
}

std::string WordsOf(const Action& action) {
  std::string words = (action.desk == 1 ? "# second: " : "") + Bare(action);
  for (const Action& each : action.midway) words += "\n    # button down: " + WordsOf(each);
  for (const Action& each : action.inEvents) words += "\n    # in events: " + WordsOf(each);
  return words;
}

}  // namespace ORXKMPrintProp::test
