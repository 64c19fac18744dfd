#include "automation/foreign_objects.h"

#include <dispex.h>

#include <algorithm>
#include <span>
#include <utility>

#include "automation/Variants.h"
#include "support/table_text.h"
#include "tableserver/TableObjects.h"

namespace ORXKMPrintProp::test {

using namespace automation;

namespace {

/// A member, its number in the contract of tables, and that which it has in a script's object.
struct MemberNumbers {
  const wchar_t* name;
  DISPID contract;
  DISPID script;
};
constexpr MemberNumbers kOfTable[] = {{L"RowCount", 1, 6}, {L"Rows", 6, 4}, {L"Columns", 4, 1}};
constexpr MemberNumbers kOfRow[] = {{L"Value", 0, 3}, {L"RowNumber", 3, 0}};
/// Ahead of the numbers of objects that are known by names alone.
constexpr DISPID kOwnNumbers = 1000;

DISPID NumberOf(IDispatch* object, const wchar_t* name) {
  DISPID id = DISPID_UNKNOWN;
  OLECHAR* names[] = {const_cast<OLECHAR*>(name)};
  object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
  return id;
}

/// An object under a watch, which counts its references.
template <class Interface, class Inner>
class Seen : public Interface {
 public:
  Seen(ComRef<Inner> object, Known known, std::shared_ptr<HostWatch> watch)
      : object_(std::move(object)), known_(known), watch_(std::move(watch)) {
    ++watch_->alive;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 protected:
  virtual ~Seen() { --watch_->alive; }

  HRESULT Give(void** result, bool has) {
    *result = has ? this : nullptr;
    if (has) AddRef();
    return has ? S_OK : E_NOINTERFACE;
  }
  /// @return whether the call is to go wrong.
  bool Fails(std::string call) {
    watch_->calls.push_back(std::move(call));
    if (watch_->act) watch_->act();
    return watch_->calls.size() == watch_->failAt;
  }
  HRESULT GoWrong(VARIANT* result, EXCEPINFO* exception) const {
    if (watch_->fault == Fault::WrongType && result) {
      result->vt = VT_ARRAY | VT_I2;
      result->parray = ::SafeArrayCreateVector(VT_I2, 0, 1);
      return S_OK;
    }
    if (watch_->fault == Fault::NoObject && result) {
      result->vt = VT_DISPATCH;
      result->pdispVal = nullptr;
      return S_OK;
    }
    if (watch_->fault == Fault::Exception && exception) {
      exception->scode = kFaultNumber;
      exception->bstrSource = ::SysAllocString(kFaultSource);
      exception->bstrDescription = ::SysAllocString(kFaultWords);
      return DISP_E_EXCEPTION;
    }
    return kBareNumber;
  }
  void See(VARIANT& value) const;

  ComRef<Inner> object_;
  Known known_;
  std::shared_ptr<HostWatch> watch_;
  ULONG references_ = 1;
};

class ForeignRows final : public Seen<IEnumVARIANT, IEnumVARIANT> {
 public:
  using Seen::Seen;
  STDMETHODIMP QueryInterface(REFIID id, void** result) override {
    return Give(result, id == IID_IUnknown || id == __uuidof(IEnumVARIANT));
  }
  STDMETHODIMP Next(ULONG count, VARIANT* rows, ULONG* given) override {
    if (Fails("Next")) {
      const HRESULT result = GoWrong(rows, nullptr);
      *given = SUCCEEDED(result) ? 1 : 0;
      return result;
    }
    // To give fewer than it is asked for is not the end.
    const HRESULT result = object_->Next(std::min(count, ULONG{3}), rows, given);
    for (ULONG i = 0; i < *given; ++i) See(rows[i]);
    return result;
  }
  STDMETHODIMP Skip(ULONG) override { return E_NOTIMPL; }
  STDMETHODIMP Reset() override { return E_NOTIMPL; }
  STDMETHODIMP Clone(IEnumVARIANT**) override { return E_NOTIMPL; }
};

class ForeignObject final : public Seen<IDispatchEx, IDispatch> {
 public:
  ForeignObject(ComRef<IDispatch> object, Known known, std::shared_ptr<HostWatch> watch)
      : Seen(std::move(object), known, std::move(watch)) {
    if (NumberOf(object_.Get(), L"RowCount") != DISPID_UNKNOWN) numbers_ = kOfTable;
    if (NumberOf(object_.Get(), L"RowNumber") != DISPID_UNKNOWN) numbers_ = kOfRow;
  }

  STDMETHODIMP QueryInterface(REFIID id, void** result) override {
    return Give(result, id == IID_IUnknown || id == IID_IDispatch || (IsOfScript() && id == __uuidof(IDispatchEx)));
  }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }

  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR** names, UINT, LCID, DISPID* ids) override {
    *ids = DISPID_UNKNOWN;
    const Text name(names[0], names[0] + ::lstrlenW(names[0]));
    if (Fails("?" + ToAscii(name))) return GoWrong(nullptr, nullptr);
    if (IsOfScript()) return E_NOTIMPL;
    const DISPID id = NumberOf(object_.Get(), names[0]);
    const bool isHidden = known_ == Known::ByNumbers && Numbers(&MemberNumbers::contract, id);
    if (id == DISPID_UNKNOWN || isHidden) return DISP_E_UNKNOWNNAME;
    *ids = known_ == Known::ByNames ? id + kOwnNumbers : id;
    return S_OK;
  }
  STDMETHODIMP GetDispID(BSTR name, DWORD, DISPID* id) override {
    *id = NumberOf(object_.Get(), name);
    if (const MemberNumbers* const member = Numbers(&MemberNumbers::contract, *id)) *id = member->script;
    return *id == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
  }

  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                      EXCEPINFO* exception, UINT*) override {
    if (id == DISPID_NEWENUM && IsOfScript()) return DISP_E_MEMBERNOTFOUND;
    if (known_ == Known::ByNames && id != DISPID_NEWENUM) id -= kOwnNumbers;
    const MemberNumbers* const renumbered = IsOfScript() ? Numbers(&MemberNumbers::script, id) : nullptr;
    if (renumbered) id = renumbered->contract;
    if (Fails(CallOf(id, *parameters))) return GoWrong(result, exception);
    // A script's object has methods in the place of properties.
    if (IsOfScript() && !(flags & (DISPATCH_METHOD | DISPATCH_PROPERTYPUT))) return DISP_E_MEMBERNOTFOUND;
    const HRESULT called = object_->Invoke(id, IID_NULL, 0, flags, parameters, result, exception, nullptr);
    if (SUCCEEDED(called) && result) See(*result);
    return called;
  }

  STDMETHODIMP InvokeEx(DISPID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, IServiceProvider*) override {
    return E_NOTIMPL;
  }
  STDMETHODIMP DeleteMemberByName(BSTR, DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP DeleteMemberByDispID(DISPID) override { return E_NOTIMPL; }
  STDMETHODIMP GetMemberProperties(DISPID, DWORD, DWORD*) override { return E_NOTIMPL; }
  STDMETHODIMP GetMemberName(DISPID, BSTR*) override { return E_NOTIMPL; }
  STDMETHODIMP GetNextDispID(DWORD, DISPID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP GetNameSpaceParent(IUnknown**) override { return E_NOTIMPL; }

 private:
  bool IsOfScript() const { return known_ == Known::AsScriptsHave; }
  const MemberNumbers* Numbers(DISPID MemberNumbers::*number, DISPID id) const {
    const auto found =
        std::find_if(numbers_.begin(), numbers_.end(), [&](const auto& member) { return member.*number == id; });
    return found == numbers_.end() ? nullptr : &*found;
  }
  std::string CallOf(DISPID id, const DISPPARAMS& parameters) const {
    if (id == DISPID_NEWENUM) return "_NewEnum";
    const MemberNumbers* const member = Numbers(&MemberNumbers::contract, id);
    if (!member) return "list or column " + std::to_string(id);
    const std::wstring_view name = member->name;
    std::string call(name.begin(), name.end());
    if (id != DISPID_VALUE) return call;
    return call + "(" + ToAscii(TextOf(parameters.rgvarg[parameters.cArgs - 1].bstrVal)) + ")";
  }

  std::span<const MemberNumbers> numbers_;
};

template <class Interface, class Inner>
void Seen<Interface, Inner>::See(VARIANT& value) const {
  if (value.vt == VT_DISPATCH && value.pdispVal) {
    value.pdispVal = Foreign(ComRef<IDispatch>::Taken(value.pdispVal), known_, watch_).Detach();
  } else if (value.vt == VT_UNKNOWN && value.punkVal) {
    auto rows = ComRef<IUnknown>::Taken(value.punkVal).As<IEnumVARIANT>();
    value.punkVal = new ForeignRows(std::move(rows), known_, watch_);
  }
}

}  // namespace

ComRef<IDispatch> Foreign(ComRef<IDispatch> object, Known known, std::shared_ptr<HostWatch> watch) {
  return ComRef<IDispatch>::Taken(new ForeignObject(std::move(object), known, std::move(watch)));
}

ComRef<IDispatch> MakeHostTable(std::shared_ptr<MemoryTable> table) {
  return ComRef<IUnknown>::Taken(tableserver::MakeTable(std::move(table))).As<IDispatch>();
}

}  // namespace ORXKMPrintProp::test
