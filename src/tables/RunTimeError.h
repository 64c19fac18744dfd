#pragma once

#include <stdexcept>
#include <utility>

#include "tables/Text.h"

namespace ORXKMPrintProp {

enum class ErrorKind {
  Type,      ///< a value that can't be converted to what is asked for
  Overflow,  ///< a number that does not fit
  Index,     ///< a number outside the range of a list
  Key,       ///< a key that is not there, or there already
  Object,    ///< no object where one is needed
  Table,     ///< a table object refused an operation
};

/// The one failure of every operation in the library. It leaves the public operation that was called; the
/// state it leaves behind is told with each operation.
class RunTimeError : public std::runtime_error {
 public:
  RunTimeError(ErrorKind kind, Text message)
      : std::runtime_error(ToAscii(message)), kind_(kind), message_(std::move(message)) {}

  ErrorKind Kind() const noexcept { return kind_; }

  /// One line for a person; `what()` is the same in ASCII.
  const Text& Message() const noexcept { return message_; }

 private:
  ErrorKind kind_;
  Text message_;
};

}  // namespace ORXKMPrintProp
