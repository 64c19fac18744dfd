#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Action.h"

namespace ORXKMPrintProp::test {

struct Failure {
  int step = 0;                ///< counted from 1, over the whole run
  std::string words;           ///< the check and what it has found
  std::vector<Action> script;  ///< from the start of the scene to the failing action
};

/// Lets a random user act, on a new scene every few hundred actions.
std::optional<Failure> RunRandomUser(std::uint64_t seed, int actions);

/// The script without the actions that the failure does not need.
Failure Shortened(const Failure& failure);

/// The failure for a person: how to see it again, what is wrong, and the script with the settings it loads.
std::string Report(std::uint64_t seed, const Failure& failure);

}  // namespace ORXKMPrintProp::test
