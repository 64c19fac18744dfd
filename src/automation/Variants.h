#pragma once

#include <ole2.h>

#include <utility>

#include "automation/ComRef.h"
#include "tables/Variant.h"

// The values of automation and those of the library, both ways.

namespace ORXKMPrintProp::automation {

/// A text of automation that ends with this object.
class Bstr {
 public:
  explicit Bstr(TextView text);
  /// The caller's text becomes this one.
  static Bstr Taken(BSTR text) { return Bstr(text); }
  Bstr(Bstr&& other) noexcept : text_(other.Detach()) {}
  Bstr& operator=(Bstr other) noexcept {
    std::swap(text_, other.text_);
    return *this;
  }
  ~Bstr() { ::SysFreeString(text_); }

  BSTR Get() const { return text_; }
  /// For a call that takes a reference, and may put another text in the place of this one.
  BSTR* Place() { return &text_; }
  BSTR Detach() { return std::exchange(text_, nullptr); }

 private:
  explicit Bstr(BSTR text) : text_(text) {}
  BSTR text_;
};

/// The whole text, NUL characters in it included; none is the empty text.
Text TextOf(BSTR text);

/// The same without a copy, as long as the text lives.
TextView ViewOf(BSTR text);

/// A variant of automation that ends with this object. It starts empty.
class OwnedVariant : public VARIANT {
 public:
  OwnedVariant() : VARIANT() {}
  OwnedVariant(const OwnedVariant&) = delete;
  OwnedVariant& operator=(const OwnedVariant&) = delete;
  ~OwnedVariant() {
    if (vt != VT_EMPTY) ::VariantClear(this);
  }
};

/// A value of a host as it is, above all of a type that the library does not have: a large number, currency, decimal,
/// date, null, error, object.
/// What stands for it is what the platform converts it to: numbers to a text without regard to the user's language,
/// a date as his language has it. Null, errors and objects have nothing that stands for them.
class HostValue final : public Object {
 public:
  /// A copy of the value. @throws std::bad_alloc
  explicit HostValue(const VARIANT& value);
  Variant PlainValue(Wanted wanted) const override;
  const VARIANT& Get() const { return value_; }

 private:
  OwnedVariant value_;
};

/// The same value for the library; a reference gives what it refers to.
/// @throws RunTimeError (Type) for an array, and for what automation has no conversion for.
Variant FromVariant(const VARIANT& value);

/// As `FromVariant`, where a value is wanted: an object gives its default member's.
/// @throws RunTimeError (Object) for no object; the failure of the object, (Type) when it has no such member.
Variant PlainFromVariant(const VARIANT& value);

/// The same value for automation. @param result is empty.
/// @throws RunTimeError (Type) for an object that is no value of a host.
void ToVariant(const Variant& value, VARIANT& result);

/// The object that the value holds, none for an empty value, for null and for no object.
/// @throws RunTimeError (Type) for a value that is none, or an object that can't be called late-bound.
ComRef<IDispatch> ObjectOf(const VARIANT& value);

}  // namespace ORXKMPrintProp::automation
