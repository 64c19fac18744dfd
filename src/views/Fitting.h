#pragma once

#include <compare>
#include <functional>
#include <optional>
#include <unordered_map>

#include "dialog/Dialog.h"

/// @file
/// How captions are made to fit: in narrower letters, then in smaller ones, alike for captions that stand together, and
/// where the smallest do not do, cut.

namespace ORXKMPrintProp::views {

/// Letters in per cent of their full size, and in per cent of the width that they have at that size; the greater ones
/// take more room. They get narrower down to 80 %, and then smaller down to 70 %, in steps of 5 %.
struct Letters {
  int size = 100;
  int width = 100;

  friend auto operator<=>(const Letters&, const Letters&) = default;
};

/// In which a text takes the least room.
inline constexpr Letters kSmallestLetters{.size = 70, .width = 80};

/// How many pixels a text needs at least, and how many there are for it; it is cut where these are fewer.
struct TextRoom {
  int needed;
  int room;
};

/// The width of a text in pixels.
using Measure = std::function<int(TextView text, const Letters& letters)>;

/// The greatest letters in which something fits; none where the smallest do not do. What fits in some is taken to fit in
/// smaller ones.
std::optional<Letters> FittingLetters(const std::function<bool(const Letters& letters)>& fits);

/// What is shown of a text.
struct FittedText {
  Text text;
  Letters letters;
  bool isCut = false;  ///< it ends with an ellipsis
};
/// A text in the greatest letters that fit; one that does not fit in the smallest is cut in these.
/// @param text in one line.
/// @param width the room for it, in pixels.
/// @param measure is asked in several letters.
/// @param most what the captions beside it have.
FittedText Fit(TextView text, int width, const Measure& measure, const Letters& most = {});

/// The letters of a dialog's captions. Those of widgets of one kind in one frame, or on one page outside of frames, are
/// alike.
class CaptionLetters {
 public:
  /// @param needed the greatest letters in which the widget's caption fits, none where it is cut.
  using Needed = std::function<std::optional<Letters>(const Widget& widget)>;

  /// @param dialog must outlive it.
  /// @param needed is asked when letters are wanted that are not known yet.
  CaptionLetters(const Dialog& dialog, Needed needed);

  Letters Of(const Widget& widget);
  /// The widget's caption has changed. @return whether the letters of those that it stands with have.
  bool Change(const Widget& widget);
  /// What captions are measured with has changed.
  void ChangeAll() { needed_.clear(); }
  static bool StandTogether(const Widget& a, const Widget& b);

 private:
  const Dialog& dialog_;
  Needed ask_;
  std::unordered_map<const Widget*, std::optional<Letters>> needed_;
};

/// How the captions of the tabs are shown.
struct FittedTabs {
  Letters letters;
  bool areCut = false;  ///< each tab has its share of the width, in which its caption is cut
};
/// All tabs in letters of one kind.
/// @param tabs how many there are.
/// @param width that of the strip, in pixels.
/// @param needed the width that the tab with that number needs in them, all that is around its caption included.
FittedTabs FitTabs(int tabs, int width, const std::function<int(int tab, const Letters& letters)>& needed);

/// A tab has its share of a full row, and more where its caption needs it.
int TabWidth(int stripWidth, int needed);

/// How much of the strip there is for one tab: what the others leave of it, and at least its share.
/// @param tab its number.
/// @param tabs how many there are.
/// @param width that of the strip, in pixels.
/// @param needed what the tab with that number needs in the smallest letters.
int RoomOfTab(int tab, int tabs, int width, const std::function<int(int tab)>& needed);

/// The tooltip of a widget, with the text that could not be shown in full ahead of it, a line each.
Text ToolTipWith(TextView cutText, TextView toolTip);

/// The text of an entry, which has one line.
Text OnOneLine(TextView entry);

}  // namespace ORXKMPrintProp::views
