#include "server/container.h"

#include <commctrl.h>

#include <array>

#include "automation/Variants.h"
#include "dialog/Dialog.h"
#include "views/win32/input.h"
#include "views/win32/windows_of.h"

namespace ORXKMPrintProp::test {

using automation::ComRef;

STDMETHODIMP Sink::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO* exception,
                          UINT*) {
  heard_ += name_ + std::to_string(id);
  for (UINT i = parameters->cArgs; i-- > 0;) heard_ += "," + ToString(automation::FromVariant(parameters->rgvarg[i]));
  heard_ += " ";
  const HRESULT result = act_ ? act_() : S_OK;
  if (result == DISP_E_EXCEPTION) {
    exception->scode = kFaultNumber;
    exception->bstrSource = ::SysAllocString(kFaultSource);
    exception->bstrDescription = ::SysAllocString(kFaultWords);
  }
  return result;
}

void InPlace::SetUp() {
  frame = ::CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 800, 600, nullptr, nullptr,
                            nullptr, nullptr);
  ASSERT_NE(frame, nullptr);
  Make();
}

void InPlace::TearDown() {
  Unmake();
  ::DestroyWindow(frame);
}

void InPlace::Make() {
  site = ComRef<Site>::Taken(new Site(frame, notes));
  control = component.NewControl();
  object = control.As<IOleObject>();
  ASSERT_EQ(object->SetClientSite(site.Get()), S_OK);
}

void InPlace::Unmake() {
  if (object) {
    object->Close(OLECLOSE_NOSAVE);
    object->SetClientSite(nullptr);
  }
  object = nullptr;
  control = nullptr;
  site = nullptr;
}

ComRef<IConnectionPoint> InPlace::Point() const {
  ComRef<IConnectionPoint> point;
  control.As<IConnectionPointContainer>()->FindConnectionPoint(__uuidof(__ORXQueryPrnProp), point.Out());
  return point;
}

DWORD InPlace::Connect(const std::string& name, std::function<HRESULT()> act) {
  const auto sink = ComRef<IDispatch>::Taken(new Sink(name, heard, std::move(act)));
  DWORD cookie = 0;
  EXPECT_EQ(Point()->Advise(sink.Get(), &cookie), S_OK);
  return cookie;
}

HWND InPlace::Window() const {
  HWND window = nullptr;
  if (control) control.As<IOleInPlaceObject>()->GetWindow(&window);
  return window;
}

HWND InPlace::WindowIn(HWND window, TextView widget) {
  static const Dialog alike;
  return win32::test::WindowsOf(window, alike).at(alike.FindSpelled(widget));
}

void InPlace::Use(HWND window, int entry) {
  std::array<wchar_t, 32> kind{};
  ::GetClassNameW(window, kind.data(), static_cast<int>(kind.size()));
  RECT place{};
  ::GetClientRect(window, &place);
  if (::lstrcmpiW(kind.data(), WC_TABCONTROLW) == 0) {
    const LONG share = place.right / SSTab::kTabs;
    place = {share * entry, 0, share * (entry + 1), 20};
  }
  if (::lstrcmpiW(kind.data(), WC_LISTBOXW) == 0) {
    ::SendMessageW(window, LB_GETITEMRECT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(&place));
  }
  win32::test::ClickAt(window, {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
  win32::test::Pump();
}

}  // namespace ORXKMPrintProp::test
