#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace ORXKMPrintProp::host {

inline std::filesystem::path PathOf(const std::string& utf8) { return std::u8string(utf8.begin(), utf8.end()); }

inline std::string Utf8Of(const std::filesystem::path& path) {
  const std::u8string utf8 = path.u8string();
  return {utf8.begin(), utf8.end()};
}

/// In the same words on every system, where there are some.
inline std::string WordsOf(const std::error_code& error) { return error.default_error_condition().message(); }

}  // namespace ORXKMPrintProp::host
