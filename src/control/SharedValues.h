#pragma once

// The values that exist once for the whole program, not once per control. Each is declared in the folder that
// gives it its meaning; two live controls share them all, and the last load wins for both.

#include "dialog/DialogFont.h"  // IWYU pragma: export  gDefaultFontName
#include "model/PrnPropCls.h"   // IWYU pragma: export  gPrnProp, gErrorText, gAttrRowIndex
#include "texts/LookupText.h"   // IWYU pragma: export  gTextTable

namespace ORXKMPrintProp {

/// While True, tab changes are ignored: a control is being started.
extern thread_local bool gTabSetup;

}  // namespace ORXKMPrintProp
