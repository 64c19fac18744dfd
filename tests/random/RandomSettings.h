#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "support/loaded.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::test {

enum class LoadKind {
  Good,
  NoGeneralRow,
  TwoGeneralRows,
  BadCell,
  SecondRun,  ///< the attribute rows of one characteristic do not stand together
  Same,       ///< the tables that the control has already
};

/// Settings as what they are made from, so that they can be made again.
struct LoadPlan {
  LoadKind kind = LoadKind::Good;
  std::uint64_t seed = 0;
  int most = 14;  ///< how many characteristics there may be, and structure elements
};

std::string NameOf(const LoadPlan& plan);

/// What the load of such settings gives.
struct PlannedSettings {
  Settings tables;
  bool loads = true;
  std::optional<ErrorKind> fails = std::nullopt;
};
/// @param plan of any kind but `Same`.
PlannedSettings SettingsOf(const LoadPlan& plan);

/// A text table with some of the keys and texts that tell from which seed they come.
TableRef RandomTexts(std::uint64_t seed);

}  // namespace ORXKMPrintProp::test
