#include "host/Program.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "control/Version.h"
#include "host/Check.h"
#include "host/Completion.h"
#include "host/Diff.h"
#include "host/ExitStatus.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/Readback.h"
#include "host/Show.h"
#include "host/Spelling.h"

namespace ORXKMPrintProp::host {
namespace {

bool WantsColor() {
  const char* const noColor = std::getenv("NO_COLOR");
  return IsTerminal(stdout) && (!noColor || *noColor == '\0');
}

void AddCheck(CLI::App& program, int& status) {
  const auto options = std::make_shared<CheckOptions>();
  CLI::App* const check =
      program.add_subcommand("check", "Shows what a load and a read-back would change in documents");
  check->add_option("FILE", options->names, "Settings documents, folders of them, and patterns such as 'q*.json'")
      ->required();
  check->add_flag("--json", options->json, "One JSON object per document, a line each");
  check->add_option("-j,--jobs", options->jobs, "Documents at a time, instead of one for each processor")
      ->type_name("N")
      ->check(CLI::Range(1, 1024));
  check->footer(
      "Ends with 0 when nothing is lost, 1 when something would be or a load fails, 3 when a file is not a\n"
      "settings document, or a folder or pattern leads to none.\n"
      "\n"
      "Examples:\n"
      "  prnprop check sales.json\n"
      "  prnprop check settings 'archive/*/q[1-4].json'");
  check->callback([options, &status] {
    options->showProgress = IsTerminal(stderr);
    status = Check(*options, std::cout, std::cerr);
  });
}

void RefuseTwoFromStandardInput(std::initializer_list<std::string> inputs) {
  if (std::count(inputs.begin(), inputs.end(), kStandardStream) > 1) {
    throw CLI::ValidationError("standard input can be read only once");
  }
}

void AddShow(CLI::App& program, int& status) {
  const auto options = std::make_shared<ShowOptions>();
  CLI::App* const show = program.add_subcommand("show", "Shows what would be printed, and what would not");
  show->add_option("FILE", options->file, "Settings document")->required();
  CLI::Option* const texts =
      show->add_option("--texts", options->texts, "Document whose text table is used")->type_name("TEXTS");
  show->add_flag("--json", options->json, "One JSON object, with words that no text table changes")->excludes(texts);
  show->footer(
      "Examples:\n"
      "  prnprop show sales.json\n"
      "  prnprop show --texts german.json sales.json\n"
      "  prnprop show --json sales.json | jq .page.title");
  show->callback([options, &status] {
    RefuseTwoFromStandardInput({options->file, options->texts.value_or("")});
    options->color = WantsColor();
    status = Show(*options, std::cout);
  });
}

/// @param failure becomes what the program ends with when anything fails, whatever that is.
void AddDiff(CLI::App& program, int& status, std::optional<int>& failure) {
  const auto options = std::make_shared<DiffOptions>();
  CLI::App* const diff = program.add_subcommand("diff", "Tells what the settings of two documents differ in");
  diff->add_option("A", options->before, "Settings document")->required();
  diff->add_option("B", options->after, "Settings document that is compared with it")->required();
  diff->add_option("--texts", options->texts, "Document whose text table is used, instead of that of B or A")
      ->type_name("FILE");
  diff->add_flag("--json", options->json, "One JSON object");
  diff->footer(
      "Compares what the settings mean, as they are after a load, and their layouts: other codes or types of the\n"
      "same meaning are no difference, nor is anything that a load drops or that has no effect, such as a width\n"
      "while it is automatic.\n"
      "Ends with 0 when the settings are the same, 1 when they differ, 2 when anything fails.\n"
      "\n"
      "Examples:\n"
      "  prnprop diff before.json after.json\n"
      "  git show HEAD:sales.json | prnprop diff --texts german.json - sales.json");
  diff->callback([options, &status, &failure] {
    failure = kTrouble;
    RefuseTwoFromStandardInput({options->before, options->after, options->texts.value_or("")});
    status = Diff(*options, std::cout);
  });
}

void AddReadback(CLI::App& program) {
  struct Options {
    std::string file;
    std::string out{kStandardStream};
  };
  const auto options = std::make_shared<Options>();
  CLI::App* const readback = program.add_subcommand("readback", "Writes a document as it comes back from a load");
  readback->add_option("FILE", options->file, "Settings document")->required();
  readback->add_option("-o,--output", options->out, "File to write or replace, instead of standard output")
      ->type_name("OUT");
  readback->footer(
      "Examples:\n"
      "  prnprop readback sales.json\n"
      "  prnprop readback -o sales.json sales.json");
  readback->callback([options] { Readback(options->file, options->out, std::cout); });
}

void AddDrive(CLI::App& program, int& status) {
  const auto options = std::make_shared<DriveOptions>();
  CLI::App* const drive = program.add_subcommand("drive", "Does to the dialog what a script says, without a window");
  AddDriveArguments(*drive, *options);
  drive->footer(
      "Examples:\n"
      "  prnprop drive sales.json set-breaks.drive\n"
      "  echo state | prnprop drive --read-only sales.json");
  drive->callback([options, &status] { status = Drive(*options, std::cout, std::cerr); });
}

constexpr const char* kHelp = "help";

/// What stood where a command was needed, or an option of one.
std::string UnknownWord(const CLI::App& program, const CLI::App* command, const std::string& word) {
  if (!word.starts_with('-')) {
    return "there is no command " + word + DidYouMean(word, NamesOfCommands(program));
  }
  const std::string option = word.substr(0, word.find('='));
  return "there is no option " + option + DidYouMean(option, NamesOfOptions(command ? *command : program));
}

std::string UsageError(const CLI::App& program, const CLI::Error& error) {
  const auto commands = program.get_subcommands();
  const CLI::App* const command = commands.empty() ? nullptr : commands.front();
  const auto unknown = (command ? *command : program).remaining();
  const bool isUnknown = !unknown.empty() && (!command || unknown.front().starts_with('-'));
  const bool hasHelp = command && command->get_name() != kHelp;
  return "prnprop: " + (isUnknown ? UnknownWord(program, command, unknown.front()) : std::string(error.what())) +
         "\nTry prnprop " + (hasHelp ? command->get_name() + " " : "") + "--help.\n";
}

void AddHelp(CLI::App& program) {
  const auto name = std::make_shared<std::string>();
  CLI::App* const help = program.add_subcommand(kHelp, "Tells how the program, or a command, is used");
  help->add_option("COMMAND", *name, "The command");
  help->footer("Examples:\n  prnprop help diff");
  help->callback([name, &program] {
    const Names commands = NamesOfCommands(program);
    if (name->empty()) {
      std::cout << program.get_formatter()->make_help(&program, program.get_name(), CLI::AppFormatMode::Normal);
    } else if (std::find(commands.begin(), commands.end(), *name) == commands.end()) {
      throw CLI::ValidationError(UnknownWord(program, nullptr, *name));
    } else {
      std::cout << program.get_subcommand(*name)->help(program.get_name());
    }
  });
}

/// Nobody but the build needs it.
void AddCompletion(CLI::App& program) {
  const auto shell = std::make_shared<std::string>();
  CLI::App* const completion = program.add_subcommand("completion", "Prints what completes the command line");
  completion->group("");
  completion->add_option("SHELL", *shell, "bash, zsh or fish")->required()->check(CLI::IsMember(kShells));
  completion->callback([shell, &program] { std::cout << CompletionFor(*shell, program); });
}

int Run(int argc, char** argv, const AddCommands& addCommands, std::optional<int>& failure) {
  CLI::App program(
      "Looks at the batch-print settings of a query, and edits them. FILE is a settings document, - is\n"
      "standard input.",
      "prnprop");
  program.set_version_flag("--version", "prnprop " + std::string(kVersion));
  program.require_subcommand(1);
  // A path that begins with a slash is no option on any system.
  program.allow_windows_style_options(false);
  program.failure_message([](const CLI::App* failed, const CLI::Error& error) { return UsageError(*failed, error); });
  int status = kSuccess;
  AddCheck(program, status);
  AddShow(program, status);
  AddDiff(program, status, failure);
  AddReadback(program);
  AddDrive(program, status);
  if (addCommands) addCommands(program, status);
  AddHelp(program);
  AddCompletion(program);
  try {
    program.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    status = program.exit(error) == 0 ? kSuccess : kUsage;
  }
  std::cout.flush();
  return status;
}

}  // namespace

void AddDriveArguments(CLI::App& command, DriveOptions& options) {
  command.add_option("SETTINGS", options.settings, "Settings document")->required();
  command.add_option("--texts", options.texts, "Document whose text table is used")->type_name("FILE");
  command.add_flag("--read-only", options.readOnly, "The dialog takes no change");
  command.add_option("SCRIPT", options.script, "Actions, a line each, instead of standard input");
}

int TellFailure(const std::exception& error) {
  std::cerr << "prnprop: " << error.what() << "\n";
  return dynamic_cast<const LoadError*>(&error) ? kLoss : kBadFile;
}

int RunProgram(int argc, char** argv, const AddCommands& addCommands) {
  // What can't be written is told at once, while the system's reason is known; a message must not run into it.
  std::cerr.tie(nullptr);
  std::cout.exceptions(std::ios::badbit | std::ios::failbit);
  std::optional<int> failure;
  try {
    return Run(argc, argv, addCommands, failure);
  } catch (const std::ios::failure&) {
    std::cerr << "prnprop: standard output: " << std::strerror(errno) << "\n";
  } catch (const std::exception& error) {
    return failure.value_or(TellFailure(error));
  }
  return failure.value_or(kBadFile);
}

}  // namespace ORXKMPrintProp::host
