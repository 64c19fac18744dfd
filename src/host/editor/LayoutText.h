#pragma once

#include "host/editor/Editor.h"
#include "tables/Text.h"

// What every window in which a layout is edited does.

namespace ORXKMPrintProp::host {

/// How the text ends its lines: "\r\n" where it has any, else "\n".
TextView LineEndOf(TextView text);
/// The text with that in the place of each line end.
Text WithLineEnds(TextView text, TextView lineEnd);

/// Asked before a layout is thrown away that somebody has typed. The answer is Discard or Cancel.
Question LayoutIsThrownAway();

}  // namespace ORXKMPrintProp::host
