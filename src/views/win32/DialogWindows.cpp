#include "views/win32/DialogWindows.h"

#include <commctrl.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <system_error>

#include "views/TabOrder.h"
#include "views/win32/CaptionViews.h"
#include "views/win32/ComboBoxView.h"
#include "views/win32/ListBoxView.h"
#include "views/win32/Styled.h"
#include "views/win32/TextBoxView.h"
#include "views/win32/WindowsKeys.h"
#include "views/win32/WindowsText.h"

namespace ORXKMPrintProp::win32 {
namespace {

constexpr const wchar_t* kPanelClass = L"ORXQueryPrnProp.Panel";
constexpr UINT kUse = WM_APP;                ///< posted: the widget in lParam, what it is to do in wParam
constexpr UINT kResolutionChanged = 0x02E3;  // WM_DPICHANGED_AFTERPARENT, which older headers lack

template <class Shown, class W>
std::unique_ptr<WidgetView> New(Surface& surface, Widget& widget) {
  return std::make_unique<Shown>(surface, dynamic_cast<W&>(widget));
}

std::unique_ptr<WidgetView> NewView(Surface& surface, Widget& widget) {
  switch (widget.Row().kind) {
    case WidgetKind::SSTab:
      return New<TabStripView, SSTab>(surface, widget);
    case WidgetKind::Frame:
      return New<FrameView, Frame>(surface, widget);
    case WidgetKind::Label:
      return New<LabelView, Label>(surface, widget);
    case WidgetKind::TextBox:
      return New<TextBoxView, TextBox>(surface, widget);
    case WidgetKind::ComboBox:
      return New<ComboBoxView, ComboBox>(surface, widget);
    case WidgetKind::CheckBox:
      return New<CheckBoxView, CheckBox>(surface, widget);
    case WidgetKind::ListBox:
      return New<ListBoxView, ListBox>(surface, widget);
    case WidgetKind::CommandButton:
      return New<ButtonView, CommandButton>(surface, widget);
  }
  return nullptr;
}

HCURSOR MakeDragPointer() {
  const MouseIconBits& icon = MouseIcon();
  constexpr std::size_t kBytes = 32 * 32 / 8;
  std::array<BYTE, kBytes> ground{}, ink{};
  for (std::size_t y = 0; y < icon.rows.size(); ++y) {
    for (std::size_t x = 0; x < icon.rows[y].size(); ++x) {
      const auto bit = static_cast<BYTE>(0x80 >> x % 8);
      BYTE& of = (icon.rows[y][x] == u' ' ? ground : ink)[y * 4 + x / 8];
      if (icon.rows[y][x] != u'#') of = static_cast<BYTE>(of | bit);
    }
  }
  return ::CreateCursor(OwnModule(), icon.hotSpotX, icon.hotSpotY, 32, 32, ground.data(), ink.data());
}

/// The message box that this thread opens next.
class NextBox {
 public:
  explicit NextBox(HWND& box) : box_(box), outer_(std::exchange(box, nullptr)), outerNext_(std::exchange(gBox, &box)) {
    hook_ = ::SetWindowsHookExW(WH_CBT, OnEvent, nullptr, ::GetCurrentThreadId());
  }
  NextBox(const NextBox&) = delete;
  NextBox& operator=(const NextBox&) = delete;
  ~NextBox() {
    box_ = outer_;
    gBox = outerNext_;
    ::UnhookWindowsHookEx(hook_);
  }

 private:
  static LRESULT CALLBACK OnEvent(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_ACTIVATE && gBox) *std::exchange(gBox, nullptr) = reinterpret_cast<HWND>(wParam);
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
  }

  static thread_local HWND* gBox;
  HWND& box_;
  HWND outer_;  ///< the box that is open already
  HWND* outerNext_;
  HHOOK hook_;
};
thread_local HWND* NextBox::gBox = nullptr;

}  // namespace

std::shared_ptr<DialogWindows> DialogWindows::Make(Dialog& dialog, HWND parent, Reports reports) {
  const std::shared_ptr<DialogWindows> windows(new DialogWindows(dialog, std::move(reports)));
  try {
    windows->MakeWindows(parent);
  } catch (...) {
    windows->End();
    throw;
  }
  return windows;
}

DialogWindows::DialogWindows(Dialog& dialog, Reports reports)
    : Surface(std::move(reports)),
      dialog_(dialog),
      dragPointer_(MakeDragPointer()),
      letters_(dialog, [this](const Widget& widget) { return ViewFor(widget).NeededLetters(); }) {}

DialogWindows::~DialogWindows() {
  ::DestroyCursor(dragPointer_);
  // Is refused while there are others; the last one leaves nothing behind that points into this library.
  ::UnregisterClassW(kPanelClass, OwnModule());
}

void DialogWindows::End() {
  if (!IsOpen()) return;
  const auto held = shared_from_this();
  for (const auto& [widget, view] : views_) view->End();
  Close();
  if (&dialog_.GetView() == this) dialog_.SetView(nullptr);
  if (message_) ::EndDialog(message_, IDOK);
  for (const auto& [widget, view] : views_) {
    if (view->Window()) accessible_.Forget(view->Window());
  }
  // It belongs to the window around all, the host's own.
  ::DestroyWindow(toolTip_);
  if (window_) ::DestroyWindow(window_);
}

HWND DialogWindows::MakePanel(HWND parent) const {
  WNDCLASSEXW kind{};
  kind.cbSize = sizeof kind;
  kind.lpfnWndProc = OnMessageOf;
  kind.hInstance = OwnModule();
  kind.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
  kind.lpszClassName = kPanelClass;
  ::RegisterClassExW(&kind);
  auto* const self = const_cast<DialogWindows*>(this);
  const HWND panel = ::CreateWindowExW(WS_EX_CONTROLPARENT | WS_EX_NOPARENTNOTIFY, kind.lpszClassName, L"",
                                       WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 0, 0, parent, nullptr, OwnModule(), self);
  if (!panel) throw std::system_error(static_cast<int>(::GetLastError()), std::system_category(), "no window");
  // The layout is the same for every language; a window that is mirrored passes that on to those in it.
  ::SetWindowLongPtrW(panel, GWL_EXSTYLE, ::GetWindowLongPtrW(panel, GWL_EXSTYLE) & ~WS_EX_LAYOUTRTL);
  return panel;
}

void DialogWindows::MakeWindows(HWND parent) {
  const Styled styled;
  const INITCOMMONCONTROLSEX tabs{sizeof tabs, ICC_TAB_CLASSES};  // and tooltips
  ::InitCommonControlsEx(&tabs);
  const auto dpi = static_cast<double>(PrnPropView::DpiOf(parent));
  Resolution({dpi, dpi});
  window_ = MakePanel(parent);
  for (HWND& page : pages_) page = MakePanel(window_);
  // Windows are reached in the order in which they are made: those of a field's labels are to come right ahead of it.
  for (Widget* const widget : views::TabOrder(dialog_)) {
    MakeWidget(*dialog_.Find({widget->Row().parent.empty() ? widget->Row().name : WidgetName{widget->Row().parent}}));
    for (const Label* const label : views::SpokenName(dialog_, *widget).Labels()) {
      MakeWidget(const_cast<Label&>(*label));
    }
    MakeWidget(*widget);
  }
  for (const auto& widget : dialog_.Controls()) MakeWidget(*widget);
  MakeToolTips();
  Arrange();
  for (const auto& widget : dialog_.Controls()) names_.emplace_back(widget.get(), views::SpokenName(dialog_, *widget));
  SpeakNames(nullptr);
  for (const auto& [widget, view] : views_) {
    const auto* const entries = dynamic_cast<const EntryWidget*>(widget);
    for (int i = 0; entries && i < entries->ListCount(); ++i) view->EntryAdded(i);
    view->Refresh();
  }
  BringUp();
  MousePointerChanged(dialog_.MousePointer());
  dialog_.SetView(this);
}

void DialogWindows::MakeWidget(Widget& widget) {
  if (views_.contains(&widget)) return;
  auto view = NewView(*this, widget);
  const auto& all = dialog_.Controls();
  const auto place = std::find_if(all.begin(), all.end(), [&](const auto& other) { return other.get() == &widget; });
  view->Make(PanelOf(widget.Row()), 1 + static_cast<int>(place - all.begin()));
  if (widget.Row().kind == WidgetKind::SSTab) tabs_ = static_cast<TabStripView*>(view.get());
  views_.emplace(&widget, std::move(view));
}

HWND DialogWindows::PanelOf(const LayoutRow& row) const {
  return row.page < 0 ? window_ : pages_[static_cast<std::size_t>(row.page)];
}

void DialogWindows::MakeToolTips() {
  toolTip_ = ::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0,
                               0, 0, window_, nullptr, nullptr, nullptr);
}

views::Place DialogWindows::PlaceOf(const LayoutRow& row) const {
  views::Place place = views::PlaceOf(row.geometry, Resolution());
  for (TextView parent = row.parent; !parent.empty();) {
    const LayoutRow& around = dialog_.Find({parent})->Row();
    const views::Place outer = views::PlaceOf(around.geometry, Resolution());
    place.left += outer.left;
    place.top += outer.top;
    parent = around.parent;
  }
  return place;
}

void DialogWindows::Arrange() {
  // So wide that a line of any tooltip has its place, and that lines break where they say.
  constexpr double kToolTipInches = 6.25;
  ::SendMessageW(toolTip_, TTM_SETMAXTIPWIDTH, 0, std::lround(kToolTipInches * Resolution().x));
  const views::Place all = views::PlaceOf(kClientArea, Resolution());
  ::SetWindowPos(window_, nullptr, 0, 0, all.width, all.height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  const views::Place strip = PlaceOf(dialog_.TabStrip().Row());
  tabs_->MoveTo(strip);
  tabs_->Refresh();
  const RECT inside = tabs_->Inside();
  for (const HWND page : pages_) {
    ::SetWindowPos(page, HWND_TOP, strip.left + inside.left, strip.top + inside.top, inside.right - inside.left,
                   inside.bottom - inside.top, SWP_NOACTIVATE);
  }
  for (const auto& widget : dialog_.Controls()) {
    if (widget.get() == &dialog_.TabStrip()) continue;
    views::Place place = PlaceOf(widget->Row());
    place.left -= strip.left + inside.left;
    place.top -= strip.top + inside.top;
    ViewFor(*widget).MoveTo(place);
  }
}

void DialogWindows::FollowMonitor() {
  if (!IsOpen()) return;
  const auto dpi = static_cast<double>(PrnPropView::DpiOf(window_));
  if (Resolution().y == dpi) return;
  Resolution({dpi, dpi});
  Arrange();
  toolTips_.clear();
  letters_.ChangeAll();
  for (const auto& [widget, view] : views_) view->Refresh();
}

void DialogWindows::SpeakNames(const Widget* changed) {
  for (const auto& [widget, name] : names_) {
    if (!changed || name.DependsOn(*changed)) accessible_.Give(ViewFor(*widget).Window(), name.Spoken());
  }
}

void DialogWindows::BringUp() {
  const auto top = static_cast<std::size_t>(dialog_.TabStrip().Tab());
  ::ShowWindow(pages_[top], SW_SHOWNA);
  for (std::size_t page = 0; page < pages_.size(); ++page) {
    if (page == top) continue;
    // Else the focus would be in what is not seen.
    if (::IsChild(pages_[page], ::GetFocus())) ::SetFocus(tabs_->Window());
    ::ShowWindow(pages_[page], SW_HIDE);
  }
}

WidgetView* DialogWindows::ViewOf(HWND window) const {
  const auto found = std::find_if(views_.begin(), views_.end(),
                                  [&](const auto& row) { return window && row.second->Window() == window; });
  return found == views_.end() ? nullptr : found->second.get();
}

LRESULT CALLBACK DialogWindows::OnMessageOf(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto* const made = reinterpret_cast<const CREATESTRUCTW*>(lParam);
    ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made->lpCreateParams));
  }
  auto* const self = reinterpret_cast<DialogWindows*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!self) return ::DefWindowProcW(window, message, wParam, lParam);
  const Held held = self->Hold();
  if (message == WM_DESTROY && window == self->window_) self->End();
  if (message == WM_NCDESTROY) {
    if (window == self->window_) self->window_ = nullptr;
    ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    return ::DefWindowProcW(window, message, wParam, lParam);
  }
  return self->OnMessage(window, message, wParam, lParam);
}

LRESULT DialogWindows::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (!IsOpen()) return ::DefWindowProcW(window, message, wParam, lParam);
  switch (message) {
    case kUse:
      ViewFor(*reinterpret_cast<const Widget*>(lParam)).Use(wParam);
      return 0;
    case WM_COMMAND:
      if (WidgetView* const view = ViewOf(reinterpret_cast<HWND>(lParam))) view->OnNotify(HIWORD(wParam));
      return 0;
    case WM_NOTIFY: {
      const auto& notified = *reinterpret_cast<const NMHDR*>(lParam);
      if (WidgetView* const view = ViewOf(notified.hwndFrom)) view->OnNotify(notified.code);
      return 0;
    }
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
      if (WidgetView* const view = ViewOf(item.hwndItem)) view->Draw(item);
      return TRUE;
    }
    case WM_ERASEBKGND:
    case WM_PRINTCLIENT: {
      RECT inside{};
      ::GetClientRect(window, &inside);
      ::FillRect(reinterpret_cast<HDC>(wParam), &inside, ::GetSysColorBrush(COLOR_BTNFACE));
      return TRUE;
    }
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORSTATIC: {
      const auto context = reinterpret_cast<HDC>(wParam);
      const bool isEnabled = ::IsWindowEnabled(reinterpret_cast<HWND>(lParam)) != FALSE;
      ::SetTextColor(context, ::GetSysColor(isEnabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
      ::SetBkColor(context, ::GetSysColor(COLOR_BTNFACE));
      return reinterpret_cast<LRESULT>(::GetSysColorBrush(COLOR_BTNFACE));
    }
    case WM_SETCURSOR:
      if (!pointer_) return ::DefWindowProcW(window, message, wParam, lParam);
      ::SetCursor(pointer_);
      return TRUE;
    case WM_MOUSEMOVE:
      RelayToToolTip(window, message, wParam, lParam);
      return 0;
    case WM_SETFOCUS:
      TakeFocus(0);
      return 0;
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
      letters_.ChangeAll();
      for (const auto& [widget, view] : views_) {
        ::SendMessageW(view->Window(), message, wParam, lParam);
        view->Refresh();
      }
      ::RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
      return 0;
    case kResolutionChanged:
      if (window == window_) FollowMonitor();
      return 0;
    default:
      return ::DefWindowProcW(window, message, wParam, lParam);
  }
}

bool DialogWindows::TakeKey(const MSG& message) {
  const bool ends = message.wParam == VK_RETURN || message.wParam == VK_ESCAPE;
  const WidgetView* const view = IsOpen() && message.message == WM_KEYDOWN && ends ? ViewOf(message.hwnd) : nullptr;
  const bool isCombo = view && view->Shown().Row().kind == WidgetKind::ComboBox;
  if (!isCombo || !::SendMessageW(message.hwnd, CB_GETDROPPEDSTATE, 0, 0)) return TakeDialogKey(message);
  // The open list's, not the button's of the window around it.
  ::DispatchMessageW(&message);
  return true;
}

bool DialogWindows::TakeDialogKey(const MSG& message) {
  if (!IsOpen() || (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN)) return false;
  WidgetView* const view = ViewOf(message.hwnd);
  if (!view) return false;
  // A drag is to come to its end.
  const WidgetView* const dragged = ViewOf(::GetCapture());
  if (dragged && dragged->Shown().Row().kind == WidgetKind::ListBox) return true;
  const Held held = Hold();
  const views::KeyPress press = ToKeyPress(message.wParam);
  Widget& from = view->Shown();
  if (press.key == views::Key::Tab && !press.control && !press.alt) {
    Widget* const next = views::NextInTabOrder(dialog_, &from, press.shift ? -1 : 1);
    if (!next) return false;
    ::SetFocus(ViewFor(*next).Window());
    if (IsOpen()) ViewFor(*next).ReachedByKey();
    return true;
  }
  SSTab& strip = dialog_.TabStrip();
  if (const auto tab = views::TabOf(strip, press, &from == &strip)) {
    tabs_->Use(static_cast<WPARAM>(*tab));
    return true;
  }
  const bool isPress = message.wParam == VK_RETURN && !press.control && !press.alt && !press.shift;
  if (!isPress || from.Row().kind != WidgetKind::CommandButton) return false;
  const bool isRepeated = (message.lParam & (1 << 30)) != 0;
  if (!isRepeated) view->Use(0);
  return true;
}

bool DialogWindows::TakeKey(Widget& widget, WPARAM virtualKey, LPARAM flags) {
  if (TakeDialogKey(MSG{ViewFor(widget).Window(), WM_KEYDOWN, virtualKey, flags, 0, {}})) return true;
  if (virtualKey != VK_TAB) return false;
  const views::KeyPress press = ToKeyPress(virtualKey);
  if (GetReports().left && !press.control && !press.alt) GetReports().left(press.shift ? -1 : 1);
  return true;
}

void DialogWindows::TakeFocus(int step) {
  if (!IsOpen()) return;
  const Widget* to = step == 0 && lastFocused_ && lastFocused_->Refuses() == Refusal::None
                         ? lastFocused_
                         : views::NextInTabOrder(dialog_, nullptr, step == 0 ? 1 : step);
  if (!to) return;
  const Held held = Hold();
  ::SetFocus(ViewFor(*to).Window());
  if (step != 0 && IsOpen()) ViewFor(*to).ReachedByKey();
}

void DialogWindows::GotFocus(const Widget& widget) {
  lastFocused_ = &widget;
  if (GetReports().focused) GetReports().focused(true);
}

void DialogWindows::LostFocus(HWND to) {
  if (GetReports().focused && to != window_ && !::IsChild(window_, to)) GetReports().focused(false);
}

void DialogWindows::PassFocus(const Widget& widget) {
  if (::GetFocus() != ViewFor(widget).Window()) return;
  const Widget* to = views::NextInTabOrder(dialog_, &widget, 1);
  if (!to) to = views::NextInTabOrder(dialog_, &widget, -1);
  if (to) ::SetFocus(ViewFor(*to).Window());
}

void DialogWindows::PostUse(Widget& widget, WPARAM what) {
  ::PostMessageW(window_, kUse, what, reinterpret_cast<LPARAM>(&widget));
}

void DialogWindows::SetToolTip(const Widget& widget, const Text& text) {
  const auto [told, isNew] = toolTips_.try_emplace(&widget);
  if (!isNew && told->second == text) return;
  told->second = text;
  PlaceTool(widget);
}

void DialogWindows::PlaceTool(const Widget& widget) {
  AddTool(widget);
  // Of several at one place the first is shown: those in a frame are to come ahead of its own.
  const Widget* const around = dialog_.Find({widget.Row().parent});
  if (around && toolTips_.contains(around)) AddTool(*around);
}

/// Each is told for a place in the panel, so that those of disabled windows, which hear of no mouse, are found too.
void DialogWindows::AddTool(const Widget& widget) {
  std::wstring text = ToWide(toolTips_[&widget]);
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.hwnd = PanelOf(widget.Row());
  tool.uId = reinterpret_cast<UINT_PTR>(&widget);
  tool.lpszText = text.data();
  ::GetWindowRect(ViewFor(widget).Window(), &tool.rect);
  ::MapWindowPoints(nullptr, tool.hwnd, reinterpret_cast<POINT*>(&tool.rect), 2);
  ::SendMessageW(toolTip_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  if (!text.empty() && widget.Visible()) ::SendMessageW(toolTip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void DialogWindows::RelayToToolTip(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const WidgetView* const view = ViewOf(window);
  const HWND panel = view ? PanelOf(view->Shown().Row()) : window;
  POINT at{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
  ::MapWindowPoints(window, panel, &at, 1);
  MSG relayed{panel, message, wParam, MAKELPARAM(at.x, at.y), 0, at};
  ::ClientToScreen(panel, &relayed.pt);
  ::SendMessageW(toolTip_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

void DialogWindows::Changed(Widget& widget, WidgetProperty what) {
  if (what == WidgetProperty::Tab) BringUp();
  const bool isFittedAnew = what == WidgetProperty::Caption || what == WidgetProperty::Font;
  const bool areLettersOthers = isFittedAnew && letters_.Change(widget);
  ViewFor(widget).Show(what);
  for (const auto& other : dialog_.Controls()) {
    if (areLettersOthers && views::CaptionLetters::StandTogether(*other, widget)) ViewFor(*other).Refresh();
  }
  if (what == WidgetProperty::Visible) PlaceTool(widget);
  if (what == WidgetProperty::Caption || what == WidgetProperty::ToolTipText) SpeakNames(&widget);
}

void DialogWindows::EntryChanged(EntryWidget& widget, std::int16_t index, EntryProperty what) {
  ViewFor(widget).EntryChanged(index, what);
}
void DialogWindows::EntryAdded(EntryWidget& widget, std::int16_t index) { ViewFor(widget).EntryAdded(index); }
void DialogWindows::EntryRemoved(EntryWidget& widget, std::int16_t index) { ViewFor(widget).EntryRemoved(index); }
void DialogWindows::EntriesCleared(EntryWidget& widget) { ViewFor(widget).EntriesCleared(); }

void DialogWindows::MousePointerChanged(std::int16_t pointer) {
  pointer_ = pointer == Dialog::kDragPointer ? dragPointer_ : nullptr;
  // While the mouse is held nothing asks for it.
  if (HasFocus()) ::SetCursor(pointer_ ? pointer_ : ::LoadCursorW(nullptr, IDC_ARROW));
}

void DialogWindows::MsgBox(const Text& text, const Text& title) {
  const Held held = Hold();
  const Styled styled;
  const auto tell = GetReports().message;
  if (tell) tell(true);
  if (IsOpen()) {
    const NextBox next(message_);
    ::MessageBoxW(::GetAncestor(window_, GA_ROOT), ToWide(text).c_str(), ToWide(title).c_str(), MB_OK);
  }
  if (tell) tell(false);
  // The windows have ended with that box; so does the one below it.
  if (!IsOpen() && message_) ::EndDialog(message_, IDOK);
}

}  // namespace ORXKMPrintProp::win32
