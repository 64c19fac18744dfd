#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <utility>
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

/// Places entries so that a combo box stays in the order of `Position`, each ahead of the first entry whose item has a
/// greater one, in whatever order the entries stand. A position that the entry with the greatest one so far has is not
/// taken again. As long as one lives, nothing else may change the entries or the positions.
class PositionInserter {
 public:
  PositionInserter(ComboBox& combo, PositionOf positions);

  void Insert(const Text& text, std::int32_t item);

 private:
  ComboBox& combo_;
  PositionOf positions_;
  /// By entry: the greatest position up to it, which ascends. The first entry with a greater one than another is always
  /// where it rises above that.
  std::vector<std::int32_t> greatest_;
};

/// Appends an entry for the item; for a number of 0 or less it stands for none.
void AppendItem(EntryWidget& widget, Text text, std::int32_t item);

/// A printed item: its position, then its number.
using Printed = std::pair<std::int16_t, std::int32_t>;

/// The printed items, by position and then by number. Entries that are inserted in this order end up where those in the
/// order of the collection would, and each at the end of its list.
template <class Items>
std::vector<Printed> PrintedByPosition(const Items& items) {
  std::vector<Printed> printed;
  std::int32_t number = 0;
  for (const auto& item : items) {
    ++number;
    if (!item->Hidden()) printed.emplace_back(item->Position(), number);
  }
  std::sort(printed.begin(), printed.end());
  return printed;
}

/// The same with each position once, as combo boxes take them.
template <class Items>
std::vector<Printed> PrintedOncePerPosition(const Items& items) {
  auto printed = PrintedByPosition(items);
  const auto isSame = [](const Printed& a, const Printed& b) { return a.first == b.first; };
  printed.erase(std::unique(printed.begin(), printed.end(), isSame), printed.end());
  return printed;
}

inline std::int16_t BoolToCheck(bool Value) { return Value ? 1 : 0; }
inline bool CheckToBool(std::int16_t Value) { return Value != 0; }

/// Lets the digits and Backspace through and sets every other key to 0, which drops it.
void FilterDigitKey(std::int16_t& KeyAscii);

}  // namespace ORXKMPrintProp::ModPrnGen
