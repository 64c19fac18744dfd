#pragma once

#include <cstdio>
#include <cstdlib>

#include "control/SharedValues.h"

namespace ORXKMPrintProp::fuzz {

/// The shared values as they are when a program starts, so that no input depends on those before it.
inline void ResetSharedValues() {
  gPrnProp.reset();
  gTextTable.reset();
  gErrorText.clear();
}

/// A finding unless the condition holds.
inline void Demand(bool condition, const char* what) {
  if (condition) return;
  std::fprintf(stderr, "not so: %s\n", what);
  std::abort();
}

}  // namespace ORXKMPrintProp::fuzz
