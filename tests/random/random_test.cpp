#include <gtest/gtest.h>

#include "Run.h"

namespace ORXKMPrintProp::test {
namespace {

class RandomUse : public testing::TestWithParam<int> {};

TEST_P(RandomUse, KeepsTheRules) { EXPECT_EQ(RunRandomUsers(static_cast<std::uint64_t>(GetParam()) << 32, 2500), ""); }

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUse, testing::Range(1, 9));

}  // namespace
}  // namespace ORXKMPrintProp::test
