#include "server/ControlObject.h"

#include <olectl.h>

#include "automation/DispatchTable.h"
#include "automation/Variants.h"
#include "views/win32/WindowsPlatform.h"

namespace ORXKMPrintProp::server {

using namespace automation;

ControlObject::ControlObject()
    : sinks_(ComRef<Sinks>::Taken(new Sinks(*this))), control_(win32::WindowsPlatform::Instance()) {
  control_.Connect(*this);
}

ControlObject::~ControlObject() {
  End();
  control_.Disconnect(*this);
  sinks_->Close();
  ::CoFreeUnusedLibraries();
}

STDMETHODIMP ControlObject::ORXSetPrnTables(IDispatch* GenPropTable, IDispatch* DimTable, IDispatch* MemTable,
                                            IDispatch* AtrTable, VARIANT_BOOL* Loaded) {
  if (!Loaded) return E_POINTER;
  *Loaded = VARIANT_FALSE;
  return Call([&] {
    const bool loaded = control_.ORXSetPrnTables(DispatchTable::Of(GenPropTable), DispatchTable::Of(DimTable),
                                                 DispatchTable::Of(MemTable), DispatchTable::Of(AtrTable));
    *Loaded = loaded ? VARIANT_TRUE : VARIANT_FALSE;
    DialogChanged();
    return S_OK;
  });
}

HRESULT ControlObject::GiveTable(TableRef (ORXQueryPrnProp::*read)(), IDispatch** table) noexcept {
  if (!table) return E_POINTER;
  *table = nullptr;
  return Call([&] {
    if (const TableRef given = (control_.*read)()) {
      *table = ComRef(static_cast<DispatchTable&>(*given).Host()).Detach();
    }
    return S_OK;
  });
}

STDMETHODIMP ControlObject::get_ORXGenPropTable(IDispatch** Table) {
  return GiveTable(&ORXKMPrintProp::ORXQueryPrnProp::ORXGenPropTable, Table);
}
STDMETHODIMP ControlObject::get_ORXDimTable(IDispatch** Table) {
  return GiveTable(&ORXKMPrintProp::ORXQueryPrnProp::ORXDimTable, Table);
}
STDMETHODIMP ControlObject::get_ORXMemTable(IDispatch** Table) {
  return GiveTable(&ORXKMPrintProp::ORXQueryPrnProp::ORXMemTable, Table);
}
STDMETHODIMP ControlObject::get_ORXAtrTable(IDispatch** Table) {
  return GiveTable(&ORXKMPrintProp::ORXQueryPrnProp::ORXAtrTable, Table);
}

STDMETHODIMP ControlObject::ORXControlTexts(IDispatch* TextTable, VARIANT_BOOL* AlwaysFalse) {
  if (!AlwaysFalse) return E_POINTER;
  *AlwaysFalse = VARIANT_FALSE;
  return Call([&] {
    control_.ORXControlTexts(DispatchTable::Of(TextTable));
    DialogChanged();
    return S_OK;
  });
}

STDMETHODIMP ControlObject::ORXSetPrintLayout(BSTR FBLayout, VARIANT ButtonID, BSTR CharIObjName,
                                              VARIANT* AlwaysEmpty) {
  if (!AlwaysEmpty) return E_POINTER;
  ::VariantInit(AlwaysEmpty);
  return Call([&] {
    control_.ORXSetPrintLayout(TextOf(FBLayout), PlainFromVariant(ButtonID), TextOf(CharIObjName));
    return S_OK;
  });
}

STDMETHODIMP ControlObject::ORXSetReadOnly(VARIANT_BOOL ReadOnly) {
  return Call([&] {
    control_.ORXSetReadOnly(ReadOnly != VARIANT_FALSE);
    DialogChanged();
    return S_OK;
  });
}

STDMETHODIMP ControlObject::EnumConnectionPoints(IEnumConnectionPoints** points) {
  if (!points) return E_POINTER;
  *points = nullptr;
  return Call([&] {
    *points = EnumOf(ComRef<IConnectionPoint>(sinks_.Get())).Detach();
    return S_OK;
  });
}

STDMETHODIMP ControlObject::FindConnectionPoint(REFIID id, IConnectionPoint** point) {
  if (!point) return E_POINTER;
  *point = id == __uuidof(__ORXQueryPrnProp) ? ComRef(sinks_).Detach() : nullptr;
  return *point ? S_OK : CONNECT_E_NOCONNECTION;
}

STDMETHODIMP ControlObject::GetClassInfo(ITypeInfo** info) {
  if (!info) return E_POINTER;
  *info = nullptr;
  return Types().GetTypeInfoOfGuid(__uuidof(::ORXQueryPrnProp), info);
}

STDMETHODIMP ControlObject::GetGUID(DWORD kind, GUID* id) {
  if (!id) return E_POINTER;
  *id = kind == GUIDKIND_DEFAULT_SOURCE_DISP_IID ? __uuidof(__ORXQueryPrnProp) : GUID{};
  return kind == GUIDKIND_DEFAULT_SOURCE_DISP_IID ? S_OK : E_INVALIDARG;
}

void ControlObject::ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) {
  const Bstr name(CharIObjName);
  VARIANT arguments[2];
  arguments[0].vt = VT_BSTR;
  arguments[0].bstrVal = name.Get();
  arguments[1].vt = VT_I2;
  arguments[1].iVal = ButtonID;
  sinks_->Raise(1, arguments, 2);
}

void ControlObject::ORXOrderChanged() { sinks_->Raise(2, nullptr, 0); }

}  // namespace ORXKMPrintProp::server
