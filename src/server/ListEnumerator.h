#pragma once

#include <cstddef>
#include <new>
#include <utility>
#include <vector>

#include "automation/ComObject.h"

namespace ORXKMPrintProp::server {

/// One of the system's enumerators over items that are known from the start.
/// @tparam Copy makes of an item what the enumerator gives, with a reference of its own.
template <class Interface, class Item, class Given, Given (*Copy)(const Item&)>
class ListEnumerator final : public automation::ComObject<Interface> {
 public:
  explicit ListEnumerator(std::vector<Item> items, std::size_t next = 0) : items_(std::move(items)), next_(next) {}

  STDMETHODIMP Next(ULONG count, Given* given, ULONG* givenCount) override {
    if (!given || (!givenCount && count != 1)) return E_POINTER;
    ULONG made = 0;
    for (; made < count && next_ < items_.size(); ++made) given[made] = Copy(items_[next_++]);
    if (givenCount) *givenCount = made;
    return made == count ? S_OK : S_FALSE;
  }
  STDMETHODIMP Skip(ULONG count) override {
    const std::size_t left = items_.size() - next_;
    next_ += count < left ? count : left;
    return count <= left ? S_OK : S_FALSE;
  }
  STDMETHODIMP Reset() override {
    next_ = 0;
    return S_OK;
  }
  STDMETHODIMP Clone(Interface** copy) override {
    if (!copy) return E_POINTER;
    *copy = nullptr;
    try {
      *copy = new ListEnumerator(items_, next_);
      return S_OK;
    } catch (const std::bad_alloc&) {
      return E_OUTOFMEMORY;
    }
  }

 private:
  std::vector<Item> items_;
  std::size_t next_;
};

}  // namespace ORXKMPrintProp::server
