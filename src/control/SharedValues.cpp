#include "control/SharedValues.h"

#include <utility>

namespace ORXKMPrintProp {

thread_local bool gTabSetup = false;

void ReleaseSharedValues() {
  gPrnProp.reset();
  gTextTable.reset();
}

SharedValuesGuard::SharedValuesGuard()
    : root_(std::exchange(gPrnProp, nullptr)),
      attrRowIndex_(std::exchange(gAttrRowIndex, nullptr)),
      textTable_(std::exchange(gTextTable, nullptr)),
      errorText_(std::exchange(gErrorText, {})),
      operation_(TableOperation::Exchange(nullptr)) {}

SharedValuesGuard::~SharedValuesGuard() {
  // The end of a root releases the row index, whose ever it is.
  gPrnProp = std::move(root_);
  gAttrRowIndex = std::move(attrRowIndex_);
  gTextTable = std::move(textTable_);
  gErrorText = std::move(errorText_);
  TableOperation::Exchange(operation_);
}

}  // namespace ORXKMPrintProp
