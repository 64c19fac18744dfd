#include <gtest/gtest.h>

#include "Run.h"

namespace ORXKMPrintProp::test {
namespace {

class RandomUse : public testing::TestWithParam<std::uint64_t> {};

TEST_P(RandomUse, KeepsTheRules) {
  const auto failure = RunRandomUser(GetParam(), 2500);
  if (failure) FAIL() << Report(GetParam(), *failure);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUse, testing::Range<std::uint64_t>(1, 9));

}  // namespace
}  // namespace ORXKMPrintProp::test
