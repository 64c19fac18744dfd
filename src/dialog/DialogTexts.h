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

/// All texts that are set in one pass. The items of a combo box stand in the order of their numbers.
std::span<const DialogText> DialogTexts();

}  // namespace ORXKMPrintProp
