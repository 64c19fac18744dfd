#pragma once

#include <cstddef>

#include "automation/ComObject.h"
#include "automation/Failures.h"
#include "automation/Variants.h"

namespace ORXKMPrintProp::automation {

/// What a late-bound call hands in, in the order of the member's declaration.
class Arguments {
 public:
  explicit Arguments(const DISPPARAMS& parameters) : parameters_(parameters) {}
  std::size_t Count() const { return parameters_.cArgs; }
  const VARIANT& operator[](std::size_t place) const { return parameters_.rgvarg[Count() - 1 - place]; }

 private:
  const DISPPARAMS& parameters_;
};

/// A member of an object that other programs call late-bound.
template <class Class>
struct DispatchMember {
  const wchar_t* name;
  DISPID id;
  WORD flags;  ///< DISPATCH_PROPERTYGET, _PROPERTYPUT or _METHOD
  std::size_t fewest, most;
  /// @param result is empty. Whatever it throws is the failure of the call.
  void (Class::*call)(const Arguments& arguments, VARIANT& result);
};

/// An object that is called late-bound and has no type library. `Class::kMembers` is the table of its members,
/// `Class::kSource` what a host is told as the source of its failures.
template <class Class>
class DispatchObject : public ComObject<IDispatch> {
 public:
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
    if (info) *info = nullptr;
    return E_NOTIMPL;
  }

  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR** names, UINT count, LCID, DISPID* ids) override {
    if (!names || !ids) return E_POINTER;
    for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    for (const auto& member : Class::kMembers) {
      // Names of arguments, which stand behind that of the member, are not known.
      if (count == 1 && ::lstrcmpiW(member.name, names[0]) == 0) {
        ids[0] = member.id;
        return S_OK;
      }
    }
    return DISP_E_UNKNOWNNAME;
  }

  STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* exception, UINT*) override {
    if (!parameters) return E_POINTER;
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    const bool sets = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    if (parameters->cNamedArgs > (sets ? 1u : 0u)) return DISP_E_NONAMEDARGS;
    HRESULT failure = DISP_E_MEMBERNOTFOUND;
    for (const auto& member : Class::kMembers) {
      if (member.id != id || (member.flags == DISPATCH_PROPERTYPUT) != sets) continue;
      failure = DISP_E_BADPARAMCOUNT;
      if (parameters->cArgs < member.fewest || parameters->cArgs > member.most) continue;
      const ComRef<IDispatch> held(this);
      try {
        OwnedVariant unused;
        if (result) result->vt = VT_EMPTY;
        (static_cast<Class*>(this)->*member.call)(Arguments(*parameters), result ? *result : unused);
        return S_OK;
      } catch (...) {
        return TellFailure(Class::kSource, exception);
      }
    }
    return failure;
  }
};

}  // namespace ORXKMPrintProp::automation
