#pragma once

#include <iosfwd>
#include <string>

namespace ORXKMPrintProp::host {

/// Shows a person what would be printed with the document's settings, and what would not.
/// @param color with the escape sequences of a terminal.
/// @throws DocumentError, LoadError; nothing is written then.
void Show(const std::string& path, bool color, std::ostream& out);

}  // namespace ORXKMPrintProp::host
