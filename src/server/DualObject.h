#pragma once

#include <ole2.h>

#include "ORXKMPrintProp.h"
#include "automation/ComObject.h"
#include "automation/ComRef.h"
#include "automation/InProcServer.h"

namespace ORXKMPrintProp::server {

/// An object with an early-bound interface that is called late-bound through the type library.
/// @tparam Default extends `IDispatch`.
template <class Default, class... Others>
class DualObject : public automation::ComObject<Default, ISupportErrorInfo, Others...> {
 public:
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    if (!count) return E_POINTER;
    *count = 1;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT which, LCID, ITypeInfo** info) override {
    if (!info) return E_POINTER;
    *info = nullptr;
    return which == 0 ? types_.GetTypeInfoOfGuid(__uuidof(Default), info) : DISP_E_BADINDEX;
  }
  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR** names, UINT count, LCID language, DISPID* ids) override {
    automation::ComRef<ITypeInfo> info;
    const HRESULT found = GetTypeInfo(0, language, info.Out());
    return FAILED(found) ? found : info->GetIDsOfNames(names, count, ids);
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID language, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* exception, UINT* argument) override {
    automation::ComRef<ITypeInfo> info;
    const HRESULT found = GetTypeInfo(0, language, info.Out());
    if (FAILED(found)) return found;
    // Script languages differ in which of the two they ask for.
    constexpr WORD kCall = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    const WORD all = static_cast<WORD>((flags & kCall) ? flags | kCall : flags);
    const automation::ComRef<IUnknown> held(this->Identity());
    ::SetErrorInfo(0, nullptr);
    return info->Invoke(static_cast<Default*>(this), id, all, parameters, result, exception, argument);
  }

  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID id) override { return id == __uuidof(Default) ? S_OK : S_FALSE; }

 protected:
  void* FindBase(REFIID id) override { return id == IID_IDispatch ? static_cast<IDispatch*>(this) : nullptr; }
  ITypeLib& Types() const { return types_; }

 private:
  ITypeLib& types_ = automation::OwnTypeLibrary();
};

}  // namespace ORXKMPrintProp::server
