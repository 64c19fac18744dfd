#pragma once

#include <cstdint>
#include <memory>
#include <utility>
#include <variant>

#include "tables/Text.h"

namespace ORXKMPrintProp {

class Variant;

/// What a variant can refer to: table objects, and values for which the library has no type of its own.
class Object {
 public:
  virtual ~Object() = default;

  enum class Wanted { Text, Number };
  /// The plain value, which is no object, that stands for this one where a text or a number is wanted. Table objects
  /// have none. @throws RunTimeError (Type) when there is none.
  virtual Variant PlainValue(Wanted wanted) const;
};
using ObjectRef = std::shared_ptr<Object>;

using PlainVariant = std::variant<std::monostate, bool, std::int16_t, std::int32_t, double, Text, ObjectRef>;

/// A cell, or an argument whose type the caller chooses. A default one is empty, which is not the empty text.
/// In what the library writes, a cell is a text or a 16-bit integer.
///
/// It is a `std::variant` but for the copy: there are standard libraries whose own leaves a variant that can't be
/// destroyed when memory runs out while a text is copied. Here the text is copied first and then moved in.
class Variant : public PlainVariant {
 public:
  using PlainVariant::PlainVariant;
  using PlainVariant::operator=;

  Variant() = default;
  Variant(const Variant& other) : PlainVariant(CopyOf(other)) {}
  Variant(Variant&&) noexcept = default;
  Variant& operator=(const Variant& other) {
    PlainVariant::operator=(CopyOf(other));
    return *this;
  }
  Variant& operator=(Variant&&) noexcept = default;
  ~Variant() = default;

 private:
  static PlainVariant CopyOf(const PlainVariant& other) {
    if (const Text* const text = std::get_if<Text>(&other)) return PlainVariant(std::in_place_type<Text>, *text);
    return other;
  }
};

}  // namespace ORXKMPrintProp
