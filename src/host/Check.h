#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace ORXKMPrintProp::host {

/// Shows for each document what a load and a read-back would change in it.
/// @param json one object per file, a line each, in which also errors are told.
/// @param err gets a line for each file that can't be read or is not a valid document.
/// @return the worst of: 0 nothing is lost, 1 something is or the load fails, 3 no valid document.
int Check(const std::vector<std::string>& files, bool json, std::ostream& out, std::ostream& err);

}  // namespace ORXKMPrintProp::host
