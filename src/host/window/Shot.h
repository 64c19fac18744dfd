#pragma once

#include <string>

namespace ORXKMPrintProp::host {

struct ShotOptions;

/// Draws a page of the dialog, without a display where there is none. @return a PNG picture
/// @throws DocumentError, LoadError
std::string Shot(const ShotOptions& options);

}  // namespace ORXKMPrintProp::host
