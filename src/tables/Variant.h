#pragma once

#include <cstdint>
#include <memory>
#include <variant>

#include "tables/Text.h"

namespace ORXKMPrintProp {

/// What a variant can refer to; table objects are the only kind that the library knows.
class Object {
 public:
  virtual ~Object() = default;
};
using ObjectRef = std::shared_ptr<Object>;

/// A cell, or an argument whose type the caller chooses. A default one is empty, which is not the empty text.
/// In what the library writes, a cell is a text or a 16-bit integer.
using Variant = std::variant<std::monostate, bool, std::int16_t, std::int32_t, double, Text, ObjectRef>;

}  // namespace ORXKMPrintProp
