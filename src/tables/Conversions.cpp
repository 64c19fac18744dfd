#include "tables/Conversions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <system_error>
#include <type_traits>

#include "tables/RunTimeError.h"

namespace ORXKMPrintProp {
namespace {

Text Widened(const char* first, const char* last) { return Text(first, last); }

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The number that stands at the head of an ASCII text: sign, digits, period, digits, exponent.
struct HeadNumber {
  double value = 0;
  std::size_t length = 0;  ///< 0: there is no digit
};

/// How many digits a number that no double can hold has ahead of its point; what tells too large from too small.
std::int64_t Magnitude(const char* first, const char* last) {
  const char* const exponent = std::find_if(first, last, [](char c) { return c == 'e' || c == 'E'; });
  const char* const point = std::find(first, exponent, '.');
  const char* const leading = std::find_if(first, exponent, [](char c) { return c >= '1' && c <= '9'; });
  if (leading == exponent) return 0;
  std::int32_t shift = 0;
  if (exponent != last) {
    const char* const digits = exponent + (exponent[1] == '+' ? 2 : 1);
    if (std::from_chars(digits, last, shift).ec == std::errc::result_out_of_range) {
      shift = *digits == '-' ? std::numeric_limits<std::int32_t>::min() : std::numeric_limits<std::int32_t>::max();
    }
  }
  return std::int64_t{point - leading} + shift;
}

HeadNumber ReadHead(const std::string& text) {
  std::size_t end = 0;
  const auto skipDigits = [&] {
    const std::size_t begin = end;
    while (end < text.size() && IsDigit(text[end])) ++end;
    return end - begin;
  };
  const auto at = [&](std::size_t i) { return i < text.size() ? text[i] : '\0'; };

  const bool negative = at(0) == '-';
  if (negative || at(0) == '+') ++end;
  const std::size_t start = end;
  std::size_t digits = skipDigits();
  if (at(end) == '.') {
    ++end;
    digits += skipDigits();
  }
  if (digits == 0) return {};
  if (at(end) == 'e' || at(end) == 'E') {
    const std::size_t mantissa = end++;
    if (at(end) == '+' || at(end) == '-') ++end;
    if (skipDigits() == 0) end = mantissa;
  }

  const char* const first = text.data() + start;
  const char* const last = text.data() + end;
  double value = 0;
  if (std::from_chars(first, last, value).ec == std::errc::result_out_of_range) {
    value = Magnitude(first, last) > 0 ? std::numeric_limits<double>::infinity() : 0.0;
  }
  return {negative ? -value : value, end};
}

/// None for what does not fit into 16 bits, which includes what is not a number at all.
std::optional<std::int16_t> TryRounded(double number) {
  double whole = std::floor(number);
  const double fraction = number - whole;
  if (fraction > 0.5 || (fraction == 0.5 && std::fmod(whole, 2) != 0)) whole += 1;
  if (!(whole >= std::numeric_limits<std::int16_t>::min() && whole <= std::numeric_limits<std::int16_t>::max())) {
    return {};
  }
  return static_cast<std::int16_t>(whole);
}

std::int16_t Rounded(double number) {
  if (const auto whole = TryRounded(number)) return *whole;
  throw RunTimeError(ErrorKind::Overflow, u"The number " + ToText(Variant(number)) + u" does not fit into 16 bits.");
}

double LeadingValue(TextView text) {
  std::string head;
  for (const char16_t c : text) {
    if (c == u' ') continue;
    if (c >= 0x80) break;
    head += static_cast<char>(c);
  }
  return ReadHead(head).value;
}

template <class... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

}  // namespace

Variant Object::PlainValue(Wanted wanted) const {
  throw RunTimeError(ErrorKind::Type, Text(u"An object cannot be a ") + (wanted == Wanted::Text ? u"text." : u"number."));
}

Variant PlainValueOf(const ObjectRef& object, Object::Wanted wanted) {
  static const Object none;
  return (object ? *object : none).PlainValue(wanted);
}

Text ToText(std::int32_t number) {
  char digits[16];
  return Widened(digits, std::to_chars(digits, std::end(digits), number).ptr);
}

Text TextOfOther(const Variant& value) {
  return std::visit(
      Overloaded{
          [](std::monostate) { return Text(); },
          [](bool flag) { return Text(flag ? u"True" : u"False"); },
          [](std::int16_t number) { return ToText(std::int32_t{number}); },
          [](std::int32_t number) { return ToText(number); },
          [](double number) {
            char digits[512];  // the largest double has 309 digits, the smallest 326 behind the point
            return Widened(digits, std::to_chars(digits, std::end(digits), number, std::chars_format::fixed).ptr);
          },
          [](const Text& text) { return text; },
          [](const ObjectRef& object) { return ToText(PlainValueOf(object, Object::Wanted::Text)); },
      },
      value);
}

std::int16_t ToInteger(const Variant& value) {
  return std::visit(Overloaded{
                        [](std::monostate) -> std::int16_t {
                          throw RunTimeError(ErrorKind::Type, u"An empty cell is not a number.");
                        },
                        [](bool flag) { return static_cast<std::int16_t>(flag ? -1 : 0); },
                        [](std::int16_t number) { return number; },
                        [](std::int32_t number) { return ToInteger16(number); },
                        [](double number) { return Rounded(number); },
                        [](const Text& text) {
                          if (const auto number = TryNumber(text)) return Rounded(*number);
                          throw RunTimeError(ErrorKind::Type, u"The text \"" + text + u"\" is not a number.");
                        },
                        [](const ObjectRef& object) {
                          return ToInteger(PlainValueOf(object, Object::Wanted::Number));
                        },
                    },
                    value);
}

std::int16_t LeadingNumber(TextView text) { return Rounded(LeadingValue(text)); }

std::optional<double> TryNumber(TextView text) {
  const auto first = std::min(text.find_first_not_of(u' '), text.size());
  const TextView trimmed = text.substr(first, text.find_last_not_of(u' ') + 1 - first);
  const HeadNumber head = ReadHead(ToAscii(trimmed));
  if (head.length == 0 || head.length != trimmed.size()) return {};
  return head.value;
}

std::optional<std::int16_t> TryInteger(TextView text) {
  const auto number = TryNumber(text);
  return number ? TryRounded(*number) : std::nullopt;
}

std::optional<std::int16_t> TryLeadingNumber(TextView text) { return TryRounded(LeadingValue(text)); }

std::int16_t ToInteger16(std::int32_t number) {
  if (number < std::numeric_limits<std::int16_t>::min() || number > std::numeric_limits<std::int16_t>::max()) {
    throw RunTimeError(ErrorKind::Overflow, u"The number " + ToText(number) + u" does not fit into 16 bits.");
  }
  return static_cast<std::int16_t>(number);
}

}  // namespace ORXKMPrintProp
