#pragma once

#include <ole2.h>

#include <cstddef>
#include <utility>

namespace ORXKMPrintProp::automation {

/// A counted reference to a component object, or none.
template <class Interface>
class ComRef {
 public:
  ComRef() = default;
  ComRef(std::nullptr_t) {}
  explicit ComRef(Interface* object) : object_(object) {
    if (object_) object_->AddRef();
  }
  ComRef(const ComRef& other) : ComRef(other.object_) {}
  ComRef(ComRef&& other) noexcept : object_(other.Detach()) {}
  ComRef& operator=(ComRef other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComRef() {
    if (object_) object_->Release();
  }

  /// The caller's reference becomes this one.
  static ComRef Taken(Interface* object) {
    ComRef taken;
    taken.object_ = object;
    return taken;
  }
  /// This reference becomes the caller's.
  Interface* Detach() { return std::exchange(object_, nullptr); }

  Interface* Get() const { return object_; }
  Interface* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  /// Where a call puts an object; there is none now.
  Interface** Out() { return &object_; }

  /// The same object by another interface, none when it does not have that.
  template <class Other>
  ComRef<Other> As() const {
    ComRef<Other> other;
    if (object_) object_->QueryInterface(__uuidof(Other), reinterpret_cast<void**>(other.Out()));
    return other;
  }

 private:
  Interface* object_ = nullptr;
};

}  // namespace ORXKMPrintProp::automation
