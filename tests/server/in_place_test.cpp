// The control in the window of a container.

#include <gtest/gtest.h>
#include <ocidl.h>
#include <olectl.h>

#include <functional>
#include <string>

#include "automation/ComObject.h"
#include "server/served.h"

namespace ORXKMPrintProp::test {
namespace {

using automation::ComRef;

/// The least container: one window, no tools, and a note of what the control tells.
class Site final : public automation::ComObject<IOleClientSite, IOleInPlaceSite, IOleControlSite, IDispatch> {
 public:
  explicit Site(HWND window_) : window(window_) {}

  STDMETHODIMP SaveObject() override { return S_OK; }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  STDMETHODIMP GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
  STDMETHODIMP ShowObject() override { return S_OK; }
  STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
  STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }

  STDMETHODIMP GetWindow(HWND* result) override { return *result = window, S_OK; }
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return S_OK; }
  STDMETHODIMP CanInPlaceActivate() override { return S_OK; }
  STDMETHODIMP OnInPlaceActivate() override { return Note("active "); }
  STDMETHODIMP OnUIActivate() override { return Note("ui "); }
  STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* position, RECT* clip,
                                OLEINPLACEFRAMEINFO*) override {
    *frame = nullptr;
    *document = nullptr;
    *position = *clip = {10, 10, 310, 210};
    return S_OK;
  }
  STDMETHODIMP Scroll(SIZE) override { return S_OK; }
  STDMETHODIMP OnUIDeactivate(BOOL) override { return Note("no-ui "); }
  STDMETHODIMP OnInPlaceDeactivate() override { return Note("inactive "); }
  STDMETHODIMP DiscardUndoState() override { return S_OK; }
  STDMETHODIMP DeactivateAndUndo() override { return S_OK; }
  STDMETHODIMP OnPosRectChange(LPCRECT) override { return S_OK; }

  STDMETHODIMP OnControlInfoChanged() override { return S_OK; }
  STDMETHODIMP LockInPlaceActive(BOOL) override { return S_OK; }
  STDMETHODIMP GetExtendedControl(IDispatch**) override { return E_NOTIMPL; }
  STDMETHODIMP TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP TranslateAccelerator(MSG*, DWORD) override {
    if (onKey) onKey();
    return Note("key ");
  }
  STDMETHODIMP OnFocus(BOOL) override { return S_OK; }
  STDMETHODIMP ShowPropertyFrame() override { return E_NOTIMPL; }

  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) override {
    if (id != DISPID_AMBIENT_USERMODE) return DISP_E_MEMBERNOTFOUND;
    result->vt = VT_BOOL;
    result->boolVal = designed ? VARIANT_FALSE : VARIANT_TRUE;
    return S_OK;
  }

  HWND window;
  bool designed = false;
  std::function<void()> onKey;
  std::string told;

 private:
  HRESULT Note(const char* what) {
    told += what;
    return S_OK;
  }
};

class InPlace : public ::testing::Test {
 protected:
  void SetUp() override {
    frame = ::CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 800, 600, nullptr, nullptr,
                              nullptr, nullptr);
    ASSERT_NE(frame, nullptr);
    Make();
  }
  void TearDown() override {
    Unmake();
    ::DestroyWindow(frame);
  }
  void Make() {
    site = ComRef<Site>::Taken(new Site(frame));
    control = component.NewControl();
    object = control.As<IOleObject>();
    ASSERT_EQ(object->SetClientSite(site.Get()), S_OK);
  }
  void Unmake() {
    object->Close(OLECLOSE_NOSAVE);
    object->SetClientSite(nullptr);
    object = nullptr;
    control = nullptr;
    site = nullptr;
  }
  HRESULT Do(LONG verb) { return object->DoVerb(verb, nullptr, site.Get(), 0, frame, nullptr); }
  HWND Window() {
    HWND window = nullptr;
    control.As<IOleInPlaceObject>()->GetWindow(&window);
    return window;
  }

  Component component;
  HWND frame = nullptr;
  ComRef<Site> site;
  ComRef<_ORXQueryPrnProp> control;
  ComRef<IOleObject> object;
};

TEST_F(InPlace, IsShownHiddenAndClosed) {
  ASSERT_EQ(Do(OLEIVERB_INPLACEACTIVATE), S_OK);
  ASSERT_NE(Window(), nullptr);
  RECT place{};
  ::GetClientRect(Window(), &place);
  EXPECT_EQ(place.right, 300);
  const RECT moved{0, 0, 900, 700}, clip{0, 0, 100, 700};
  control.As<IOleInPlaceObject>()->SetObjectRects(&moved, &clip);
  ::GetClientRect(Window(), &place);
  EXPECT_EQ(place.right, 900);
  RECT seen{};
  EXPECT_NE(::GetWindowRgnBox(Window(), &seen), ERROR);
  EXPECT_EQ(seen.right, 100);
  ::GetClientRect(::GetWindow(Window(), GW_CHILD), &place);
  EXPECT_EQ(place.right, 645) << "the dialog has its own size";
  EXPECT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
  EXPECT_TRUE(::IsChild(Window(), ::GetFocus()));
  EXPECT_EQ(Do(OLEIVERB_HIDE), S_OK);
  EXPECT_FALSE(::IsWindowVisible(Window()));
  EXPECT_EQ(Do(OLEIVERB_SHOW), S_OK);
  EXPECT_TRUE(::IsWindowVisible(Window()));
  EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
  EXPECT_EQ(Window(), nullptr);
  EXPECT_EQ(::GetWindow(frame, GW_CHILD), nullptr);
  EXPECT_EQ(site->told, "active ui no-ui inactive ");
  EXPECT_EQ(Do(-17), E_NOTIMPL);
  EXPECT_EQ(Do(17), OLEOBJ_S_INVALIDVERB);
}

TEST_F(InPlace, DoesNothingInADesigner) {
  site->designed = true;
  ASSERT_EQ(Do(OLEIVERB_SHOW), S_OK);
  EXPECT_FALSE(::IsWindowEnabled(Window()));
  site->designed = false;
  control.As<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE);
  EXPECT_TRUE(::IsWindowEnabled(Window()));
}

TEST_F(InPlace, LivesOnWhenItsWindowGoes) {
  ASSERT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
  ::DestroyWindow(Window());
  EXPECT_EQ(Window(), nullptr);
  ASSERT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
  EXPECT_NE(Window(), nullptr);
}

TEST_F(InPlace, TabLeadsOutAndTheContainerMayCloseMeanwhile) {
  ASSERT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
  site->onKey = [this] { object->Close(OLECLOSE_NOSAVE); };
  const auto active = control.As<IOleInPlaceActiveObject>();
  for (int i = 0; i < 100 && Window(); ++i) {
    MSG tab{};
    tab.hwnd = ::GetFocus();
    tab.message = WM_KEYDOWN;
    tab.wParam = VK_TAB;
    ASSERT_EQ(active->TranslateAccelerator(&tab), S_OK);
  }
  EXPECT_EQ(site->told, "active ui no-ui inactive key ");
  EXPECT_EQ(::GetWindow(frame, GW_CHILD), nullptr);
}

TEST_F(InPlace, IsDrawnWhileItIsNotActive) {
  SIZEL extent{};
  ASSERT_EQ(object->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
  EXPECT_EQ(extent.cx, 9675 * 2540 / 1440);
  EXPECT_EQ(extent.cy, 5940 * 2540 / 1440);
  const HDC screen = ::GetDC(nullptr), context = ::CreateCompatibleDC(screen);
  const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, 645, 396);
  const HGDIOBJ former = ::SelectObject(context, bitmap);
  const RECTL bounds{0, 0, 645, 396};
  EXPECT_EQ(control.As<IViewObject2>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, context, &bounds, nullptr,
                                             nullptr, 0),
            S_OK);
  int others = 0;
  const COLORREF ground = ::GetPixel(context, 643, 394);
  for (int y = 0; y < 396; y += 2) {
    for (int x = 0; x < 645; x += 2) others += ::GetPixel(context, x, y) != ground;
  }
  EXPECT_GT(others, 500);
  ::SelectObject(context, former);
  ::DeleteObject(bitmap);
  ::DeleteDC(context);
  ::ReleaseDC(nullptr, screen);
}

TEST_F(InPlace, IsShownByTheContainerOfTheSystem) {
  const HMODULE library = ::LoadLibraryW(L"atl100.dll");
  ASSERT_NE(library, nullptr);
  const auto entry = [library](const char* name) { return reinterpret_cast<void*>(::GetProcAddress(library, name)); };
  ASSERT_TRUE(reinterpret_cast<BOOL(WINAPI*)()>(entry("AtlAxWinInit"))());
  const HWND holder = ::CreateWindowExW(0, L"AtlAxWin100", L"", WS_CHILD | WS_VISIBLE, 0, 0, 300, 200, frame, nullptr,
                                        nullptr, nullptr);
  ASSERT_NE(holder, nullptr);
  const auto other = component.NewControl();
  ComRef<IUnknown> container;
  using Attach = HRESULT WINAPI(IUnknown*, HWND, IUnknown**);
  ASSERT_EQ(reinterpret_cast<Attach*>(entry("AtlAxAttachControl"))(other.Get(), holder, container.Out()), S_OK);
  HWND window = nullptr;
  ASSERT_EQ(other.As<IOleInPlaceObject>()->GetWindow(&window), S_OK);
  EXPECT_TRUE(::IsWindowVisible(window));
  ::MoveWindow(holder, 0, 0, 200, 100, TRUE);
  RECT place{};
  ::GetClientRect(window, &place);
  EXPECT_EQ(place.right, 200);
  container = nullptr;
  ::DestroyWindow(holder);
  EXPECT_FALSE(::IsWindow(window));
}

TEST_F(InPlace, LeavesNothingBehindHoweverOftenItIsMade) {
  const auto count = [] {
    DWORD handles = 0;
    ::GetProcessHandleCount(::GetCurrentProcess(), &handles);
    // Wine counts windows and drawing objects as none, so windows are counted here.
    DWORD windows = 0;
    const auto add = [](HWND, LPARAM sum) -> BOOL { return ++*reinterpret_cast<DWORD*>(sum), TRUE; };
    ::EnumThreadWindows(::GetCurrentThreadId(), add, reinterpret_cast<LPARAM>(&windows));
    return handles + windows + ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS) +
           ::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS);
  };
  const HDC context = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
  const RECTL bounds{0, 0, 645, 396};
  DWORD before = 0;
  // Each takes most of a second with its windows.
  for (int i = 0; i < 50; ++i) {
    if (i == 10) before = count();
    Unmake();
    Make();
    if (i % 10 == 0) {
      ASSERT_EQ(control.As<IViewObject2>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, context, &bounds,
                                                 nullptr, nullptr, 0),
                S_OK);
    }
    ASSERT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
  }
  EXPECT_LE(count(), before + 2);
  const HENHMETAFILE file = ::CloseEnhMetaFile(context);
  EXPECT_GT(::GetEnhMetaFileBits(file, 0, nullptr), 5u * 645 * 396 * 4) << "what was drawn";
  ::DeleteEnhMetaFile(file);
}

}  // namespace
}  // namespace ORXKMPrintProp::test
