#pragma once

#include <functional>
#include <optional>
#include <span>

#include "tables/Text.h"

// How captions are made to fit: in smaller letters, down to 70 % of the full size, and where those do not do, cut.

namespace ORXKMPrintProp::views {

/// The width of a text in pixels, in letters of that size in per cent of the full one.
using Measure = std::function<int(TextView text, int percent)>;

/// The greatest size, in steps of 5 %, at which something fits; none where the smallest does not do.
std::optional<int> FittingSize(const std::function<bool(int percent)>& fits);

struct FittedText {
  Text text;
  int percent = 100;
  bool isCut = false;  ///< it ends with an ellipsis
};
FittedText Fit(TextView text, int width, const Measure& measure);

struct FittedTabs {
  int percent = 100;
  bool areCut = false;  ///< each tab has its share of the width, in which its caption is cut
};
/// All tabs in letters of one size.
/// @param needed the width that the tab with that number needs at that size, all that is around its caption included.
FittedTabs FitTabs(int tabs, int width, const std::function<int(int tab, int percent)>& needed);

/// A tab has its share of a full row, and more where its caption needs it.
int TabWidth(int stripWidth, int needed);

/// The tooltip of a widget, with the text that could not be shown in full ahead of it, a line each.
Text ToolTipWith(TextView cutText, TextView toolTip);

/// The text of an entry, which has one line.
Text OnOneLine(TextView entry);

}  // namespace ORXKMPrintProp::views
