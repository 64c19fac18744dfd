#pragma once

#include <memory>
#include <stdexcept>

#include "host/SettingsDocument.h"
#include "model/PrnPropCls.h"

namespace ORXKMPrintProp::host {

/// A control did not take the settings. `what()` is one line: the file and what the control says, with the tables called
/// as the document calls them: "FILE: the load fails: dimension, row 3, column POSIT: REASON".
class LoadError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
  LoadError(const SettingsDocument& document, TextView words);
};

/// Loads the document's tables into a control of its own and reads each of them back, as a host does that shows no
/// dialog. The tables then hold what the control has written; controls that are there notice nothing.
/// @throws LoadError; what the tables hold then is of no use.
void LoadAndReadBack(const SettingsDocument& document);

/// What a load makes of the document's tables, with the layouts that they hold, which a host hands in; of
/// characteristics that share a name each has its own. The tables stay as they are, and controls that are there notice
/// nothing.
/// @throws LoadError
std::shared_ptr<const PrnPropCls> SettingsOf(const SettingsDocument& document);

}  // namespace ORXKMPrintProp::host
