#include "automation/LateBound.h"

#include <dispex.h>

#include <utility>

#include "automation/Failures.h"

namespace ORXKMPrintProp::automation {
namespace {

struct MemberName {
  TextView name;
  DISPID id;  ///< in the contract of tables; unknown for members that it knows by name only
  bool isMethod = false;
};

constexpr MemberName kNames[] = {
    {u"RowCount", 1},
    {u"Rows", 6},
    {u"Columns", 4},
    {u"Add", DISPID_UNKNOWN, true},
    {u"RemoveAll", DISPID_UNKNOWN, true},
    {u"Item", DISPID_UNKNOWN},
    {u"Count", DISPID_UNKNOWN},
    {u"Value", DISPID_VALUE},
    {u"RowNumber", 3},
    {u"KeyColumn", DISPID_UNKNOWN},
    {u"Index", DISPID_UNKNOWN},
};
static_assert(std::size(kNames) == kMemberCount);

const MemberName& NameOf(Member member) { return kNames[static_cast<std::size_t>(member)]; }

/// How objects tell that they have no such member, or no names at all.
bool IsUnknown(HRESULT result) {
  return result == DISP_E_UNKNOWNNAME || result == DISP_E_MEMBERNOTFOUND || result == E_NOTIMPL;
}

HRESULT FindByName(const ComRef<IDispatch>& object, TextView name, DISPID& id) {
  const Bstr text(name);
  BSTR names[] = {text.Get()};
  HRESULT found = object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
  if (SUCCEEDED(found) && id == DISPID_UNKNOWN) found = DISP_E_UNKNOWNNAME;
  if (!IsUnknown(found)) return found;
  const auto extended = object.As<IDispatchEx>();
  return extended ? extended->GetDispID(text.Get(), fdexNameCaseInsensitive, &id) : found;
}

}  // namespace

LateBound::LateBound(ComRef<IDispatch> object, const std::shared_ptr<FoundMembers>& shared)
    : object_(std::move(object)), found_(shared) {
  if (!object_) throw RunTimeError(ErrorKind::Object, u"There is no object where one is needed.");
  if (object_.As<IDispatchEx>()) found_ = std::make_shared<FoundMembers>();
}

FoundMember& LateBound::Find(Member member) const {
  FoundMember& found = (*found_)[static_cast<std::size_t>(member)];
  if (found.id != DISPID_UNKNOWN || found.flags != 0) return found;
  const MemberName& name = NameOf(member);
  DISPID id = DISPID_UNKNOWN;
  const HRESULT result = FindByName(object_, name.name, id);
  if (IsUnknown(result) && name.id != DISPID_UNKNOWN) {
    id = name.id;
  } else {
    CheckCall(result, name.name);
  }
  const WORD get = DISPATCH_PROPERTYGET;
  found = {id, static_cast<WORD>(name.isMethod ? get | DISPATCH_METHOD : get)};
  return found;
}

HRESULT LateBound::Invoke(Member member, DISPID id, WORD flags, DISPPARAMS& parameters, VARIANT* result) const {
  EXCEPINFO exception{};
  const HRESULT called =
      object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result, &exception, nullptr);
  const bool isFine = SUCCEEDED(called) && !exception.bstrDescription && !exception.bstrSource;
  if (!isFine && called != DISP_E_MEMBERNOTFOUND) CheckCall(called, exception, NameOf(member).name);
  return called;
}

void LateBound::Call(Member member, std::span<VARIANT> arguments, VARIANT& result) const {
  FoundMember& found = Find(member);
  DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
  if (SUCCEEDED(Invoke(member, found.id, found.flags, parameters, &result))) return;
  // There are objects that have methods in the place of properties.
  constexpr WORD kBoth = DISPATCH_PROPERTYGET | DISPATCH_METHOD;
  if (found.flags == kBoth) CheckCall(DISP_E_MEMBERNOTFOUND, NameOf(member).name);
  CheckCall(Invoke(member, found.id, kBoth, parameters, &result), NameOf(member).name);
  found.flags = kBoth;
}

void LateBound::Put(Member member, std::span<VARIANT> arguments) const {
  DISPID property = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{arguments.data(), &property, static_cast<UINT>(arguments.size()), 1};
  CheckCall(Invoke(member, Find(member).id, DISPATCH_PROPERTYPUT, parameters, nullptr), NameOf(member).name);
}

ComRef<IEnumVARIANT> LateBound::Enumerator() const {
  DISPPARAMS none{};
  OwnedVariant result;
  EXCEPINFO exception{};
  const HRESULT called = object_->Invoke(DISPID_NEWENUM, IID_NULL, LOCALE_USER_DEFAULT,
                                         DISPATCH_PROPERTYGET | DISPATCH_METHOD, &none, &result, &exception, nullptr);
  if (IsUnknown(called)) return nullptr;
  CheckCall(called, exception, u"the enumerator");
  if (result.vt != VT_UNKNOWN && result.vt != VT_DISPATCH) return nullptr;
  return ComRef<IUnknown>(result.punkVal).As<IEnumVARIANT>();
}

}  // namespace ORXKMPrintProp::automation
