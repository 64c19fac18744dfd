#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>
#include <utility>
#include <vector>

#include "host/Utf8.h"
#include "views/hand.h"
#include "views/win32/PrnPropView.h"
#include "views/win32/WindowsPlatform.h"
#include "views/win32/WindowsText.h"
#include "views/win32/input.h"
#include "views/win32/painted_list.h"
#include "views/win32/windows_of.h"

namespace ORXKMPrintProp::win32::test {
namespace {

using namespace ORXKMPrintProp::test;

/// A key by the name that scenarios have for it; a letter by itself.
struct NamedKey {
  const char* name;
  WORD virtualKey;
};
constexpr NamedKey kModifiers[] = {{"Shift+", VK_SHIFT}, {"Ctrl+", VK_CONTROL}, {"Alt+", VK_MENU}, {"Num+", 0}};
constexpr NamedKey kKeys[] = {
    {"Up", VK_UP},       {"Down", VK_DOWN},     {"Left", VK_LEFT},   {"Right", VK_RIGHT},    {"Home", VK_HOME},
    {"End", VK_END},     {"PgUp", VK_PRIOR},    {"PgDown", VK_NEXT}, {"Space", VK_SPACE},    {"Tab", VK_TAB},
    {"Backtab", VK_TAB}, {"Return", VK_RETURN}, {"Del", VK_DELETE},  {"Backspace", VK_BACK}, {"F4", VK_F4},
};

constexpr MouseButton kButtons[] = {kLeftButton, kRightButton, kMiddleButton};

/// Of the keys between letters and pad, and what the others do not care about.
constexpr DWORD kExtended = KEYEVENTF_EXTENDEDKEY;

class WindowsHand : public Hand {
 public:
  using Read = std::function<void(const std::string& title, const std::string& text)>;

  WindowsHand(Dialog& dialog, std::function<void(const std::string& why)> failed)
      : dialog_(dialog),
        view_(std::make_unique<PrnPropView>(
            dialog, window_,
            Reports{.failed = [failed = std::move(failed)](const Text& why) { failed(host::ToUtf8(why)); },
                    .left = [this](int) { ::SetFocus(beside_); }})) {
    ::ShowWindow(view_->Window(), SW_SHOW);
    ::ShowWindow(window_, SW_SHOW);
    ::SetForegroundWindow(window_);
    ::SetFocus(beside_);
    Pump();
  }
  ~WindowsHand() override {
    Pump();
    view_.reset();
    ::DestroyWindow(window_);
  }

  void Use(Mouse mouse, const Widget& widget, int entry, Button button) override {
    const HWND list = WindowOf(widget);
    if (!::IsWindowVisible(list)) return;
    ScrollTo(list, entry);
    POINT at = PointOf(list, entry);
    if (mouse == Mouse::Press) at.y = std::clamp(at.y, LONG{0}, InsideOf(list).bottom - 1);
    // A move to the same entry is one, too.
    if (mouse == Mouse::Move) at.x += isAside_ = !isAside_;
    // The mouse can't get elsewhere without moving, which would drag.
    if (held_ == 0 || mouse == Mouse::Move || mouse == Mouse::Release) PointAt(list, at);
    if (mouse != Mouse::Move) Press(kButtons[static_cast<std::size_t>(button)], mouse != Mouse::Release);
    if (mouse != Mouse::Move) held_ += mouse == Mouse::Release ? -1 : 1;
    Pump();
  }
  void Click(const Widget& widget) override {
    const HWND window = WindowOf(widget);
    ClickAt(window, {8, InsideOf(window).bottom / 2});
    Pump();
    read_ = {};
  }
  void ClickTab(int tab) override {
    const HWND tabs = WindowOf(dialog_.TabStrip());
    RECT place{};
    TabCtrl_GetItemRect(tabs, tab, &place);
    ClickAt(tabs, {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
    Pump();
  }
  void PickEntry(const Widget& widget, int entry) override {
    const HWND combo = WindowOf(widget);
    Key(widget, "F4");
    if (!::SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0)) return;
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    ::GetComboBoxInfo(combo, &parts);
    RECT place{};
    ScrollTo(parts.hwndList, entry);
    ::SendMessageW(parts.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(&place));
    ClickAt(parts.hwndList, {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
    Pump();
  }
  void Key(const Widget& widget, const std::string& key) override {
    if (!Reach(widget)) return;
    std::vector<WORD> keys;
    std::string name = key;
    bool isOnPad = false;
    for (bool found = true; std::exchange(found, false);) {
      for (const NamedKey& modifier : kModifiers) {
        if (!name.starts_with(modifier.name)) continue;
        if (modifier.virtualKey) keys.push_back(modifier.virtualKey);
        isOnPad |= !modifier.virtualKey;
        name.erase(0, std::strlen(modifier.name));
        found = true;
      }
    }
    AddKeysOf(name, keys);
    for (const WORD down : keys) Strike(down, isOnPad ? 0 : kExtended);
    Pump();
    for (auto up = keys.rbegin(); up != keys.rend(); ++up) Strike(*up, KEYEVENTF_KEYUP | (isOnPad ? 0 : kExtended));
    Pump();
  }
  void Type(const Widget& box, const std::string& text) override {
    Key(box, "End");
    if (!Reach(box)) return;
    for (const char16_t character : host::FromUtf8(text)) {
      if (character == u'\b') {
        Key(box, "Backspace");
      } else {
        for (const DWORD flags : {0, KEYEVENTF_KEYUP}) Strike(0, flags | KEYEVENTF_UNICODE, character);
      }
    }
    Pump();
  }
  void PutIntoClipboard(const std::string& text) override {
    const std::wstring wide = ToWide(host::FromUtf8(text));
    const HGLOBAL held = ::GlobalAlloc(GMEM_MOVEABLE, (wide.size() + 1) * sizeof(wchar_t));
    std::memcpy(::GlobalLock(held), wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
    ::GlobalUnlock(held);
    ::OpenClipboard(window_);
    ::EmptyClipboard();
    ::SetClipboardData(CF_UNICODETEXT, held);
    ::CloseClipboard();
  }
  void CloseMessage(Read read) override { read_ = std::move(read); }

  void Focus(const Widget& widget) override { ::SetFocus(WindowOf(widget)); }
  const Widget* Focused() const override { return WidgetOf(view_->Window(), dialog_, ::GetFocus()); }

  void See(const Widget& widget, Json& state) const override {
    const HWND window = WindowOf(widget);
    const auto send = [&](UINT message, int number = 0, void* place = nullptr) {
      return static_cast<int>(
          ::SendMessageW(window, message, static_cast<WPARAM>(number), reinterpret_cast<LPARAM>(place)));
    };
    const auto style = ::GetWindowLongPtrW(window, GWL_STYLE);
    state["visible"] = (style & WS_VISIBLE) != 0;
    state["enabled"] = (style & WS_DISABLED) == 0;
    const WidgetKind kind = widget.Row().kind;
    if (kind == WidgetKind::ListBox || kind == WidgetKind::ComboBox) {
      const bool isList = kind == WidgetKind::ListBox;
      state["items"] = Json::array();
      if (isList) {
        for (const PaintedEntry& entry : EntriesOf(window)) {
          state["items"].push_back({{"text", host::ToUtf8(ToText(entry.text))}, {"selected", entry.isSelected}});
        }
      }
      for (int i = 0; !isList && i < send(CB_GETCOUNT); ++i) {
        std::wstring text(static_cast<std::size_t>(send(CB_GETLBTEXTLEN, i)), L'\0');
        send(CB_GETLBTEXT, i, text.data());
        state["items"].push_back({{"text", host::ToUtf8(ToText(text))}});
      }
      state["listIndex"] = send(isList ? LB_GETCARETINDEX : CB_GETCURSEL);
    }
    if (kind == WidgetKind::TextBox) state["text"] = host::ToUtf8(EditTextOf(window));
    if (state.contains("caption")) state["caption"] = Whole(win32::TextOf(window), state["caption"]);
    for (int tab = 0; state.contains("captions") && tab < SSTab::kTabs; ++tab) {
      std::array<wchar_t, 256> text{};
      TCITEMW item{};
      item.mask = TCIF_TEXT;
      item.pszText = text.data();
      item.cchTextMax = static_cast<int>(text.size());
      send(TCM_GETITEMW, tab, &item);
      Json& caption = state["captions"][static_cast<std::size_t>(tab)];
      caption = Whole(ToText(text.data()), caption);
    }
    if (kind == WidgetKind::CheckBox) state["value"] = send(BM_GETCHECK) == BST_CHECKED ? 1 : 0;
    if (kind == WidgetKind::SSTab) state["tab"] = send(TCM_GETCURSEL);
  }
  bool IsInSight(const Widget& widget, int entry) const override { return Contains(WindowOf(widget), entry); }
  std::int16_t Pointer() const override {
    ::SetCursor(::LoadCursorW(nullptr, IDC_WAIT));
    ::SendMessageW(view_->Window(), WM_SETCURSOR, reinterpret_cast<WPARAM>(view_->Window()), HTCLIENT);
    const HCURSOR pointer = ::GetCursor();
    if (pointer == ::LoadCursorW(nullptr, IDC_ARROW)) return Dialog::kDefaultPointer;
    ICONINFO icon{};
    ::GetIconInfo(pointer, &icon);
    ::DeleteObject(icon.hbmMask);
    const bool isDrag = icon.xHotspot == static_cast<DWORD>(MouseIcon().hotSpotX) &&
                        icon.yHotspot == static_cast<DWORD>(MouseIcon().hotSpotY);
    return isDrag ? Dialog::kDragPointer : std::int16_t{-1};
  }
  bool WaitUntil(const std::function<bool()>& isSo) override {
    constexpr int kSteps = 500;
    for (int i = 0; i < kSteps; ++i) {
      if (isSo()) return true;
      ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
      Pump();
    }
    return false;
  }

  void Settle() override { Pump(); }

 private:
  HWND WindowOf(const Widget& widget) const { return windows_.at(&widget); }
  /// A key goes to what has the focus. @return false where that can't be the widget.
  bool Reach(const Widget& widget) const {
    const HWND window = WindowOf(widget);
    if (!::IsWindowEnabled(window) || !::IsWindowVisible(window)) return false;
    if (::GetFocus() != window) ::SetFocus(window);
    return true;
  }
  static void AddKeysOf(const std::string& name, std::vector<WORD>& keys) {
    for (const NamedKey& key : kKeys) {
      if (name != key.name) continue;
      if (name == "Backtab") keys.push_back(VK_SHIFT);
      return keys.push_back(key.virtualKey);
    }
    // Of a letter the key is meant, not what it types with Shift.
    const SHORT key = ::VkKeyScanW(static_cast<wchar_t>(std::tolower(name[0])));
    if (key & 0x100) keys.push_back(VK_SHIFT);
    keys.push_back(static_cast<WORD>(key & 0xFF));
  }
  static bool Contains(HWND list, int entry) {
    const RECT inside = InsideOf(list);
    RECT place{};
    ::SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(&place));
    return ::PtInRect(&inside, {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
  }
  /// The caption that is seen, which may be cut, and has "&" twice where it would mark a shortcut key.
  static std::string Whole(Text seen, const std::string& held) {
    for (std::size_t at = 0; (at = seen.find(u"&&", at)) != Text::npos; ++at) seen.erase(at, 1);
    const Text whole = host::FromUtf8(held);
    const bool isCut = seen.ends_with(u'\u2026') && whole.starts_with(TextView(seen).substr(0, seen.size() - 1));
    return isCut ? held : host::ToUtf8(seen);
  }

  /// By the scroll bar, until the entry is seen.
  static void ScrollTo(HWND list, int entry) {
    const auto count = static_cast<int>(::SendMessageW(list, LB_GETCOUNT, 0, 0));
    if (entry < 0 || entry >= count) return;
    for (int lines = count; !Contains(list, entry) && lines > 0; --lines) {
      const bool isAbove = entry < ::SendMessageW(list, LB_GETTOPINDEX, 0, 0);
      ::SendMessageW(list, WM_VSCROLL, isAbove ? SB_LINEUP : SB_LINEDOWN, 0);
    }
  }
  static RECT InsideOf(HWND window) {
    RECT inside{};
    ::GetClientRect(window, &inside);
    return inside;
  }
  static POINT PointOf(HWND list, int entry) {
    RECT place{};
    const bool isThere = entry >= 0 && entry < ::SendMessageW(list, LB_GETCOUNT, 0, 0);
    ::SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(entry), reinterpret_cast<LPARAM>(&place));
    return {20, isThere ? (place.top + place.bottom) / 2 : entry < 0 ? -30 : InsideOf(list).bottom + 30};
  }
  void Pump() {
    if (read_) ::SetTimer(window_, 1, 20, nullptr);
    gHand = this;
    const HHOOK hook = ::SetWindowsHookExW(WH_MSGFILTER, CloseBox, nullptr, ::GetCurrentThreadId());
    test::Pump();
    ::UnhookWindowsHookEx(hook);
    ::KillTimer(window_, 1);
  }
  /// In the loop of a message box, which the timer wakes.
  static LRESULT CALLBACK CloseBox(int code, WPARAM, LPARAM) {
    const HWND box = ::GetLastActivePopup(gHand->window_);
    if (code != MSGF_DIALOGBOX || !gHand->read_ || box == gHand->window_) return 0;
    std::exchange(gHand->read_, {})(host::ToUtf8(win32::TextOf(box)),
                                    host::ToUtf8(win32::TextOf(::GetDlgItem(box, 0xFFFF))));
    ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    return 0;
  }

  static inline WindowsHand* gHand = nullptr;

  Dialog& dialog_;
  HWND window_ = ::CreateWindowExW(0, L"STATIC", L"hand", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 20, 20, 760, 460,
                                   nullptr, nullptr, nullptr, nullptr);
  HWND beside_ = ::CreateWindowExW(0, L"BUTTON", L"beside", WS_CHILD | WS_VISIBLE, 660, 10, 60, 20, window_, nullptr,
                                   nullptr, nullptr);
  std::unique_ptr<PrnPropView> view_;
  const std::unordered_map<const Widget*, HWND> windows_ = WindowsOf(view_->Window(), dialog_);
  int held_ = 0;  ///< buttons
  bool isAside_ = false;
  Read read_;
};

}  // namespace
}  // namespace ORXKMPrintProp::win32::test

namespace ORXKMPrintProp::test {

std::unique_ptr<Hand> MakeHand(Dialog& dialog, std::function<void(const std::string& why)> failed) {
  return std::make_unique<win32::test::WindowsHand>(dialog, std::move(failed));
}

const Platform& PlatformUnderTest() { return win32::WindowsPlatform::Instance(); }

}  // namespace ORXKMPrintProp::test
