#pragma once

#include <cstdint>
#include <span>

#include "dialog/WidgetName.h"

namespace ORXKMPrintProp {

/// What of a widget a text goes to.
enum class Receives { Caption, ToolTipText, TabCaption, Item };

/// One text of the dialog: the key under which the host may translate it, and the text that stands when it does not.
struct DialogText {
  TextView key;
  TextView text;
  WidgetName widget;
  Receives receives;
  std::int16_t number = 0;  ///< of the tab, or of the item of a combo box
};

/// A text that is no widget's own: a page looks it up each time it needs it.
struct FetchedText {
  TextView key;
  TextView text;
};
/// The first entry of each selector of a group change.
inline constexpr FetchedText kNoneText{u"ID_PRN_NONE", u"<None>"};
/// The one message box, and its title.
inline constexpr FetchedText kTooManyText{u"ID_PRN_MSGMAX10", u"You may only use up to ten print characteristics"};
inline constexpr FetchedText kErrorText{u"ID_PRN_ERROR", u"Error"};

/// All texts that are set in one pass. The items of a combo box stand in the order of their numbers.
std::span<const DialogText> DialogTexts();

}  // namespace ORXKMPrintProp
