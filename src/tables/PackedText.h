#pragma once

#include <cstddef>
#include <utility>

#include "tables/Text.h"

namespace ORXKMPrintProp {

/// How a text is kept where there are many: in half the size of a `Text`. Up to 15 characters of Latin-1, as most names
/// and codes are, stand in it; any other text has memory of its own.
class alignas(void*) PackedText {
 public:
  PackedText() = default;
  explicit PackedText(TextView text);
  PackedText(const PackedText& other);
  PackedText(PackedText&& other) noexcept { std::swap(bytes_, other.bytes_); }
  PackedText& operator=(PackedText other) noexcept {
    std::swap(bytes_, other.bytes_);
    return *this;
  }
  ~PackedText();

  Text Unpacked() const;

 private:
  static constexpr std::size_t kNear = 15;          ///< the most characters that stand in it
  static constexpr unsigned char kFar = kNear + 1;  ///< the length of what does not

  TextView FarText() const;

  unsigned char bytes_[kNear + 1] = {};  ///< the characters, or where they are and how many, and behind them the length
};

}  // namespace ORXKMPrintProp
