#pragma once

namespace ORXKMPrintProp::host {

struct EditOptions;

/// Opens the document in a window, and ends when the user has closed it. What fails is told on standard error and then,
/// where nobody sees that, in a message box. @return an ExitStatus
/// @throws LoadError where there is no display.
int Edit(const EditOptions& options);

}  // namespace ORXKMPrintProp::host
