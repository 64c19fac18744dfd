#include "server/served.h"

#include <cstdio>

#include "automation/Variants.h"

namespace ORXKMPrintProp::test {

using automation::ComRef;

Component::Component() : module_((::CoInitialize(nullptr), ::LoadLibraryW(PRNPROP_COMPONENT))) {}

Component::~Component() {
  ::FreeLibrary(module_);
  ::CoUninitialize();
}

ComRef<IClassFactory> Component::Factory(const CLSID& id) const {
  ComRef<IClassFactory> factory;
  Entry<HRESULT WINAPI(const CLSID&, const IID&, void**)>("DllGetClassObject")(id, IID_IClassFactory,
                                                                               reinterpret_cast<void**>(factory.Out()));
  return factory;
}

ComRef<_ORXQueryPrnProp> Component::NewControl() const {
  ComRef<_ORXQueryPrnProp> control;
  Factory(__uuidof(::ORXQueryPrnProp))
      ->CreateInstance(nullptr, __uuidof(_ORXQueryPrnProp), reinterpret_cast<void**>(control.Out()));
  return control;
}

HostTables::HostTables(const Settings& settings_, Known known) : settings(settings_) {
  const auto made = [&](const TableRef& table) {
    return Foreign(MakeHostTable(std::dynamic_pointer_cast<MemoryTable>(table)), known, watch);
  };
  gen = made(settings.gen);
  dim = made(settings.dim);
  mem = made(settings.mem);
  atr = made(settings.atr);
}

std::string HostTables::LoadInto(_ORXQueryPrnProp* control) const {
  VARIANT_BOOL loaded = 17;
  const HRESULT result = control->ORXSetPrnTables(gen.Get(), dim.Get(), mem.Get(), atr.Get(), &loaded);
  if (SUCCEEDED(result)) return loaded == VARIANT_TRUE ? "True" : loaded == VARIANT_FALSE ? "False" : "?";
  EXPECT_EQ(loaded, VARIANT_FALSE);
  return ErrorOf(result);
}

std::string ErrorOf(HRESULT result) {
  char number[16];
  std::snprintf(number, sizeof number, "0x%08lX", static_cast<unsigned long>(result));
  ComRef<IErrorInfo> told;
  if (::GetErrorInfo(0, told.Out()) != S_OK) return number;
  BSTR source = nullptr, words = nullptr;
  told->GetSource(&source);
  told->GetDescription(&words);
  std::string text = number;
  text += " " + ToAscii(automation::ViewOf(source)) + ": " + ToAscii(automation::ViewOf(words));
  ::SysFreeString(source);
  ::SysFreeString(words);
  return text;
}

}  // namespace ORXKMPrintProp::test
