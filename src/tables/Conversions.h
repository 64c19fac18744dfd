#pragma once

#include <cstdint>
#include <optional>
#include <utility>
#include <variant>

#include "tables/Variant.h"

/// @file
/// The plain conversions between cells, texts and 16-bit integers. Each fails with RunTimeError: Type for a value
/// that cannot be what is asked for, Overflow for a number outside -32,768 to 32,767. Fractions round to the
/// nearest whole number, ties to the even one.

namespace ORXKMPrintProp {

/// What `ToText` gives for a value that is not a text.
Text TextOfOther(const Variant& value);

/// The value as a text: a text unchanged, blanks included; a number in decimal digits, a double in as few as give
/// it back; a Boolean "True" or "False"; an empty value the empty text; an object what it has for a text.
/// @throws RunTimeError (Type) for an object that has nothing.
inline Text ToText(Variant&& value) {
  Text* const text = std::get_if<Text>(&value);
  return text ? std::move(*text) : TextOfOther(value);
}

/// The same where it stands: a value that is not a text becomes one.
inline const Text& AsText(Variant& value) {
  if (!std::holds_alternative<Text>(value)) value = TextOfOther(value);
  return *std::get_if<Text>(&value);
}

/// What stands for the object where a text or a number is wanted. @throws RunTimeError (Type), also for none.
Variant PlainValueOf(const ObjectRef& object, Object::Wanted wanted);

/// A whole number in decimal digits, with a minus sign if negative.
Text ToText(std::int32_t number);

/// A number of any type, a Boolean (True is -1, False 0), or a text of which the whole is a number: blanks around
/// it, a sign, a period as decimal point and an exponent are read, nothing else; an object what it has for a number.
/// @throws RunTimeError (Type) for an empty value, an empty text, a text that is not a number, an object that has
/// nothing.
std::int16_t ToInteger(const Variant& value);

/// The longest number at the head of the text, 0 if there is no digit. Blanks are skipped wherever they stand.
std::int16_t LeadingNumber(TextView text);

/// The same where there is nobody to fail to: none for what `ToInteger` and `LeadingNumber` refuse.
std::optional<std::int16_t> TryInteger(TextView text);
std::optional<std::int16_t> TryLeadingNumber(TextView text);

/// The number that the whole text is by the rules of `ToInteger`, of any size and unrounded.
std::optional<double> TryNumber(TextView text);

/// The number as a row number, item number or list index. @throws RunTimeError (Overflow)
std::int16_t ToInteger16(std::int32_t number);

}  // namespace ORXKMPrintProp
