#pragma once

#include <cstddef>

#include "tables/Text.h"

namespace ORXKMPrintProp {

/// The character in the form in which upper and lower case are alike, by simple case folding: one character for
/// one, in no language's particular order. Surrogates stay as they are.
char16_t FoldCase(char16_t c);

/// For keys that compare regardless of upper and lower case.
struct FoldedHash {
  using is_transparent = void;
  std::size_t operator()(TextView text) const;
};
/// The same.
struct FoldedEqual {
  using is_transparent = void;
  bool operator()(TextView a, TextView b) const;
};

}  // namespace ORXKMPrintProp
