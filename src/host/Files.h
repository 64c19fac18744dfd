#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

namespace ORXKMPrintProp::host {

/// A path that stands for standard input, or standard output.
inline constexpr std::string_view kStandardStream = "-";

/// How a message calls a file to read: its path, or "standard input".
inline std::string InputName(const std::string& path) { return path == kStandardStream ? "standard input" : path; }

/// Whether somebody sees what is written to the stream.
bool IsTerminal(std::FILE* stream);

/// The language that the system knows of its user beside what stands in his environment, by ISO 639; empty for none.
std::string SystemLanguage();

/// The whole file, or all of standard input. @throws DocumentError (file and reason)
std::string ReadFile(const std::string& path);

/// Tells one state of a file from another: when it was written last, and its size. A file that is not there has none.
struct FileStamp {
  std::int64_t time = 0;  ///< nanoseconds
  std::int64_t size = -1;

  bool operator==(const FileStamp&) const = default;
};
FileStamp StampOf(const std::string& path);

bool IsFolder(const std::string& path);

/// Tells ahead of any work whether `SaveFile` has a chance to replace or make a regular file: a file that is there must
/// be one that can be written, else the folder must be there and take files. @throws DocumentError (file and reason)
void CheckReplaceable(const std::string& path);

/// Puts the content in the place of the file in one step, or makes the file. A file that is there keeps its
/// permissions and, where the system lets it, its owner; a symbolic link stays, and what it points to is replaced.
/// A file of several names (hard links), or in a folder that takes no other file, is written where it is.
/// What is not a regular file, such as a device or a pipe, is written to as it is.
/// What a save that was killed has left in the folder is cleared.
/// @throws DocumentError (file and reason). A regular file holds what it held then, and nothing is left behind beside
/// it.
void SaveFile(const std::string& path, std::string_view content);

}  // namespace ORXKMPrintProp::host
