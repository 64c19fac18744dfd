#pragma once

#include <string>

#include "host/ExitStatus.h"

namespace ORXKMPrintProp::host {

enum class CheckOutcome {
  IsKeptWhole,
  LosesSomething,  ///< in a load and a read-back
  DoesNotLoad,
  IsNoDocument,
  CanNotBeRead,
  LeadsNowhere,  ///< a folder or a pattern without documents
};

/// What a check of one document has to say.
struct CheckReport {
  CheckOutcome outcome = {};
  std::string out = {};  ///< lines for standard output
  std::string err = {};  ///< lines for standard error
};

/// Checks the document. Any thread can do so.
/// @param json one line with an object, which has the error too; else text for a person.
CheckReport ReportOn(const std::string& path, bool json);

/// @param error one line with the path in it.
CheckReport ReportFailure(const std::string& path, CheckOutcome outcome, const std::string& error, bool json);

ExitStatus StatusOf(CheckOutcome outcome);

}  // namespace ORXKMPrintProp::host
