#pragma once

#include <ole2.h>

#include "automation/LiveObjects.h"

namespace ORXKMPrintProp::automation {

/// An object over these interfaces, which counts its references. It lives on the thread that has made it and starts
/// with one reference, which is its maker's.
template <class... Interfaces>
class ComObject : public Interfaces... {
 public:
  ComObject() = default;
  ComObject(const ComObject&) = delete;
  ComObject& operator=(const ComObject&) = delete;

  STDMETHODIMP QueryInterface(REFIID id, void** result) override {
    if (!result) return E_POINTER;
    *result = id == IID_IUnknown ? Identity() : Find(id);
    if (!*result) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    if (references_ > 1) return --references_;
    // The last one stays: what the end calls may take and release references of its own.
    delete this;
    return 0;
  }

 protected:
  virtual ~ComObject() = default;

  /// By an interface that one of these extends, none by default.
  virtual void* FindBase(REFIID) { return nullptr; }

  template <class First, class...>
  struct FirstOf {
    using Type = First;
  };
  IUnknown* Identity() { return static_cast<typename FirstOf<Interfaces...>::Type*>(this); }

 private:
  void* Find(REFIID id) {
    void* found = nullptr;
    ((id == __uuidof(Interfaces) && (found = static_cast<Interfaces*>(this))), ...);
    return found ? found : FindBase(id);
  }

  LiveObjects live_;
  ULONG references_ = 1;
};

}  // namespace ORXKMPrintProp::automation
