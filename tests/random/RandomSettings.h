#pragma once

#include <cstdint>

#include "Random.h"
#include "support/loaded.h"

namespace ORXKMPrintProp::test {

/// What becomes of a load.
enum class LoadEnd { Done, Refused, Fails };

struct RandomSettings {
  Settings tables;
  LoadEnd end = LoadEnd::Done;
};

/// Settings that mostly load: up to 14 characteristics with their attributes, up to three structures, cells that are
/// mostly codes and numbers that the control knows.
RandomSettings SettingsFrom(std::uint64_t seed);

/// A text table with some of the keys.
TableRef TextsFrom(std::uint64_t seed);

}  // namespace ORXKMPrintProp::test
