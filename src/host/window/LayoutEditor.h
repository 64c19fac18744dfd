#pragma once

#include <functional>
#include <optional>

#include "host/editor/Editor.h"

class QWidget;

namespace ORXKMPrintProp::host {

/// Lets the user edit a layout as plain text, or only look at it.
/// @param ask asks before what was typed is thrown away.
/// @return what it is now, none when the user has left it as it was.
std::optional<Text> EditLayout(const Text& name, const Text& layout, bool readOnly,
                               const std::function<Choice(const Question&)>& ask, QWidget* parent);

}  // namespace ORXKMPrintProp::host
