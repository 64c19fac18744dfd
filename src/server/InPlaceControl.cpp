#include "server/InPlaceControl.h"

#include <stdexcept>
#include <utility>

#include "automation/Variants.h"
#include "dialog/DialogLayout.h"
#include "server/WindowDrawing.h"
#include "views/win32/Styled.h"

namespace ORXKMPrintProp::server {

using namespace automation;

namespace {

constexpr int kHimetricPerInch = 2540;
constexpr int kTwipsPerInch = 1440;

constexpr SIZEL NaturalExtent() {
  return {kClientArea.width * kHimetricPerInch / kTwipsPerInch, kClientArea.height * kHimetricPerInch / kTwipsPerInch};
}

SIZE PixelsOf(const SIZEL& extent) {
  const HDC screen = ::GetDC(nullptr);
  const SIZE pixels{::MulDiv(extent.cx, ::GetDeviceCaps(screen, LOGPIXELSX), kHimetricPerInch),
                    ::MulDiv(extent.cy, ::GetDeviceCaps(screen, LOGPIXELSY), kHimetricPerInch)};
  ::ReleaseDC(nullptr, screen);
  return pixels;
}

bool IsDown(int key) { return ::GetKeyState(key) < 0; }

/// Keys that a widget wants, which a container would take for itself.
bool IsForWidget(const MSG& message) {
  return message.message == WM_KEYDOWN && message.wParam >= VK_PRIOR && message.wParam <= VK_DOWN;
}

}  // namespace

/// The class of the control's windows, which goes with the library.
struct InPlaceControl::WindowClass {
  static constexpr const wchar_t* kName = L"ORXQueryPrnProp";

  WindowClass() {
    WNDCLASSW made{};
    made.style = CS_DBLCLKS;
    made.lpfnWndProc = Receive;
    made.hInstance = win32::OwnModule();
    made.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    made.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    made.lpszClassName = kName;
    ::RegisterClassW(&made);
  }
  WindowClass(const WindowClass&) = delete;
  WindowClass& operator=(const WindowClass&) = delete;
  ~WindowClass() { ::UnregisterClassW(kName, win32::OwnModule()); }
};

HWND InPlaceControl::MakeWindow(HWND parent, DWORD style) {
  static const WindowClass windowClass;
  const HWND window = ::CreateWindowExW(WS_EX_CONTROLPARENT, WindowClass::kName, nullptr,
                                        style | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 0, 0, 0, 0, parent, nullptr,
                                        win32::OwnModule(), nullptr);
  if (!window) throw std::runtime_error("The window of the control can't be made.");
  return window;
}

LRESULT CALLBACK InPlaceControl::Receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const control = reinterpret_cast<InPlaceControl*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  if (control) {
    const ComRef<IUnknown> held(control->Identity());
    if (message == WM_MOUSEACTIVATE && !control->hasUI_) control->ActivateUI(nullptr);
    if (message == WM_SETFOCUS) {
      control->ActivateUI(nullptr);
      if (control->view_) control->view_->TakeFocus(IsDown(VK_TAB) ? IsDown(VK_SHIFT) ? -1 : 1 : 0);
      return 0;
    }
    if (message == WM_NCDESTROY) {
      // By the container, without a word: it is told of nothing more.
      ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
      control->window_ = nullptr;
      control->hasUI_ = false;
      control->view_ = nullptr;
      control->frame_ = nullptr;
      control->document_ = nullptr;
      control->inPlaceSite_ = nullptr;
    }
  }
  return ::DefWindowProcW(window, message, wParam, lParam);
}

std::unique_ptr<win32::PrnPropView> InPlaceControl::MakeView(HWND parent) {
  win32::Reports reports;
  // The failure of a handler is the host's own, and no call is under way that could give it back.
  reports.failed = [](const Text& why) { ::OutputDebugStringW(reinterpret_cast<const wchar_t*>(why.c_str())); };
  reports.focused = [this] { ActivateUI(nullptr); };
  reports.left = [this](int step) { LeaveBy(step); };
  reports.hold = [this] { return std::make_shared<ComRef<IUnknown>>(Identity()); };
  auto view = std::make_unique<win32::PrnPropView>(GetDialog(), parent, std::move(reports));
  ::ShowWindow(view->Window(), SW_SHOWNA);
  return view;
}

void* InPlaceControl::FindBase(REFIID id) {
  if (id == IID_IProvideClassInfo) return static_cast<IProvideClassInfo*>(this);
  if (id == IID_IOleWindow) return static_cast<IOleInPlaceObject*>(this);
  if (id == IID_IViewObject) return static_cast<IViewObject*>(this);
  if (id == IID_IPersist) return static_cast<IPersistStreamInit*>(this);
  return DualObject::FindBase(id);
}

void InPlaceControl::End() {
  CloseWindow();
  // Their ends may call back.
  const ComRef<IOleClientSite> site = std::move(site_);
  const ComRef<IAdviseSink> sink = std::move(viewSink_);
}

void InPlaceControl::CloseWindow() {
  const std::unique_ptr<win32::PrnPropView> view = std::move(view_);
  if (const HWND window = std::exchange(window_, nullptr)) {
    ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    ::DestroyWindow(window);
  }
}

// --- IOleObject ---

STDMETHODIMP InPlaceControl::SetClientSite(IOleClientSite* site) {
  return Call([&] {
    if (!site) InPlaceDeactivate();
    site_ = ComRef(site);
    return S_OK;
  });
}

STDMETHODIMP InPlaceControl::GetClientSite(IOleClientSite** site) {
  if (!site) return E_POINTER;
  *site = ComRef(site_).Detach();
  return S_OK;
}

STDMETHODIMP InPlaceControl::Close(DWORD) {
  return Call([&] {
    InPlaceDeactivate();
    if (const ComRef<IOleAdviseHolder> told = advises_) told->SendOnClose();
    return S_OK;
  });
}

STDMETHODIMP InPlaceControl::DoVerb(LONG verb, MSG* message, IOleClientSite*, LONG, HWND, LPCRECT) {
  return Call([&]() -> HRESULT {
    switch (verb) {
      case OLEIVERB_INPLACEACTIVATE:
      case OLEIVERB_SHOW:
      case OLEIVERB_OPEN: return Activate();
      case OLEIVERB_PRIMARY:
      case OLEIVERB_UIACTIVATE: {
        const HRESULT active = Activate();
        return SUCCEEDED(active) && !IsDesigned() ? ActivateUI(message) : active;
      }
      case OLEIVERB_HIDE:
        UIDeactivate();
        if (window_) ::ShowWindow(window_, SW_HIDE);
        return S_OK;
      default: break;
    }
    if (verb < 0) return E_NOTIMPL;
    const HRESULT active = Activate();
    return SUCCEEDED(active) ? OLEOBJ_S_INVALIDVERB : active;
  });
}

HRESULT InPlaceControl::Activate() {
  if (!window_) {
    const ComRef<IOleInPlaceSite> site = site_.As<IOleInPlaceSite>();
    if (!site) return E_UNEXPECTED;
    if (site->CanInPlaceActivate() != S_OK) return E_FAIL;
    HWND parent = nullptr;
    RECT position{}, clip{};
    OLEINPLACEFRAMEINFO info{};
    info.cb = sizeof info;
    ComRef<IOleInPlaceFrame> frame;
    ComRef<IOleInPlaceUIWindow> document;
    HRESULT result = site->OnInPlaceActivate();
    if (FAILED(result)) return result;
    result = site->GetWindow(&parent);
    if (SUCCEEDED(result)) {
      result = site->GetWindowContext(frame.Out(), document.Out(), &position, &clip, &info);
    }
    if (SUCCEEDED(result)) {
      try {
        window_ = MakeWindow(parent, WS_CHILD);
        ::SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        view_ = MakeView(window_);
      } catch (...) {
        CloseWindow();
        site->OnInPlaceDeactivate();
        throw;
      }
      inPlaceSite_ = site;
      frame_ = std::move(frame);
      document_ = std::move(document);
      OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE);
      SetObjectRects(&position, &clip);
    } else {
      site->OnInPlaceDeactivate();
      return result;
    }
  }
  ::ShowWindow(window_, SW_SHOWNA);
  if (const ComRef<IOleClientSite> site = site_) site->ShowObject();
  return S_OK;
}

HRESULT InPlaceControl::ActivateUI(const MSG* message) {
  if (!hasUI_ && inPlaceSite_) {
    hasUI_ = true;
    const ComRef<IOleInPlaceSite> site = inPlaceSite_;
    const ComRef<IOleInPlaceFrame> frame = frame_;
    const ComRef<IOleInPlaceUIWindow> document = document_;
    if (const HRESULT result = site->OnUIActivate(); FAILED(result)) {
      hasUI_ = false;
      return result;
    }
    if (frame) frame->SetActiveObject(this, nullptr);
    if (document) document->SetActiveObject(this, nullptr);
    // The control has no tools of its own.
    if (frame) frame->SetBorderSpace(nullptr);
    if (document) document->SetBorderSpace(nullptr);
    if (const ComRef<IOleControlSite> told = site_.As<IOleControlSite>()) told->OnFocus(TRUE);
  }
  if (view_ && !view_->HasFocus()) {
    const bool tab = message && message->message == WM_KEYDOWN && message->wParam == VK_TAB;
    view_->TakeFocus(tab ? IsDown(VK_SHIFT) ? -1 : 1 : 0);
  }
  return S_OK;
}

STDMETHODIMP InPlaceControl::EnumVerbs(IEnumOLEVERB** verbs) {
  return ::OleRegEnumVerbs(__uuidof(::ORXQueryPrnProp), verbs);
}

STDMETHODIMP InPlaceControl::GetUserType(DWORD form, LPOLESTR* name) {
  return ::OleRegGetUserType(__uuidof(::ORXQueryPrnProp), form, name);
}

STDMETHODIMP InPlaceControl::SetExtent(DWORD aspect, SIZEL* size) {
  if (!size) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (size->cx < 0 || size->cy < 0) return E_INVALIDARG;
  return Call([&] {
    extent_ = *size;
    if (const ComRef<IAdviseSink> told = viewSink_) told->OnViewChange(DVASPECT_CONTENT, -1);
    return S_OK;
  });
}

STDMETHODIMP InPlaceControl::GetExtent(DWORD aspect, SIZEL* size) {
  if (!size) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  *size = extent_.cx > 0 && extent_.cy > 0 ? extent_ : NaturalExtent();
  return S_OK;
}

STDMETHODIMP InPlaceControl::Advise(IAdviseSink* sink, DWORD* connection) {
  if (!advises_) {
    if (const HRESULT made = ::CreateOleAdviseHolder(advises_.Out()); FAILED(made)) return made;
  }
  return advises_->Advise(sink, connection);
}

STDMETHODIMP InPlaceControl::Unadvise(DWORD connection) {
  return advises_ ? advises_->Unadvise(connection) : OLE_E_NOCONNECTION;
}

STDMETHODIMP InPlaceControl::EnumAdvise(IEnumSTATDATA** connections) {
  return advises_ ? advises_->EnumAdvise(connections) : Nothing(connections, S_OK);
}

STDMETHODIMP InPlaceControl::GetMiscStatus(DWORD aspect, DWORD* status) {
  if (!status) return E_POINTER;
  *status = aspect == DVASPECT_CONTENT ? kMiscStatus : 0;
  return S_OK;
}

// --- IOleControl ---

STDMETHODIMP InPlaceControl::GetControlInfo(CONTROLINFO* info) {
  if (!info) return E_POINTER;
  info->hAccel = nullptr;
  info->cAccel = 0;
  info->dwFlags = 0;
  return S_OK;
}

STDMETHODIMP InPlaceControl::OnAmbientPropertyChange(DISPID id) {
  return Call([&] {
    if (window_ && (id == DISPID_AMBIENT_USERMODE || id == DISPID_UNKNOWN)) ::EnableWindow(window_, !IsDesigned());
    return S_OK;
  });
}

bool InPlaceControl::IsDesigned() const {
  const ComRef<IDispatch> ambient = site_.As<IDispatch>();
  if (!ambient) return false;
  DISPPARAMS none{};
  OwnedVariant mode;
  const HRESULT got = ambient->Invoke(DISPID_AMBIENT_USERMODE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                                      &mode, nullptr, nullptr);
  return SUCCEEDED(got) && mode.vt == VT_BOOL && mode.boolVal == VARIANT_FALSE;
}

// --- IOleInPlaceObject, IOleInPlaceActiveObject ---

STDMETHODIMP InPlaceControl::GetWindow(HWND* window) {
  if (!window) return E_POINTER;
  *window = window_;
  return window_ ? S_OK : E_FAIL;
}

STDMETHODIMP InPlaceControl::InPlaceDeactivate() {
  return Call([&] {
    UIDeactivate();
    CloseWindow();
    frame_ = nullptr;
    document_ = nullptr;
    const ComRef<IOleInPlaceSite> site = std::move(inPlaceSite_);
    if (site) site->OnInPlaceDeactivate();
    return S_OK;
  });
}

STDMETHODIMP InPlaceControl::UIDeactivate() {
  return Call([&] {
    if (!std::exchange(hasUI_, false)) return S_OK;
    const ComRef<IOleInPlaceSite> site = inPlaceSite_;
    const ComRef<IOleInPlaceFrame> frame = frame_;
    const ComRef<IOleInPlaceUIWindow> document = document_;
    if (frame) frame->SetActiveObject(nullptr, nullptr);
    if (document) document->SetActiveObject(nullptr, nullptr);
    if (const ComRef<IOleControlSite> told = site_.As<IOleControlSite>()) told->OnFocus(FALSE);
    if (site) site->OnUIDeactivate(FALSE);
    return S_OK;
  });
}

STDMETHODIMP InPlaceControl::SetObjectRects(LPCRECT position, LPCRECT clip) {
  if (!position) return E_POINTER;
  return Call([&] {
    if (!window_) return S_OK;
    RECT seen = *position;
    HRGN region = nullptr;
    if (clip) ::IntersectRect(&seen, position, clip);
    if (!::EqualRect(&seen, position)) {
      ::OffsetRect(&seen, -position->left, -position->top);
      region = ::CreateRectRgnIndirect(&seen);
    }
    // The window owns the region from now on.
    ::SetWindowRgn(window_, region, TRUE);
    ::MoveWindow(window_, position->left, position->top, position->right - position->left,
                 position->bottom - position->top, TRUE);
    return S_OK;
  });
}

STDMETHODIMP InPlaceControl::TranslateAccelerator(MSG* message) {
  if (!message) return E_POINTER;
  return Call([&] {
    if (!view_) return S_FALSE;
    keyStays_ = false;
    if (view_->TakeKey(*message)) return keyStays_ ? S_FALSE : S_OK;
    if (IsForWidget(*message) && view_ && view_->HasFocus()) {
      ::TranslateMessage(message);
      ::DispatchMessageW(message);
      return S_OK;
    }
    return OfferKey(*message) ? S_OK : S_FALSE;
  });
}

bool InPlaceControl::OfferKey(const MSG& message) const {
  const ComRef<IOleControlSite> site = site_.As<IOleControlSite>();
  MSG offered = message;
  const DWORD modifiers = (IsDown(VK_SHIFT) ? 1u : 0u) | (IsDown(VK_CONTROL) ? 2u : 0u) | (IsDown(VK_MENU) ? 4u : 0u);
  return site && site->TranslateAccelerator(&offered, modifiers) == S_OK;
}

void InPlaceControl::LeaveBy(int) {
  MSG message{};
  message.hwnd = ::GetFocus();
  message.message = WM_KEYDOWN;
  message.wParam = VK_TAB;
  keyStays_ = !OfferKey(message);
}

// --- IViewObject2 ---

STDMETHODIMP InPlaceControl::Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC context, LPCRECTL bounds,
                                  LPCRECTL, BOOL(CALLBACK*)(ULONG_PTR), ULONG_PTR) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (!context || !bounds) return E_INVALIDARG;
  return Call([&] {
    const RECT place{bounds->left, bounds->top, bounds->right, bounds->bottom};
    SIZEL extent{};
    GetExtent(DVASPECT_CONTENT, &extent);
    const SIZE size = PixelsOf(extent);
    if (view_) return DrawWindow(view_->Window(), size, context, place) ? S_OK : E_OUTOFMEMORY;
    const std::unique_ptr<void, void (*)(void*)> parent(
        MakeWindow(nullptr, WS_POPUP), [](void* window) { ::DestroyWindow(static_cast<HWND>(window)); });
    const auto view = MakeView(static_cast<HWND>(parent.get()));
    return DrawWindow(view->Window(), size, context, place) ? S_OK : E_OUTOFMEMORY;
  });
}

STDMETHODIMP InPlaceControl::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
  return Call([&] {
    viewAspects_ = aspects;
    viewFlags_ = flags;
    viewSink_ = ComRef(sink);
    if (sink && (flags & ADVF_PRIMEFIRST)) sink->OnViewChange(DVASPECT_CONTENT, -1);
    return S_OK;
  });
}

STDMETHODIMP InPlaceControl::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) {
  if (aspects) *aspects = viewAspects_;
  if (flags) *flags = viewFlags_;
  if (sink) *sink = ComRef(viewSink_).Detach();
  return S_OK;
}

// --- IPersist..., IQuickActivate ---

STDMETHODIMP InPlaceControl::GetClassID(CLSID* id) {
  if (!id) return E_POINTER;
  *id = __uuidof(::ORXQueryPrnProp);
  return S_OK;
}

STDMETHODIMP InPlaceControl::GetSizeMax(ULARGE_INTEGER* size) {
  if (!size) return E_POINTER;
  size->QuadPart = 0;
  return S_OK;
}

STDMETHODIMP InPlaceControl::QuickActivate(QACONTAINER* container, QACONTROL* control) {
  if (!container || !control) return E_POINTER;
  return Call([&] {
    const ULONG size = control->cbSize;
    *control = {};
    control->cbSize = size;
    SetClientSite(container->pClientSite);
    if (container->pAdviseSink) SetAdvise(DVASPECT_CONTENT, 0, container->pAdviseSink);
    if (container->pUnkEventSink) {
      ComRef<IConnectionPoint> events;
      FindConnectionPoint(__uuidof(__ORXQueryPrnProp), events.Out());
      events->Advise(container->pUnkEventSink, &control->dwEventCookie);
    }
    control->dwMiscStatus = kMiscStatus;
    control->dwViewStatus = VIEWSTATUS_OPAQUE;
    return S_OK;
  });
}

}  // namespace ORXKMPrintProp::server
