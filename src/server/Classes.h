#pragma once

#include "automation/InProcServer.h"

namespace ORXKMPrintProp::server {

/// The component: the control and `PrnEnums`.
const automation::InProcServer& Server();

}  // namespace ORXKMPrintProp::server
