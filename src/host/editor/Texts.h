#pragma once

#include <iosfwd>
#include <string>

#include "host/editor/TextCheck.h"

namespace ORXKMPrintProp::host {

/// Shows what a translator is to know of the document's text table.
/// @param json one object on a line, in which also errors are told.
/// @param err gets a line for a file that can't be read or is not a valid document.
/// @return 0 nothing is to be told, 1 something is, 3 no valid document.
int CheckTexts(const std::string& path, bool json, const MeasureTexts& measure, std::ostream& out, std::ostream& err);

/// A document with all texts of the dialog and nothing else.
std::string NewTexts();

}  // namespace ORXKMPrintProp::host
