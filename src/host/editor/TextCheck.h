#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "control/ORXQueryPrnProp.h"
#include "dialog/DialogTexts.h"
#include "host/SettingsDocument.h"
#include "views/Fitting.h"

namespace ORXKMPrintProp::host {

/// A text where the dialog shows it.
struct ShownText {
  DialogText place;  ///< its key, its default, and the widget
  Text text;
};

/// How texts lie in the widgets of a view.
struct TextRooms {
  std::vector<std::optional<views::TextRoom>> rooms;  ///< of each text; none where it is not shown
  int dpi = 0;                                        ///< pixels to an inch
};
/// Shows the dialog with a text table where nobody sees it, and measures texts in it.
using MeasureTexts = std::function<TextRooms(const MemoryTableRef& texts, const std::vector<ShownText>& shown)>;

/// A control that shows the text table, and no settings. @throws RunTimeError from the table
std::unique_ptr<ORXQueryPrnProp> ControlWith(const MemoryTableRef& texts, const Platform& platform);

struct TextFinding {
  enum class Kind {
    Missing,
    Unknown,      ///< the dialog has no text of that key
    Doubled,      ///< a row above has that key
    Empty,        ///< nothing is shown, and that in more than a tooltip
    Placeholder,  ///< for which the dialog has no value
    TooLong,      ///< cut in its widget
    Same,         ///< as another text whose default is another one
  };

  Kind kind = {};
  int row = 0;  ///< of the text table, counted from 1; 0 for none
  Text key = {};
  Text words = {};  ///< on one line
  /// Of one that is too long.
  struct Measured {
    Text widget;
    views::TextRoom room;
    int dpi;
  };
  std::optional<Measured> measured = {};
};

/// What a translator is to know of a text table: row by row, then what is missing, in the order of the dialog.
std::vector<TextFinding> FindingsOf(const MemoryTableRef& texts, const MeasureTexts& measure);

/// A text table with all keys of the dialog and their defaults, in the order of the dialog. A key with several defaults
/// has the first.
MemoryTableRef DefaultTexts();

}  // namespace ORXKMPrintProp::host
