#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "ORXKMPrintProp.h"
#include "automation/ComRef.h"
#include "automation/foreign_objects.h"
#include "support/loaded.h"

namespace ORXKMPrintProp::test {

/// The component's file, loaded as the system does it.
class Component {
 public:
  Component();
  ~Component();
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;

  automation::ComRef<IClassFactory> Factory(const CLSID& id) const;
  automation::ComRef<_ORXQueryPrnProp> NewControl() const;
  bool CanUnloadNow() const { return Entry<HRESULT WINAPI()>("DllCanUnloadNow")() == S_OK; }
  HRESULT Register() const { return Entry<HRESULT WINAPI()>("DllRegisterServer")(); }
  HRESULT Unregister() const { return Entry<HRESULT WINAPI()>("DllUnregisterServer")(); }

 private:
  template <class Function>
  Function* Entry(const char* name) const {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(::GetProcAddress(module_, name)));
  }

  HMODULE module_;
};

/// The tables of a host, in the notation of table_text.h, for a control that is served.
struct HostTables {
  explicit HostTables(const Settings& settings, Known known = Known::AsTheyAre);
  /// "True", "False", or the error as `ErrorOf` tells it.
  std::string LoadInto(_ORXQueryPrnProp* control) const;

  Settings settings;
  std::shared_ptr<HostWatch> watch = std::make_shared<HostWatch>();
  automation::ComRef<IDispatch> gen, dim, mem, atr;
};

/// "0x800A0009 source: words", with what the thread's error information has.
std::string ErrorOf(HRESULT result);

}  // namespace ORXKMPrintProp::test
