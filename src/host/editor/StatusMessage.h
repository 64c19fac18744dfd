#pragma once

#include <string>
#include <vector>

#include "host/editor/PageContent.h"

// What an editor tells in a line below the dialog, in sentences without their full stops, with the dialog's own
// captions and entries.

namespace ORXKMPrintProp::host {

/// What has come of a change of the print order: where an entry stands that was moved, and which group changes are
/// others now.
/// @param used the widget by which the user has changed it
std::vector<std::string> WordsOnOrder(const Dialog& dialog, const Widget& used, const PageContent& former,
                                      const PageContent& now);

/// What the page on top can't show: why there are no settings, and that no more can be printed.
std::vector<std::string> WordsOnPage(const Dialog& dialog);

}  // namespace ORXKMPrintProp::host
