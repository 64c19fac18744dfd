#include "host/Script.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>
#include <nlohmann/json.hpp>
#include <optional>
#include <sstream>
#include <string_view>
#include <utility>

#include "host/Files.h"
#include "host/Terminal.h"
#include "host/Utf8.h"

namespace ORXKMPrintProp::host {
namespace {

constexpr std::string_view kBlanks = " \t\r";

struct Argument {
  std::string text;
  bool quoted = false;
};
using Arguments = std::vector<Argument>;

/// The words of a line: to the next blank, or a JSON string. None when they can't be read.
std::optional<Arguments> WordsOf(std::string_view line) {
  Arguments words;
  for (std::size_t at = 0; (at = line.find_first_not_of(kBlanks, at)) != std::string_view::npos;) {
    std::size_t end = at + 1;
    if (line[at] == '"') {
      while (end < line.size() && line[end] != '"') end += line[end] == '\\' ? 2 : 1;
      if (++end > line.size() || (end < line.size() && kBlanks.find(line[end]) == std::string_view::npos)) return {};
      const auto text = nlohmann::json::parse(line.substr(at, end - at), nullptr, false);
      if (!text.is_string()) return {};
      words.push_back({text.get<std::string>(), true});
    } else {
      end = std::min(line.find_first_of(kBlanks, at), line.size());
      words.push_back({std::string(line.substr(at, end - at)), false});
    }
    at = end;
  }
  return words;
}

std::optional<std::int64_t> WholeNumber(const Argument& argument) {
  std::int64_t number = 0;
  const char* const last = argument.text.data() + argument.text.size();
  const auto result = std::from_chars(argument.text.data(), last, number);
  if (argument.quoted || result.ec == std::errc::invalid_argument || result.ptr != last) return {};
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
std::optional<std::int16_t> EntryNumber(const Argument& argument) {
  const auto number = WholeNumber(argument);
  if (!number) return {};
  return static_cast<std::int16_t>(*number >= 0 && *number <= 32766 ? *number : -1);
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

template <class W>
W* Find(const Dialog& dialog, const Argument& name) {
  return dynamic_cast<W*>(dialog.FindSpelled(FromUtf8(name.text)));
}

// Each of these makes what a line does of its arguments: none when it is not understood.

std::optional<Act> Tab(const Dialog& dialog, const Arguments& arguments) {
  const auto tab = EntryNumber(arguments[0]);
  if (!tab) return {};
  return [&strip = dialog.TabStrip(), tab](ScriptActions& actions) { return actions.Tab(strip, *tab); };
}

template <std::int16_t button>
std::optional<Act> Mouse(const Dialog& dialog, const Arguments& arguments) {
  ListBox* const list = Find<ListBox>(dialog, arguments[0]);
  std::vector<std::int16_t> entries;
  for (auto argument = arguments.begin() + 1; argument != arguments.end(); ++argument) {
    const auto entry = EntryNumber(*argument);
    if (!entry) return {};
    entries.push_back(*entry);
  }
  if (!list) return {};
  return [list, entries](ScriptActions& actions) { return actions.Mouse(*list, entries, button); };
}

std::optional<Act> Pick(const Dialog& dialog, const Arguments& arguments) {
  ComboBox* const combo = Find<ComboBox>(dialog, arguments[0]);
  const auto entry = EntryNumber(arguments[1]);
  if (!combo || !entry) return {};
  return [combo, entry](ScriptActions& actions) { return actions.Pick(*combo, *entry); };
}

std::optional<Act> Toggle(const Dialog& dialog, const Arguments& arguments) {
  CheckBox* const check = Find<CheckBox>(dialog, arguments[0]);
  if (!check) return {};
  return [check](ScriptActions& actions) { return actions.Toggle(*check); };
}

std::optional<Act> Keys(const Dialog& dialog, const Arguments& arguments) {
  TextBox* const box = Find<TextBox>(dialog, arguments[0]);
  if (!box) return {};
  return [box, keys = KeysOf(arguments[1])](ScriptActions& actions) { return actions.Keys(*box, keys); };
}

std::optional<Act> Paste(const Dialog& dialog, const Arguments& arguments) {
  TextBox* const box = Find<TextBox>(dialog, arguments[0]);
  if (!box) return {};
  return [box, text = FromUtf8(arguments[1].text)](ScriptActions& actions) { return actions.Paste(*box, text); };
}

std::optional<Act> Press(const Dialog& dialog, const Arguments& arguments) {
  CommandButton* const button = Find<CommandButton>(dialog, arguments[0]);
  if (!button) return {};
  return [button](ScriptActions& actions) { return actions.Press(*button); };
}

std::optional<Act> Layout(const Dialog&, const Arguments& arguments) {
  Variant button = FromUtf8(arguments[0].text);
  if (!arguments[0].quoted) {
    const auto number = WholeNumber(arguments[0]);
    if (!number) return {};
    const auto narrow = static_cast<std::int32_t>(*number);
    button = narrow == *number ? Variant(narrow) : Variant(static_cast<double>(*number));
  }
  return Host([button, characteristic = FromUtf8(arguments[1].text), layout = FromUtf8(arguments[2].text)](
                  ScriptActions& actions) { actions.Layout(button, characteristic, layout); });
}

std::optional<Act> ReadOnly(const Dialog&, const Arguments& arguments) {
  const bool on = arguments[0].text == "on";
  if (!on && arguments[0].text != "off") return {};
  return Host([on](ScriptActions& actions) { actions.ReadOnly(on); });
}

std::optional<Act> Texts(const Dialog&, const Arguments& arguments) {
  return Host([document = ReadSettings(arguments[0].text)](ScriptActions& actions) { actions.Texts(document); });
}

std::optional<Act> Reload(const Dialog&, const Arguments& arguments) {
  return Host([document = ReadSettings(arguments[0].text)](ScriptActions& actions) { actions.Load(document); });
}

std::optional<Act> Read(const Dialog&, const Arguments& arguments) {
  static constexpr std::pair<const char*, TableRef (ORXQueryPrnProp::*)()> kTables[] = {
      {"general", &ORXQueryPrnProp::ORXGenPropTable},
      {"dimension", &ORXQueryPrnProp::ORXDimTable},
      {"member", &ORXQueryPrnProp::ORXMemTable},
      {"attribute", &ORXQueryPrnProp::ORXAtrTable}};
  const std::string which = arguments[0].text;
  const auto isMeant = [which](const auto& table) { return which == "all" || which == table.first; };
  if (std::none_of(std::begin(kTables), std::end(kTables), isMeant)) return {};
  return Host([isMeant](ScriptActions& actions) {
    for (const auto& table : kTables) {
      if (isMeant(table)) actions.Read(table.first, table.second);
    }
  });
}

std::optional<Act> State(const Dialog& dialog, const Arguments& arguments) {
  if (arguments.empty()) {
    return Host([&dialog](ScriptActions& actions) {
      for (const auto& widget : dialog.Controls()) actions.TellState(*widget);
      actions.TellState();
    });
  }
  if (arguments[0].text == "ORXQueryPrnProp") return Host([](ScriptActions& actions) { actions.TellState(); });
  const Widget* const widget = Find<Widget>(dialog, arguments[0]);
  if (!widget) return {};
  return Host([widget](ScriptActions& actions) { actions.TellState(*widget); });
}

constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);

struct Action {
  const char* name;
  std::size_t least, most;  ///< how many arguments
  std::optional<Act> (*compile)(const Dialog& dialog, const Arguments& arguments);
};

constexpr Action kActions[] = {
    {"tab", 1, 1, Tab},
    {"click", 2, 2, Mouse<ListBox::kLeftButton>},
    {"rclick", 2, 2, Mouse<ListBox::kRightButton>},
    {"drag", 3, kAnyNumber, Mouse<ListBox::kLeftButton>},
    {"pick", 2, 2, Pick},
    {"toggle", 1, 1, Toggle},
    {"keys", 2, 2, Keys},
    {"paste", 2, 2, Paste},
    {"press", 1, 1, Press},
    {"layout", 3, 3, Layout},
    {"readonly", 1, 1, ReadOnly},
    {"texts", 1, 1, Texts},
    {"reload", 1, 1, Reload},
    {"read", 1, 1, Read},
    {"state", 0, 1, State},
};

std::optional<Act> Compile(const std::string& line, const Dialog& dialog) {
  auto words = WordsOf(line);
  if (!words || words->empty()) return {};
  const std::string name = words->front().text;
  words->erase(words->begin());
  const auto action =
      std::find_if(std::begin(kActions), std::end(kActions), [&](const Action& each) { return each.name == name; });
  if (action == std::end(kActions) || words->size() < action->least || words->size() > action->most) return {};
  return action->compile(dialog, *words);
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
    line = Trimmed(line);
    if (line.empty() || line.front() == '#') continue;
    auto act = Compile(line, dialog);
    if (!act) {
      throw ScriptError(InputName(path) + ": line " + std::to_string(number) + " is not understood: " + OneLine(line));
    }
    steps.push_back({std::move(line), std::move(*act)});
  }
  return steps;
}

}  // namespace ORXKMPrintProp::host
