// Files and streams by the calls of POSIX.

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <optional>
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

/// All that can still be read. @throws DocumentError
std::string ReadAll(int file, const std::string& name) {
  std::string content;
  char buffer[1 << 16];
  for (;;) {
    const ssize_t count = ::read(file, buffer, sizeof buffer);
    if (count == 0) return content;
    if (count > 0) {
      content.append(buffer, static_cast<std::size_t>(count));
    } else if (errno != EINTR) {
      Fail(name, errno);
    }
  }
}

/// Of a path such as /dev/fd/1: what this program has open under that number, which may have no other name.
std::optional<int> DescriptorOf(const fs::path& path) {
  std::error_code error;
  const fs::path descriptors = fs::canonical("/dev/fd", error);
  if (error || fs::canonical(path.parent_path(), error) != descriptors) return {};
  const std::string digits = path.filename().string();
  int number = 0;
  const auto [end, problem] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (problem != std::errc() || end != digits.data() + digits.size()) return {};
  return number;
}

/// Where the links lead, also when nothing is there yet.
fs::path FollowLinks(const std::string& file) {
  constexpr int kMostLinks = 40;
  fs::path path = file;
  std::error_code error;
  for (int links = 0; fs::is_symlink(fs::symlink_status(path, error)) && !DescriptorOf(path); ++links) {
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
  explicit Target(const std::string& file) : path(FollowLinks(file)), descriptor(DescriptorOf(path)) {
    if (descriptor) return;
    isThere = ::stat(file.c_str(), &old) == 0;
    if (!isThere && errno != ENOENT) Fail(file, errno);
    // A new file could take the place of one that is protected against writing, which is not what its owner wants.
    if (isThere && ::access(file.c_str(), W_OK) != 0) Fail(file, errno);
  }

  bool IsRegularOrNew() const { return !descriptor && (!isThere || S_ISREG(old.st_mode)); }

  /// Whether it has one name, and that is known.
  bool HasOneName() const {
    struct stat there {};
    const bool isKnown = ::stat(path.c_str(), &there) == 0 && there.st_dev == old.st_dev && there.st_ino == old.st_ino;
    return !isThere || (isKnown && old.st_nlink == 1);
  }

  fs::path Folder() const { return path.has_parent_path() ? path.parent_path() : "."; }

  fs::path path;
  std::optional<int> descriptor;  ///< of this program
  struct stat old {};
  bool isThere = false;
};

/// A file that goes away with this object unless it has been moved to its place. It is locked as long as it is in use,
/// which tells it from those of programs that were killed; of these the folder is cleared.
class TemporaryFile {
 public:
  TemporaryFile(const fs::path& folder, mode_t mode) : file_(Create(folder, mode)) {
    if (isThere_) ClearAbandoned(folder);
  }
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
    for (int attempt = 0; attempt < 100; ++attempt) {
      // No name comes twice.
      const auto now = std::chrono::system_clock::now().time_since_epoch().count();
      path_ = folder / (".prnprop-" + std::to_string(::getpid()) + "-" + std::to_string(now) + ".tmp");
      const int file = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
      if (file < 0 && errno != EEXIST) return file;
      if (file < 0) continue;
      // Another program that clears the folder may come first, and is given the file.
      struct stat made {};
      const bool isTaken = ::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
      isThere_ = !isTaken && ::fstat(file, &made) == 0 && made.st_nlink > 0;
      if (isThere_) return file;
      ::close(file);
    }
    errno = EEXIST;
    return -1;
  }

  static bool IsName(const std::string& name) {
    int end = 0;
    return std::sscanf(name.c_str(), ".prnprop-%*[0-9]-%*[0-9].tmp%n", &end) == 0 && name.size() == std::size_t(end);
  }

  void ClearAbandoned(const fs::path& folder) const {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
      const fs::path& path = entry->path();
      if (!IsName(path.filename()) || path.filename() == path_.filename()) continue;
      const Descriptor file(::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
      struct stat found {};
      const bool isOurs =
          file.IsOpen() && ::fstat(file.Number(), &found) == 0 && S_ISREG(found.st_mode) && found.st_uid == ::geteuid();
      if (isOurs && ::flock(file.Number(), LOCK_EX | LOCK_NB) == 0) ::unlink(path.c_str());
    }
  }

  fs::path path_;
  bool isThere_ = false;
  Descriptor file_;
};

/// @return False when the file must be written where it is, since its folder lets nothing take its place.
bool Replace(const std::string& path, const Target& target, std::string_view content) {
  const auto isRefused = [&] {
    return target.isThere && (errno == EACCES || errno == EPERM || errno == EROFS || errno == EBUSY);
  };
  // What others may not read in the old file they must not see in the new one before it has the old permissions.
  TemporaryFile temporary(target.Folder(), target.isThere ? 0600 : 0666);
  Descriptor& file = temporary.File();
  if (!file.IsOpen() && isRefused()) return false;
  if (!file.IsOpen() || !Write(file.Number(), content)) Fail(path, errno);
  if (target.isThere) {
    // Only the superuser may give a file away; without that it belongs to whoever writes it.
    if (::fchown(file.Number(), target.old.st_uid, target.old.st_gid) != 0 && errno != EPERM) Fail(path, errno);
    if (::fchmod(file.Number(), target.old.st_mode & 07777) != 0) Fail(path, errno);
  }
  if (::fsync(file.Number()) != 0) Fail(path, errno);
  if (!temporary.MoveTo(target.path)) {
    if (isRefused()) return false;
    Fail(path, errno);
  }
  return true;
}

bool Overwrite(const Descriptor& file, std::string_view content) {
  return ::lseek(file.Number(), 0, SEEK_SET) == 0 && Write(file.Number(), content) &&
         ::ftruncate(file.Number(), static_cast<off_t>(content.size())) == 0 && ::fsync(file.Number()) == 0;
}

/// Writes the file where it is; what can't be written leaves what it held.
void Overwrite(const std::string& path, std::string_view content) {
  const Descriptor file(::open(path.c_str(), O_RDWR | O_CLOEXEC));
  struct stat old {};
  if (!file.IsOpen() || ::fstat(file.Number(), &old) != 0) Fail(path, errno);
  const std::string former = ReadAll(file.Number(), path);
  if (Overwrite(file, content)) return;
  const std::string reason = std::strerror(errno);
  // What it held has its place on the disk.
  if (!Overwrite(file, former)) throw DocumentError({.file = path}, reason + "; what it held is lost in part");
  const timespec times[] = {old.st_atim, old.st_mtim};
  ::futimens(file.Number(), times);
  throw DocumentError({.file = path}, reason);
}

}  // namespace

bool IsTerminal(std::FILE* stream) { return ::isatty(::fileno(stream)) != 0; }

std::string SystemLanguage() { return {}; }

std::string ReadFile(const std::string& path) {
  const bool standard = path == kStandardStream;
  Descriptor opened(standard ? -1 : ::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!standard && !opened.IsOpen()) Fail(path, errno);
  const int file = standard ? STDIN_FILENO : opened.Number();
  return ReadAll(file, InputName(path));
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
  if (!target.isThere && ::access(target.Folder().c_str(), W_OK | X_OK) != 0) Fail(path, errno);
}

void SaveFile(const std::string& path, std::string_view content) {
  const Target target(path);
  if (target.descriptor) {
    if (!Write(*target.descriptor, content)) Fail(path, errno);
  } else if (!target.IsRegularOrNew()) {
    Descriptor device(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
    if (!device.IsOpen() || !Write(device.Number(), content) || device.Close() != 0) Fail(path, errno);
  } else if (!target.HasOneName() || !Replace(path, target, content)) {
    Overwrite(path, content);
  }
}

}  // namespace ORXKMPrintProp::host
