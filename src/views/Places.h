#pragma once

#include "dialog/DialogLayout.h"

namespace ORXKMPrintProp::views {

/// In pixels from the parent's corner.
struct Place {
  int left, top, width, height;

  friend bool operator==(const Place&, const Place&) = default;
};

/// Pixels to an inch, across and down.
struct Resolution {
  double x, y;
};

/// Where a geometry in twips lies. Its edges are rounded, not its size: what meets in the layout meets on the screen.
Place PlaceOf(const Geometry& geometry, const Resolution& resolution);

/// How high the tabs are. The stored height counts hundredths of a millimetre: the topmost labels of the pages begin
/// right below.
int TabHeightAt(const Resolution& resolution);

}  // namespace ORXKMPrintProp::views
