#include "host/editor/EditorKeys.h"

#include <initializer_list>

#include "views/Keys.h"
#include "views/Translation.h"

namespace ORXKMPrintProp::host {

using views::Translated;

std::vector<EditorKey> EditorKeys(bool withPanel) {
  const std::string window = Translated("in the window");
  std::vector<EditorKey> keys{
      {window, Translated("Enter"), Translated("saves and closes, as OK does")},
      {window, Translated("Escape"), Translated("closes, as Cancel does")},
      {window, Translated("Ctrl+S"), Translated("saves, as Apply does")},
      {window, Translated("Ctrl+Shift+S"), Translated("saves in another file")},
      {window, Translated("Ctrl+O"), Translated("opens another file")},
      {window, Translated("Ctrl+N"), Translated("begins new settings")},
      {window, Translated("Ctrl+Z"), Translated("takes the last change back")},
      {window, Translated("Ctrl+Shift+Z and Ctrl+Y"), Translated("make it again")},
      {window, "F5", Translated("reads the settings back")},
      {window, "F1", Translated("shows all keys")},
  };
  if (withPanel) {
    const std::string field = Translated("in the field to find an entry");
    const std::string panel = Translated("in the panel");
    const std::initializer_list<EditorKey> further{
        {window, Translated("Ctrl+F"), Translated("finds an entry of the list at hand by any part of its text")},
        {field, Translated("Enter and F3"), Translated("find the next one")},
        {field, Translated("Escape"), Translated("goes back to the list")},
        {panel, Translated("F8 and Shift+F8"), Translated("lead to the next cell that differs and to the one before")},
        {panel, Translated("Ctrl++, Ctrl+- and Ctrl+0"),
         Translated("make the page larger, smaller and as wide as the panel")},
        {panel, Translated("Arrows"), Translated("scroll the page")},
    };
    keys.insert(keys.end(), further);
  }
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
    lines += "  " + key.keys + ": " + key.does + "\n";
  }
  return lines;
}

}  // namespace ORXKMPrintProp::host
