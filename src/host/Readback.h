#pragma once

#include <iosfwd>
#include <string>

namespace ORXKMPrintProp::host {

/// Writes the document as it is after a load and a read-back; its text table is handed on as it came.
/// @param outPath the file to replace, "-" for `out`.
/// @throws DocumentError, LoadError; nothing is written then.
void Readback(const std::string& path, const std::string& outPath, std::ostream& out);

}  // namespace ORXKMPrintProp::host
