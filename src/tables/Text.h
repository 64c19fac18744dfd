#pragma once

#include <string>
#include <string_view>

namespace ORXKMPrintProp {

/// Counted text of 16-bit characters; blanks and NULs in it are characters like any other.
using Text = std::u16string;
using TextView = std::u16string_view;

/// The text with "?" for every character outside ASCII.
inline std::string ToAscii(TextView text) {
  std::string ascii;
  ascii.reserve(text.size());
  for (const char16_t c : text) ascii += c < 0x80 ? static_cast<char>(c) : '?';
  return ascii;
}

}  // namespace ORXKMPrintProp
