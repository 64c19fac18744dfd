#pragma once

#include "server/DualObject.h"

namespace ORXKMPrintProp::server {

/// The class that holds the public enumerations, which stand in the type library. It has no members.
class EnumsObject final : public DualObject<_PrnEnums> {};

}  // namespace ORXKMPrintProp::server
