#include "host/Spelling.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <utility>

#include "views/Translation.h"

namespace ORXKMPrintProp::host {
namespace {

bool IsSame(char a, char b) {
  return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b));
}

/// How many characters have to be added, taken out, replaced, or swapped with their neighbour.
std::size_t Distance(std::string_view a, std::string_view b) {
  // By how many characters of b are taken: for the characters of a up to this one, the one before, and before that.
  std::vector<std::size_t> now(b.size() + 1), before, earlier;
  for (std::size_t j = 0; j <= b.size(); ++j) now[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    earlier = std::exchange(before, now);
    now[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      now[j] = std::min({before[j] + 1, now[j - 1] + 1, before[j - 1] + (IsSame(a[i - 1], b[j - 1]) ? 0 : 1)});
      const bool isSwapped = i > 1 && j > 1 && IsSame(a[i - 1], b[j - 2]) && IsSame(a[i - 2], b[j - 1]);
      if (isSwapped) now[j] = std::min(now[j], earlier[j - 2] + 1);
    }
  }
  return now[b.size()];
}

}  // namespace

std::string DidYouMean(std::string_view word, const std::vector<std::string>& known) {
  const std::string* nearest = nullptr;
  std::size_t least = std::max<std::size_t>(1, word.size() / 3) + 1;
  for (const std::string& each : known) {
    const std::size_t difference = std::max(word.size(), each.size()) - std::min(word.size(), each.size());
    if (difference >= least) continue;  // which also spares the work for words of any length
    if (const std::size_t distance = Distance(word, each); distance < least) {
      least = distance;
      nearest = &each;
    }
  }
  return nearest ? views::Filled(views::Translated(", did you mean {0}?"), {*nearest}) : "";
}

}  // namespace ORXKMPrintProp::host
