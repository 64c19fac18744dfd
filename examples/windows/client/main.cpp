// A host of the component: it holds the control in a window of its own, hands in tables, hears the events, and reads
// the settings back when the window is closed.
#include <ocidl.h>
#include <olectl.h>

#include <cstdio>

#include "ORXKMPrintProp.h"
#include "Tables.h"

/// Hears the events: a layout button is answered with a layout.
class Sink : public Object {
 public:
  explicit Sink(_ORXQueryPrnProp& control) : control_(control) {}
  STDMETHODIMP QueryInterface(REFIID id, void** object) override {
    return Object::QueryInterface(id == __uuidof(__ORXQueryPrnProp) ? IID_IDispatch : id, object);
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) override {
    if (id == 2) {
      std::printf("the print order changed\n");
      return S_OK;
    }
    if (id != 1) return DISP_E_MEMBERNOTFOUND;
    std::printf("asked for layout %d\n", arguments->rgvarg[1].iVal);
    const BSTR layout = SysAllocString(L"<page/>");
    VARIANT nothing;
    const HRESULT stored =
        control_.ORXSetPrintLayout(layout, arguments->rgvarg[1], arguments->rgvarg[0].bstrVal, &nothing);
    SysFreeString(layout);
    return stored;
  }

 private:
  _ORXQueryPrnProp& control_;
};

/// Where the control is: what it asks and tells a container. This one has no tools, menus or frame for it.
class Site : public IOleClientSite, public IOleInPlaceSite {
 public:
  explicit Site(HWND window) : window_(window) {}

  STDMETHODIMP QueryInterface(REFIID id, void** object) override {
    *object = nullptr;
    if (id == IID_IUnknown || id == IID_IOleClientSite) *object = static_cast<IOleClientSite*>(this);
    if (id == IID_IOleWindow || id == IID_IOleInPlaceSite) *object = static_cast<IOleInPlaceSite*>(this);
    return *object ? S_OK : E_NOINTERFACE;
  }
  // It lives longer than the control, which is told to close.
  STDMETHODIMP_(ULONG) AddRef() override { return 1; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }

  STDMETHODIMP GetWindow(HWND* window) override { return *window = window_, S_OK; }
  STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* place, RECT* clip,
                                OLEINPLACEFRAMEINFO*) override {
    *frame = nullptr;
    *document = nullptr;
    GetClientRect(window_, place);
    *clip = *place;
    return S_OK;
  }
  STDMETHODIMP CanInPlaceActivate() override { return S_OK; }
  STDMETHODIMP OnInPlaceActivate() override { return S_OK; }
  STDMETHODIMP OnUIActivate() override { return S_OK; }
  STDMETHODIMP OnUIDeactivate(BOOL) override { return S_OK; }
  STDMETHODIMP OnInPlaceDeactivate() override { return S_OK; }
  STDMETHODIMP ShowObject() override { return S_OK; }
  STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }

  STDMETHODIMP SaveObject() override { return E_NOTIMPL; }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  STDMETHODIMP GetContainer(IOleContainer**) override { return E_NOTIMPL; }
  STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  STDMETHODIMP Scroll(SIZE) override { return E_NOTIMPL; }
  STDMETHODIMP DiscardUndoState() override { return E_NOTIMPL; }
  STDMETHODIMP DeactivateAndUndo() override { return E_NOTIMPL; }
  STDMETHODIMP OnPosRectChange(LPCRECT) override { return E_NOTIMPL; }

 private:
  HWND window_;
};

/// Tells the failure of a call, with the words of the component.
bool Succeeds(HRESULT result) {
  if (SUCCEEDED(result)) return true;
  BSTR words = nullptr;
  IErrorInfo* error = nullptr;
  if (GetErrorInfo(0, &error) == S_OK) {
    error->GetDescription(&words);
    error->Release();
  }
  std::printf("failed with 0x%08lX: %ls\n", static_cast<unsigned long>(result), words ? words : L"");
  SysFreeString(words);
  return false;
}

/// The same object by another interface, which the control has.
template <class Interface>
Interface* As(_ORXQueryPrnProp& control) {
  Interface* other = nullptr;
  control.QueryInterface(__uuidof(Interface), reinterpret_cast<void**>(&other));
  return other;
}

/// A window with the control in it.
class Window {
 public:
  explicit Window(_ORXQueryPrnProp& control)
      : object_(As<IOleObject>(control)),
        place_(As<IOleInPlaceObject>(control)),
        keys_(As<IOleInPlaceActiveObject>(control)) {
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  }
  ~Window() {
    object_->Close(OLECLOSE_NOSAVE);
    object_->SetClientSite(nullptr);
    for (IUnknown* const one :
         {static_cast<IUnknown*>(object_), static_cast<IUnknown*>(place_), static_cast<IUnknown*>(keys_)}) {
      one->Release();
    }
    SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    DestroyWindow(window_);
  }
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  /// Until it is closed.
  HRESULT Show() {
    SIZEL extent{};
    object_->SetClientSite(&site_);
    object_->GetExtent(DVASPECT_CONTENT, &extent);
    const HDC screen = GetDC(nullptr);
    constexpr int kHimetricPerInch = 2540;
    RECT place{0, 0, MulDiv(extent.cx, GetDeviceCaps(screen, LOGPIXELSX), kHimetricPerInch),
               MulDiv(extent.cy, GetDeviceCaps(screen, LOGPIXELSY), kHimetricPerInch)};
    ReleaseDC(nullptr, screen);
    AdjustWindowRect(&place, kStyle, FALSE);
    SetWindowPos(window_, nullptr, 0, 0, place.right - place.left, place.bottom - place.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_SHOWWINDOW);
    const HRESULT shown = object_->DoVerb(OLEIVERB_UIACTIVATE, nullptr, &site_, 0, window_, nullptr);
    MSG message{};
    while (SUCCEEDED(shown) && GetMessageW(&message, nullptr, 0, 0) > 0) {
      // Keys are the control's first: Tab would leave it otherwise.
      const bool isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
      if (isKey && keys_->TranslateAccelerator(&message) == S_OK) continue;
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    return shown;
  }

 private:
  static constexpr DWORD kStyle = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;

  static HWND Make() {
    WNDCLASSW kind{};
    kind.lpfnWndProc = Receive;
    kind.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    kind.lpszClassName = L"client";
    RegisterClassW(&kind);
    return CreateWindowExW(0, kind.lpszClassName, L"Print settings", kStyle, CW_USEDEFAULT, CW_USEDEFAULT, 0, 0,
                           nullptr, nullptr, nullptr, nullptr);
  }
  static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    Window* const self = reinterpret_cast<Window*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_CLOSE) return PostQuitMessage(0), 0;
    if (self && message == WM_SIZE) {
      RECT place{};
      GetClientRect(window, &place);
      self->place_->SetObjectRects(&place, &place);
    }
    if (self && message == WM_SETFOCUS) {
      self->object_->DoVerb(OLEIVERB_UIACTIVATE, nullptr, &self->site_, 0, window, nullptr);
    }
    return DefWindowProcW(window, message, wParam, lParam);
  }

  HWND window_ = Make();
  Site site_{window_};
  IOleObject* object_;
  IOleInPlaceObject* place_;
  IOleInPlaceActiveObject* keys_;
};

bool Work(_ORXQueryPrnProp& control) {
  const Tables tables;
  VARIANT_BOOL loaded = VARIANT_FALSE;
  if (!Succeeds(control.ORXSetPrnTables(tables.general, tables.dimension, tables.member, tables.attribute, &loaded)) ||
      !loaded || !Succeeds(Window(control).Show())) {
    return false;
  }
  IDispatch* given = nullptr;
  if (!Succeeds(control.get_ORXDimTable(&given))) return false;
  std::printf("the very table: %s\n", given == tables.dimension ? "yes" : "no");
  given->Release();
  for (Row* const row : tables.dimension->All()) {
    std::printf("%ls %ls\n", row->Text(L"POSIT").c_str(), row->Text(L"IOBJNM").c_str());
  }
  std::printf("top page %ls\n", tables.general->All()[0]->Text(L"FRONTPAGE_LAYOUT").c_str());
  return true;
}

int main() {
  CoInitialize(nullptr);
  _ORXQueryPrnProp* control = nullptr;
  if (!Succeeds(CoCreateInstance(__uuidof(ORXQueryPrnProp), nullptr, CLSCTX_INPROC_SERVER, __uuidof(_ORXQueryPrnProp),
                                 reinterpret_cast<void**>(&control)))) {
    return 1;
  }
  Sink* const sink = new Sink(*control);
  IConnectionPointContainer* container = nullptr;
  IConnectionPoint* point = nullptr;
  DWORD connection = 0;
  control->QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(&container));
  container->FindConnectionPoint(__uuidof(__ORXQueryPrnProp), &point);
  point->Advise(sink, &connection);

  const bool worked = Work(*control);
  point->Unadvise(connection);
  point->Release();
  container->Release();
  control->Release();
  CoUninitialize();
  return worked ? 0 : 1;
}
