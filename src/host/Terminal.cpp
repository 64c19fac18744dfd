#include "host/Terminal.h"

#include <algorithm>
#include <span>

#include "host/Utf8.h"

namespace ORXKMPrintProp::host {
namespace {

struct Range {
  char32_t first;
  char32_t last;
};

constexpr Range kNoWidth[] = {
    {0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x0610, 0x061A}, {0x064B, 0x065F}, {0x0900, 0x0902},
    {0x093C, 0x093C}, {0x0941, 0x0948}, {0x094D, 0x094D}, {0x0E31, 0x0E31}, {0x0E34, 0x0E3A}, {0x0E47, 0x0E4E},
    {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {0x200B, 0x200F}, {0x202A, 0x202E}, {0x2060, 0x2064}, {0x20D0, 0x20FF},
    {0x302A, 0x302D}, {0x3099, 0x309A}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0xFEFF, 0xFEFF}, {0xE0100, 0xE01EF},
};

constexpr Range kWide[] = {
    {0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0x33FF},   {0x3400, 0x4DBF},   {0x4E00, 0x9FFF}, {0xA000, 0xA4CF},
    {0xA960, 0xA97F},   {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6},
    {0x1F300, 0x1F64F}, {0x1F680, 0x1F6FF}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD},
};

bool IsIn(std::span<const Range> ranges, char32_t c) {
  const auto behind = std::upper_bound(ranges.begin(), ranges.end(), c,
                                       [](char32_t value, const Range& range) { return value < range.first; });
  return behind != ranges.begin() && c <= std::prev(behind)->last;
}

bool IsControl(char16_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == 0x2028 || c == 0x2029; }

}  // namespace

Text OneLine(TextView text) {
  Text line(text);
  std::replace_if(line.begin(), line.end(), IsControl, u' ');
  return line;
}

std::string OneLine(std::string_view utf8) { return ToUtf8(OneLine(FromUtf8(utf8))); }

int DisplayWidth(TextView text) {
  int width = 0;
  while (!text.empty()) {
    const char32_t c = TakeCodePoint(text);
    width += IsIn(kNoWidth, c) ? 0 : IsIn(kWide, c) ? 2 : 1;
  }
  return width;
}

}  // namespace ORXKMPrintProp::host
