#pragma once

#include <cstdint>

#include "dialog/Dialog.h"
#include "model/PrnPropCls.h"

namespace ORXKMPrintProp {

// Shared: what the pages have selected, as item numbers; -1 for none, 0 before a page has shown anything.

/// In `Characteristics`: the characteristic whose settings the Characteristics page shows.
extern std::int16_t gCurChar;
/// In `Characteristics`: the characteristic whose attributes the Attributes page shows.
extern std::int16_t gCurAttrChar;
/// In its `Attributes`: the attribute whose settings are shown.
extern std::int16_t gCurAttr;
/// 1 or 2: the structure that the Structures page shows.
extern std::int16_t gCurStr;
/// In its `Elements`: the element whose settings are shown.
extern std::int16_t gCurStrElem;

/// What the pages of one dialog have in common. Page routines run only while there is a model.
struct PageState {
  Dialog& dialog;
  bool mReadOnly = false;
  bool loaded = false;  ///< the control has loaded tables

  PrnPropCls& Root() const { return *gPrnProp; }
  PrnCharCollCls& Characteristics() const { return Root().Characteristics(); }
};

}  // namespace ORXKMPrintProp
