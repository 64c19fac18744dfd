// The control in the window of a container.

#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <utility>
#include <vector>

#include "server/container.h"
#include "views/win32/PrnPropView.h"
#include "views/win32/windows_of.h"

namespace ORXKMPrintProp::test {
namespace {

using automation::ComRef;
using win32::test::Pump;

/// What is not as the layout has it in the control's window.
std::string Misplaced(HWND window) {
  const HWND view = ::GetWindow(window, GW_CHILD);
  return win32::test::Misplaced(view, Dialog(), win32::PrnPropView::DpiOf(view));
}

MSG KeyOf(WPARAM key) { return {::GetFocus(), WM_KEYDOWN, key, 1, 0, {}}; }

TEST_F(InPlace, IsShownHiddenAndClosed) {
  ASSERT_EQ(Do(OLEIVERB_INPLACEACTIVATE), S_OK);
  ASSERT_NE(Window(), nullptr);
  RECT place{};
  ::GetClientRect(Window(), &place);
  EXPECT_EQ(place.right, 650);
  const RECT moved{0, 0, 900, 700}, clip{0, 0, 100, 700};
  control.As<IOleInPlaceObject>()->SetObjectRects(&moved, &clip);
  ::GetClientRect(Window(), &place);
  EXPECT_EQ(place.right, 900);
  RECT seen{};
  EXPECT_NE(::GetWindowRgnBox(Window(), &seen), ERROR);
  EXPECT_EQ(seen.right, 100);
  ::GetClientRect(::GetWindow(Window(), GW_CHILD), &place);
  EXPECT_EQ(place.right, 645) << "the dialog has its own size";
  EXPECT_EQ(Misplaced(Window()), "");
  EXPECT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
  EXPECT_TRUE(::IsChild(Window(), ::GetFocus()));
  EXPECT_EQ(Do(OLEIVERB_HIDE), S_OK);
  EXPECT_FALSE(::IsWindowVisible(Window()));
  EXPECT_EQ(Do(OLEIVERB_SHOW), S_OK);
  EXPECT_TRUE(::IsWindowVisible(Window()));
  EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
  EXPECT_EQ(Window(), nullptr);
  EXPECT_EQ(::GetWindow(frame, GW_CHILD), nullptr);
  EXPECT_EQ(notes.told, "active ui focus no-focus no-ui inactive ");
}

TEST_F(InPlace, KnowsItsVerbs) {
  const struct {
    LONG verb;
    HRESULT result;
    const char* told;
  } rows[] = {
      {OLEIVERB_DISCARDUNDOSTATE, S_OK, ""},
      {OLEIVERB_PROPERTIES, S_OK, "properties "},
      {OLEIVERB_HIDE, S_OK, ""},
      {-17, E_NOTIMPL, ""},
      {17, OLEOBJ_S_INVALIDVERB, "active "},
      {OLEIVERB_PRIMARY, S_OK, "ui focus "},
      {OLEIVERB_UIACTIVATE, S_OK, ""},
      {OLEIVERB_HIDE, S_OK, "no-focus no-ui "},
  };
  for (const auto& row : rows) {
    notes.told.clear();
    EXPECT_EQ(Do(row.verb), row.result) << row.verb;
    EXPECT_EQ(notes.told, row.told) << row.verb;
  }
  object->SetClientSite(nullptr);
  EXPECT_EQ(Do(OLEIVERB_SHOW), E_UNEXPECTED);
  EXPECT_EQ(Do(OLEIVERB_PROPERTIES), E_NOTIMPL);
}

TEST_F(InPlace, TellsTheWindowsAroundItWhetherItIsActive) {
  site->hasFrame = true;
  ASSERT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
  EXPECT_EQ(control.As<IOleInPlaceObject>()->UIDeactivate(), S_OK);
  EXPECT_EQ(notes.told, "active ui +frame +document focus -frame -document no-focus no-ui ");
  EXPECT_EQ(::GetFocus(), frame) << "keys are the container's";
  // What is told may lead to the opposite at once.
  for (const char* const when : {"ui", "+frame", "+document", "focus"}) {
    notes.told.clear();
    notes.act = [&](const std::string& what) {
      if (what == when) object->Close(OLECLOSE_NOSAVE);
    };
    Do(OLEIVERB_UIACTIVATE);
    EXPECT_EQ(Window(), nullptr) << when;
    const auto behind = notes.told.find("no-ui");
    ASSERT_NE(behind, std::string::npos) << when;
    EXPECT_EQ(notes.told.substr(behind), "no-ui inactive ") << when;
  }
}

TEST_F(InPlace, DoesNothingInADesignerOrForAHostAtABreak) {
  for (bool Site::*const stops : {&Site::isDesigned, &Site::isDead}) {
    site.Get()->*stops = true;
    ASSERT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
    EXPECT_FALSE(::IsWindowEnabled(Window()));
    site.Get()->*stops = false;
    control.As<IOleControl>()->OnAmbientPropertyChange(DISPID_UNKNOWN);
    EXPECT_TRUE(::IsWindowEnabled(Window()));
    ASSERT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
    site.Get()->*stops = true;
    control.As<IOleControl>()->OnAmbientPropertyChange(DISPID_UNKNOWN);
    EXPECT_FALSE(::IsWindowEnabled(Window()));
    EXPECT_EQ(::GetFocus(), frame);
    object->Close(OLECLOSE_NOSAVE);
    EXPECT_EQ(notes.told, "active ui focus no-focus no-ui inactive ");
    notes.told.clear();
    site.Get()->*stops = false;
  }
}

TEST_F(InPlace, LivesOnWhenItsWindowGoes) {
  ASSERT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
  ::DestroyWindow(Window());
  EXPECT_EQ(Window(), nullptr);
  ASSERT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
  EXPECT_NE(Window(), nullptr);
}

TEST_F(InPlace, TellsTheSiteOfItsFocusAndIsDeactivatedByTheContainerAlone) {
  const HWND beside =
      ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE, 400, 0, 9, 9, frame, nullptr, nullptr, nullptr);
  ASSERT_EQ(Do(OLEIVERB_INPLACEACTIVATE), S_OK);
  for (const HWND to : {Window(), beside, WindowOf(u"tstPrint"), WindowOf(u"txtGenPrnTitle"), beside}) ::SetFocus(to);
  EXPECT_EQ(notes.told, "active ui focus no-focus focus no-focus ");
  EXPECT_EQ(control.As<IOleInPlaceObject>()->UIDeactivate(), S_OK);
  EXPECT_EQ(notes.told, "active ui focus no-focus focus no-focus no-ui ");
  EXPECT_EQ(::GetFocus(), beside) << "it stays where it is";
}

TEST_F(InPlace, KeysGoToTheDialogToAWidgetOrToTheSite) {
  ASSERT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
  const auto active = control.As<IOleInPlaceActiveObject>();
  const struct {
    bool isTaken;  ///< by the site
    bool isShifted;
    TextView from;
    WPARAM key;
    HRESULT result;
    const char* told;
    TextView to;
  } rows[] = {
      {true, false, u"txtGenPrnTitle", VK_TAB, S_OK, "", u"cmbGenPrnDirection"},
      {true, true, u"cmbGenPrnDirection", VK_TAB, S_OK, "", u"txtGenPrnTitle"},
      {true, false, u"txtGenMaxPages", VK_RETURN, S_OK, "key13 ", u"txtGenMaxPages"},
      {false, false, u"txtGenMaxPages", VK_RETURN, S_FALSE, "key13 ", u"txtGenMaxPages"},
      {false, false, u"txtGenMaxPages", VK_ESCAPE, S_FALSE, "key27 ", u"txtGenMaxPages"},
      {true, true, u"tstPrint", VK_TAB, S_OK, "key9 ", u"tstPrint"},
      {true, false, u"cmdPrintLayout(3)", VK_TAB, S_OK, "key9 ", u"cmdPrintLayout(3)"},
      // What nobody takes comes to the widget in the end, and then goes round.
      {false, true, u"tstPrint", VK_TAB, S_FALSE, "key9 ", u"cmdPrintLayout(3)"},
      {false, false, u"cmdPrintLayout(3)", VK_TAB, S_FALSE, "key9 ", u"tstPrint"},
      {true, false, u"tstPrint", VK_RIGHT, S_OK, "", u"tstPrint"},
  };
  for (const auto& row : rows) {
    site->takesKeys = row.isTaken;
    ::SetFocus(WindowOf(row.from));
    notes.told.clear();
    std::array<BYTE, 256> state{};
    state[VK_SHIFT] = row.isShifted ? 0x80 : 0;
    ::SetKeyboardState(state.data());
    MSG key = KeyOf(row.key);
    const HRESULT result = active->TranslateAccelerator(&key);
    if (result == S_FALSE) ::DispatchMessageW(&key);
    const std::string what = ToAscii(row.from) + " " + std::to_string(row.key) + (row.isTaken ? " taken" : "");
    EXPECT_EQ(result, row.result) << what;
    EXPECT_EQ(notes.told, row.told) << what;
    EXPECT_EQ(::GetFocus(), WindowOf(row.to)) << what;
    ::SetKeyboardState(std::array<BYTE, 256>{}.data());
  }
  EXPECT_TRUE(::IsWindowVisible(WindowOf(u"lstAvail(1)"))) << "the arrow has changed the tab";
  MSG mouse{Window(), WM_MOUSEMOVE, 0, 0, 0, {}};
  EXPECT_EQ(active->TranslateAccelerator(&mouse), S_FALSE);
  EXPECT_EQ(notes.told, "") << "it is no key";
  // The container may close the control for the key.
  site->takesKeys = true;
  notes.told.clear();
  notes.act = [this](const std::string& what) {
    if (what == "key27") object->Close(OLECLOSE_NOSAVE);
  };
  MSG escape = KeyOf(VK_ESCAPE);
  EXPECT_EQ(active->TranslateAccelerator(&escape), S_OK);
  EXPECT_EQ(notes.told, "key27 no-focus no-ui inactive ");
  EXPECT_EQ(::GetWindow(frame, GW_CHILD), nullptr);
}

TEST_F(InPlace, MayEndInsideItsEventsAndWhileItsMessageIsOpen) {
  std::string rows;
  for (const char name : std::string("ABCDEFGHIJK")) {
    rows += std::string("IOBJNM='") + name + "' IOBJTXT='" + name + "'" + (name < 'J' ? " AXIS='Y'\n" : "\n");
  }
  static std::function<void()> end;
  static bool isReleased;
  const auto close = [this] { object->Close(OLECLOSE_NOSAVE); };
  const auto destroy = [this] { ::DestroyWindow(Window()); };
  const auto release = [this] {
    object = nullptr;
    control = nullptr;
    isReleased = true;
  };
  const struct {
    const char* moment;
    std::vector<std::pair<TextView, int>> uses;
    const char* heard;
  } moments[] = {
      {"a layout is wanted", {{u"cmdPrintLayout(0)", 0}}, "x1,0,'' "},
      {"the order has changed", {{u"tstPrint", 1}, {u"lstAvail(1)", 0}, {u"cmdLeftToRight(1)", 0}}, "x2 "},
      {"ten at most", {{u"tstPrint", 1}, {u"lstAvail(1)", 0}, {u"lstAvail(1)", 1}, {u"cmdLeftToRight(1)", 0}}, "box "},
  };
  for (const auto& act :
       {std::function<void()>(close), std::function<void()>(destroy), std::function<void()>(release)}) {
    for (const auto& row : moments) {
      Unmake();
      Make();
      notes.told.clear();
      heard.clear();
      Load(HostTables(Settings(rows)));
      end = act;
      isReleased = false;
      Connect("x", [] { return end(), S_OK; });
      ASSERT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
      const HWND window = Window();
      static std::string* told;
      told = &heard;
      const UINT_PTR timer = ::SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR, DWORD) {
        const HWND box = ::FindWindowW(L"#32770", L"Error");
        if (!box || !told->empty()) return;
        *told += "box ";
        end();
        // What is only released lives until the user has read it.
        if (isReleased) ::PostMessageW(box, WM_COMMAND, IDOK, 0);
      });
      for (const auto& [widget, entry] : row.uses) Use(WindowIn(window, widget), entry);
      ::KillTimer(nullptr, timer);
      EXPECT_EQ(heard, row.heard) << row.moment;
      EXPECT_FALSE(::IsWindow(window)) << row.moment;
      EXPECT_EQ(::FindWindowW(L"#32770", L"Error"), nullptr) << row.moment;
      EXPECT_TRUE(::IsWindowEnabled(frame)) << row.moment;
      EXPECT_EQ(::GetWindow(frame, GW_CHILD), nullptr) << row.moment;
    }
  }
}

TEST_F(InPlace, TellsTheWindowsAroundItOfItsMessage) {
  site->hasFrame = true;
  std::string rows;
  for (const char name : std::string("ABCDEFGHIJK")) {
    rows += std::string("IOBJNM='") + name + (name < 'K' ? "' AXIS='Y'\n" : "'\n");
  }
  Load(HostTables(Settings(rows)));
  ASSERT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
  Use(u"tstPrint", 1);
  Use(u"lstAvail(1)", 0);
  notes.told.clear();
  notes.act = [](const std::string& what) {
    if (what != "-modeless") return;
    ::SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR timer, DWORD) {
      const HWND box = ::FindWindowW(L"#32770", L"Error");
      if (!box) return;
      ::KillTimer(nullptr, timer);
      ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
  };
  Use(u"cmdLeftToRight(1)");
  EXPECT_EQ(notes.told, "-modeless no-focus +modeless ");
}

TEST_F(InPlace, TellsWhoLooksWhenItIsToBeDrawnAnew) {
  const auto view = control.As<IViewObject2>();
  EXPECT_EQ(view->SetAdvise(DVASPECT_ICON, 0, site.Get()), DV_E_DVASPECT);
  EXPECT_EQ(view->SetAdvise(DVASPECT_CONTENT, ADVF_PRIMEFIRST, site.Get()), S_OK);
  EXPECT_EQ(notes.told, "seen ");
  Load(HostTables(Settings("IOBJNM='A'")));
  SIZEL size{5000, 4000};
  EXPECT_EQ(object->SetExtent(DVASPECT_CONTENT, &size), S_OK);
  EXPECT_EQ(notes.told, "seen seen seen ");
  ASSERT_EQ(Do(OLEIVERB_SHOW), S_OK);
  control->ORXSetReadOnly(VARIANT_TRUE);
  EXPECT_EQ(notes.told, "seen seen seen active ") << "the window shows it";
  EXPECT_EQ(view->SetAdvise(DVASPECT_CONTENT, ADVF_ONLYONCE, site.Get()), S_OK);
  DWORD aspects = 0, flags = 0;
  ComRef<IAdviseSink> sink;
  EXPECT_EQ(view->GetAdvise(&aspects, &flags, sink.Out()), S_OK);
  EXPECT_TRUE(sink && aspects == DVASPECT_CONTENT && flags == ADVF_ONLYONCE);
  for (int i = 0; i < 2; ++i) object->SetExtent(DVASPECT_CONTENT, &size);
  EXPECT_EQ(notes.told, "seen seen seen active seen ");
  size.cx = -1;
  EXPECT_EQ(object->SetExtent(DVASPECT_CONTENT, &size), E_INVALIDARG);
  DWORD connection = 0;
  EXPECT_EQ(object->Advise(site.Get(), &connection), S_OK);
  object->Close(OLECLOSE_NOSAVE);
  EXPECT_EQ(notes.told, "seen seen seen active seen inactive closed ");
}

TEST_F(InPlace, IsActivatedAtOnceOrFailsWithItsSink) {
  const auto quick = control.As<IQuickActivate>();
  const auto sink = ComRef<IDispatch>::Taken(new Sink("q", heard));
  QACONTAINER container{};
  container.cbSize = sizeof container;
  container.pClientSite = site.Get();
  container.pAdviseSink = reinterpret_cast<IAdviseSinkEx*>(static_cast<IAdviseSink*>(site.Get()));
  container.pUnkEventSink = sink.Get();
  QACONTROL given{};
  given.cbSize = sizeof given;
  ASSERT_EQ(quick->QuickActivate(&container, &given), S_OK);
  EXPECT_EQ(given.dwMiscStatus, 131473u);
  Load(HostTables(Settings("IOBJNM='A'")));
  ASSERT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
  Use(u"cmdPrintLayout(3)");
  EXPECT_EQ(notes.told + heard, "seen active ui focus q1,3,'' ");
  EXPECT_EQ(Point()->Unadvise(given.dwEventCookie), S_OK);
  object->Close(OLECLOSE_NOSAVE);

  const ComRef<IUnknown> noSink = component.Factory(__uuidof(::ORXQueryPrnProp)).As<IUnknown>();
  container.pUnkEventSink = noSink.Get();
  EXPECT_EQ(quick->QuickActivate(&container, &given), CONNECT_E_CANNOTCONNECT);
  ComRef<IOleClientSite> kept;
  object->GetClientSite(kept.Out());
  EXPECT_FALSE(kept);
}

TEST_F(InPlace, KeepsNothing) {
  ComRef<IStream> stream;
  ASSERT_EQ(::CreateStreamOnHGlobal(nullptr, TRUE, stream.Out()), S_OK);
  const auto streamed = control.As<IPersistStreamInit>();
  EXPECT_EQ(streamed->InitNew(), S_OK);
  Load(HostTables(Settings("IOBJNM='A'")));
  EXPECT_EQ(streamed->IsDirty(), S_FALSE);
  ULARGE_INTEGER size{};
  size.QuadPart = 17;
  EXPECT_EQ(streamed->GetSizeMax(&size), S_OK);
  EXPECT_EQ(size.QuadPart, 0u);
  EXPECT_EQ(streamed->Save(stream.Get(), TRUE), S_OK);
  STATSTG saved{};
  stream->Stat(&saved, STATFLAG_NONAME);
  EXPECT_EQ(saved.cbSize.QuadPart, 0u);
  EXPECT_EQ(streamed->Load(stream.Get()), S_OK);
  // A bag that is called would fail.
  const auto bagged = control.As<IPersistPropertyBag>();
  EXPECT_EQ(bagged->Save(nullptr, TRUE, TRUE), S_OK);
  EXPECT_EQ(bagged->Load(nullptr, nullptr), S_OK);
  CLSID id{};
  EXPECT_EQ(bagged->GetClassID(&id), S_OK);
  EXPECT_TRUE(id == __uuidof(::ORXQueryPrnProp));
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
  EXPECT_EQ(Misplaced(window), "");
  container = nullptr;
  ::DestroyWindow(holder);
  EXPECT_FALSE(::IsWindow(window));
}

/// What a process may leave behind: handles, windows, what draws.
DWORD CountResources() {
  DWORD count = 0;
  ::GetProcessHandleCount(::GetCurrentProcess(), &count);
  const auto add = [](HWND, LPARAM sum) -> BOOL { return ++*reinterpret_cast<DWORD*>(sum), TRUE; };
  ::EnumThreadWindows(::GetCurrentThreadId(), add, reinterpret_cast<LPARAM>(&count));
  count += ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS) +
           ::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS);
  // Wine tells of none of these, but knows them by the lower half of their handles.
  for (ULONG_PTR handle = 1; handle < 0x10000; ++handle) {
    count += ::GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0;
    ICONINFO pointer{};
    if (!::GetIconInfo(reinterpret_cast<HICON>(handle), &pointer)) continue;
    ++count;
    ::DeleteObject(pointer.hbmMask);
    ::DeleteObject(pointer.hbmColor);
  }
  return count;
}

SIZE_T PrivateBytes() {
  PROCESS_MEMORY_COUNTERS memory{};
  ::GetProcessMemoryInfo(::GetCurrentProcess(), &memory, sizeof memory);
  return memory.PagefileUsage;
}

TEST_F(InPlace, LeavesNothingBehindHoweverOftenItIsMadeAndLoaded) {
  // For certainty: PRNPROP_ROUNDS=200.
  const char* const wanted = std::getenv("PRNPROP_ROUNDS");
  const int rounds = wanted ? std::atoi(wanted) : 20, known = rounds / 2;
  constexpr int kLoads = 5;
  constexpr int kWidth = 645, kHeight = 396;
  const RECTL bounds{0, 0, kWidth, kHeight};
  const char* const rows = "IOBJNM='A' IOBJTXT='A' AXIS='Y'\nIOBJNM='B'";
  DWORD resources = 0;
  SIZE_T memory = 0;
  for (int i = 0; i < rounds; ++i) {
    if (i == known) {
      resources = CountResources();
      memory = PrivateBytes();
    }
    Unmake();
    Make();
    if (i % 10 == 0) {
      const HDC context = ::CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr);
      EXPECT_EQ(control.As<IViewObject2>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, context, &bounds,
                                                 nullptr, nullptr, 0),
                S_OK);
      const HENHMETAFILE file = ::CloseEnhMetaFile(context);
      EXPECT_GT(::GetEnhMetaFileBits(file, 0, nullptr), kWidth * kHeight * 4u) << "what was drawn";
      ::DeleteEnhMetaFile(file);
    }
    ASSERT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
    for (int load = 0; load < kLoads; ++load) Load(HostTables(Settings(rows, "IOBJNM='A' ATTRINM='a'")));
    Pump();
  }
  EXPECT_LE(CountResources(), resources + 2);
  EXPECT_LE(PrivateBytes(), memory + 1'000'000);
  if (wanted) {
    std::cout << rounds << " rounds, " << rounds * kLoads << " loads: from " << resources << " resources and "
              << memory / 1000 << " kB to " << CountResources() << " and " << PrivateBytes() / 1000 << " kB\n";
  }
}

TEST_F(InPlace, IsShownByTheExample) {
  ASSERT_EQ(component.Register(), S_OK);
  ::ShowWindow(frame, SW_HIDE);
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  HANDLE output = nullptr;
  ASSERT_TRUE(::CreatePipe(&output, &start.hStdOutput, &inherited, 0));
  PROCESS_INFORMATION process{};
  ASSERT_TRUE(::CreateProcessW(PRNPROP_CLIENT, nullptr, nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process));
  ::CloseHandle(start.hStdOutput);

  const auto await = [](const std::function<bool()>& isSo) {
    for (int tries = 0; tries < 1000 && !isSo(); ++tries) ::Sleep(20);
    return isSo();
  };
  HWND window = nullptr;
  ASSERT_TRUE(await([&] {
    window = ::FindWindowW(L"client", nullptr);
    GUITHREADINFO thread{};
    thread.cbSize = sizeof thread;
    // What is active in it has the focus when all is there.
    return ::GetGUIThreadInfo(process.dwThreadId, &thread) && thread.hwndFocus && thread.hwndFocus != window;
  }));
  Use(WindowIn(window, u"cmdPrintLayout(0)"));
  Use(WindowIn(window, u"tstPrint"), 1);
  const HWND list = WindowIn(window, u"lstAvail(1)");
  ASSERT_TRUE(await([&] { return ::IsWindowVisible(list); }));
  Use(list, 0);
  Use(WindowIn(window, u"cmdLeftToRight(1)"));
  // Input comes behind what is posted.
  ASSERT_TRUE(await([&] { return ::SendMessageW(list, LB_GETCOUNT, 0, 0) == 0; }));
  ::PostMessageW(window, WM_CLOSE, 0, 0);

  std::string printed;
  std::array<char, 256> part{};
  for (DWORD count = 0; ::ReadFile(output, part.data(), static_cast<DWORD>(part.size()), &count, nullptr) && count;) {
    std::copy_if(part.data(), part.data() + count, std::back_inserter(printed), [](char c) { return c != '\r'; });
  }
  EXPECT_EQ(printed,
            "asked for layout 0\nthe print order changed\nthe very table: yes\n1 REGION\n2 CUSTOMER\n3 MONTH\n"
            "top page <page/>\n");
  for (const HANDLE handle : {output, process.hProcess, process.hThread}) ::CloseHandle(handle);
  EXPECT_EQ(component.Unregister(), S_OK);
}

}  // namespace
}  // namespace ORXKMPrintProp::test
