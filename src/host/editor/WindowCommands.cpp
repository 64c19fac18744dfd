#include "host/editor/WindowCommands.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string_view>
#include <system_error>
#include <vector>

#include "host/DocumentError.h"
#include "host/ExitStatus.h"
#include "host/Files.h"
#include "host/Paths.h"
#include "host/Program.h"
#include "host/Spelling.h"
#include "host/editor/Texts.h"

namespace ORXKMPrintProp::host {
namespace {

constexpr int kMostPixels = 16000;
constexpr double kMostFactor = 16;

/// The number that is the whole text.
template <class Number>
std::optional<Number> NumberIn(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return {};
  return number;
}

/// "2", "1.5" or "800x600". None for anything else, and for a picture of too many pixels a side.
std::optional<PictureSize> ParsePictureSize(const std::string& text) {
  if (const auto cross = text.find('x'); cross != std::string::npos) {
    const auto width = NumberIn<int>(std::string_view(text).substr(0, cross));
    const auto height = NumberIn<int>(std::string_view(text).substr(cross + 1));
    if (!width || !height || *width < 1 || *height < 1 || *width > kMostPixels || *height > kMostPixels) return {};
    return PictureSize{.width = *width, .height = *height};
  }
  const auto factor = NumberIn<double>(text);
  if (!factor || !(*factor > 0 && *factor <= kMostFactor)) return {};
  return PictureSize{.factor = *factor};
}

/// In the order of their tabs.
const std::vector<std::string> kPages{"general", "characteristics", "attributes", "structures"};

/// Makes its number of the name of a page. @return what is wrong with it, empty for nothing
std::string NumberPage(std::string& page) {
  if (const auto number = NumberIn<std::size_t>(page); number && *number < kPages.size()) return {};
  const auto found = std::find(kPages.begin(), kPages.end(), CLI::detail::to_lower(page));
  if (found == kPages.end()) {
    const std::string meant = DidYouMean(page, kPages);
    return "there is no page " + page + (meant.empty() ? ", only " + CLI::detail::join(kPages, ", ") : meant);
  }
  page = std::to_string(found - kPages.begin());
  return {};
}

void AddSettings(CLI::App& command, EditOptions& options, bool needsFile) {
  command.add_option("FILE", options.file, needsFile ? "Settings document" : "Settings document, else new settings")
      ->required(needsFile);
  command.add_option("--texts", options.texts, "Document whose text table is used")->type_name("TEXTS");
  command.add_flag("--read-only", options.readOnly, "The dialog takes no change");
}

void Write(const std::string& content, const std::string& out) {
  if (out == kStandardStream) {
    std::cout << content;
  } else {
    SaveFile(out, content);
  }
}

void AddEdit(CLI::App& program, const WindowCommands& commands, int& status) {
  const auto options = std::make_shared<EditOptions>();
  CLI::App* const edit = program.add_subcommand("edit", "Opens the dialog in a window");
  AddSettings(*edit, *options, false);
  edit->add_option("-o,--output", options->out, "File to save to, instead of FILE")->type_name("OUT");
  edit->footer(
      "Examples:\n"
      "  prnprop edit sales.json\n"
      "  prnprop edit --texts german.json -o changed.json sales.json");
  edit->callback([options, run = commands.edit, &status] {
    if (options->out.value_or(options->file) == kStandardStream) {
      throw CLI::ValidationError("-o OUT is needed, with the name of a file to save to");
    }
    status = run(*options);
  });
}

void AddShot(CLI::App& program, const WindowCommands& commands) {
  struct Options {
    ShotOptions shot;
    std::string size = "1";
    std::string out;
  };
  const auto options = std::make_shared<Options>();
  CLI::App* const shot = program.add_subcommand("shot", "Draws a page of the dialog, also without a display");
  AddSettings(*shot, options->shot.settings, true);
  shot->add_option("--page", options->shot.page, "The page, also by its number from 0 to 3")
      ->required()
      ->transform(CLI::Validator(NumberPage, ""))
      ->type_name(CLI::detail::join(kPages, "|"));
  shot->add_flag("--window", options->shot.window, "The whole window of edit, not the dialog alone");
  shot->add_option("--size", options->size, "A factor such as 2, or WIDTHxHEIGHT in pixels")->type_name("SIZE");
  shot->add_option("-o,--output", options->out, "PNG file to write or replace")->required()->type_name("OUT");
  shot->footer(
      "Examples:\n"
      "  prnprop shot --page characteristics -o page.png sales.json\n"
      "  prnprop shot --page general --window --size 2 -o window.png sales.json");
  shot->callback([options, draw = commands.shot] {
    const auto size = ParsePictureSize(options->size);
    if (!size) {
      throw CLI::ValidationError("--size: " + options->size + " is neither a factor up to 16 nor WIDTHxHEIGHT");
    }
    options->shot.size = *size;
    Write(draw(options->shot), options->out);
  });
}

/// Draws the four pages in a folder, with settings of their own where the document has none.
void DrawPages(const WindowCommands& commands, const std::string& file, const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(PathOf(folder), error);
  if (error) throw DocumentError({.file = folder}, WordsOf(error));
  const bool hasSettings = ReadSettings(file).general->RowCount() > 0;
  ShotOptions shot;
  shot.settings.file = hasSettings ? file : "";
  shot.settings.texts = file;
  for (const std::string& page : kPages) {
    SaveFile(folder + "/" + page + ".png", commands.shot(shot));
    ++shot.page;
  }
}

void AddTexts(CLI::App& program, const WindowCommands& commands, int& status) {
  struct Options {
    std::string file;
    std::string folder;
    bool json = false;
    bool isNew = false;
    std::string out{kStandardStream};
  };
  const auto options = std::make_shared<Options>();
  CLI::App* const texts = program.add_subcommand("texts", "Checks the text table of a document, for its translator");
  CLI::Option* const file = texts->add_option("FILE", options->file, "Document with a text table");
  CLI::Option* const shot =
      texts->add_option("--shot", options->folder, "Folder for pictures of the four pages with the texts")
          ->type_name("FOLDER");
  CLI::Option* const json = texts->add_flag("--json", options->json, "One JSON object");
  CLI::Option* const fresh =
      texts->add_flag("--new", options->isNew, "Writes a document with all texts and their defaults, to begin from")
          ->excludes(file, shot, json);
  texts->add_option("-o,--output", options->out, "File to write or replace, instead of standard output")
      ->type_name("OUT")
      ->needs(fresh);
  texts->footer(
      "Finds keys that are missing, unknown or there twice, placeholders, texts that are cut in their widgets, and\n"
      "texts that are the same where the defaults are not.\n"
      "Ends with 0 when there is nothing to look at, 1 when there is, 3 when FILE is not a settings document with a\n"
      "text table.\n"
      "\n"
      "Examples:\n"
      "  prnprop texts german.json\n"
      "  prnprop texts --shot pictures german.json\n"
      "  prnprop texts --new -o swedish.json");
  texts->callback([options, commands, &status] {
    if (options->isNew) return Write(NewTexts(), options->out);
    if (options->file.empty()) throw CLI::RequiredError("FILE");
    if (options->file == kStandardStream && !options->folder.empty()) {
      throw CLI::ValidationError("--shot needs a file, since standard input can be read only once");
    }
    status = CheckTexts(options->file, options->json, commands.measure, std::cout, std::cerr);
    if (status != kBadFile && !options->folder.empty()) DrawPages(commands, options->file, options->folder);
  });
}

}  // namespace

int RunProgram(int argc, char** argv, const WindowCommands& commands) {
  return RunProgram(argc, argv, [&commands](CLI::App& program, int& status) {
    AddEdit(program, commands, status);
    AddShot(program, commands);
    AddTexts(program, commands, status);
  });
}

}  // namespace ORXKMPrintProp::host
