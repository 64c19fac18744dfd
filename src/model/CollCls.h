#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "tables/Collection.h"

namespace ORXKMPrintProp {

/// What the model's three collections have in common: items in the order in which they were added, by item number
/// from 1. The system removes none, so an item number stays valid as long as the model lives.
template <class Item_>
class CollCls {
 public:
  using ItemRef = std::shared_ptr<Item_>;

  void AddItemAsObj(ItemRef objNewMember) { items_.Add(std::move(objNewMember)); }

  /// By number or key. @throws RunTimeError (Index, NoSuchKey) for what is not there.
  template <class NumberOrKey>
  const ItemRef& Item(const NumberOrKey& vntIndexKey) const {
    return items_.Item(vntIndexKey);
  }
  std::int32_t Count() const { return items_.Count(); }
  /// Errors as for `Item`.
  template <class NumberOrKey>
  void Remove(const NumberOrKey& vntIndexKey) {
    items_.Remove(vntIndexKey);
  }

  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

 protected:
  Collection<ItemRef> items_;
};

}  // namespace ORXKMPrintProp
