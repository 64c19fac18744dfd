#pragma once

#include <cstdint>
#include <string>

namespace ORXKMPrintProp::test {

/// Lets random users act, a new one every few hundred actions.
/// @return the first rule that was broken with the last actions before it; empty when none was.
std::string RunRandomUsers(std::uint64_t seed, int actions);

}  // namespace ORXKMPrintProp::test
