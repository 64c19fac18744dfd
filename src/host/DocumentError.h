#pragma once

#include <stdexcept>
#include <string>

namespace ORXKMPrintProp::host {

/// A file that can't be read, written, or is not a valid settings document. `what()` is one line with all that is
/// known of the place: "FILE: dimension, row 3, column AXIS: REASON".
class DocumentError : public std::runtime_error {
 public:
  struct Place {
    std::string file = {};
    std::string table = {};   ///< empty: the document as a whole
    int row = 0;              ///< counted from 1, 0 for none
    std::string column = {};  ///< empty for none
  };

  DocumentError(const Place& place, const std::string& reason);
};

}  // namespace ORXKMPrintProp::host
