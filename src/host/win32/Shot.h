#pragma once

#include <string>

namespace ORXKMPrintProp::host {

struct ShotOptions;

/// Draws a page of the dialog; the window is not shown. @return a PNG picture
/// @throws DocumentError, LoadError; LoadError too where there is no display.
std::string Shot(const ShotOptions& options);

}  // namespace ORXKMPrintProp::host
