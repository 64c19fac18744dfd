#pragma once

#include <string_view>

#include "tables/Text.h"

namespace ORXKMPrintProp::host {

/// The words that stand between the dialog's own captions where changes are told; in English unless they are replaced.
/// In a sentence {0}, {1} and {2} are what is named beside it, which a translation may put in any order.
struct DifferenceWords {
  // Of a setting: its caption {0}, what it was {1}, what it is now {2}.
  Text changed = u"{0}: {1} is now {2}";
  Text itemChanged = u"{0} {1} is now {2}";  ///< in the line of an item, behind its name
  Text set = u"{0} is now {2}";              ///< where there was nothing before that could be named
  Text on = u"{0} is now on";
  Text off = u"{0} is now off";
  Text notAutomatic = u"{0} is now {2}, no longer automatic";
  Text layoutChanged = u"{0} has another layout";
  Text layoutNew = u"{0} has a layout now";
  Text layoutGone = u"{0} has no layout any more";
  Text ofColumn = u"{0} {1}";  ///< a column's caption, the caption of a setting of that column
  Text inFrame = u"{0}, {1}";  ///< a frame's caption, the caption of a setting in it
  Text below = u"{0}, {1}";    ///< a characteristic or a structure, something of it
  Text quoted = u"'{0}'";

  // Values that have no caption.
  Text nothing = u"empty";
  Text automatic = u"automatic";
  Text inHeading = u"in the heading";

  // Of an item {0}: places count from 1, {1} is the item ahead.
  Text moved = u"{0}: from place {1} to {2}";
  Text printedBehind = u"{0} is printed again, behind {1}";
  Text printedFirst = u"{0} is printed again, at the first place";
  Text notPrinted = u"{0} is no longer printed";
  Text newBehind = u"{0} is new, behind {1}";
  Text newFirst = u"{0} is new, at the first place";
  Text newHidden = u"{0} is new, not printed";
  Text gone = u"{0} is gone";
  Text called = u"was called {1}";  ///< {1} its former name
  Text nameless = u"(no name)";

  // What no page shows.
  Text hierarchy = u"hierarchy";
  Text version = u"version of the hierarchy";
  Text dateTo = u"end of the hierarchy's validity";
  Text position = u"position";
};

/// @param language by ISO 639. For an unknown one the words are English.
const DifferenceWords& DifferenceWordsIn(std::string_view language);

}  // namespace ORXKMPrintProp::host
