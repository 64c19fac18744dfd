#pragma once

#include "tables/PrnEnums.h"
#include "tables/Text.h"

/// Each pair converts between the text of a coded cell and a model value. Texts compare exactly: no trimming, no
/// case folding. A decoder never fails, a text that it does not know gives its default; an encoder writes a fixed
/// code for a value outside the enumeration.
namespace ORXKMPrintProp::ModPrnGen {

bool FlagFromCell(TextView cell);
Text FlagToCell(bool value);

/// Reads "X" and "Y" as True, writes "Y".
bool AxisFromCell(TextView cell);
Text AxisToCell(bool value);

PP_ValuePresentation PresentationFromCell(TextView cell);
Text PresentationToCell(PP_ValuePresentation value);

PP_Alignment AlignFromCell(TextView cell);
Text AlignToCell(PP_Alignment value);

PP_PrnDirection DirectionFromCell(TextView cell);
Text DirectionToCell(PP_PrnDirection value);

/// The codes run the other way from the values: "2" is 0, "1" is 1.
PP_SumPosit SumPositFromCell(TextView cell);
Text SumPositToCell(PP_SumPosit value);

/// The code is the value plus one.
PP_SignPrsnt SignPrsntFromCell(TextView cell);
Text SignPrsntToCell(PP_SignPrsnt value);

PP_CurUnitPosition CurUnitPositionFromCell(TextView cell);
Text CurUnitPositionToCell(PP_CurUnitPosition value);

PP_NoSums NoSumsFromCell(TextView cell);
Text NoSumsToCell(PP_NoSums value);

}  // namespace ORXKMPrintProp::ModPrnGen
