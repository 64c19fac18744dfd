#include "host/DocumentError.h"

#include "host/Terminal.h"

namespace ORXKMPrintProp::host {
namespace {

std::string Line(const DocumentError::Place& place, const std::string& reason) {
  std::string where = place.table;
  if (place.row > 0) where += ", row " + std::to_string(place.row);
  if (!place.column.empty()) where += ", column " + place.column;
  return OneLine(place.file + ": " + (where.empty() ? "" : where + ": ") + reason);
}

}  // namespace

DocumentError::DocumentError(const Place& place, const std::string& reason) : std::runtime_error(Line(place, reason)) {}

}  // namespace ORXKMPrintProp::host
