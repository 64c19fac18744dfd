#pragma once

#include <iosfwd>

namespace ORXKMPrintProp::host {

struct EditOptions;

/// Opens the document in a window, and ends when the user closes it.
/// @param err gets a line when there is no display, or when the document does not load, which a message box tells too.
/// @return 0, or 1 in these cases.
/// @throws DocumentError before there is a window.
int Edit(const EditOptions& options, std::ostream& err);

}  // namespace ORXKMPrintProp::host
