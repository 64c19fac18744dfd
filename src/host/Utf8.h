#pragma once

#include <string>
#include <string_view>

#include "tables/Text.h"

namespace ORXKMPrintProp::host {

/// A surrogate without its partner becomes U+FFFD.
std::string ToUtf8(TextView text);

/// Every byte that belongs to no well-formed character becomes U+FFFD.
Text FromUtf8(std::string_view utf8);

/// Takes one code point off the head of a text that is not empty; a surrogate without its partner gives U+FFFD.
char32_t TakeCodePoint(TextView& text);

}  // namespace ORXKMPrintProp::host
