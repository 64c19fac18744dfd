#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/editor/PageContent.h"

namespace ORXKMPrintProp::host {

/// A text that stands in a box, or has stood there when the user went on, though the setting could not take it.
struct Note {
  const Widget* box;
  std::int32_t owner;  ///< whose setting it is, as in a page's content
  std::int32_t item;
  std::string words;  ///< in a line, with the value that the setting keeps
};
using Notes = std::vector<Note>;

/// On what the page shows now.
Notes NotesOn(const Dialog& dialog, const PageContent& shown);

/// Those that are left when the page shows something else: a note goes when its field has changed, and stays when
/// other settings are shown.
Notes NotesAfter(Notes notes, const Dialog& dialog, const PageContent& former, const PageContent& shown);

}  // namespace ORXKMPrintProp::host
