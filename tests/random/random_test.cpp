#include <gtest/gtest.h>

#include <cstdlib>

#include "RandomUser.h"

namespace ORXKMPrintProp::test {
namespace {

std::uint64_t FromEnvironment(const char* name, std::uint64_t otherwise) {
  const char* const value = std::getenv(name);
  return value ? std::strtoull(value, nullptr, 10) : otherwise;
}

class RandomUse : public testing::TestWithParam<std::uint64_t> {};

/// Several users, one after the other. RANDOM_SEED and RANDOM_ACTIONS replace the seed and the number of actions.
TEST_P(RandomUse, KeepsTheRules) {
  constexpr std::uint64_t kActionsOfUser = 300;
  const std::uint64_t seed = FromEnvironment("RANDOM_SEED", GetParam() << 32);
  const std::uint64_t actions = FromEnvironment("RANDOM_ACTIONS", 2500);
  for (std::uint64_t done = 0; done < actions; done += kActionsOfUser) {
    RandomUser user(seed + done);
    for (std::uint64_t i = done; i < std::min(done + kActionsOfUser, actions); ++i) {
      const std::string wrong = user.Act();
      ASSERT_EQ(wrong, "") << "seed " << seed << ", action " << i << ":\n" << user.Script();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUse, testing::Range<std::uint64_t>(1, 9));

}  // namespace
}  // namespace ORXKMPrintProp::test
