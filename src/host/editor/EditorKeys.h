#pragma once

#include <string>
#include <vector>

namespace ORXKMPrintProp::host {

/// For a person, in the current language: "in the window", "Ctrl+S", "saves, as Apply does".
struct EditorKey {
  std::string where;
  std::string keys;
  std::string does;
};

/// All keys of an editor: those of its window, and those of the dialog in it.
/// @param withPanel those of the field to find an entry and of the panel too, which not every window has.
std::vector<EditorKey> EditorKeys(bool withPanel);

/// The same as text: a line for each place, and below it one for each of its keys.
std::string EditorKeysInLines(bool withPanel);

}  // namespace ORXKMPrintProp::host
