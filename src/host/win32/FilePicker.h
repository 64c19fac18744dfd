#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "host/editor/Editor.h"

namespace ORXKMPrintProp::host {

/// Lets the user pick a settings document, as `EditorWindow::PickFile` says.
std::optional<std::string> PickFileIn(HWND owner, FileUse use, const std::string& proposed);

}  // namespace ORXKMPrintProp::host
