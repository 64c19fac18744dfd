#pragma once

#include <ocidl.h>
#include <olectl.h>

#include <memory>

#include "automation/ComRef.h"
#include "automation/Failures.h"
#include "server/DualObject.h"
#include "views/win32/PrnPropView.h"

namespace ORXKMPrintProp::server {

/// How containers treat the control: `kMiscStatusText` is the same for the registry.
inline constexpr DWORD kMiscStatus = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE | OLEMISC_INSIDEOUT |
                                     OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST;
inline constexpr const wchar_t* kMiscStatusText = L"131473";

/// The control in the window of a container. It shows the dialog while it is active in place, draws it while it is
/// not, and keeps nothing.
class InPlaceControl : public DualObject<_ORXQueryPrnProp, IConnectionPointContainer, IProvideClassInfo2, IOleObject,
                                         IOleControl, IOleInPlaceObject, IOleInPlaceActiveObject, IViewObject2,
                                         IPersistStreamInit, IPersistPropertyBag, IQuickActivate> {
 public:
  // IOleObject
  STDMETHODIMP SetClientSite(IOleClientSite* site) override;
  STDMETHODIMP GetClientSite(IOleClientSite** site) override;
  STDMETHODIMP SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
  STDMETHODIMP Close(DWORD option) override;
  STDMETHODIMP SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker** moniker) override { return Nothing(moniker, E_NOTIMPL); }
  STDMETHODIMP InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP GetClipboardData(DWORD, IDataObject** data) override { return Nothing(data, E_NOTIMPL); }
  STDMETHODIMP DoVerb(LONG verb, MSG* message, IOleClientSite* site, LONG, HWND, LPCRECT) override;
  STDMETHODIMP EnumVerbs(IEnumOLEVERB** verbs) override;
  STDMETHODIMP Update() override { return S_OK; }
  STDMETHODIMP IsUpToDate() override { return S_OK; }
  STDMETHODIMP GetUserClassID(CLSID* id) override { return GetClassID(id); }
  STDMETHODIMP GetUserType(DWORD form, LPOLESTR* name) override;
  STDMETHODIMP SetExtent(DWORD aspect, SIZEL* size) override;
  STDMETHODIMP GetExtent(DWORD aspect, SIZEL* size) override;
  STDMETHODIMP Advise(IAdviseSink* sink, DWORD* connection) override;
  STDMETHODIMP Unadvise(DWORD connection) override;
  STDMETHODIMP EnumAdvise(IEnumSTATDATA** connections) override;
  STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD* status) override;
  STDMETHODIMP SetColorScheme(LOGPALETTE*) override { return S_OK; }

  // IOleControl
  STDMETHODIMP GetControlInfo(CONTROLINFO* info) override;
  STDMETHODIMP OnMnemonic(MSG*) override { return S_OK; }
  STDMETHODIMP OnAmbientPropertyChange(DISPID id) override;
  STDMETHODIMP FreezeEvents(BOOL) override { return S_OK; }

  // IOleInPlaceObject, IOleInPlaceActiveObject
  STDMETHODIMP GetWindow(HWND* window) override;
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  STDMETHODIMP InPlaceDeactivate() override;
  STDMETHODIMP UIDeactivate() override;
  STDMETHODIMP SetObjectRects(LPCRECT position, LPCRECT clip) override;
  STDMETHODIMP ReactivateAndUndo() override { return INPLACE_E_NOTUNDOABLE; }
  STDMETHODIMP TranslateAccelerator(MSG* message) override;
  STDMETHODIMP OnFrameWindowActivate(BOOL) override { return S_OK; }
  STDMETHODIMP OnDocWindowActivate(BOOL) override { return S_OK; }
  STDMETHODIMP ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) override { return S_OK; }
  STDMETHODIMP EnableModeless(BOOL) override { return S_OK; }

  // IViewObject2
  STDMETHODIMP Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC context, LPCRECTL bounds, LPCRECTL,
                    BOOL(CALLBACK*)(ULONG_PTR), ULONG_PTR) override;
  STDMETHODIMP GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** colors) override {
    return Nothing(colors, S_FALSE);
  }
  STDMETHODIMP Freeze(DWORD, LONG, void*, DWORD*) override { return E_NOTIMPL; }
  STDMETHODIMP Unfreeze(DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
  STDMETHODIMP GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
  STDMETHODIMP GetExtent(DWORD aspect, LONG, DVTARGETDEVICE*, LPSIZEL size) override { return GetExtent(aspect, size); }

  // IPersistStreamInit, IPersistPropertyBag
  STDMETHODIMP GetClassID(CLSID* id) override;
  STDMETHODIMP IsDirty() override { return S_FALSE; }
  STDMETHODIMP Load(IStream*) override { return S_OK; }
  STDMETHODIMP Save(IStream*, BOOL) override { return S_OK; }
  STDMETHODIMP GetSizeMax(ULARGE_INTEGER* size) override;
  STDMETHODIMP InitNew() override { return S_OK; }
  STDMETHODIMP Load(IPropertyBag*, IErrorLog*) override { return S_OK; }
  STDMETHODIMP Save(IPropertyBag*, BOOL, BOOL) override { return S_OK; }

  // IQuickActivate
  STDMETHODIMP QuickActivate(QACONTAINER* container, QACONTROL* control) override;
  STDMETHODIMP SetContentExtent(LPSIZEL size) override { return SetExtent(DVASPECT_CONTENT, size); }
  STDMETHODIMP GetContentExtent(LPSIZEL size) override { return GetExtent(DVASPECT_CONTENT, size); }

 protected:
  /// For the class that has the dialog, ahead of the dialog's end.
  void End();
  virtual Dialog& GetDialog() = 0;
  /// For the class that has the dialog, when a call from outside has changed that.
  void DialogChanged();
  void* FindBase(REFIID id) override;

  /// Runs the body of a call from outside, during which the control does not end.
  template <class Body>
  HRESULT Call(Body body) noexcept {
    automation::Failure failure;
    {
      const automation::ComRef<IUnknown> held(Identity());
      try {
        return body();
      } catch (...) {
        failure = automation::CurrentFailure(u"ORXKMPrintProp.ORXQueryPrnProp");
      }
    }
    // Behind the control's end, if this was its last reference: what goes then may call back, and fail.
    return automation::Report(failure, __uuidof(_ORXQueryPrnProp));
  }

 private:
  struct WindowClass;
  template <class Interface>
  static HRESULT Nothing(Interface** result, HRESULT why) {
    if (!result) return E_POINTER;
    *result = nullptr;
    return why;
  }

  static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static HWND MakeWindow(HWND parent, DWORD style);
  std::unique_ptr<win32::PrnPropView> MakeView(HWND parent);
  /// Shows the control in its container. @throws std::runtime_error
  HRESULT Activate();
  /// From nothing to a window. @throws std::runtime_error, std::system_error
  HRESULT MakeActive();
  /// @param step where the focus goes, if it is not in the dialog, as for `PrnPropView::TakeFocus`
  HRESULT ActivateUI(int step);
  /// Tells the container's windows whether this is the object that is active in them.
  void TellActive(bool isActive);
  void TellFocus(bool has);
  void TellViewChange();
  void CloseWindow();
  bool TakesInput() const;
  bool Ambient(DISPID id, bool otherwise) const;
  void LeaveBy(int step);
  /// Whether the container has taken the key.
  bool OfferKey(const MSG& message) const;

  automation::ComRef<IOleClientSite> site_;
  /// While the control is active in place.
  automation::ComRef<IOleInPlaceSite> inPlaceSite_;
  automation::ComRef<IOleInPlaceFrame> frame_;
  automation::ComRef<IOleInPlaceUIWindow> document_;
  automation::ComRef<IOleAdviseHolder> advises_;
  automation::ComRef<IAdviseSink> viewSink_;
  DWORD viewAspects_ = 0;
  DWORD viewFlags_ = 0;
  SIZEL extent_{};  ///< the natural one until a container sets another
  HWND window_ = nullptr;
  std::unique_ptr<win32::PrnPropView> view_;
  bool hasUI_ = false;
  bool hasFocus_ = false;      ///< as the site has been told
  bool isTabRefused_ = false;  ///< the site has not taken the Tab key that comes to the dialog now
};

}  // namespace ORXKMPrintProp::server
