#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>
#include <vector>

#include "host/Check.h"
#include "host/DocumentError.h"
#include "host/Drive.h"
#include "host/ExitStatus.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/Readback.h"
#include "host/Show.h"

namespace {

using namespace ORXKMPrintProp::host;

bool WantsColor() {
  const char* const noColor = std::getenv("NO_COLOR");
  return ::isatty(STDOUT_FILENO) != 0 && (!noColor || *noColor == '\0');
}

int Run(int argc, char** argv) {
  CLI::App app(
      "Looks at the batch-print settings of a query without a window. FILE is a settings document, - is\n"
      "standard input.",
      "prnprop");
  app.set_version_flag("--version", "prnprop " PRNPROP_VERSION);
  app.require_subcommand(1);
  app.failure_message([](const CLI::App* failed, const CLI::Error& error) {
    const auto unknown = failed->remaining();
    const bool noCommand = failed->get_subcommands().empty() && !unknown.empty();
    return "prnprop: " + (noCommand ? "there is no command " + unknown.front() : std::string(error.what())) +
           "\nprnprop --help tells how it is used.\n";
  });
  int status = kSuccess;

  std::vector<std::string> files;
  bool json = false;
  CLI::App* const check = app.add_subcommand("check", "Tells what a load and a read-back would change in documents");
  check->add_option("FILE", files, "Settings documents")->required();
  check->add_flag("--json", json, "One JSON object per document, a line each");
  check->footer(
      "Ends with 0 when nothing is lost, 1 when something would be or a load fails, 3 when a file is no\n"
      "settings document. Load errors call the tables GenPropTable, it_dim, it_mem and it_atr.");
  check->callback([&] { status = Check(files, json, std::cout, std::cerr); });

  std::string file;
  CLI::App* const show = app.add_subcommand("show", "Tells what would be printed, and what would not");
  show->add_option("FILE", file, "Settings document")->required();
  show->callback([&] { Show(file, WantsColor(), std::cout); });

  std::string out(kStandardStream);
  CLI::App* const readback = app.add_subcommand("readback", "Writes a document as it comes back from a load");
  readback->add_option("FILE", file, "Settings document")->required();
  readback->add_option("-o,--output", out, "File to write or replace, instead of standard output")->type_name("OUT");
  readback->callback([&] { Readback(file, out, std::cout); });

  DriveOptions driveOptions;
  CLI::App* const drive = app.add_subcommand("drive", "Does to the dialog what a script says, without a window");
  drive->add_option("SETTINGS", driveOptions.settings, "Settings document")->required();
  drive->add_option("--texts", driveOptions.texts, "Document whose text table is used")->type_name("FILE");
  drive->add_flag("--read-only", driveOptions.readOnly, "The dialog takes no change");
  drive->add_option("SCRIPT", driveOptions.script, "Actions, a line each, instead of standard input");
  drive->callback([&] { status = Drive(driveOptions, std::cout, std::cerr); });

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    status = app.exit(error) == 0 ? kSuccess : kUsage;
  } catch (const LoadError& error) {
    std::cerr << "prnprop: " << error.what() << "\n";
    return kLoss;
  }
  std::cout.flush();
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  // What can't be written is told at once, while the system's reason is known; a message must not run into it.
  std::cerr.tie(nullptr);
  std::cout.exceptions(std::ios::badbit | std::ios::failbit);
  try {
    return Run(argc, argv);
  } catch (const std::ios::failure&) {
    std::cerr << "prnprop: standard output: " << std::strerror(errno) << "\n";
    return kBadFile;
  } catch (const std::exception& error) {
    std::cerr << "prnprop: " << error.what() << "\n";
    return kBadFile;
  }
}
