#include "host/DocumentNames.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>
#include <tuple>
#include <unordered_set>
#include <utility>

#include "host/DocumentError.h"
#include "host/Files.h"
#include "host/Paths.h"
#include "host/Utf8.h"
#include "tables/CaseFolding.h"

namespace ORXKMPrintProp::host {
namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
constexpr bool kIsCaseIgnored = true;
constexpr std::string_view kSeparators = "/\\";
#else
constexpr bool kIsCaseIgnored = false;
constexpr std::string_view kSeparators = "/";
#endif
constexpr std::string_view kWildcards = "*?[";

Text Folded(std::string_view name) {
  Text text = FromUtf8(name);
  std::transform(text.begin(), text.end(), text.begin(), FoldCase);
  return text;
}

/// The name's characters, as the system compares them.
std::u32string Comparable(std::string_view name) {
  const Text text = kIsCaseIgnored ? Folded(name) : FromUtf8(name);
  std::u32string characters;
  for (TextView rest = text; !rest.empty();) characters += TakeCodePoint(rest);
  return characters;
}

/// Takes the "[...]" at the head of the pattern.
/// @return whether the character is one of it; none where nothing closes it, and the bracket stands for itself.
std::optional<bool> TakeSet(std::u32string_view& pattern, char32_t character) {
  std::size_t at = 1;
  const bool isNegated = at < pattern.size() && (pattern[at] == U'!' || pattern[at] == U'^');
  if (isNegated) ++at;
  bool isIn = false;
  for (const std::size_t first = at; at < pattern.size(); ++at) {
    if (pattern[at] == U']' && at > first) {
      pattern.remove_prefix(at + 1);
      return isIn != isNegated;
    }
    const bool isRange = at + 2 < pattern.size() && pattern[at + 1] == U'-' && pattern[at + 2] != U']';
    const char32_t least = pattern[at];
    if (isRange) at += 2;
    isIn = isIn || (least <= character && character <= pattern[at]);
  }
  return {};
}

bool Matches(std::u32string_view pattern, std::u32string_view name) {
  // Where to go on from when what follows the last "*" does not match: with one more character for that.
  std::optional<std::pair<std::u32string_view, std::u32string_view>> other;
  while (!pattern.empty() || !name.empty()) {
    if (!pattern.empty() && pattern.front() == U'*') {
      pattern.remove_prefix(1);
      other.emplace(pattern, name);
      continue;
    }
    bool isMatch = false;
    if (!pattern.empty() && !name.empty()) {
      const auto inSet = pattern.front() == U'[' ? TakeSet(pattern, name.front()) : std::nullopt;
      isMatch = inSet.value_or(pattern.front() == U'?' || pattern.front() == name.front());
      if (!inSet) pattern.remove_prefix(1);
      name.remove_prefix(1);
    }
    if (isMatch) continue;
    if (!other || other->second.empty()) return false;
    other->second.remove_prefix(1);
    std::tie(pattern, name) = *other;
  }
  return true;
}

bool IsThere(const std::string& path) {
  std::error_code error;
  return fs::exists(fs::symlink_status(PathOf(path), error));
}

bool IsHidden(std::string_view name) { return name.starts_with('.'); }

bool IsPattern(std::string_view name) { return name.find_first_of(kWildcards) != std::string_view::npos; }

bool EndsWithSeparator(const std::string& path) { return path.find_last_of(kSeparators) + 1 == path.size(); }

struct Entry {
  std::string name;
  bool isFolder = false;  ///< and no link to one
  bool isFile = false;    ///< or a link that leads to none, of which a read tells why
};

class Finder {
 public:
  void Find(const std::string& argument) {
    if (argument == kStandardStream) return Add(argument, argument);
    if (IsPattern(argument) && !IsThere(argument)) return FindMatches(argument);
    FindNamed(argument);
  }

  DocumentNames Take() { return std::move(found_); }

 private:
  void Fail(const std::string& path, const std::string& reason) {
    found_.names.push_back({path, DocumentError({.file = path}, reason).what()});
  }

  void Fail(const std::string& path, const std::error_code& error) { Fail(path, WordsOf(error)); }

  void FindNamed(const std::string& path) {
    if (!IsFolder(path)) return AddFile(path);
    const std::size_t before = Count();
    FindBelow(path);
    if (Count() == before) Fail(path, "no file *.json is below it");
  }

  void AddFile(const std::string& path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(PathOf(path), error).lexically_normal();
    Add(path, Utf8Of(absolute));
  }

  /// @param identity the same for each way to spell the path.
  void Add(const std::string& path, const std::string& identity) {
    if (known_.insert(kIsCaseIgnored ? ToUtf8(Folded(identity)) : identity).second) {
      found_.names.push_back({path});
    } else {
      found_.repeated.push_back(path);
    }
  }

  std::size_t Count() const { return found_.names.size() + found_.repeated.size(); }

  /// What lies in the folder, by name; what can't be read of it is told.
  std::vector<Entry> EntriesOf(const std::string& folder) {
    std::vector<Entry> entries;
    std::error_code error;
    for (fs::directory_iterator each(PathOf(folder), error), end; !error && each != end; each.increment(error)) {
      Entry entry{.name = Utf8Of(each->path().filename())};
      std::error_code unknown;
      entry.isFolder = fs::is_directory(each->symlink_status(unknown));
      if (unknown) Fail(In(folder, entry.name), unknown);
      const fs::file_type type = each->status(unknown).type();
      entry.isFile = unknown || type == fs::file_type::regular || type == fs::file_type::not_found;
      entries.push_back(std::move(entry));
    }
    if (error) Fail(folder, error);
    std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) { return a.name < b.name; });
    return entries;
  }

  static std::string In(const std::string& folder, const std::string& name) {
    return folder + (EndsWithSeparator(folder) ? "" : "/") + name;
  }

  void FindBelow(const std::string& folder) {
    for (const Entry& entry : EntriesOf(folder)) {
      if (IsHidden(entry.name)) continue;
      if (entry.isFolder) {
        FindBelow(In(folder, entry.name));
      } else if (entry.isFile && Comparable(entry.name).ends_with(U".json")) {
        AddFile(In(folder, entry.name));
      }
    }
  }

  /// Name by name, each of which may match several.
  void FindMatches(const std::string& pattern) {
    const std::size_t before = Count();
    std::vector<std::string> found{""};
    for (std::size_t at = 0; at < pattern.size();) {
      const std::size_t end = std::min(pattern.find_first_of(kSeparators, at), pattern.size());
      const std::size_t next = std::min(pattern.find_first_not_of(kSeparators, end), pattern.size());
      const std::string name = pattern.substr(at, end - at);
      const std::string separator = pattern.substr(end, next - end);
      std::vector<std::string> further;
      for (const std::string& folder : found) {
        if (!IsPattern(name)) {
          further.push_back(folder + name + separator);
          continue;
        }
        const std::u32string wanted = Comparable(name);
        const std::string read = folder.empty() ? "." : folder;
        if (!IsFolder(read)) continue;
        for (const Entry& entry : EntriesOf(read)) {
          if (IsHidden(entry.name) && !IsHidden(name)) continue;
          if (Matches(wanted, Comparable(entry.name))) further.push_back(folder + entry.name + separator);
        }
      }
      found = std::move(further);
      at = next;
    }
    std::erase_if(found,
                  [](const std::string& path) { return EndsWithSeparator(path) ? !IsFolder(path) : !IsThere(path); });
    if (found.empty() && Count() == before) Fail(pattern, "no file matches the pattern");
    for (const std::string& path : found) FindNamed(path);
  }

  DocumentNames found_;
  std::unordered_set<std::string> known_;
};

}  // namespace

DocumentNames FindDocuments(const std::vector<std::string>& arguments) {
  Finder finder;
  for (const std::string& argument : arguments) finder.Find(argument);
  return finder.Take();
}

}  // namespace ORXKMPrintProp::host
