#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "tables/CaseFolding.h"
#include "tables/Conversions.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp {

/// Ordered list with item numbers from 1 and optional text keys, which compare regardless of upper and lower case.
template <class T>
class Collection {
 public:
  /// Appends; the new item's number is the new `Count`.
  /// @throws RunTimeError (KeyExists) when the key is there already; nothing is changed then.
  void Add(T item, std::optional<Text> key = {}) {
    if (!key) {
      items_.push_back(std::move(item));
    } else if (!TryAdd(std::move(item), *key)) {
      throw RunTimeError(ErrorKind::KeyExists, u"The key \"" + *key + u"\" is there already.");
    }
  }

  /// Appends unless the key is there already. @return whether it was not.
  bool TryAdd(T item, const Text& key) {
    if (!numbers_.try_emplace(key, items_.size()).second) return false;
    items_.push_back(std::move(item));
    return true;
  }

  /// Makes room for as many items with keys.
  void Reserve(std::size_t count) {
    items_.reserve(count);
    numbers_.reserve(count);
  }

  std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }

  /// @throws RunTimeError (Index) for a number outside 1 to `Count`.
  const T& Item(std::int32_t number) const { return items_[PlaceOf(number)]; }
  /// @throws RunTimeError (NoSuchKey) for a key that is not there.
  const T& Item(TextView key) const { return items_[PlaceOf(key)]; }
  /// The item of that key, or null.
  const T* Find(TextView key) const {
    const auto found = numbers_.find(key);
    return found == numbers_.end() ? nullptr : &items_[found->second];
  }

  /// Removes the item and closes the gap. Errors as for `Item`.
  void Remove(std::int32_t number) { RemoveAt(PlaceOf(number)); }
  void Remove(TextView key) { RemoveAt(PlaceOf(key)); }

  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

 private:
  std::size_t PlaceOf(std::int32_t number) const {
    if (number < 1 || number > Count()) {
      throw RunTimeError(ErrorKind::Index, u"There is no item " + ToText(number) + u", only " + ToText(Count()) + u".");
    }
    return static_cast<std::size_t>(number) - 1;
  }

  std::size_t PlaceOf(TextView key) const {
    const auto found = numbers_.find(key);
    if (found == numbers_.end()) {
      throw RunTimeError(ErrorKind::NoSuchKey, u"There is no item with the key \"" + Text(key) + u"\".");
    }
    return found->second;
  }

  void RemoveAt(std::size_t place) {
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(place));
    std::erase_if(numbers_, [&](const auto& key) { return key.second == place; });
    for (auto& [key, number] : numbers_) number -= number > place ? 1 : 0;
  }

  std::vector<T> items_;
  std::unordered_map<Text, std::size_t, FoldedHash, FoldedEqual> numbers_;  ///< key to place in `items_`
};

}  // namespace ORXKMPrintProp
