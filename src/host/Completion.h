#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
}

namespace ORXKMPrintProp::host {

using Names = std::vector<std::string>;

/// Those that help tells.
Names NamesOfCommands(const CLI::App& program);

/// The long ones of a command, or of the program itself, with their dashes.
Names NamesOfOptions(const CLI::App& command);

inline const Names kShells{"bash", "zsh", "fish"};

/// What makes a shell complete the command line of the program as the program itself describes it.
///
/// The type of an option, or the name of an argument, tells what is completed: one of several words for "on|off", a
/// command for COMMAND, nothing for N and SIZE, else a file.
/// @param shell one of `kShells`
std::string CompletionFor(std::string_view shell, const CLI::App& program);

}  // namespace ORXKMPrintProp::host
