// What only the native view has: its windows and how they end, and what these take besides mouse and keys.

#include <gtest/gtest.h>

#include <cstdlib>

#include "control/SharedValues.h"
#include "host/SettingsDocument.h"
#include "support/stage.h"
#include "support/widget_text.h"
#include "views/Places.h"
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

int WidthOf(HWND window, TextView text) {
  const HDC context = ::GetDC(window);
  const HGDIOBJ former = ::SelectObject(context, reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0)));
  SIZE size{};
  ::GetTextExtentPoint32W(context, ToWide(text).c_str(), static_cast<int>(text.size()), &size);
  ::SelectObject(context, former);
  ::ReleaseDC(window, context);
  return size.cx;
}

TEST_F(WindowsViewTest, EveryWindowLiesWhereTheLayoutSaysAndShowsItsWholeCaption) {
  const auto document = host::ReadSettings(PRNPROP_EXAMPLES "/german.json");
  for (const auto& texts : {decltype(document.texts)(), document.texts}) {
    if (texts) control.ORXControlTexts(texts);
    Load("a");
    const auto dpi = static_cast<double>(PrnPropView::DpiOf(view->Window()));
    for (const auto& widget : dialog.Controls()) {
      const LayoutRow& row = widget->Row();
      views::Place place = views::PlaceOf(row.geometry, {dpi, dpi});
      for (const Widget* around = dialog.Find({row.parent}); around; around = dialog.Find({around->Row().parent})) {
        const views::Place outer = views::PlaceOf(around->Row().geometry, {dpi, dpi});
        place.left += outer.left;
        place.top += outer.top;
      }
      RECT seen{};
      const HWND window = WindowOf(*widget);
      ::GetWindowRect(window, &seen);
      ::MapWindowPoints(nullptr, view->Window(), reinterpret_cast<POINT*>(&seen), 2);
      const views::Place shown{seen.left, seen.top, seen.right - seen.left, seen.bottom - seen.top};
      EXPECT_EQ(shown, place) << ToAscii(row.name.Spelled());
      if (widget->Caption().empty()) continue;
      EXPECT_EQ(ToAscii(win32::TextOf(window)), ToAscii(widget->Caption()));
      EXPECT_LE(WidthOf(window, widget->Caption()), place.width) << ToAscii(widget->Caption());
    }
  }
  const SIZE size = PrnPropView::NaturalSize(96);
  EXPECT_EQ(std::pair(size.cx, size.cy), std::pair(645L, 396L));
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

}  // namespace
}  // namespace ORXKMPrintProp::win32::test
