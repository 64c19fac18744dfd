#pragma once

#include <cstdint>
#include <utility>

#include "tables/PackedText.h"
#include "tables/Text.h"

namespace ORXKMPrintProp {

/// A read and write property of a model class: `c.Title()` reads, `c.Title(u"x")` writes. It checks nothing and
/// has no side effect. It starts as the zero value of its type.
template <class T>
class Property {
 public:
  const T& operator()() const { return value_; }
  void operator()(T value) { value_ = std::move(value); }

 private:
  T value_{};
};

/// A text is handed out as a copy, since it is kept packed.
template <>
class Property<Text> {
 public:
  Text operator()() const { return value_.Unpacked(); }
  void operator()(TextView value) { value_ = PackedText(value); }

 private:
  PackedText value_;
};

using TextProperty = Property<Text>;
using FlagProperty = Property<bool>;
using NumberProperty = Property<std::int16_t>;

}  // namespace ORXKMPrintProp
