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
#include "host/window/Edit.h"
#include "host/window/EditedSettings.h"
#include "host/window/Shot.h"

namespace {

using namespace ORXKMPrintProp::host;

bool WantsColor() {
  const char* const noColor = std::getenv("NO_COLOR");
  return ::isatty(STDOUT_FILENO) != 0 && (!noColor || *noColor == '\0');
}

int Run(int argc, char** argv) {
  CLI::App app(
      "Looks at the batch-print settings of a query, and edits them. FILE is a settings document, - is\n"
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

  EditOptions editOptions;
  CLI::App* const edit = app.add_subcommand("edit", "Opens the dialog in a window");
  edit->add_option("FILE", editOptions.file, "Settings document")->required();
  edit->add_option("--texts", editOptions.texts, "Document whose text table is used")->type_name("TEXTS");
  edit->add_flag("--read-only", editOptions.readOnly, "The dialog takes no change");
  edit->add_option("-o,--output", editOptions.out, "File to save to, instead of FILE")->type_name("OUT");
  edit->callback([&] {
    if (editOptions.out.value_or(editOptions.file) == kStandardStream) {
      throw CLI::ValidationError("-o OUT is needed, with the name of a file to save to");
    }
    status = Edit(editOptions);
  });

  ShotOptions shotOptions;
  std::string size = "1";
  CLI::App* const shot = app.add_subcommand("shot", "Draws a page of the dialog, also without a display");
  shot->add_option("FILE", shotOptions.file, "Settings document")->required();
  shot->add_option("--page", shotOptions.page, "0 General, 1 Characteristics, 2 Attributes, 3 Structures")
      ->required()
      ->check(CLI::Range(0, 3));
  shot->add_option("--texts", shotOptions.texts, "Document whose text table is used")->type_name("TEXTS");
  shot->add_flag("--read-only", shotOptions.readOnly, "The dialog takes no change");
  shot->add_flag("--window", shotOptions.window, "The whole window of edit, not the dialog alone");
  shot->add_option("--size", size, "A factor such as 2, or WIDTHxHEIGHT in pixels")->type_name("SIZE");
  shot->add_option("-o,--output", shotOptions.out, "PNG file to write or replace")->required()->type_name("OUT");
  shot->callback([&] {
    const auto parsed = ParsePictureSize(size);
    if (!parsed) throw CLI::ValidationError("--size: " + size + " is neither a factor up to 16 nor WIDTHxHEIGHT");
    shotOptions.size = *parsed;
    Shot(shotOptions, std::cout);
  });

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
