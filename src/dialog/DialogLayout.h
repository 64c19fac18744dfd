#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "dialog/WidgetName.h"

namespace ORXKMPrintProp {

enum class WidgetKind { SSTab, Frame, Label, TextBox, ComboBox, CheckBox, ListBox, CommandButton };

/// The kind as it is spelled here.
const char* NameOf(WidgetKind kind);

/// The pages, by their `Tab`. These numbers are also the indexes of the lists and buttons on the last three.
inline constexpr std::int16_t kGeneralTab = 0;
inline constexpr std::int16_t kCharTab = 1;
inline constexpr std::int16_t kAttrTab = 2;
inline constexpr std::int16_t kStrTab = 3;

/// The layout button of one characteristic; those of the page have the numbers below.
inline constexpr std::int16_t kTotalsRowButton = 4;

/// In twips, relative to the parent.
struct Geometry {
  int left, top, width, height;
};

/// One widget of the dialog, as it is stored with the form.
struct LayoutRow {
  WidgetName name;
  WidgetKind kind;
  TextView parent;    ///< the frame or the tab widget, empty for the tab widget itself
  std::int16_t page;  ///< the `Tab` of the page on which it lies, -1 for the tab widget
  Geometry geometry;
  std::int16_t tabIndex;
  TextView caption;          ///< shown until the first texts are applied
  bool multiSelect = false;  ///< a click toggles the entry under the pointer and leaves the others as they are
  bool sorted = false;       ///< an entry added without an index goes to its place in text order
};

/// Every widget, parents ahead of what lies in them.
std::span<const LayoutRow> DialogLayout();

/// The control's client area; the dialog does not follow the size that a host gives it.
inline constexpr Geometry kClientArea{0, 0, 9675, 5940};

/// In hundredths of a millimetre, unlike all other sizes.
inline constexpr int kTabHeight = 520;
inline constexpr int kTabsPerRow = 5;
inline constexpr std::array<TextView, 4> kStoredTabCaptions{u"Allgemein", u"Merkmale", u"Attribute", u"Strukturen"};

inline constexpr TextView kStoredFontName = u"MS Sans Serif";
inline constexpr double kStoredFontSize = 8.25;
inline constexpr int kStoredFontWeight = 400;

/// The pointer while an entry of a print list is dragged: "#" black, "." white, a blank lets the ground through.
struct MouseIconBits {
  std::array<TextView, 32> rows;
  int hotSpotX = 16;
  int hotSpotY = 8;
};
const MouseIconBits& MouseIcon();

}  // namespace ORXKMPrintProp
