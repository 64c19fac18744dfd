#pragma once

#include <string_view>

namespace ORXKMPrintProp {

/// The version of the library, and of all that is made with it: major, minor and patch, with periods between them. What
/// is built with one version is built with each later one of the same major number. The build reads it here.
inline constexpr std::string_view kVersion = "1.0.0";

}  // namespace ORXKMPrintProp
