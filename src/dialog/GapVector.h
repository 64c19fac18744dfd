#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace ORXKMPrintProp {

/// A sequence in which inserting and taking next to the place of the last change costs no more than at the end:
/// the room for new elements is a gap that moves to where it is needed.
template <class T>
class GapVector {
 public:
  std::size_t size() const { return slots_.size() - (gapEnd_ - gapBegin_); }

  T& operator[](std::size_t place) { return slots_[SlotOf(place)]; }
  const T& operator[](std::size_t place) const { return slots_[SlotOf(place)]; }

  /// Puts an element in, at a place from 0 to `size`, which is its place from now on.
  void Insert(std::size_t place, T value) {
    if (gapBegin_ == gapEnd_) Grow();
    MoveGap(place);
    slots_[gapBegin_++] = std::move(value);
  }

  /// Takes the element out. The next insertion needs no memory.
  T Take(std::size_t place) {
    if (place + 1 == gapBegin_) return std::exchange(slots_[--gapBegin_], T());
    MoveGap(place);
    return std::exchange(slots_[gapEnd_++], T());
  }

  void Clear() {
    slots_.clear();
    gapBegin_ = gapEnd_ = 0;
  }

 private:
  std::size_t SlotOf(std::size_t place) const { return place < gapBegin_ ? place : place + (gapEnd_ - gapBegin_); }

  void MoveGap(std::size_t place) {
    if (gapBegin_ == gapEnd_) {
      gapBegin_ = gapEnd_ = place;
      return;
    }
    const auto slot = [this](std::size_t i) { return slots_.begin() + static_cast<std::ptrdiff_t>(i); };
    if (place < gapBegin_) {
      std::move_backward(slot(place), slot(gapBegin_), slot(gapEnd_));
    } else {
      std::move(slot(gapEnd_), slot(gapEnd_ + (place - gapBegin_)), slot(gapBegin_));
    }
    gapEnd_ = gapEnd_ - gapBegin_ + place;
    gapBegin_ = place;
  }

  void Grow() {
    const std::size_t count = slots_.size();
    MoveGap(count);
    slots_.resize(std::max<std::size_t>(8, 2 * count));
    gapBegin_ = count;
    gapEnd_ = slots_.size();
  }

  std::vector<T> slots_;
  std::size_t gapBegin_ = 0;
  std::size_t gapEnd_ = 0;
};

}  // namespace ORXKMPrintProp
