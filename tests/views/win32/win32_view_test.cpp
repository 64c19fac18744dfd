// What only the native view has: its windows and how they end, and what these take besides mouse and keys.

#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <cwchar>
#include <utility>

#include "control/SharedValues.h"
#include "host/SettingsDocument.h"
#include "support/stage.h"
#include "support/widget_text.h"
#include "views/win32/PrnPropView.h"
#include "views/win32/WindowsPlatform.h"
#include "views/win32/WindowsText.h"
#include "views/win32/windows_of.h"

namespace ORXKMPrintProp::win32::test {
namespace {

using namespace ORXKMPrintProp::test;

class WindowsViewTest : public testing::Test, protected ORXQueryPrnPropEvents {
 protected:
  WindowsViewTest() {
    // The system tells the true resolution then.
    ::SetProcessDPIAware();
    control.Connect(*this);
    ::ShowWindow(host, SW_SHOW);
    Open();
  }
  ~WindowsViewTest() override {
    view.reset();
    ::DestroyWindow(host);
  }
  void Open() {
    view = std::make_unique<PrnPropView>(dialog, host, Reports{});
    ::ShowWindow(view->Window(), SW_SHOW);
  }
  void Load(const std::string& characteristics) {
    ASSERT_TRUE(Settings(Characteristics(characteristics)).LoadInto(control));
    dialog.TabStrip().Tab(kCharTab);
  }
  HWND WindowOf(const Widget& widget) const { return WindowsOf(view->Window(), dialog).at(&widget); }
  HWND WindowOf(const char16_t* name, std::int16_t index = WidgetName::kNoIndex) const {
    return WindowOf(*dialog.Find({name, index}));
  }
  void Press(HWND button) {
    ::SendMessageW(button, BM_CLICK, 0, 0);
    Pump();
  }

  void ORXPrintLayoutGet(std::int16_t, const Text&) override { onEvent(); }
  void ORXOrderChanged() override { onEvent(); }

  std::function<void()> onEvent = [] {};
  ORXQueryPrnProp control{(ReleaseSharedValues(), gDefaultFontName.clear(), WindowsPlatform::Instance())};
  Dialog& dialog = control.GetDialog();
  HWND host =
      ::CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW, 0, 0, 700, 450, nullptr, nullptr, nullptr, nullptr);
  std::unique_ptr<PrnPropView> view;
};

TEST_F(WindowsViewTest, EveryWindowLiesWhereTheLayoutSaysAndShowsItsWholeCaption) {
  const auto document = host::ReadSettings(PRNPROP_EXAMPLES "/german.json");
  for (const auto& texts : {decltype(document.texts)(), document.texts}) {
    if (texts) control.ORXControlTexts(texts);
    Load("a");
    EXPECT_EQ(Misplaced(view->Window(), dialog, PrnPropView::DpiOf(view->Window())), "");
    for (const auto& widget : dialog.Controls()) {
      if (widget->Caption().empty()) continue;
      EXPECT_EQ(ToAscii(win32::TextOf(WindowOf(*widget))), ToAscii(widget->Caption()));
    }
  }
  const SIZE size = PrnPropView::NaturalSize(96);
  EXPECT_EQ(std::pair(size.cx, size.cy), std::pair(645L, 396L));
}

/// Runs a test in a process for which screens have that resolution. @return what it ends with
DWORD RunAt(DWORD dpi, const std::string& test) {
  constexpr const wchar_t* kKey = L"Control Panel\\Desktop";
  constexpr const wchar_t* kValue = L"LogPixels";
  DWORD former = 96, size = sizeof former, ended = 1;
  ::RegGetValueW(HKEY_CURRENT_USER, kKey, kValue, RRF_RT_REG_DWORD, nullptr, &former, &size);
  ::RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kValue, REG_DWORD, &dpi, sizeof dpi);
  std::array<char, MAX_PATH> program{};
  ::GetModuleFileNameA(nullptr, program.data(), MAX_PATH);
  std::string command = std::string(program.data()) + " --gtest_brief=1 --gtest_filter=" + test;
  STARTUPINFOA start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  if (::CreateProcessA(program.data(), command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process)) {
    ::WaitForSingleObject(process.hProcess, INFINITE);
    ::GetExitCodeProcess(process.hProcess, &ended);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
  }
  ::RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kValue, REG_DWORD, &former, sizeof former);
  return ended;
}

// A window of a program that knows nothing of resolutions has 96 pixels to an inch, whatever its screen has.
TEST_F(WindowsViewTest, IsMovedToAnotherMonitor) {
  const UINT dpi = PrnPropView::DpiOf(host);
  if (dpi == 96) {
    for (const DWORD other : {144u, 192u}) EXPECT_EQ(RunAt(other, "WindowsViewTest.IsMovedToAnotherMonitor"), 0u);
    return;
  }
  using Set = HANDLE WINAPI(HANDLE);
  const auto setAwareness = reinterpret_cast<Set*>(
      reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"user32"), "SetThreadDpiAwarenessContext")));
  ASSERT_NE(setAwareness, nullptr);
  Load("a");
  EXPECT_EQ(Misplaced(view->Window(), dialog, dpi), "");
  view.reset();
  const HANDLE former = setAwareness(reinterpret_cast<HANDLE>(-1));
  const HWND unaware =
      ::CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW, 0, 0, 700, 450, nullptr, nullptr, nullptr, nullptr);
  const HWND aware = std::exchange(host, unaware);
  Open();
  EXPECT_EQ(Misplaced(view->Window(), dialog, 96), "");
  ::SetParent(view->Window(), aware);
  // Wine gives those in it the resolution of the new place only when they are moved themselves.
  ::EnumChildWindows(
      view->Window(),
      [](HWND child, LPARAM elsewhere) -> BOOL {
        const HWND parent = ::GetAncestor(child, GA_PARENT);
        ::SetParent(child, reinterpret_cast<HWND>(elsewhere));
        ::SetParent(child, parent);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(aware));
  setAwareness(former);
  constexpr UINT kMoved = 0x02E3;  // WM_DPICHANGED_AFTERPARENT
  ::SendMessageW(view->Window(), kMoved, 0, 0);
  EXPECT_EQ(Misplaced(view->Window(), dialog, dpi), "");
  LOGFONTW font{};
  ::GetObjectW(reinterpret_cast<HFONT>(::SendMessageW(WindowOf(u"lstPrint", 1), WM_GETFONT, 0, 0)), sizeof font, &font);
  EXPECT_EQ(font.lfHeight, -::MulDiv(11, static_cast<int>(dpi), 96)) << "8.25 points";
  view.reset();
  ::DestroyWindow(std::exchange(host, aware));
}

TEST_F(WindowsViewTest, MayEndFromInsideAnEvent) {
  const auto endView = [this] { view.reset(); };
  const auto endHost = [this] { ::DestroyWindow(host); };
  for (const auto& end : {std::function<void()>(endView), std::function<void()>(endHost)}) {
    Load("a b x-");
    onEvent = end;
    const HWND window = view->Window();
    ::SendMessageW(WindowOf(u"lstPrint", 1), LB_SETSEL, TRUE, 0);
    Press(WindowOf(u"cmdPrintLayout", 4));
    EXPECT_FALSE(::IsWindow(window));
    onEvent = [] {};
    if (!view) Open();
  }
  EXPECT_EQ(view->Window(), nullptr);
  dialog.Get<Label>(u"lblCharCol2").Caption(u"still written");
  control.ORXDimTable();
}

TEST_F(WindowsViewTest, MayEndInADragAndWhileItsMessageIsOpen) {
  Load("a b c d e f g h i j x- y-");
  const HWND list = WindowOf(u"lstPrint", 1);
  onEvent = [this] { view.reset(); };
  ::SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(9, 3));
  RECT third{};
  ::SendMessageW(list, LB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&third));
  ::SendMessageW(list, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(9, third.top + 3));
  ::SendMessageW(list, WM_LBUTTONUP, 0, MAKELPARAM(9, third.top + 3));
  EXPECT_FALSE(::IsWindow(list));
  EXPECT_EQ(StateOf(dialog.Get<ListBox>(u"lstPrint", 1)).substr(0, 14), "b:2 c:3 >*a:1 ");

  Open();
  onEvent = [] {};
  ::SendMessageW(WindowOf(u"lstAvail", 1), LB_SETSEL, TRUE, 0);
  static bool wasOpen;
  static HWND around;
  static std::unique_ptr<PrnPropView>* ending;
  wasOpen = false;
  around = host;
  ending = &view;
  ::SetTimer(nullptr, 0, 50, [](HWND, UINT, UINT_PTR id, DWORD) {
    ::KillTimer(nullptr, id);
    wasOpen = ::GetLastActivePopup(around) != around;
    ending->reset();
  });
  Press(WindowOf(u"cmdLeftToRight", 1));
  EXPECT_TRUE(wasOpen);
  EXPECT_FALSE(view);
  EXPECT_EQ(::GetLastActivePopup(host), host);
  EXPECT_TRUE(::IsWindowEnabled(host));
}

TEST_F(WindowsViewTest, AnotherProgramActsAsTheUser) {
  Load("a b c");
  const HWND list = WindowOf(u"lstPrint", 1);
  const auto& widget = dialog.Get<ListBox>(u"lstPrint", 1);
  ::SendMessageW(list, LB_SETSEL, TRUE, 2);
  ::SendMessageW(list, LB_SETSEL, TRUE, 0);
  ::SendMessageW(list, LB_SETSEL, FALSE, 2);
  EXPECT_EQ(StateOf(widget), "*a:1 b:2 >c:3");
  int selected[3]{};
  EXPECT_EQ(::SendMessageW(list, LB_GETSELITEMS, 3, reinterpret_cast<LPARAM>(selected)), 1);
  EXPECT_EQ(::SendMessageW(list, LB_GETTEXTLEN, 9, 0), LB_ERR);
  Press(WindowOf(u"chkCharColAutoWidth"));
  EXPECT_EQ(dialog.Get<CheckBox>(u"chkCharColAutoWidth").Value(), 1);
  ::SendMessageW(WindowOf(u"tstPrint"), 0x1330 /* TCM_SETCURFOCUS */, 2, 0);
  Pump();
  EXPECT_EQ(dialog.TabStrip().Tab(), kAttrTab);
  const HWND box = WindowOf(u"txtGenPrnTitle");
  ::SendMessageW(box, EM_SETSEL, 0, -1);
  ::SendMessageW(box, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"dictated"));
  EXPECT_EQ(StateOf(dialog.Get<TextBox>(u"txtGenPrnTitle")), "T") << "its page is not on top";
  EXPECT_EQ(ToAscii(win32::TextOf(box)), "T");
  dialog.TabStrip().Tab(kGeneralTab);
  ::SendMessageW(box, EM_SETSEL, 0, -1);
  ::SendMessageW(box, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"dictated"));
  EXPECT_EQ(StateOf(dialog.Get<TextBox>(u"txtGenPrnTitle")), "dictated");
}

TEST_F(WindowsViewTest, AnOpenListTakesEnterAndEscape) {
  Load("a");
  dialog.TabStrip().Tab(kGeneralTab);
  const HWND combo = WindowOf(u"cmbGenSignPrsnt");
  ::SetFocus(combo);
  for (const auto& [key, picked] : {std::pair(VK_ESCAPE, ">-X X- (X)"), std::pair(VK_RETURN, "-X >X- (X)")}) {
    const MSG ends{combo, WM_KEYDOWN, static_cast<WPARAM>(key), 1, 0, {}};
    EXPECT_FALSE(view->TakeKey(ends)) << "the list is closed";
    ::SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
    ::SendMessageW(combo, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_TRUE(view->TakeKey(ends));
    Pump();
    EXPECT_FALSE(::SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0));
    EXPECT_EQ(StateOf(dialog.Get<ComboBox>(u"cmbGenSignPrsnt")), picked);
  }
}

TEST_F(WindowsViewTest, WhatDoesNotFitIsCut) {
  dialog.Get<Label>(u"lblGenMarginTop").Caption(u"A caption much too long for its place on the page & more");
  const Text shown = win32::TextOf(WindowOf(u"lblGenMarginTop"));
  EXPECT_EQ(shown.back(), u'\u2026');
  dialog.Get<Label>(u"lblGenMarginTop").Caption(u"T&p");
  EXPECT_EQ(win32::TextOf(WindowOf(u"lblGenMarginTop")), u"T&p");
  dialog.Get<CheckBox>(u"chkGenNoLines").Caption(u"T&p");
  EXPECT_EQ(win32::TextOf(WindowOf(u"chkGenNoLines")), u"T&&p") << "no shortcut";
}

TEST_F(WindowsViewTest, WhatWouldNotFitIsToldAhead) {
  const auto wouldBeCut = [this](const Widget& widget, const Text& text, int tab = 0) {
    const views::TextRoom room = view->RoomOf(widget, text, tab).value();
    return room.needed > room.room;
  };
  for (const TextView name : {u"lblGenMarginTop", u"fraGenPageMargins", u"cmdPrintLayout(0)", u"chkGenNoLines"}) {
    Widget& widget = *dialog.FindSpelled(name);
    for (Text text = u"w"; text.size() < 100; text += u'w') {
      widget.Caption(text);
      const bool isCut = win32::TextOf(WindowOf(widget)).back() == u'\u2026';
      EXPECT_EQ(isCut, wouldBeCut(widget, text)) << ToAscii(Text(name)) << ' ' << text.size();
    }
  }
  SSTab& strip = dialog.TabStrip();
  for (Text text = u"w"; text.size() < 100; text += u'w') {
    strip.TabCaption(3, text);
    wchar_t shown[128]{};
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = shown;
    item.cchTextMax = 128;
    TabCtrl_GetItem(WindowOf(u"tstPrint"), 3, &item);
    const bool isCut = shown[std::wcslen(shown) - 1] == L'\u2026';
    EXPECT_EQ(isCut, wouldBeCut(strip, text, 3)) << text.size();
    EXPECT_FALSE(wouldBeCut(strip, strip.TabCaption(0), 0));
  }
  EXPECT_FALSE(view->RoomOf(*dialog.FindSpelled(u"lstPrint(1)"), u"text", 0));
}

}  // namespace
}  // namespace ORXKMPrintProp::win32::test
