#include "host/editor/EditorKeys.h"

#include <iterator>

#include "views/Keys.h"

namespace ORXKMPrintProp::host {
namespace {

constexpr EditorKey kOfEveryWindow[] = {
    {"in the window", "Enter", "saves and closes, as OK does"},
    {"in the window", "Escape", "closes, as Cancel does"},
    {"in the window", "Ctrl+S", "saves, as Apply does"},
    {"in the window", "Ctrl+Shift+S", "saves in another file"},
    {"in the window", "Ctrl+O", "opens another file"},
    {"in the window", "Ctrl+N", "begins new settings"},
    {"in the window", "Ctrl+Z", "takes the last change back"},
    {"in the window", "Ctrl+Shift+Z and Ctrl+Y", "make it again"},
    {"in the window", "F5", "reads the settings back"},
    {"in the window", "F1", "shows all keys"},
};
constexpr EditorKey kWithPanel[] = {
    {"in the window", "Ctrl+F", "finds an entry of the list at hand by any part of its text"},
    {"in the field to find an entry", "Enter and F3", "find the next one"},
    {"in the field to find an entry", "Escape", "goes back to the list"},
    {"in the panel", "F8 and Shift+F8", "lead to the next cell that differs and to the one before"},
    {"in the panel", "Ctrl++, Ctrl+- and Ctrl+0", "make the page larger, smaller and as wide as the panel"},
    {"in the panel", "Arrows", "scroll the page"},
};

}  // namespace

std::vector<EditorKey> EditorKeys(bool withPanel) {
  std::vector<EditorKey> keys(std::begin(kOfEveryWindow), std::end(kOfEveryWindow));
  if (withPanel) keys.insert(keys.end(), std::begin(kWithPanel), std::end(kWithPanel));
  for (const views::KeyRow& row : views::KeyTable()) keys.push_back({views::WordsOf(row.place), row.keys, row.does});
  return keys;
}

std::string EditorKeysInLines(bool withPanel) {
  std::string lines, where;
  for (const EditorKey& key : EditorKeys(withPanel)) {
    if (where != key.where) {
      where = key.where;
      lines += where + ":\n";
    }
    lines += std::string("  ") + key.keys + ": " + key.does + "\n";
  }
  return lines;
}

}  // namespace ORXKMPrintProp::host
