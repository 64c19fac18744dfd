#include "dialog/Platform.h"

#include <algorithm>

#include "tables/CaseFolding.h"

namespace ORXKMPrintProp {

int Platform::CompareTexts(TextView a, TextView b) const {
  const auto [x, y] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                                    [](char16_t c, char16_t d) { return FoldCase(c) == FoldCase(d); });
  if (x == a.end() || y == b.end()) return (x != a.end()) - (y != b.end());
  return FoldCase(*x) < FoldCase(*y) ? -1 : 1;
}

Text Platform::DialogFontFace() const { return u"MS Sans Serif"; }

const Platform& Platform::Plain() {
  static const Platform plain;
  return plain;
}

}  // namespace ORXKMPrintProp
