#pragma once

#include <string>

namespace ORXKMPrintProp::host {

/// The language in which the user is to be spoken to, by ISO 639: "de". What his environment says goes ahead of what
/// the system knows of him. Empty where neither names one.
std::string UserLanguage();

}  // namespace ORXKMPrintProp::host
