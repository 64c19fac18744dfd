#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <vector>

#include "dialog/Lists.h"

namespace ORXKMPrintProp::ModPrnGen {

/// `Position` of the model item with that number. An entry with an ItemData of 0 or less stands for no item.
using PositionOf = std::function<std::int16_t(std::int32_t item)>;

/// The positions of a model's collection, which must live as long.
template <class Collection>
PositionOf PositionsIn(const Collection& items) {
  return [&items](std::int32_t item) { return items.Item(item)->Position(); };
}

/// Moves the selected entries of one list to the end of another, or to their sorted places if it is sorted. They
/// take their ItemData along, keep their order and are not selected there.
/// @return how many there were.
std::int16_t MoveSelectedItems(ListBox& Source, ListBox& Target);

/// Places entries so that a list or combo box stays in the order of `Position`, each ahead of the first entry whose
/// item has a greater one, in whatever order the entries stand. A list takes an equal position behind the others; a
/// combo box takes each position once. As long as one lives, nothing else may change the entries or the positions.
///
/// It goes about it without a walk for every entry: the first one with a greater position is always the greatest up
/// to itself, so the entries fall into stretches that each begin with a new greatest position.
class PositionInserter {
 public:
  /// @param positions none: entries are appended.
  PositionInserter(ListBox& list, PositionOf positions) : PositionInserter(list, std::move(positions), false) {}
  PositionInserter(ComboBox& combo, PositionOf positions) : PositionInserter(combo, std::move(positions), true) {}

  /// @return where the entry stands now, or the entry of a combo box that holds the position already.
  std::int16_t Insert(const Text& text, std::int32_t item);

 private:
  PositionInserter(EntryWidget& widget, PositionOf positions, bool once);

  /// How many entries stand ahead of the first one whose position is greater.
  std::int16_t EntriesUpTo(std::int32_t position) const;
  void CountEntry(std::int32_t stretch);

  EntryWidget& widget_;
  PositionOf positions_;
  bool once_;
  std::int32_t leading_ = 0;        ///< entries ahead of the first stretch
  std::vector<std::int32_t> sums_;  ///< partial sums of the lengths of the stretches, by their first position
  std::vector<bool> begins_;        ///< by position: a stretch begins with it
};

/// The numbers of the printed items, by position and then by number. Entries that are inserted in this order end up
/// where those in the order of the collection would, and each at the end of its list.
template <class Items>
std::vector<std::int32_t> PrintedByPosition(const Items& items) {
  std::vector<std::int32_t> numbers;
  std::int32_t number = 0;
  for (const auto& item : items) {
    ++number;
    if (!item->Hidden()) numbers.push_back(number);
  }
  std::stable_sort(numbers.begin(), numbers.end(), [&](std::int32_t a, std::int32_t b) {
    return items.Item(a)->Position() < items.Item(b)->Position();
  });
  return numbers;
}

/// The same with each position once, as combo boxes take them.
template <class Items>
std::vector<std::int32_t> PrintedOncePerPosition(const Items& items) {
  auto numbers = PrintedByPosition(items);
  const auto isSame = [&](std::int32_t a, std::int32_t b) {
    return items.Item(a)->Position() == items.Item(b)->Position();
  };
  numbers.erase(std::unique(numbers.begin(), numbers.end(), isSame), numbers.end());
  return numbers;
}

/// One entry by its position; see `PositionInserter` for many.
std::int16_t ListInsertByPosition(ListBox& List, const Text& ItemText, std::int32_t ItemNumber,
                                  const PositionOf& Items);
std::int16_t ComboInsertByPosition(ComboBox& Combo, const Text& ItemText, std::int32_t ItemNumber,
                                   const PositionOf& Items);

inline std::int16_t BoolToCheck(bool Value) { return Value ? 1 : 0; }
inline bool CheckToBool(std::int16_t Value) { return Value != 0; }

/// Lets the digits and Backspace through and sets every other key to 0, which drops it.
void FilterDigitKey(std::int16_t& KeyAscii);

}  // namespace ORXKMPrintProp::ModPrnGen
