#pragma once

#include <windows.h>

#include "host/editor/Editor.h"

namespace ORXKMPrintProp::host {

/// Tells or asks in a window of its own, whose texts can be selected and copied, until it is answered.
/// @param owner null for none
Choice AskIn(HWND owner, const Question& question);

}  // namespace ORXKMPrintProp::host
