#include "host/Script.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string_view>
#include <utility>

#include "host/Files.h"
#include "host/Spelling.h"
#include "host/Terminal.h"
#include "host/Utf8.h"

namespace ORXKMPrintProp::host {
namespace {

constexpr std::string_view kBlanks = " \t\r";

/// Why a line is not understood.
struct NotUnderstood {
  std::string why;
};

struct Argument {
  std::string text;
  bool quoted = false;
};
using Arguments = std::vector<Argument>;

/// The words of a line: to the next blank, or a JSON string.
Arguments WordsOf(std::string_view line) {
  Arguments words;
  for (std::size_t at = 0; (at = line.find_first_not_of(kBlanks, at)) != std::string_view::npos;) {
    std::size_t end = at + 1;
    if (line[at] == '"') {
      while (end < line.size() && line[end] != '"') end += line[end] == '\\' ? 2 : 1;
      if (++end > line.size()) throw NotUnderstood{"a text in double quotes does not end"};
      const std::string quoted(line.substr(at, end - at));
      if (end < line.size() && kBlanks.find(line[end]) == std::string_view::npos) {
        throw NotUnderstood{"there is no blank behind " + quoted};
      }
      const auto text = nlohmann::json::parse(quoted, nullptr, false);
      if (!text.is_string()) throw NotUnderstood{quoted + " is not a JSON string"};
      words.push_back({text.get<std::string>(), true});
    } else {
      end = std::min(line.find_first_of(kBlanks, at), line.size());
      words.push_back({std::string(line.substr(at, end - at)), false});
    }
    at = end;
  }
  return words;
}

std::int64_t WholeNumber(const Argument& argument) {
  std::int64_t number = 0;
  const char* const last = argument.text.data() + argument.text.size();
  const auto result = std::from_chars(argument.text.data(), last, number);
  if (argument.quoted) throw NotUnderstood{"a number stands without quotes"};
  if (result.ec == std::errc::invalid_argument || result.ptr != last) {
    throw NotUnderstood{argument.text + " is not a whole number"};
  }
  if (result.ec == std::errc()) return number;
  // Too large or too small for whatever it counts.
  return argument.text.front() == '-' ? std::numeric_limits<std::int64_t>::min()
                                      : std::numeric_limits<std::int64_t>::max();
}

/// The keys that an argument names; without quotes too, \b is Backspace.
Text KeysOf(const Argument& argument) {
  Text keys = FromUtf8(argument.text);
  const TextView backspace = u"\\b";
  for (std::size_t at = 0; !argument.quoted && (at = keys.find(backspace, at)) != Text::npos; ++at) {
    keys.replace(at, backspace.size(), 1, TextBox::kBackspace);
  }
  return keys;
}

/// A number that no entry has stands for all that don't fit.
std::int16_t EntryNumber(const Argument& argument) {
  const std::int64_t number = WholeNumber(argument);
  return static_cast<std::int16_t>(number >= 0 && number <= 32766 ? number : -1);
}

using Act = std::function<Refusal(ScriptActions& actions)>;

/// What a host does can't be refused.
template <class Operation>
Act Host(Operation operation) {
  return [operation = std::move(operation)](ScriptActions& actions) {
    operation(actions);
    return Refusal::None;
  };
}

/// Why no widget has the name.
std::string WhyNone(const Dialog& dialog, const std::string& name) {
  const Text array = FromUtf8(name.substr(0, name.find('(')));
  std::vector<std::string> names, alike;
  for (const auto& widget : dialog.Controls()) {
    names.push_back(ToUtf8(widget->Row().name.Spelled()));
    if (widget->Row().name.name == array) alike.push_back(names.back());
  }
  if (alike.empty()) return "there is no widget " + name + DidYouMean(name, names);
  if (alike.size() == 1) return ToUtf8(array) + " has no index";
  const std::string elements = alike.front() + " to " + alike.back();
  return name == ToUtf8(array) ? "the index is missing: " + elements : name + " is none of " + elements;
}

Widget& Find(const Dialog& dialog, const Argument& name) {
  if (Widget* const widget = dialog.FindSpelled(FromUtf8(name.text))) return *widget;
  throw NotUnderstood{WhyNone(dialog, name.text)};
}

template <class W>
W& Find(const Dialog& dialog, const Argument& name, WidgetKind kind) {
  Widget& widget = Find(dialog, name);
  if (W* const found = dynamic_cast<W*>(&widget)) return *found;
  throw NotUnderstood{name.text + " is a " + NameOf(widget.Row().kind) + ", not a " + NameOf(kind)};
}

// Each of these makes what a line does of its arguments. @throws NotUnderstood

Act Tab(const Dialog& dialog, const Arguments& arguments) {
  return [&strip = dialog.TabStrip(), tab = EntryNumber(arguments[0])](ScriptActions& actions) {
    return actions.Tab(strip, tab);
  };
}

template <std::int16_t button>
Act Mouse(const Dialog& dialog, const Arguments& arguments) {
  ListBox& list = Find<ListBox>(dialog, arguments[0], WidgetKind::ListBox);
  std::vector<std::int16_t> entries;
  std::transform(arguments.begin() + 1, arguments.end(), std::back_inserter(entries), EntryNumber);
  return [&list, entries](ScriptActions& actions) { return actions.Mouse(list, entries, button); };
}

Act Pick(const Dialog& dialog, const Arguments& arguments) {
  ComboBox& combo = Find<ComboBox>(dialog, arguments[0], WidgetKind::ComboBox);
  return [&combo, entry = EntryNumber(arguments[1])](ScriptActions& actions) { return actions.Pick(combo, entry); };
}

Act Toggle(const Dialog& dialog, const Arguments& arguments) {
  CheckBox& check = Find<CheckBox>(dialog, arguments[0], WidgetKind::CheckBox);
  return [&check](ScriptActions& actions) { return actions.Toggle(check); };
}

Act Keys(const Dialog& dialog, const Arguments& arguments) {
  TextBox& box = Find<TextBox>(dialog, arguments[0], WidgetKind::TextBox);
  return [&box, keys = KeysOf(arguments[1])](ScriptActions& actions) { return actions.Keys(box, keys); };
}

Act Paste(const Dialog& dialog, const Arguments& arguments) {
  TextBox& box = Find<TextBox>(dialog, arguments[0], WidgetKind::TextBox);
  return [&box, text = FromUtf8(arguments[1].text)](ScriptActions& actions) { return actions.Paste(box, text); };
}

Act Press(const Dialog& dialog, const Arguments& arguments) {
  CommandButton& button = Find<CommandButton>(dialog, arguments[0], WidgetKind::CommandButton);
  return [&button](ScriptActions& actions) { return actions.Press(button); };
}

Act Layout(const Dialog&, const Arguments& arguments) {
  Variant button = FromUtf8(arguments[0].text);
  if (!arguments[0].quoted) {
    const std::int64_t number = WholeNumber(arguments[0]);
    const auto narrow = static_cast<std::int32_t>(number);
    button = narrow == number ? Variant(narrow) : Variant(static_cast<double>(number));
  }
  return Host([button, characteristic = FromUtf8(arguments[1].text), layout = FromUtf8(arguments[2].text)](
                  ScriptActions& actions) { actions.Layout(button, characteristic, layout); });
}

Act ReadOnly(const Dialog&, const Arguments& arguments) {
  const bool on = arguments[0].text == "on";
  if (!on && arguments[0].text != "off") throw NotUnderstood{arguments[0].text + " is neither on nor off"};
  return Host([on](ScriptActions& actions) { actions.ReadOnly(on); });
}

Act Texts(const Dialog&, const Arguments& arguments) {
  return Host([document = ReadSettings(arguments[0].text)](ScriptActions& actions) { actions.Texts(document); });
}

Act Reload(const Dialog&, const Arguments& arguments) {
  return Host([document = ReadSettings(arguments[0].text)](ScriptActions& actions) { actions.Load(document); });
}

Act Read(const Dialog&, const Arguments& arguments) {
  static constexpr std::pair<const char*, TableRef (ORXQueryPrnProp::*)()> kTables[] = {
      {"general", &ORXQueryPrnProp::ORXGenPropTable},
      {"dimension", &ORXQueryPrnProp::ORXDimTable},
      {"member", &ORXQueryPrnProp::ORXMemTable},
      {"attribute", &ORXQueryPrnProp::ORXAtrTable}};
  const std::string which = arguments[0].text;
  const auto isMeant = [which](const auto& table) { return which == "all" || which == table.first; };
  if (std::none_of(std::begin(kTables), std::end(kTables), isMeant)) {
    std::vector<std::string> names{"all"};
    for (const auto& table : kTables) names.emplace_back(table.first);
    throw NotUnderstood{"there is no table " + which + DidYouMean(which, names)};
  }
  return Host([isMeant](ScriptActions& actions) {
    for (const auto& table : kTables) {
      if (isMeant(table)) actions.Read(table.first, table.second);
    }
  });
}

Act State(const Dialog& dialog, const Arguments& arguments) {
  if (arguments.empty()) {
    return Host([&dialog](ScriptActions& actions) {
      for (const auto& widget : dialog.Controls()) actions.TellState(*widget);
      actions.TellState();
    });
  }
  if (arguments[0].text == "ORXQueryPrnProp") return Host([](ScriptActions& actions) { actions.TellState(); });
  const Widget& widget = Find(dialog, arguments[0]);
  return Host([&widget](ScriptActions& actions) { actions.TellState(widget); });
}

constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);

struct Action {
  const char* name;
  const char* arguments;
  std::size_t least, most;  ///< how many arguments
  Act (*compile)(const Dialog& dialog, const Arguments& arguments);
};

constexpr Action kActions[] = {
    {"tab", "N", 1, 1, Tab},
    {"click", "LIST N", 2, 2, Mouse<ListBox::kLeftButton>},
    {"rclick", "LIST N", 2, 2, Mouse<ListBox::kRightButton>},
    {"drag", "LIST FROM TO [TO ...]", 3, kAnyNumber, Mouse<ListBox::kLeftButton>},
    {"pick", "COMBO N", 2, 2, Pick},
    {"toggle", "CHECK", 1, 1, Toggle},
    {"keys", "TEXTBOX TEXT", 2, 2, Keys},
    {"paste", "TEXTBOX TEXT", 2, 2, Paste},
    {"press", "BUTTON", 1, 1, Press},
    {"layout", "BUTTONID NAME TEXT", 3, 3, Layout},
    {"readonly", "on|off", 1, 1, ReadOnly},
    {"texts", "FILE", 1, 1, Texts},
    {"reload", "FILE", 1, 1, Reload},
    {"read", "general|dimension|member|attribute|all", 1, 1, Read},
    {"state", "[WIDGET]", 0, 1, State},
};

const Action& ActionOf(const Argument& word) {
  if (word.quoted) throw NotUnderstood{"an action stands without quotes"};
  if (word.text.front() == '#') throw NotUnderstood{"a remark has no blanks ahead of #"};
  const auto action = std::find_if(std::begin(kActions), std::end(kActions),
                                   [&](const Action& each) { return each.name == word.text; });
  if (action != std::end(kActions)) return *action;
  std::vector<std::string> names;
  for (const Action& each : kActions) names.emplace_back(each.name);
  throw NotUnderstood{"there is no action " + word.text + DidYouMean(word.text, names)};
}

/// @param line which is not blank
Act Compile(const std::string& line, const Dialog& dialog) {
  auto words = WordsOf(line);
  const Action& action = ActionOf(words.front());
  words.erase(words.begin());
  if (words.size() < action.least || words.size() > action.most) {
    throw NotUnderstood{std::string("usage: ") + action.name + " " + action.arguments};
  }
  return action.compile(dialog, words);
}

std::string Trimmed(const std::string& line) {
  const auto first = line.find_first_not_of(kBlanks);
  return first == std::string::npos ? "" : line.substr(first, line.find_last_not_of(kBlanks) + 1 - first);
}

}  // namespace

std::vector<ScriptStep> ReadScript(const std::string& path, const Dialog& dialog) {
  std::vector<ScriptStep> steps;
  std::istringstream script(ReadFile(path));
  int number = 0;
  for (std::string line; std::getline(script, line);) {
    ++number;
    if (line.starts_with('#')) continue;
    line = Trimmed(line);
    if (line.empty()) continue;
    try {
      auto act = Compile(line, dialog);
      steps.push_back({std::move(line), std::move(act)});
    } catch (const NotUnderstood& reason) {
      throw ScriptError(InputName(path) + ": line " + std::to_string(number) + " is not understood: " + OneLine(line) +
                        " (" + OneLine(reason.why) + ")");
    }
  }
  return steps;
}

}  // namespace ORXKMPrintProp::host
