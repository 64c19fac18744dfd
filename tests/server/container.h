#pragma once

#include <gtest/gtest.h>
#include <ocidl.h>
#include <olectl.h>

#include <functional>
#include <string>

#include "automation/ComObject.h"
#include "server/served.h"

namespace ORXKMPrintProp::test {

/// A sink for the control's events that notes what it hears, and does something then.
class Sink final : public automation::ComObject<IDispatch> {
 public:
  Sink(std::string name, std::string& heard, std::function<HRESULT()> act = {})
      : name_(std::move(name)), heard_(heard), act_(std::move(act)) {}
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO* exception,
                      UINT*) override;

 private:
  std::string name_;
  std::string& heard_;
  std::function<HRESULT()> act_;
};

/// What a container notes of that the control tells, and does then.
struct Notes {
  HRESULT Add(const std::string& what) {
    told += what + " ";
    if (act) act(what);
    return S_OK;
  }
  std::string told;
  std::function<void(const std::string& what)> act;
};

/// A window of the container's that knows which object is active in it.
class Around final : public automation::ComObject<IOleInPlaceFrame> {
 public:
  Around(std::string name, Notes& notes) : name_(std::move(name)), notes_(notes) {}
  STDMETHODIMP GetWindow(HWND*) override { return E_NOTIMPL; }
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return S_OK; }
  STDMETHODIMP GetBorder(LPRECT) override { return INPLACE_E_NOTOOLSPACE; }
  STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
  STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
  STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) override {
    return notes_.Add((object ? "+" : "-") + name_);
  }
  STDMETHODIMP InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return E_NOTIMPL; }
  STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return E_NOTIMPL; }
  STDMETHODIMP RemoveMenus(HMENU) override { return E_NOTIMPL; }
  STDMETHODIMP SetStatusText(LPCOLESTR) override { return E_NOTIMPL; }
  STDMETHODIMP EnableModeless(BOOL enabled) override { return notes_.Add(enabled ? "+modeless" : "-modeless"); }
  STDMETHODIMP TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }

 private:
  std::string name_;
  Notes& notes_;
};

/// The least container: one window, no tools.
class Site final
    : public automation::ComObject<IOleClientSite, IOleInPlaceSite, IOleControlSite, IDispatch, IAdviseSink> {
 public:
  Site(HWND window, Notes& notes) : window_(window), notes_(notes) {}

  STDMETHODIMP SaveObject() override { return S_OK; }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  STDMETHODIMP GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
  STDMETHODIMP ShowObject() override { return S_OK; }
  STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
  STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }

  STDMETHODIMP GetWindow(HWND* result) override { return *result = window_, S_OK; }
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return S_OK; }
  STDMETHODIMP CanInPlaceActivate() override { return S_OK; }
  STDMETHODIMP OnInPlaceActivate() override { return notes_.Add("active"); }
  STDMETHODIMP OnUIActivate() override { return notes_.Add("ui"); }
  STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* position, RECT* clip,
                                OLEINPLACEFRAMEINFO*) override {
    *frame = hasFrame ? new Around("frame", notes_) : nullptr;
    *document = hasFrame ? new Around("document", notes_) : nullptr;
    *position = *clip = {10, 10, 660, 410};
    return S_OK;
  }
  STDMETHODIMP Scroll(SIZE) override { return S_OK; }
  STDMETHODIMP OnUIDeactivate(BOOL) override { return notes_.Add("no-ui"); }
  STDMETHODIMP OnInPlaceDeactivate() override { return notes_.Add("inactive"); }
  STDMETHODIMP DiscardUndoState() override { return S_OK; }
  STDMETHODIMP DeactivateAndUndo() override { return S_OK; }
  STDMETHODIMP OnPosRectChange(LPCRECT) override { return S_OK; }

  STDMETHODIMP OnControlInfoChanged() override { return S_OK; }
  STDMETHODIMP LockInPlaceActive(BOOL) override { return S_OK; }
  STDMETHODIMP GetExtendedControl(IDispatch**) override { return E_NOTIMPL; }
  STDMETHODIMP TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP TranslateAccelerator(MSG* message, DWORD) override {
    notes_.Add("key" + std::to_string(message->wParam));
    return takesKeys ? S_OK : S_FALSE;
  }
  STDMETHODIMP OnFocus(BOOL has) override { return notes_.Add(has ? "focus" : "no-focus"); }
  STDMETHODIMP ShowPropertyFrame() override { return notes_.Add("properties"); }

  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) override {
    if (id != DISPID_AMBIENT_USERMODE && id != DISPID_AMBIENT_UIDEAD) return DISP_E_MEMBERNOTFOUND;
    result->vt = VT_BOOL;
    result->boolVal = (id == DISPID_AMBIENT_USERMODE ? !isDesigned : isDead) ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
  }

  STDMETHODIMP_(void) OnDataChange(FORMATETC*, STGMEDIUM*) override {}
  STDMETHODIMP_(void) OnViewChange(DWORD, LONG) override { notes_.Add("seen"); }
  STDMETHODIMP_(void) OnRename(IMoniker*) override {}
  STDMETHODIMP_(void) OnSave() override {}
  STDMETHODIMP_(void) OnClose() override { notes_.Add("closed"); }

  bool isDesigned = false;
  bool isDead = false;
  bool takesKeys = true;
  bool hasFrame = false;

 private:
  HWND window_;
  Notes& notes_;
};

/// A container with the control in it, which is not active yet.
class InPlace : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
  void Make();
  void Unmake();
  void Load(const HostTables& tables) { ASSERT_EQ(tables.LoadInto(control.Get()), "True"); }
  automation::ComRef<IConnectionPoint> Point() const;
  DWORD Connect(const std::string& name, std::function<HRESULT()> act = {});
  HRESULT Do(LONG verb) { return object->DoVerb(verb, nullptr, site.Get(), 0, frame, nullptr); }

  /// The control's window, null while it has none.
  HWND Window() const;
  /// That of a widget of the control in that window.
  static HWND WindowIn(HWND window, TextView widget);
  HWND WindowOf(TextView widget) const { return WindowIn(Window(), widget); }
  /// Clicks a widget, or an entry of it, and waits for what comes of it.
  static void Use(HWND window, int entry = 0);
  void Use(TextView widget, int entry = 0) const { Use(WindowOf(widget), entry); }

  const Component component;
  HWND frame = nullptr;
  Notes notes;
  std::string heard;  ///< by the sinks
  automation::ComRef<Site> site;
  automation::ComRef<_ORXQueryPrnProp> control;
  automation::ComRef<IOleObject> object;
};

}  // namespace ORXKMPrintProp::test
