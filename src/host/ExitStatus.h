#pragma once

namespace ORXKMPrintProp::host {

/// What the program ends with. Of several documents that are checked, the greatest counts.
enum ExitStatus : int {
  kSuccess = 0,
  kLoss = 1,     ///< a document loses something in a load, or does not load
  kUsage = 2,    ///< the command line is not understood
  kBadFile = 3,  ///< a file can't be read or written, or is not a valid document

  // Of the command that compares two documents, as such commands end; with `kUsage` beside them.
  kSame = 0,
  kDifferent = 1,
  kTrouble = 2,  ///< whatever fails
};

}  // namespace ORXKMPrintProp::host
