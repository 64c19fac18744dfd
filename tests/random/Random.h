#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>

namespace ORXKMPrintProp::test {

/// The same numbers from the same seed on every platform, which the standard distributions do not promise.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next() {
    state_ += 0x9E3779B97F4A7C15u;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return mixed ^ (mixed >> 31);
  }

  /// 0 to `count` - 1; 0 for a count below 2.
  int Below(int count) { return count < 2 ? 0 : static_cast<int>((Next() >> 33) % static_cast<unsigned>(count)); }
  bool OneIn(int count) { return Below(count) == 0; }

  template <class Items>
  auto Of(const Items& items) -> decltype(*std::begin(items)) {
    return *(std::begin(items) + Below(static_cast<int>(std::size(items))));
  }
  template <class T>
  T Of(std::initializer_list<T> items) {
    return *(items.begin() + Below(static_cast<int>(items.size())));
  }

 private:
  std::uint64_t state_;
};

}  // namespace ORXKMPrintProp::test
