#include "host/Drive.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <iterator>
#include <limits>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <sstream>
#include <string_view>
#include <utility>
#include <vector>

#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "host/ExitStatus.h"
#include "host/Files.h"
#include "host/SettingsDocument.h"
#include "host/Terminal.h"
#include "host/Utf8.h"
#include "host/WidgetState.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::host {
namespace {

using Json = nlohmann::ordered_json;

struct Argument {
  std::string text;
  bool quoted = false;
};
using Arguments = std::vector<Argument>;

/// The words of a line: to the next blank, or a JSON string. None when they can't be read.
std::optional<Arguments> WordsOf(std::string_view line) {
  constexpr std::string_view kBlanks = " \t\r";
  Arguments words;
  for (std::size_t at = 0; (at = line.find_first_not_of(kBlanks, at)) != std::string_view::npos;) {
    std::size_t end = at + 1;
    if (line[at] == '"') {
      while (end < line.size() && line[end] != '"') end += line[end] == '\\' ? 2 : 1;
      if (++end > line.size() || (end < line.size() && kBlanks.find(line[end]) == std::string_view::npos)) return {};
      const Json text = Json::parse(line.substr(at, end - at), nullptr, false);
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

class Driver : private View, private ORXQueryPrnPropEvents {
 public:
  explicit Driver(std::ostream& out) : out_(out) {
    control_.GetDialog().SetView(this);
    control_.Connect(*this);
  }

  using Step = std::function<void()>;

  /// What the line does. None when it is not understood.
  std::optional<Step> Compile(const std::string& line);

  void Start(const DriveOptions& options, const SettingsDocument& settings, const MemoryTableRef& texts) {
    if (texts) Try([&] { control_.ORXControlTexts(texts); });
    if (options.readOnly) control_.ORXSetReadOnly(true);
    Load(settings);
  }

 private:
  struct Action {
    const char* name;
    std::size_t least, most;  ///< how many arguments
    std::optional<Step> (Driver::*compile)(const Arguments& arguments);
  };
  static const Action kActions[];

  void ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) override {
    Print({{"event", "ORXPrintLayoutGet"}, {"ButtonID", ButtonID}, {"CharIObjName", ToUtf8(CharIObjName)}});
  }
  void ORXOrderChanged() override { Print({{"event", "ORXOrderChanged"}}); }
  void MsgBox(const Text& text, const Text& title) override {
    Print({{"message", ToUtf8(text)}, {"title", ToUtf8(title)}});
  }

  void Print(const Json& line) { out_ << ToLine(line) << "\n"; }

  template <class Operation>
  void Try(Operation operation) {
    try {
      operation();
    } catch (const RunTimeError& error) {
      Print({{"error", {{"kind", NameOf(error.Kind())}, {"message", ToUtf8(error.Message())}}}});
    }
  }

  void Load(const SettingsDocument& settings) {
    Try([&] {
      if (control_.ORXSetPrnTables(settings.general, settings.dimension, settings.member, settings.attribute)) {
        Print({{"load", true}});
      } else {
        Print({{"load", false}, {"errorText", ToUtf8(gErrorText)}});
      }
    });
  }

  void Read(const char* table, TableRef (ORXQueryPrnProp::*property)()) {
    Try([&] {
      const auto memory = std::dynamic_pointer_cast<MemoryTable>((control_.*property)());
      Print({{"table", table}, {"rows", memory ? RowsToJson(*memory) : Json()}});
    });
  }

  /// The step of a user, who may be refused.
  Step User(std::function<Refusal()> operation) {
    return [this, line = line_, operation = std::move(operation)] {
      Try([&] {
        const Refusal refusal = operation();
        if (refusal != Refusal::None) Print({{"refused", line}, {"why", WordsOf(refusal)}});
      });
    };
  }

  template <class W>
  W* Find(const Argument& name) {
    return dynamic_cast<W*>(control_.GetDialog().FindSpelled(FromUtf8(name.text)));
  }

  std::optional<Step> Tab(const Arguments& arguments) {
    const auto tab = EntryNumber(arguments[0]);
    if (!tab) return {};
    return User([this, tab] { return control_.GetDialog().TabStrip().UserPick(*tab); });
  }

  std::optional<Step> Mouse(const Arguments& arguments, std::int16_t button) {
    ListBox* const list = Find<ListBox>(arguments[0]);
    std::vector<std::int16_t> entries;
    for (auto argument = arguments.begin() + 1; argument != arguments.end(); ++argument) {
      const auto entry = EntryNumber(*argument);
      if (!entry) return {};
      entries.push_back(*entry);
    }
    if (!list) return {};
    return User([this, list, entries, button] {
      const bool exist = std::all_of(entries.begin(), entries.end(),
                                     [&](std::int16_t entry) { return entry >= 0 && entry < list->ListCount(); });
      if (list->Refuses() != Refusal::None) return list->Refuses();
      if (!exist) return Refusal::NoSuchEntry;
      // The hand goes on whatever a handler makes of it.
      Try([&] { list->UserMouseDown(entries[0], button); });
      for (std::size_t i = 1; i < entries.size(); ++i) Try([&] { list->UserMouseMove(entries[i]); });
      list->UserMouseUp(button);
      return Refusal::None;
    });
  }
  std::optional<Step> Click(const Arguments& arguments) { return Mouse(arguments, ListBox::kLeftButton); }
  std::optional<Step> RightClick(const Arguments& arguments) { return Mouse(arguments, ListBox::kRightButton); }

  std::optional<Step> Pick(const Arguments& arguments) {
    ComboBox* const combo = Find<ComboBox>(arguments[0]);
    const auto entry = EntryNumber(arguments[1]);
    if (!combo || !entry) return {};
    return User([combo, entry] { return combo->UserPick(*entry); });
  }

  std::optional<Step> Toggle(const Arguments& arguments) {
    CheckBox* const check = Find<CheckBox>(arguments[0]);
    if (!check) return {};
    return User([check] { return check->UserToggle(); });
  }

  std::optional<Step> Keys(const Arguments& arguments) {
    TextBox* const box = Find<TextBox>(arguments[0]);
    if (!box) return {};
    return User([box, keys = KeysOf(arguments[1])] {
      Refusal refusal = box->Refuses();
      for (const char16_t key : keys) {
        if (refusal == Refusal::None) refusal = box->UserKey(key);
      }
      return refusal;
    });
  }

  std::optional<Step> Paste(const Arguments& arguments) {
    TextBox* const box = Find<TextBox>(arguments[0]);
    if (!box) return {};
    return User([box, text = FromUtf8(arguments[1].text)] { return box->UserEdit(text); });
  }

  std::optional<Step> Press(const Arguments& arguments) {
    CommandButton* const button = Find<CommandButton>(arguments[0]);
    if (!button) return {};
    return User([button] { return button->UserPress(); });
  }

  std::optional<Step> Layout(const Arguments& arguments) {
    Variant button = FromUtf8(arguments[0].text);
    if (!arguments[0].quoted) {
      const auto number = WholeNumber(arguments[0]);
      if (!number) return {};
      const auto narrow = static_cast<std::int32_t>(*number);
      button = narrow == *number ? Variant(narrow) : Variant(static_cast<double>(*number));
    }
    return [this, button, name = FromUtf8(arguments[1].text), layout = FromUtf8(arguments[2].text)] {
      Try([&] { control_.ORXSetPrintLayout(layout, button, name); });
    };
  }

  std::optional<Step> ReadOnly(const Arguments& arguments) {
    const bool on = arguments[0].text == "on";
    if (!on && arguments[0].text != "off") return {};
    return [this, on] { Try([&] { control_.ORXSetReadOnly(on); }); };
  }

  std::optional<Step> Texts(const Arguments& arguments) {
    return
        [this, document = ReadSettings(arguments[0].text)] { Try([&] { control_.ORXControlTexts(document.texts); }); };
  }

  std::optional<Step> Reload(const Arguments& arguments) {
    return [this, document = ReadSettings(arguments[0].text)] { Load(document); };
  }

  std::optional<Step> ReadTable(const Arguments& arguments) {
    static constexpr std::pair<const char*, TableRef (ORXQueryPrnProp::*)()> kTables[] = {
        {"general", &ORXQueryPrnProp::ORXGenPropTable},
        {"dimension", &ORXQueryPrnProp::ORXDimTable},
        {"member", &ORXQueryPrnProp::ORXMemTable},
        {"attribute", &ORXQueryPrnProp::ORXAtrTable}};
    const std::string which = arguments[0].text;
    const auto isMeant = [which](const auto& table) { return which == "all" || which == table.first; };
    if (std::none_of(std::begin(kTables), std::end(kTables), isMeant)) return {};
    return [this, isMeant] {
      for (const auto& table : kTables) {
        if (isMeant(table)) Read(table.first, table.second);
      }
    };
  }

  std::optional<Step> State(const Arguments& arguments) {
    if (arguments.empty()) {
      return [this] {
        for (const auto& widget : control_.GetDialog().Controls()) Print(StateOf(*widget));
        Print(StateOf(control_));
      };
    }
    if (arguments[0].text == "ORXQueryPrnProp") return [this] { Print(StateOf(control_)); };
    const Widget* const widget = Find<Widget>(arguments[0]);
    if (!widget) return {};
    return [this, widget] { Print(StateOf(*widget)); };
  }

  std::ostream& out_;
  ORXQueryPrnProp control_;
  std::string line_;  ///< the one that is being compiled
};

constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);

const Driver::Action Driver::kActions[] = {
    {"tab", 1, 1, &Driver::Tab},           {"click", 2, 2, &Driver::Click},
    {"rclick", 2, 2, &Driver::RightClick}, {"drag", 3, kAnyNumber, &Driver::Click},
    {"pick", 2, 2, &Driver::Pick},         {"toggle", 1, 1, &Driver::Toggle},
    {"keys", 2, 2, &Driver::Keys},         {"paste", 2, 2, &Driver::Paste},
    {"press", 1, 1, &Driver::Press},       {"layout", 3, 3, &Driver::Layout},
    {"readonly", 1, 1, &Driver::ReadOnly}, {"texts", 1, 1, &Driver::Texts},
    {"reload", 1, 1, &Driver::Reload},     {"read", 1, 1, &Driver::ReadTable},
    {"state", 0, 1, &Driver::State},
};

std::optional<Driver::Step> Driver::Compile(const std::string& line) {
  auto words = WordsOf(line);
  if (!words || words->empty()) return {};
  const std::string name = words->front().text;
  words->erase(words->begin());
  const auto action =
      std::find_if(std::begin(kActions), std::end(kActions), [&](const Action& each) { return each.name == name; });
  if (action == std::end(kActions) || words->size() < action->least || words->size() > action->most) return {};
  line_ = line;
  return (this->*action->compile)(*words);
}

std::string Trimmed(const std::string& line) {
  const auto first = line.find_first_not_of(" \t\r");
  return first == std::string::npos ? "" : line.substr(first, line.find_last_not_of(" \t\r") + 1 - first);
}

}  // namespace

int Drive(const DriveOptions& options, std::ostream& out, std::ostream& err) {
  const SettingsDocument settings = ReadSettings(options.settings);
  const MemoryTableRef texts = options.texts ? ReadSettings(*options.texts).texts : settings.texts;

  Driver driver(out);
  std::vector<Driver::Step> steps;
  std::istringstream script(ReadFile(options.script));
  int number = 0;
  for (std::string line; std::getline(script, line);) {
    ++number;
    line = Trimmed(line);
    if (line.empty() || line.front() == '#') continue;
    auto step = driver.Compile(line);
    if (!step) {
      err << "prnprop: " << InputName(options.script) << ": line " << number << " is not understood: " << OneLine(line)
          << "\n";
      return kUsage;
    }
    steps.push_back(std::move(*step));
  }

  driver.Start(options, settings, texts);
  for (const Driver::Step& step : steps) step();
  return kSuccess;
}

}  // namespace ORXKMPrintProp::host
