#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace ORXKMPrintProp::host {

/// Whole paths of files that were opened or saved, the last one first, each once.
using RecentFiles = std::vector<std::string>;

/// The oldest go when there are more.
inline constexpr std::size_t kMostRecentFiles = 10;

/// @param file by whatever path
RecentFiles WithNewest(RecentFiles files, const std::string& file);
RecentFiles Without(RecentFiles files, const std::string& file);

}  // namespace ORXKMPrintProp::host
