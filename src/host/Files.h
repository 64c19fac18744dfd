#pragma once

#include <string>
#include <string_view>

namespace ORXKMPrintProp::host {

/// A path that stands for standard input, or standard output.
inline constexpr std::string_view kStandardStream = "-";

/// How a message calls a file to read: its path, or "standard input".
std::string InputName(const std::string& path);

/// The whole file, or all of standard input. @throws DocumentError (file and reason)
std::string ReadFile(const std::string& path);

/// Puts the content in the place of the file in one step, or makes the file. A file that is there keeps its
/// permissions and, where the system lets it, its owner; a symbolic link stays, and what it points to is replaced.
/// What is no regular file, such as a device or a pipe, is written to as it is.
/// @throws DocumentError (file and reason). A regular file is untouched then, and nothing is left behind beside it.
void ReplaceFile(const std::string& path, std::string_view content);

}  // namespace ORXKMPrintProp::host
