// Files and streams by the calls of Windows.

#include <io.h>
#include <windows.h>

#include <algorithm>
#include <cwchar>
#include <system_error>
#include <utility>

#include "host/DocumentError.h"
#include "host/Files.h"
#include "host/Utf8.h"

namespace ORXKMPrintProp::host {
namespace {

/// The calls take their own 16-bit characters.
std::wstring Wide(std::string_view utf8) {
  const Text text = FromUtf8(utf8);
  return {text.begin(), text.end()};
}

/// In the words of every other system, where it has some.
std::string Words(DWORD error) {
  const std::error_code code(static_cast<int>(error), std::system_category());
  return code.default_error_condition().message();
}

[[noreturn]] void Fail(const std::string& file, DWORD error = ::GetLastError()) {
  throw DocumentError({.file = file}, Words(error));
}

bool IsFolder(const std::wstring& path) {
  const DWORD attributes = ::GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

[[noreturn]] void FailToOpen(const std::string& file, DWORD error = ::GetLastError()) {
  if (!IsFolder(Wide(file))) Fail(file, error);
  throw DocumentError({.file = file}, std::make_error_code(std::errc::is_a_directory).message());
}

class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() {
    if (IsOpen()) ::CloseHandle(handle_);
  }

  HANDLE Get() const { return handle_; }
  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  /// @return whether it could be closed; the system's last error tells why not.
  bool Close() { return ::CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)) != FALSE; }

 private:
  HANDLE handle_;
};

constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE Open(const std::wstring& path, DWORD access, DWORD disposition = OPEN_EXISTING, DWORD shared = kShared) {
  return ::CreateFileW(path.c_str(), access, shared, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
}

bool Write(const Handle& file, std::string_view content) {
  constexpr std::size_t kMost = 1 << 24;
  while (!content.empty()) {
    DWORD written = 0;
    const DWORD count = static_cast<DWORD>(std::min(content.size(), kMost));
    if (!::WriteFile(file.Get(), content.data(), count, &written, nullptr)) return false;
    content.remove_prefix(written);
  }
  return true;
}

/// All that can still be read. @throws DocumentError
std::string ReadAll(HANDLE file, const std::string& name) {
  std::string content;
  char buffer[1 << 16];
  for (;;) {
    DWORD count = 0;
    if (!::ReadFile(file, buffer, sizeof buffer, &count, nullptr)) {
      if (::GetLastError() == ERROR_BROKEN_PIPE) return content;  // how a pipe ends
      Fail(name);
    }
    if (count == 0) return content;
    content.append(buffer, count);
  }
}

/// What stands at the end of the links.
struct Target {
  /// @throws DocumentError when it can't be looked at, or is protected.
  explicit Target(const std::string& file) : path(Wide(file)) {
    const Handle opened(Open(path, GENERIC_WRITE));
    if (!opened.IsOpen()) {
      const DWORD error = ::GetLastError();
      if (error != ERROR_FILE_NOT_FOUND) FailToOpen(file, error);
      return;
    }
    isThere = true;
    isRegular = ::GetFileType(opened.Get()) == FILE_TYPE_DISK;
    if (!isRegular) return;
    BY_HANDLE_FILE_INFORMATION about{};
    hasOneName = !::GetFileInformationByHandle(opened.Get(), &about) || about.nNumberOfLinks <= 1;
    std::wstring followed(::GetFinalPathNameByHandleW(opened.Get(), nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
    const auto room = static_cast<DWORD>(followed.size());
    const DWORD length = ::GetFinalPathNameByHandleW(opened.Get(), followed.data(), room, FILE_NAME_NORMALIZED);
    if (length > 0 && length < room) path = followed.substr(0, length);
  }

  std::wstring Folder() const {
    const std::size_t end = path.find_last_of(L"\\/:");
    return end == std::wstring::npos ? L"" : path.substr(0, end + 1);
  }

  std::wstring path;
  bool isThere = false;
  bool isRegular = true;
  bool hasOneName = true;
};

/// A file that goes away with this object unless it has been moved to its place. Of those that programs have left that
/// were killed the folder is cleared.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::wstring& folder) : file_(Create(folder)) {
    if (isThere_) ClearAbandoned(folder);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    if (file_.IsOpen()) file_.Close();
    if (isThere_) ::DeleteFileW(path_.c_str());
  }

  /// Open for writing, unless the file could not be made; the system's last error tells why.
  Handle& File() { return file_; }
  bool MoveTo(const Target& target) {
    // A file that is replaced hands its permissions on.
    const BOOL moved = target.isThere ? ::ReplaceFileW(target.path.c_str(), path_.c_str(), nullptr,
                                                       REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr)
                                      : ::MoveFileExW(path_.c_str(), target.path.c_str(), MOVEFILE_WRITE_THROUGH);
    isThere_ = !moved;
    return moved;
  }

 private:
  HANDLE Create(const std::wstring& folder) {
    HANDLE file = INVALID_HANDLE_VALUE;
    ::SetLastError(ERROR_FILE_EXISTS);
    for (int attempt = 0; attempt < 100 && file == INVALID_HANDLE_VALUE && ::GetLastError() == ERROR_FILE_EXISTS;
         ++attempt) {
      path_ =
          folder + L".prnprop-" + std::to_wstring(::GetCurrentProcessId()) + L"-" + std::to_wstring(attempt) + L".tmp";
      file = Open(path_, GENERIC_WRITE, CREATE_NEW, 0);
    }
    isThere_ = file != INVALID_HANDLE_VALUE;
    return file;
  }

  /// Whether it is the name of a file of a program that is no more.
  static bool IsAbandoned(const wchar_t* name) {
    unsigned long process = 0;
    int end = 0;
    if (std::swscanf(name, L".prnprop-%lu-%*[0-9].tmp%n", &process, &end) != 1 || name[end] != L'\0') return false;
    const HANDLE running = ::OpenProcess(SYNCHRONIZE, FALSE, process);
    if (!running) return ::GetLastError() == ERROR_INVALID_PARAMETER;
    const bool hasEnded = ::WaitForSingleObject(running, 0) == WAIT_OBJECT_0;
    ::CloseHandle(running);
    return hasEnded;
  }

  /// What another computer has open in the folder stays too, since it is not shared.
  static void ClearAbandoned(const std::wstring& folder) {
    WIN32_FIND_DATAW found;
    const HANDLE search = ::FindFirstFileW((folder + L".prnprop-*.tmp").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
      if (IsAbandoned(found.cFileName)) ::DeleteFileW((folder + found.cFileName).c_str());
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
  }

  std::wstring path_;
  bool isThere_ = false;
  Handle file_;
};

/// @return False when the file must be written where it is, since its folder lets nothing take its place.
bool Replace(const std::string& path, const Target& target, std::string_view content) {
  const auto isRefused = [&] { return target.isThere && ::GetLastError() == ERROR_ACCESS_DENIED; };
  TemporaryFile temporary(target.Folder());
  Handle& file = temporary.File();
  if (!file.IsOpen() && isRefused()) return false;
  if (!file.IsOpen() || !Write(file, content) || !::FlushFileBuffers(file.Get()) || !file.Close()) Fail(path);
  if (!temporary.MoveTo(target)) {
    if (isRefused()) return false;
    Fail(path);
  }
  return true;
}

bool Overwrite(const Handle& file, std::string_view content) {
  return ::SetFilePointerEx(file.Get(), {}, nullptr, FILE_BEGIN) && Write(file, content) &&
         ::SetEndOfFile(file.Get()) && ::FlushFileBuffers(file.Get());
}

/// Writes the file where it is; what can't be written leaves what it held.
void Overwrite(const std::string& path, std::string_view content) {
  const Handle file(Open(Wide(path), GENERIC_READ | GENERIC_WRITE));
  FILETIME written{};
  if (!file.IsOpen() || !::GetFileTime(file.Get(), nullptr, nullptr, &written)) Fail(path);
  const std::string former = ReadAll(file.Get(), path);
  if (Overwrite(file, content)) return;
  const std::string reason = Words(::GetLastError());
  // What it held has its place on the disk.
  if (!Overwrite(file, former)) throw DocumentError({.file = path}, reason + "; what it held is lost in part");
  ::SetFileTime(file.Get(), nullptr, nullptr, &written);
  throw DocumentError({.file = path}, reason);
}

}  // namespace

bool IsTerminal(std::FILE* stream) { return ::_isatty(::_fileno(stream)) != 0; }

std::string SystemLanguage() {
  wchar_t language[9] = L"";
  ::GetLocaleInfoW(MAKELCID(::GetUserDefaultUILanguage(), SORT_DEFAULT), LOCALE_SISO639LANGNAME, language, 9);
  const std::wstring_view name(language);
  return {name.begin(), name.end()};
}

std::string ReadFile(const std::string& path) {
  const bool standard = path == kStandardStream;
  const Handle opened(standard ? INVALID_HANDLE_VALUE : Open(Wide(path), GENERIC_READ));
  if (!standard && !opened.IsOpen()) FailToOpen(path);
  const HANDLE file = standard ? ::GetStdHandle(STD_INPUT_HANDLE) : opened.Get();
  return ReadAll(file, InputName(path));
}

FileStamp StampOf(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA file;
  if (!::GetFileAttributesExW(Wide(path).c_str(), GetFileExInfoStandard, &file)) return {};
  const auto joined = [](DWORD high, DWORD low) { return static_cast<std::int64_t>(std::uint64_t{high} << 32 | low); };
  constexpr std::int64_t kNanosecondsPerTick = 100;
  return {.time = joined(file.ftLastWriteTime.dwHighDateTime, file.ftLastWriteTime.dwLowDateTime) * kNanosecondsPerTick,
          .size = joined(file.nFileSizeHigh, file.nFileSizeLow)};
}

bool IsFolder(const std::string& path) { return IsFolder(Wide(path)); }

void CheckReplaceable(const std::string& path) {
  const Target target(path);
  if (!target.isRegular) throw DocumentError({.file = path}, "It is not a regular file");
  if (!target.isThere && !TemporaryFile(target.Folder()).File().IsOpen()) Fail(path);
}

void SaveFile(const std::string& path, std::string_view content) {
  const Target target(path);
  if (!target.isRegular) {
    Handle device(Open(target.path, GENERIC_WRITE));
    if (!device.IsOpen() || !Write(device, content) || !device.Close()) Fail(path);
    return;
  }
  if (!target.hasOneName || !Replace(path, target, content)) Overwrite(path, content);
}

}  // namespace ORXKMPrintProp::host
