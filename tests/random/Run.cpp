#include "Run.h"

#include <algorithm>
#include <memory>

#include "RandomUser.h"

namespace ORXKMPrintProp::test {

std::string RunRandomUsers(std::uint64_t seed, int actions) {
  constexpr int kActionsOfUser = 300;
  std::unique_ptr<RandomUser> user;
  for (int step = 0; step < actions; ++step) {
    if (step % kActionsOfUser == 0) {
      user.reset();
      user = std::make_unique<RandomUser>(seed + static_cast<std::uint64_t>(step));
    }
    const std::string wrong = user->Act();
    if (wrong.empty()) continue;
    std::string report = "seed " + std::to_string(seed) + ", action " + std::to_string(step) + ": " + wrong + "\n";
    for (const std::string& line : user->Script()) report += line + "\n";
    return report;
  }
  return "";
}

}  // namespace ORXKMPrintProp::test
