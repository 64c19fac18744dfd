#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <string>

#include "host/Files.h"
#include "host/Program.h"
#include "host/editor/EditedSettings.h"
#include "host/window/Edit.h"
#include "host/window/Shot.h"

namespace {

using namespace ORXKMPrintProp::host;

void AddEdit(CLI::App& program, int& status) {
  const auto options = std::make_shared<EditOptions>();
  CLI::App* const edit = program.add_subcommand("edit", "Opens the dialog in a window");
  edit->add_option("FILE", options->file, "Settings document")->required();
  edit->add_option("--texts", options->texts, "Document whose text table is used")->type_name("TEXTS");
  edit->add_flag("--read-only", options->readOnly, "The dialog takes no change");
  edit->add_option("-o,--output", options->out, "File to save to, instead of FILE")->type_name("OUT");
  edit->callback([options, &status] {
    if (options->out.value_or(options->file) == kStandardStream) {
      throw CLI::ValidationError("-o OUT is needed, with the name of a file to save to");
    }
    status = EditProgram(*options).Run();
  });
}

void AddShot(CLI::App& program) {
  const auto options = std::make_shared<ShotOptions>();
  const auto size = std::make_shared<std::string>("1");
  CLI::App* const shot = program.add_subcommand("shot", "Draws a page of the dialog, also without a display");
  shot->add_option("FILE", options->file, "Settings document")->required();
  shot->add_option("--page", options->page, "0 General, 1 Characteristics, 2 Attributes, 3 Structures")
      ->required()
      ->check(CLI::Range(0, 3));
  shot->add_option("--texts", options->texts, "Document whose text table is used")->type_name("TEXTS");
  shot->add_flag("--read-only", options->readOnly, "The dialog takes no change");
  shot->add_flag("--window", options->window, "The whole window of edit, not the dialog alone");
  shot->add_option("--size", *size, "A factor such as 2, or WIDTHxHEIGHT in pixels")->type_name("SIZE");
  shot->add_option("-o,--output", options->out, "PNG file to write or replace")->required()->type_name("OUT");
  shot->callback([options, size] {
    const auto parsed = ParsePictureSize(*size);
    if (!parsed) throw CLI::ValidationError("--size: " + *size + " is neither a factor up to 16 nor WIDTHxHEIGHT");
    options->size = *parsed;
    Shot(*options, std::cout);
  });
}

}  // namespace

int main(int argc, char** argv) {
  return RunProgram(argc, argv, [](CLI::App& program, int& status) {
    AddEdit(program, status);
    AddShot(program);
  });
}
