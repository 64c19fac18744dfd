#include "views/Places.h"

#include <cmath>

namespace ORXKMPrintProp::views {

Place PlaceOf(const Geometry& geometry, const Resolution& resolution) {
  constexpr double kTwipsPerInch = 1440;
  const auto pixels = [](int twips, double perInch) {
    return static_cast<int>(std::lround(twips * perInch / kTwipsPerInch));
  };
  const int left = pixels(geometry.left, resolution.x);
  const int top = pixels(geometry.top, resolution.y);
  return {left, top, pixels(geometry.left + geometry.width, resolution.x) - left,
          pixels(geometry.top + geometry.height, resolution.y) - top};
}

int TabHeightAt(const Resolution& resolution) {
  constexpr double kPerInch = 2540;
  return static_cast<int>(std::lround(kTabHeight * resolution.y / kPerInch));
}

}  // namespace ORXKMPrintProp::views
