#include "host/Utf8.h"

#include <cstddef>

namespace ORXKMPrintProp::host {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsHighSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool IsLowSurrogate(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

/// The well-formed character at the head, its length in bytes in `length`; else U+FFFD and a length of 1.
char32_t Decode(std::string_view utf8, std::size_t& length) {
  static constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};  // by length; less is an overlong form
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  length = 1;
  const char32_t first = byte(0);
  if (first < 0x80) return first;
  const std::size_t wanted = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC0 || first > 0xF4 || utf8.size() < wanted) return kReplacement;
  char32_t c = first & (0x7Fu >> wanted);
  for (std::size_t i = 1; i < wanted; ++i) {
    if ((byte(i) & 0xC0u) != 0x80) return kReplacement;
    c = (c << 6) | (byte(i) & 0x3Fu);
  }
  if (c < smallest[wanted] || c > 0x10FFFF || IsHighSurrogate(c) || IsLowSurrogate(c)) return kReplacement;
  length = wanted;
  return c;
}

}  // namespace

char32_t TakeCodePoint(TextView& text) {
  const char32_t c = text.front();
  text.remove_prefix(1);
  if (IsLowSurrogate(c)) return kReplacement;
  if (!IsHighSurrogate(c)) return c;
  if (text.empty() || !IsLowSurrogate(text.front())) return kReplacement;
  const char32_t low = text.front();
  text.remove_prefix(1);
  return 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
}

std::string ToUtf8(TextView text) {
  std::string utf8;
  utf8.reserve(text.size());
  const auto add = [&](char32_t byte) { utf8 += static_cast<char>(byte); };
  while (!text.empty()) {
    const char32_t c = TakeCodePoint(text);
    if (c < 0x80) {
      add(c);
      continue;
    }
    if (c < 0x800) {
      add(0xC0 | (c >> 6));
    } else {
      if (c < 0x10000) {
        add(0xE0 | (c >> 12));
      } else {
        add(0xF0 | (c >> 18));
        add(0x80 | ((c >> 12) & 0x3F));
      }
      add(0x80 | ((c >> 6) & 0x3F));
    }
    add(0x80 | (c & 0x3F));
  }
  return utf8;
}

Text FromUtf8(std::string_view utf8) {
  Text text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    std::size_t length = 0;
    const char32_t c = Decode(utf8, length);
    utf8.remove_prefix(length);
    if (c < 0x10000) {
      text += static_cast<char16_t>(c);
    } else {
      text += static_cast<char16_t>(0xD7C0 + (c >> 10));
      text += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
    }
  }
  return text;
}

}  // namespace ORXKMPrintProp::host
