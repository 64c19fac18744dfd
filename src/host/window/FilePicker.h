#pragma once

#include <optional>
#include <string>

#include "host/editor/Editor.h"

class QWidget;

namespace ORXKMPrintProp::host {

/// Lets the user pick a settings document, as `EditorWindow::PickFile` says.
std::optional<std::string> PickFileIn(QWidget* parent, FileUse use, const std::string& proposed);

}  // namespace ORXKMPrintProp::host
