#pragma once

#include <string>

#include "Scene.h"

namespace ORXKMPrintProp::test {

/// What holds behind every action, whatever it was.
/// @return the name of the first check that fails and what it has found; empty when all hold.
std::string CheckInvariants(const Scene& scene, const Desk& desk);

}  // namespace ORXKMPrintProp::test
