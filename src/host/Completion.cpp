#include "host/Completion.h"

#include <CLI/CLI.hpp>
#include <optional>

namespace ORXKMPrintProp::host {
namespace {

/// What stands behind an option, or as an argument.
struct Value {
  Names words = {};
  bool isFile = false;
};

Value ValueOf(const std::string& name, const CLI::App& program) {
  if (name == "COMMAND") return {.words = NamesOfCommands(program)};
  if (name.find('|') != std::string::npos) return {.words = CLI::detail::split(name, '|')};
  return {.isFile = name != "N" && name != "SIZE"};
}

struct Option {
  Names names;  ///< with their dashes, a long one last
  std::string description;
  std::optional<Value> value;
};

struct Command {
  std::string name;
  std::string description;
  std::vector<Option> options;
  Value argument;
};

Command Described(const CLI::App& command, const CLI::App& program) {
  Command described{command.get_name(), command.get_description(), {}, {}};
  for (const CLI::Option* const option : command.get_options()) {
    if (option->get_positional()) {
      described.argument = ValueOf(option->get_name(), program);
      continue;
    }
    Option& added = described.options.emplace_back();
    for (const std::string& name : option->get_snames()) added.names.push_back("-" + name);
    for (const std::string& name : option->get_lnames()) added.names.push_back("--" + name);
    added.description = option->get_description();
    // Behind a colon stands what the value is checked for.
    const std::string type = option->get_type_name();
    if (option->get_items_expected_max() > 0) added.value = ValueOf(type.substr(0, type.find(':')), program);
  }
  return described;
}

std::vector<Command> CommandsOf(const CLI::App& program) {
  std::vector<Command> commands;
  for (const std::string& name : NamesOfCommands(program)) {
    commands.push_back(Described(*program.get_subcommand(name), program));
  }
  return commands;
}

/// With a backslash ahead of each of these characters.
std::string Escaped(const std::string& text, std::string_view characters) {
  std::string escaped;
  for (const char c : text) {
    if (characters.find(c) != std::string_view::npos) escaped += '\\';
    escaped += c;
  }
  return escaped;
}

/// As one word of bash or zsh.
std::string Quoted(const std::string& text) { return "'" + CLI::detail::find_and_replace(text, "'", "'\\''") + "'"; }

std::string BashSetting(const Value& value) {
  return value.isFile ? "files=1" : "words=" + Quoted(CLI::detail::join(value.words, " "));
}

std::string Bash(const CLI::App& program) {
  Names first = NamesOfCommands(program);
  for (const std::string& name : NamesOfOptions(program)) first.push_back(name);
  std::string script = R"(# shellcheck shell=bash

_prnprop() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} words='' files=''
  # --option=value comes as three words.
  if [[ $word == = ]]; then
    word=''
  elif [[ $before == = ]]; then
    before=${COMP_WORDS[COMP_CWORD - 2]}
  fi
  if ((COMP_CWORD == 1)); then
    words=)" + Quoted(CLI::detail::join(first, " ")) +
                       R"(
  else
    case "${COMP_WORDS[1]} $before" in
)";
  for (const Command& command : CommandsOf(program)) {
    for (const Option& option : command.options) {
      if (!option.value) continue;
      Names patterns;
      for (const std::string& name : option.names) patterns.push_back(Quoted(command.name + " " + name));
      script += "      " + CLI::detail::join(patterns, " | ") + ") " + BashSetting(*option.value) + " ;;\n";
    }
    script += "      '" + command.name + " '*) if [[ $word == -* ]]; then words=" +
              Quoted(CLI::detail::join(NamesOfOptions(*program.get_subcommand(command.name)), " ")) + "; else " +
              BashSetting(command.argument) + "; fi ;;\n";
  }
  return script + R"(    esac
  fi
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
  if [[ $files ]]; then
    # Documents have no suffix of their own that could be relied on.
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -- "$word")
  fi
}
complete -F _prnprop prnprop
)";
}

std::string ZshAction(const std::string& name, const Value& value) {
  return ":" + name + ":" + (value.isFile ? "_files" : "(" + CLI::detail::join(value.words, " ") + ")");
}

/// The options as arguments of `_arguments`, one a line.
std::string ZshOptions(const Command& command, const std::string& indent) {
  std::string lines;
  for (const Option& option : command.options) {
    const std::string rest = "[" + Escaped(option.description, "[]\\") + "]" +
                             (option.value ? ZshAction(option.names.back().substr(2), *option.value) : "");
    const std::string others = Quoted("(" + CLI::detail::join(option.names, " ") + ")");
    for (const std::string& name : option.names) {
      const bool takesSign = option.value && name.starts_with("--");
      lines += " \\\n" + indent + others + name + (takesSign ? "=" : "") + Quoted(rest);
    }
  }
  return lines;
}

std::string Zsh(const CLI::App& program) {
  std::string script =
      "#compdef prnprop\n\n_prnprop() {\n  local curcontext=$curcontext state line\n  _arguments -C" +
      ZshOptions(Described(program, program), "    ") +
      " \\\n    '1: :->command' '*:: :->rest'\n  case $state in\n    command)\n      local -a commands=(\n";
  std::string cases;
  for (const Command& command : CommandsOf(program)) {
    script += "        " + Quoted(command.name + ":" + Escaped(command.description, ":\\")) + "\n";
    cases += "        " + command.name + ") _arguments" + ZshOptions(command, "          ") + " \\\n          " +
             Quoted("*" + ZshAction(command.argument.isFile ? "file" : "command", command.argument)) + " ;;\n";
  }
  return script + "      )\n      _describe command commands ;;\n    rest)\n      case $words[1] in\n" + cases +
         "      esac ;;\n  esac\n}\n\n_prnprop \"$@\"\n";
}

std::string FishQuoted(const std::string& text) { return "'" + Escaped(text, "'\\") + "'"; }

std::string FishValue(const Value& value) {
  return value.isFile ? "F" : value.words.empty() ? "f" : "fa " + FishQuoted(CLI::detail::join(value.words, " "));
}

std::string FishOptions(const Command& command, const std::string& condition) {
  std::string lines;
  for (const Option& option : command.options) {
    lines += "complete -c prnprop -n " + condition;
    for (const std::string& name : option.names) {
      lines += name[1] == '-' ? " -l " + name.substr(2) : " -s " + name.substr(1);
    }
    lines += " -d " + FishQuoted(option.description) + (option.value ? " -r" + FishValue(*option.value) : "") + "\n";
  }
  return lines;
}

std::string Fish(const CLI::App& program) {
  std::string script = R"(# Whether the command is this one, or there is none yet.
function __prnprop_command
  set -l words (commandline -opc)
  test "$words[2]" = "$argv[1]"
end

complete -c prnprop -f
)" + FishOptions(Described(program, program), "__prnprop_command");
  for (const Command& command : CommandsOf(program)) {
    const std::string condition = "'__prnprop_command " + command.name + "'";
    script += "complete -c prnprop -n __prnprop_command -a " + command.name + " -d " + FishQuoted(command.description) +
              "\n" + FishOptions(command, condition) + "complete -c prnprop -n " + condition + " -" +
              FishValue(command.argument) + "\n";
  }
  return script;
}

}  // namespace

Names NamesOfCommands(const CLI::App& program) {
  Names names;
  for (const CLI::App* const command : program.get_subcommands({})) {
    if (!command->get_group().empty()) names.push_back(command->get_name());
  }
  return names;
}

Names NamesOfOptions(const CLI::App& command) {
  Names names;
  for (const CLI::Option* const option : command.get_options()) {
    for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
  }
  return names;
}

std::string CompletionFor(std::string_view shell, const CLI::App& program) {
  return shell == "bash" ? Bash(program) : shell == "zsh" ? Zsh(program) : Fish(program);
}

}  // namespace ORXKMPrintProp::host
