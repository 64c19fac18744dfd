#pragma once

#include <exception>
#include <functional>

#include "host/Drive.h"

namespace CLI {
class App;
}

namespace ORXKMPrintProp::host {

/// What `drive` takes on the command line, for a program of its own, too. @param options must outlive the command.
void AddDriveArguments(CLI::App& command, DriveOptions& options);

/// Adds commands to the program's own. What a command ends with, its callback puts into `status`, as an ExitStatus.
using AddCommands = std::function<void(CLI::App& program, int& status)>;

/// Tells on standard error what a command has thrown. @return the ExitStatus that it ends with
int TellFailure(const std::exception& error);

/// The program `prnprop`: carries out what the command line says, of the commands check, show, diff, readback, drive
/// and those that are added. What fails is told on standard error.
/// @return an ExitStatus
int RunProgram(int argc, char** argv, const AddCommands& addCommands = {});

}  // namespace ORXKMPrintProp::host
