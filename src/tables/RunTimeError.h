#pragma once

#include <cstddef>
#include <stdexcept>
#include <utility>

#include "tables/Text.h"

namespace ORXKMPrintProp {

enum class ErrorKind {
  Type,       ///< a value that can't be converted to what is asked for
  Overflow,   ///< a number that does not fit
  Index,      ///< a number outside the range of a list
  KeyExists,  ///< a key that is there already
  NoSuchKey,  ///< a key that is not there
  Object,     ///< no object where one is needed
  Table,      ///< a table object refused an operation
};

/// "type", "overflow", "index", "key" for both of them, "object", "table".
inline const char* NameOf(ErrorKind kind) {
  static constexpr const char* kNames[] = {"type", "overflow", "index", "key", "key", "object", "table"};
  return kNames[static_cast<std::size_t>(kind)];
}

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
