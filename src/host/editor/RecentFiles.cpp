#include "host/editor/RecentFiles.h"

#include <filesystem>
#include <system_error>

#include "host/Utf8.h"

namespace ORXKMPrintProp::host {

RecentFiles WithNewest(RecentFiles files, const std::string& file) {
  std::error_code error;
  const std::filesystem::path whole = std::filesystem::absolute(FromUtf8(file), error).lexically_normal();
  const std::string path = error ? file : ToUtf8(whole.u16string());
  files = Without(std::move(files), path);
  files.insert(files.begin(), path);
  if (files.size() > kMostRecentFiles) files.resize(kMostRecentFiles);
  return files;
}

RecentFiles Without(RecentFiles files, const std::string& file) {
  std::erase(files, file);
  return files;
}

}  // namespace ORXKMPrintProp::host
