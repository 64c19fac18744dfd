#pragma once

#include <cstddef>
#include <utility>

#include "automation/ComObject.h"
#include "automation/Failures.h"

namespace ORXKMPrintProp::automation {

/// One of the system's enumerators.
/// @tparam Source can be copied, and has `Count()`, how many items there are now, `Give(place, given)` which makes one
/// with a reference of its own and may throw, and `TakeBack(given)` for one that was made in vain.
template <class Interface, class Given, class Source>
class Enumerator final : public ComObject<Interface> {
 public:
  explicit Enumerator(Source source, std::size_t next = 0) : source_(std::move(source)), next_(next) {}

  STDMETHODIMP Next(ULONG count, Given* given, ULONG* givenCount) override {
    if (!given || (!givenCount && count != 1)) return E_POINTER;
    if (givenCount) *givenCount = 0;
    ULONG made = 0;
    try {
      for (; made < count && next_ + made < source_.Count(); ++made) source_.Give(next_ + made, given[made]);
    } catch (...) {
      while (made > 0) source_.TakeBack(given[--made]);
      return CurrentFailure({}).number;
    }
    next_ += made;
    if (givenCount) *givenCount = made;
    return made == count ? S_OK : S_FALSE;
  }
  STDMETHODIMP Skip(ULONG count) override {
    // Items may have gone behind it.
    const std::size_t left = source_.Count() > next_ ? source_.Count() - next_ : 0;
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
      *copy = new Enumerator(source_, next_);
      return S_OK;
    } catch (...) {
      return CurrentFailure({}).number;
    }
  }

 private:
  Source source_;
  std::size_t next_;
};

}  // namespace ORXKMPrintProp::automation
