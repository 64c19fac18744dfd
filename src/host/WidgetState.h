#pragma once

#include <nlohmann/json_fwd.hpp>

#include "control/ORXQueryPrnProp.h"

namespace ORXKMPrintProp::host {

/// All that a user or a host can see of a widget.
nlohmann::ordered_json StateOf(const Widget& widget);

/// The same of the control itself.
nlohmann::ordered_json StateOf(ORXQueryPrnProp& control);

}  // namespace ORXKMPrintProp::host
