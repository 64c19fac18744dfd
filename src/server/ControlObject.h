#pragma once

#include <ocidl.h>

#include "ORXKMPrintProp.h"
#include "automation/ComRef.h"
#include "control/ORXQueryPrnProp.h"
#include "server/InPlaceControl.h"
#include "server/Sinks.h"

namespace ORXKMPrintProp::server {

/// The control as other programs have it: early-bound, late-bound, with sinks for its events.
///
/// What fails inside is the failure of the call, with the thread's error information; no exception goes out.
class ControlObject final : public InPlaceControl, private ORXQueryPrnPropEvents {
 public:
  ControlObject();

  STDMETHODIMP ORXSetPrnTables(IDispatch* GenPropTable, IDispatch* DimTable, IDispatch* MemTable, IDispatch* AtrTable,
                               VARIANT_BOOL* Loaded) override;
  STDMETHODIMP get_ORXGenPropTable(IDispatch** Table) override;
  STDMETHODIMP get_ORXDimTable(IDispatch** Table) override;
  STDMETHODIMP get_ORXMemTable(IDispatch** Table) override;
  STDMETHODIMP get_ORXAtrTable(IDispatch** Table) override;
  STDMETHODIMP ORXControlTexts(IDispatch* TextTable, VARIANT_BOOL* AlwaysFalse) override;
  STDMETHODIMP ORXSetPrintLayout(BSTR FBLayout, VARIANT ButtonID, BSTR CharIObjName, VARIANT* AlwaysEmpty) override;
  STDMETHODIMP ORXSetReadOnly(VARIANT_BOOL ReadOnly) override;

  STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) override;
  STDMETHODIMP FindConnectionPoint(REFIID id, IConnectionPoint** point) override;

  STDMETHODIMP GetClassInfo(ITypeInfo** info) override;
  STDMETHODIMP GetGUID(DWORD kind, GUID* id) override;

 private:
  ~ControlObject() override;
  Dialog& GetDialog() override { return control_.GetDialog(); }

  void ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) override;
  void ORXOrderChanged() override;

  HRESULT GiveTable(TableRef (ORXQueryPrnProp::*read)(), IDispatch** table) noexcept;

  automation::ComRef<Sinks> sinks_;
  ORXKMPrintProp::ORXQueryPrnProp control_;
};

}  // namespace ORXKMPrintProp::server
