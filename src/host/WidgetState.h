#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "control/ORXQueryPrnProp.h"

namespace ORXKMPrintProp::host {

/// "lstPrint(1)", "txtGenPrnTitle".
std::string NameOf(const WidgetName& name);

/// All that a user or a host can see of a widget.
nlohmann::ordered_json StateOf(const Widget& widget);

/// The same of the control itself.
nlohmann::ordered_json StateOf(ORXQueryPrnProp& control);

}  // namespace ORXKMPrintProp::host
