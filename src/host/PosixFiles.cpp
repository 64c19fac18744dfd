// Files and streams by the calls of POSIX.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

#include "host/DocumentError.h"
#include "host/Files.h"

namespace ORXKMPrintProp::host {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const std::string& file, int error) {
  throw DocumentError({.file = file}, std::strerror(error));
}

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }

  int Number() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }
  /// Some file systems tell only now that they could not write. @return 0 or -1 with errno.
  int Close() { return ::close(std::exchange(number_, -1)); }

 private:
  int number_;
};

/// @return whether all of it was written; errno tells why not.
bool Write(int file, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = ::write(file, content.data(), content.size());
    if (written < 0 && errno != EINTR) return false;
    if (written > 0) content.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

/// Where the links lead, also when nothing is there yet.
fs::path FollowLinks(const std::string& file) {
  constexpr int kMostLinks = 40;
  fs::path path = file;
  std::error_code error;
  for (int links = 0; fs::is_symlink(fs::symlink_status(path, error)); ++links) {
    if (links == kMostLinks) Fail(file, ELOOP);
    const fs::path target = fs::read_symlink(path, error);
    if (error) Fail(file, error.value());
    path = path.parent_path() / target;
  }
  return path;
}

/// What stands at the end of the links.
struct Target {
  /// @throws DocumentError when it can't be looked at, or is protected.
  explicit Target(const std::string& file) : path(FollowLinks(file)), isThere(::stat(path.c_str(), &old) == 0) {
    if (!isThere && errno != ENOENT) Fail(file, errno);
    // A new file could take the place of one that is protected against writing, which is not what its owner wants.
    if (isThere && ::access(path.c_str(), W_OK) != 0) Fail(file, errno);
  }

  bool IsRegularOrNew() const { return !isThere || S_ISREG(old.st_mode); }

  fs::path path;
  struct stat old {};
  bool isThere;
};

/// A file that goes away with this object unless it has been moved to its place.
class TemporaryFile {
 public:
  TemporaryFile(const fs::path& folder, mode_t mode) : file_(Create(folder, mode)) {}
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    if (isThere_) ::unlink(path_.c_str());
  }

  /// Open for writing, unless the file could not be made; errno tells why.
  Descriptor& File() { return file_; }
  bool MoveTo(const fs::path& target) {
    const bool moved = ::rename(path_.c_str(), target.c_str()) == 0;
    isThere_ = !moved;
    return moved;
  }

 private:
  int Create(const fs::path& folder, mode_t mode) {
    int file = -1;
    errno = EEXIST;
    for (int attempt = 0; attempt < 100 && file < 0 && errno == EEXIST; ++attempt) {
      path_ = folder / (".prnprop-" + std::to_string(::getpid()) + "-" + std::to_string(attempt) + ".tmp");
      file = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    }
    isThere_ = file >= 0;
    return file;
  }

  fs::path path_;
  bool isThere_ = false;
  Descriptor file_;
};

}  // namespace

bool IsTerminal(std::FILE* stream) { return ::isatty(::fileno(stream)) != 0; }

std::string SystemLanguage() { return {}; }

std::string ReadFile(const std::string& path) {
  const bool standard = path == kStandardStream;
  Descriptor opened(standard ? -1 : ::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!standard && !opened.IsOpen()) Fail(path, errno);
  const int file = standard ? STDIN_FILENO : opened.Number();

  std::string content;
  char buffer[1 << 16];
  for (;;) {
    const ssize_t count = ::read(file, buffer, sizeof buffer);
    if (count == 0) return content;
    if (count > 0) {
      content.append(buffer, static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      Fail(InputName(path), errno);
    }
  }
}

FileStamp StampOf(const std::string& path) {
  struct stat file {};
  if (::stat(path.c_str(), &file) != 0) return {};
  constexpr std::int64_t kPerSecond = 1'000'000'000;
  return {.time = file.st_mtim.tv_sec * kPerSecond + file.st_mtim.tv_nsec, .size = file.st_size};
}

bool IsFolder(const std::string& path) {
  struct stat file {};
  return ::stat(path.c_str(), &file) == 0 && S_ISDIR(file.st_mode);
}

void CheckReplaceable(const std::string& path) {
  const Target target(path);
  if (S_ISDIR(target.old.st_mode)) Fail(path, EISDIR);
  if (!target.IsRegularOrNew()) throw DocumentError({.file = path}, "It is not a regular file");
  const fs::path folder = target.path.has_parent_path() ? target.path.parent_path() : ".";
  if (::access(folder.c_str(), W_OK | X_OK) != 0) Fail(path, errno);
}

void SaveFile(const std::string& path, std::string_view content) {
  const Target target(path);
  if (!target.IsRegularOrNew()) {
    Descriptor device(::open(target.path.c_str(), O_WRONLY | O_CLOEXEC));
    if (!device.IsOpen() || !Write(device.Number(), content) || device.Close() != 0) Fail(path, errno);
    return;
  }

  // What others may not read in the old file they must not see in the new one before it has the old permissions.
  TemporaryFile temporary(target.path.parent_path(), target.isThere ? 0600 : 0666);
  Descriptor& file = temporary.File();
  if (!file.IsOpen() || !Write(file.Number(), content)) Fail(path, errno);
  if (target.isThere) {
    // Only the superuser may give a file away; without that it belongs to whoever writes it.
    if (::fchown(file.Number(), target.old.st_uid, target.old.st_gid) != 0 && errno != EPERM) Fail(path, errno);
    if (::fchmod(file.Number(), target.old.st_mode & 07777) != 0) Fail(path, errno);
  }
  if (::fsync(file.Number()) != 0 || file.Close() != 0 || !temporary.MoveTo(target.path)) Fail(path, errno);
}

}  // namespace ORXKMPrintProp::host
