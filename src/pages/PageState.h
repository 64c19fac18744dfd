#pragma once

#include <cstdint>
#include <functional>

#include "dialog/Dialog.h"
#include "model/PrnPropCls.h"
#include "tables/TableOperation.h"
#include "texts/LookupText.h"

namespace ORXKMPrintProp {

/// What the pages of one dialog have in common.
struct PageState {
  Dialog& dialog;
  /// Whether the pages can act: there is a model, and they show it. Fills them if they show another.
  std::function<bool()> isReady;
  /// Raises the event `ORXOrderChanged`. @return False when other settings have been loaded in it: what was to be done
  /// further was about settings that are gone.
  std::function<bool()> orderChanged;
  bool mReadOnly = false;
  bool loaded = false;  ///< the control has loaded tables

  // What is selected, as item numbers; -1 for none, 0 before a page has shown anything.

  std::int16_t curChar = 0;      ///< in `Characteristics`, on the Characteristics page
  std::int16_t curAttrChar = 0;  ///< in `Characteristics`: whose attributes the Attributes page shows
  std::int16_t curAttr = 0;      ///< in its `Attributes`
  std::int16_t curStr = 0;       ///< 1 or 2: the structure that the Structures page shows
  std::int16_t curStrElem = 0;   ///< in its `Elements`

  PrnPropCls& Root() const { return *gPrnProp; }
  PrnCharCollCls& Characteristics() const { return Root().Characteristics(); }

  /// The text for that key. @throws Overtaken when the text table has loaded other settings: the rest of what was to be
  /// shown is about settings that are gone.
  static Text LookUp(TextView key, TextView text) {
    const TableOperation operation;
    Text found = ModPrnGen::LookupText(key, text);
    TableOperation::CheckNotOvertaken();
    return found;
  }

  /// The handler of a widget's event, which does nothing while the pages can't act.
  template <class Handler>
  auto WhenReady(Handler handler) const {
    return [this, handler](auto... arguments) {
      if (isReady()) handler(arguments...);
    };
  }
};

}  // namespace ORXKMPrintProp
