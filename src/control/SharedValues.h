#pragma once

// The values that exist once for the whole program, not once per control. Each is declared in the folder that
// gives it its meaning; two live controls share them all, and the last load wins for both.

#include "model/PrnPropCls.h"  // IWYU pragma: export  gPrnProp, gErrorText, gAttrRowIndex
#include "texts/TextTable.h"   // IWYU pragma: export  gTextTable
