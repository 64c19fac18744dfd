#pragma once

#include <iosfwd>
#include <string>

#include "host/Snapshot.h"

namespace ORXKMPrintProp::host {

/// Shows a person what would be printed with tables as a control has given them back, and what would not.
/// @param color with the escape sequences of a terminal.
void Show(const Snapshot& readBack, bool color, std::ostream& out);

/// Shows a person what would be printed with the document's settings, and what would not.
/// @throws DocumentError, LoadError; nothing is written then.
void Show(const std::string& path, bool color, std::ostream& out);

}  // namespace ORXKMPrintProp::host
