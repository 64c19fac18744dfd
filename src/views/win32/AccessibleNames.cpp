#include "views/win32/AccessibleNames.h"

#include "views/win32/WindowsText.h"

namespace ORXKMPrintProp::win32 {

AccessibleNames::AccessibleNames() {
  ::CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                     reinterpret_cast<void**>(&services_));
}

AccessibleNames::~AccessibleNames() {
  if (services_) services_->Release();
}

void AccessibleNames::Give(HWND window, const Text& name) {
  if (!services_) return;
  services_->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_NAME,
                            ToWide(name).c_str());
  ::NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, window, OBJID_CLIENT, CHILDID_SELF);
}

void AccessibleNames::Forget(HWND window) {
  if (!services_) return;
  MSAAPROPID name = PROPID_ACC_NAME;
  services_->ClearHwndProps(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, &name, 1);
}

}  // namespace ORXKMPrintProp::win32
