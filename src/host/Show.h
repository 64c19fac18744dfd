#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "host/Snapshot.h"

namespace ORXKMPrintProp::host {

/// Shows a person what would be printed with tables as a control has given them back, and what would not, in the words
/// of the text table in use.
/// @param color with the escape sequences of a terminal.
void Show(const Snapshot& readBack, bool color, std::ostream& out);

struct ShowOptions {
  std::string file = {};                  ///< path of the settings document
  std::optional<std::string> texts = {};  ///< path of the document whose text table is used instead
  bool json = false;                      ///< one JSON object, else lines for a person
  bool color = false;                     ///< with the escape sequences of a terminal
};

/// Shows what would be printed with the document's settings, and what would not.
/// @return an ExitStatus: other than kSuccess with `json` alone.
/// @throws DocumentError, LoadError, and RunTimeError from the text table; not with `json`. Nothing is written then.
int Show(const ShowOptions& options, std::ostream& out);

}  // namespace ORXKMPrintProp::host
