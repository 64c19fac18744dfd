#pragma once

namespace ORXKMPrintProp::host {

struct EditOptions;

/// Opens the document in a window, and ends when the user has closed it. Where nobody sees standard error, a message
/// box first says what is thrown. @return 0
/// @throws DocumentError for a document that can't be read, or could not be saved; LoadError for one that does not
/// load, and where there is no display.
int Edit(const EditOptions& options);

}  // namespace ORXKMPrintProp::host
