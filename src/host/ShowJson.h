#pragma once

#include <iosfwd>
#include <string>

namespace ORXKMPrintProp::host {

/// What would be printed with the document's settings, and what would not, as one JSON object; of a document that can't
/// be read or loaded, why. @return an ExitStatus
int ShowJson(const std::string& path, std::ostream& out);

}  // namespace ORXKMPrintProp::host
