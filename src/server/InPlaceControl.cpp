#include "server/InPlaceControl.h"

#include <stdexcept>
#include <utility>

#include "automation/Variants.h"
#include "dialog/DialogLayout.h"
#include "views/win32/Styled.h"
#include "views/win32/WindowDrawing.h"

namespace ORXKMPrintProp::server {

using namespace automation;

namespace {

constexpr int kHimetricPerInch = 2540;
constexpr int kTwipsPerInch = 1440;

constexpr SIZEL NaturalExtent() {
  return {kClientArea.width * kHimetricPerInch / kTwipsPerInch, kClientArea.height * kHimetricPerInch / kTwipsPerInch};
}

void Draw(const win32::PrnPropView& view, const SIZEL& extent, HDC context, const RECT& place) {
  const auto dpi = static_cast<int>(win32::PrnPropView::DpiOf(view.Window()));
  const SIZE pixels{::MulDiv(extent.cx, dpi, kHimetricPerInch), ::MulDiv(extent.cy, dpi, kHimetricPerInch)};
  win32::DrawWindow(view.Window(), pixels, context, place);
}

bool IsDown(int key) { return ::GetKeyState(key) < 0; }

bool IsTab(const MSG& message) { return message.message == WM_KEYDOWN && message.wParam == VK_TAB; }

/// Into which end of the dialog the Tab key leads, 0 when it is not the Tab key that leads there.
int StepOf(bool isTab) { return !isTab ? 0 : IsDown(VK_SHIFT) ? -1 : 1; }

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
  const HWND window =
      ::CreateWindowExW(WS_EX_CONTROLPARENT, WindowClass::kName, nullptr, style | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 0,
                        0, 0, 0, parent, nullptr, win32::OwnModule(), nullptr);
  if (!window) throw std::runtime_error("The window of the control can't be made.");
  // The dialog is the same for every language, and so is where it lies.
  ::SetWindowLongPtrW(window, GWL_EXSTYLE, ::GetWindowLongPtrW(window, GWL_EXSTYLE) & ~WS_EX_LAYOUTRTL);
  return window;
}

LRESULT CALLBACK InPlaceControl::Receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const control = reinterpret_cast<InPlaceControl*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  if (control) {
    const ComRef<IUnknown> held(control->Identity());
    if (message == WM_MOUSEACTIVATE && !control->hasUI_) control->ActivateUI(0);
    if (message == WM_SETFOCUS) {
      control->ActivateUI(StepOf(IsDown(VK_TAB)));
      return 0;
    }
    if (control->view_ && (message == WM_SYSCOLORCHANGE || message == WM_SETTINGCHANGE || message == WM_THEMECHANGED)) {
      ::SendMessageW(control->view_->Window(), message, wParam, lParam);
    }
    if (message == WM_NCDESTROY) {
      // By the container, without a word: it is told of nothing more.
      ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
      control->window_ = nullptr;
      control->hasUI_ = control->hasFocus_ = false;
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
  reports.focused = [this](bool has) {
    if (has) ActivateUI(0);
    TellFocus(has && hasUI_);
  };
  reports.left = [this](int step) { LeaveBy(step); };
  reports.message = [frame = frame_](bool isOpen) {
    if (frame) frame->EnableModeless(!isOpen);
  };
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
      case OLEIVERB_OPEN:
        return Activate();
      case OLEIVERB_PRIMARY:
      case OLEIVERB_UIACTIVATE: {
        const HRESULT active = Activate();
        return SUCCEEDED(active) && TakesInput() ? ActivateUI(StepOf(message && IsTab(*message))) : active;
      }
      case OLEIVERB_HIDE:
        UIDeactivate();
        if (window_) ::ShowWindow(window_, SW_HIDE);
        return S_OK;
      case OLEIVERB_PROPERTIES: {
        // The control has none; the container may have some of its own for it.
        const ComRef<IOleControlSite> site = site_.As<IOleControlSite>();
        return site ? site->ShowPropertyFrame() : E_NOTIMPL;
      }
      case OLEIVERB_DISCARDUNDOSTATE:
        return S_OK;
      default:
        break;
    }
    if (verb < 0) return E_NOTIMPL;
    const HRESULT active = Activate();
    return SUCCEEDED(active) ? OLEOBJ_S_INVALIDVERB : active;
  });
}

HRESULT InPlaceControl::Activate() {
  if (!window_) {
    // From inside a call to the site: it is under way.
    if (inPlaceSite_) return S_OK;
    if (const HRESULT result = MakeActive(); FAILED(result)) return result;
  }
  if (window_) ::ShowWindow(window_, SW_SHOWNA);
  if (const ComRef<IOleClientSite> site = site_) site->ShowObject();
  return S_OK;
}

HRESULT InPlaceControl::MakeActive() {
  const ComRef<IOleInPlaceSite> site = site_.As<IOleInPlaceSite>();
  if (!site) return E_UNEXPECTED;
  if (site->CanInPlaceActivate() != S_OK) return E_FAIL;
  HWND parent = nullptr;
  RECT position{}, clip{};
  OLEINPLACEFRAMEINFO info{};
  info.cb = sizeof info;
  ComRef<IOleInPlaceFrame> frame;
  ComRef<IOleInPlaceUIWindow> document;
  inPlaceSite_ = site;
  // Each call may have closed the control, and activated it anew.
  const auto goesOn = [&](HRESULT result) { return SUCCEEDED(result) && !window_ && inPlaceSite_.Get() == site.Get(); };
  HRESULT result = site->OnInPlaceActivate();
  if (FAILED(result)) {
    inPlaceSite_ = nullptr;
    return result;
  }
  if (goesOn(result)) result = site->GetWindow(&parent);
  if (goesOn(result)) result = site->GetWindowContext(frame.Out(), document.Out(), &position, &clip, &info);
  if (window_) return S_OK;
  if (!goesOn(result)) {
    InPlaceDeactivate();
    return FAILED(result) ? result : E_FAIL;
  }
  frame_ = std::move(frame);
  document_ = std::move(document);
  try {
    window_ = MakeWindow(parent, WS_CHILD);
    ::SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    view_ = MakeView(window_);
  } catch (...) {
    InPlaceDeactivate();
    throw;
  }
  OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE);
  SetObjectRects(&position, &clip);
  return S_OK;
}

HRESULT InPlaceControl::ActivateUI(int step) {
  if (!hasUI_ && window_) {
    hasUI_ = true;
    const ComRef<IOleInPlaceSite> site = inPlaceSite_;
    if (const HRESULT result = site->OnUIActivate(); FAILED(result)) {
      hasUI_ = false;
      return result;
    }
    TellActive(true);
  }
  if (hasUI_ && view_ && !view_->HasFocus()) view_->TakeFocus(step);
  return S_OK;
}

void InPlaceControl::TellActive(bool isActive) {
  IOleInPlaceActiveObject* const object = isActive ? this : nullptr;
  const ComRef<IOleInPlaceFrame> frame = frame_;
  const ComRef<IOleInPlaceUIWindow> document = document_;
  for (IOleInPlaceUIWindow* const window : {static_cast<IOleInPlaceUIWindow*>(frame.Get()), document.Get()}) {
    // The one before may have led to the opposite, and that has been told.
    if (!window || hasUI_ != isActive) continue;
    window->SetActiveObject(object, nullptr);
    // The control has no tools of its own.
    if (isActive && hasUI_) window->SetBorderSpace(nullptr);
  }
}

void InPlaceControl::TellFocus(bool has) {
  if (std::exchange(hasFocus_, has) == has) return;
  if (const ComRef<IOleControlSite> told = site_.As<IOleControlSite>()) told->OnFocus(has);
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
    TellViewChange();
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
    if (id != DISPID_AMBIENT_USERMODE && id != DISPID_AMBIENT_UIDEAD && id != DISPID_UNKNOWN) return S_OK;
    const bool takesInput = TakesInput();
    if (!takesInput) UIDeactivate();
    if (window_) ::EnableWindow(window_, takesInput);
    return S_OK;
  });
}

bool InPlaceControl::TakesInput() const {
  return Ambient(DISPID_AMBIENT_USERMODE, true) && !Ambient(DISPID_AMBIENT_UIDEAD, false);
}

bool InPlaceControl::Ambient(DISPID id, bool otherwise) const {
  const ComRef<IDispatch> ambient = site_.As<IDispatch>();
  if (!ambient) return otherwise;
  DISPPARAMS none{};
  OwnedVariant value;
  const HRESULT got =
      ambient->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr);
  return SUCCEEDED(got) && value.vt == VT_BOOL ? value.boolVal != VARIANT_FALSE : otherwise;
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
    if (site) {
      site->OnInPlaceDeactivate();
      TellViewChange();
    }
    return S_OK;
  });
}

STDMETHODIMP InPlaceControl::UIDeactivate() {
  return Call([&] {
    if (!std::exchange(hasUI_, false)) return S_OK;
    const ComRef<IOleInPlaceSite> site = inPlaceSite_;
    TellActive(false);
    TellFocus(false);
    if (site) site->OnUIDeactivate(FALSE);
    // Keys are not to go on coming here.
    if (!hasUI_ && view_ && view_->HasFocus()) ::SetFocus(::GetParent(window_));
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
    if (view_) view_->FollowMonitor();
    return S_OK;
  });
}

STDMETHODIMP InPlaceControl::TranslateAccelerator(MSG* message) {
  if (!message) return E_POINTER;
  return Call([&] {
    isTabRefused_ = false;
    if (!view_ || message->message < WM_KEYFIRST || message->message > WM_KEYLAST) return S_FALSE;
    if (view_->TakeKey(*message)) return S_OK;
    if (IsForWidget(*message) && view_ && view_->HasFocus()) {
      ::TranslateMessage(message);
      ::DispatchMessageW(message);
      return S_OK;
    }
    if (OfferKey(*message)) return S_OK;
    isTabRefused_ = IsTab(*message);
    return S_FALSE;
  });
}

bool InPlaceControl::OfferKey(const MSG& message) const {
  const ComRef<IOleControlSite> site = site_.As<IOleControlSite>();
  MSG offered = message;
  const DWORD modifiers = (IsDown(VK_SHIFT) ? 1u : 0u) | (IsDown(VK_CONTROL) ? 2u : 0u) | (IsDown(VK_MENU) ? 4u : 0u);
  return site && site->TranslateAccelerator(&offered, modifiers) == S_OK;
}

void InPlaceControl::LeaveBy(int step) {
  MSG message{};
  message.hwnd = ::GetFocus();
  message.message = WM_KEYDOWN;
  message.wParam = VK_TAB;
  if (!std::exchange(isTabRefused_, false) && OfferKey(message)) return;
  if (view_) view_->TakeFocus(step);
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
    if (view_) {
      server::Draw(*view_, extent, context, place);
      return S_OK;
    }
    const std::unique_ptr<void, void (*)(void*)> parent(
        MakeWindow(nullptr, WS_POPUP), [](void* window) { ::DestroyWindow(static_cast<HWND>(window)); });
    const auto view = MakeView(static_cast<HWND>(parent.get()));
    server::Draw(*view, extent, context, place);
    return S_OK;
  });
}

STDMETHODIMP InPlaceControl::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
  if (sink && !(aspects & DVASPECT_CONTENT)) return DV_E_DVASPECT;
  return Call([&] {
    viewAspects_ = aspects;
    viewFlags_ = flags;
    viewSink_ = ComRef(sink);
    if (flags & ADVF_PRIMEFIRST) TellViewChange();
    return S_OK;
  });
}

void InPlaceControl::TellViewChange() {
  const ComRef<IAdviseSink> told = viewSink_;
  if (viewFlags_ & ADVF_ONLYONCE) viewSink_ = nullptr;
  if (told) told->OnViewChange(DVASPECT_CONTENT, -1);
}

void InPlaceControl::DialogChanged() {
  // While it is active the window shows it.
  if (!window_) TellViewChange();
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
    HRESULT result = SetClientSite(container->pClientSite);
    if (SUCCEEDED(result) && container->pAdviseSink) result = SetAdvise(DVASPECT_CONTENT, 0, container->pAdviseSink);
    if (SUCCEEDED(result) && container->pUnkEventSink) {
      ComRef<IConnectionPoint> events;
      FindConnectionPoint(__uuidof(__ORXQueryPrnProp), events.Out());
      result = events->Advise(container->pUnkEventSink, &control->dwEventCookie);
    }
    if (FAILED(result)) {
      SetAdvise(0, 0, nullptr);
      SetClientSite(nullptr);
      return result;
    }
    control->dwMiscStatus = kMiscStatus;
    control->dwViewStatus = VIEWSTATUS_OPAQUE;
    return S_OK;
  });
}

}  // namespace ORXKMPrintProp::server
