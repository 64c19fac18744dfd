#include "tables/PackedText.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>
#include <stdexcept>

namespace ORXKMPrintProp {
namespace {

struct Far {
  const char16_t* characters;
  std::uint32_t length;
};
constexpr std::size_t kFarSize = sizeof(Far::characters) + sizeof(Far::length);

}  // namespace

PackedText::PackedText(TextView text) {
  if (text.size() <= kNear) {
    unsigned allBits = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
      allBits |= text[i];
      bytes_[i] = static_cast<unsigned char>(text[i]);
    }
    bytes_[kNear] = static_cast<unsigned char>(text.size());
    if (allBits <= 0xFF) return;
  }
  if (text.size() > std::numeric_limits<std::uint32_t>::max()) throw std::length_error("PackedText");
  char16_t* const characters = new char16_t[text.size()];
  std::copy(text.begin(), text.end(), characters);
  const Far far{characters, static_cast<std::uint32_t>(text.size())};
  static_assert(kFarSize <= kNear);
  std::memcpy(bytes_, &far, kFarSize);
  bytes_[kNear] = kFar;
}

PackedText::PackedText(const PackedText& other) {
  if (other.bytes_[kNear] == kFar) {
    *this = PackedText(other.FarText());
  } else {
    std::copy(std::begin(other.bytes_), std::end(other.bytes_), bytes_);
  }
}

PackedText::~PackedText() {
  if (bytes_[kNear] == kFar) delete[] FarText().data();
}

Text PackedText::Unpacked() const {
  if (bytes_[kNear] == kFar) return Text(FarText());
  char16_t wide[kNear + 1];
  std::copy(std::begin(bytes_), std::end(bytes_), wide);
  return Text(wide, bytes_[kNear]);
}

TextView PackedText::FarText() const {
  Far far{};
  std::memcpy(&far, bytes_, kFarSize);
  return {far.characters, far.length};
}

}  // namespace ORXKMPrintProp
