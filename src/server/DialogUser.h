#pragma once

#include <ole2.h>

namespace ORXKMPrintProp::server {

/// A user of the control's dialog, for programs that have to act as one where no window shows it. It is no member of
/// the control's interface and stands in no type library.
MIDL_INTERFACE("28A2D1C4-5F0E-4B6B-9C53-7E410D6A95E2") IDialogUser : public IUnknown {
  /// Does what a click on the widget does, which has to be on the page on top, visible and enabled; else nothing.
  /// @param widget as it is spelled: "lstPrint(1)". @param place which entry of a list, or which tab, from 0; of no
  /// meaning for buttons and check boxes.
  /// @return S_FALSE when a user could not do this; E_INVALIDARG for no such widget; the failure of a handler.
  virtual HRESULT STDMETHODCALLTYPE Use(BSTR widget, short place) = 0;
};

}  // namespace ORXKMPrintProp::server

#ifdef __CRT_UUID_DECL
__CRT_UUID_DECL(ORXKMPrintProp::server::IDialogUser, 0x28A2D1C4, 0x5F0E, 0x4B6B, 0x9C, 0x53, 0x7E, 0x41, 0x0D, 0x6A, 0x95,
                0xE2)
#endif
