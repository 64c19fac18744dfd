#include "views/win32/WidgetView.h"

#include <exception>
#include <system_error>

#include "tables/RunTimeError.h"
#include "views/Fitting.h"
#include "views/win32/WindowsText.h"

namespace ORXKMPrintProp::win32 {

void WidgetView::Make(HWND parent, int id) {
  const WindowKind kind = Kind();
  window_ = ::CreateWindowExW(kind.extendedStyle | WS_EX_NOPARENTNOTIFY, kind.name, L"", kind.style | WS_CHILD, 0, 0, 0,
                              0, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  if (!window_) throw std::system_error(static_cast<int>(::GetLastError()), std::system_category(), "no window");
  // Not by SetWindowSubclass, which asks the system for the view at each message; that takes a while under Wine.
  ::SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  kind_ = reinterpret_cast<WNDPROC>(
      ::SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&WidgetView::OnMessageOf)));
}

LRESULT CALLBACK WidgetView::OnMessageOf(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto& self = *reinterpret_cast<WidgetView*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  const Surface::Held held = self.surface_.Hold();
  const WNDPROC kind = self.kind_;
  if (message == WM_NCDESTROY) {
    self.window_ = nullptr;
    ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(kind));
  } else if (self.surface_.IsOpen()) {
    if (const auto result = self.OnMessage(message, wParam, lParam)) return *result;
  }
  return ::CallWindowProcW(kind, window, message, wParam, lParam);
}

LRESULT WidgetView::PassOn(UINT message, WPARAM wParam, LPARAM lParam) const {
  return ::CallWindowProcW(kind_, window_, message, wParam, lParam);
}

std::optional<LRESULT> WidgetView::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SETFOCUS:
      surface_.GotFocus(base_);
      return {};
    case WM_KILLFOCUS:
      surface_.LostFocus(reinterpret_cast<HWND>(wParam));
      return {};
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (surface_.TakeKey(base_, wParam, lParam)) return 0;
      return {};
    case WM_SETCURSOR:
      if (!surface_.Pointer()) return {};
      ::SetCursor(surface_.Pointer());
      return TRUE;
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
      surface_.RelayToToolTip(window_, message, wParam, lParam);
      return {};
    default:
      return {};
  }
}

LRESULT WidgetView::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
  return ::SendMessageW(window_, message, wParam, lParam);
}

SIZE WidgetView::Size() const {
  RECT place{};
  ::GetWindowRect(window_, &place);
  return {place.right - place.left, place.bottom - place.top};
}

void WidgetView::MoveTo(const views::Place& place) {
  ::SetWindowPos(window_, nullptr, place.left, place.top, place.width, place.height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void WidgetView::Refresh() {
  surface_.SetToolTip(base_, base_.ToolTipText());
  ShowEnabled();
  ShowVisible();
}

void WidgetView::Show(WidgetProperty what) {
  switch (what) {
    case WidgetProperty::Enabled:
      return ShowEnabled();
    case WidgetProperty::Visible:
      return ShowVisible();
    default:
      Refresh();
  }
}

void WidgetView::ShowEnabled() {
  if (::IsWindowEnabled(window_) == base_.Enabled()) return;
  if (!base_.Enabled()) surface_.PassFocus(base_);
  ::EnableWindow(window_, base_.Enabled());
}

void WidgetView::ShowVisible() {
  const bool isShown = (::GetWindowLongPtrW(window_, GWL_STYLE) & WS_VISIBLE) != 0;
  if (isShown == base_.Visible()) return;
  if (!base_.Visible()) surface_.PassFocus(base_);
  ::ShowWindow(window_, base_.Visible() ? SW_SHOWNA : SW_HIDE);
}

void WidgetView::Perform(const std::function<void()>& action) {
  if (!surface_.IsOpen()) return;
  const Surface::Held held = surface_.Hold();
  Attempt(action);
  if (surface_.IsOpen() && window_) Refresh();
  const Reports& reports = surface_.GetReports();
  if (surface_.IsOpen() && reports.used) Attempt([&] { reports.used(base_); });
}

void WidgetView::Attempt(const std::function<void()>& action) {
  const auto report = [&](const Text& why) {
    if (surface_.IsOpen() && surface_.GetReports().failed) surface_.GetReports().failed(why);
  };
  try {
    action();
  } catch (const RunTimeError& error) {
    report(error.Message());
  } catch (const std::exception& error) {
    const std::string words = error.what();
    report(Text(words.begin(), words.end()));
  } catch (...) {
    report(u"A handler failed without telling why.");
  }
}

void WidgetView::SetFont(const views::Letters& letters) {
  const HFONT font = surface_.FontOf(base_.GetFont(), letters);
  if (reinterpret_cast<HFONT>(Send(WM_GETFONT)) != font) Send(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

std::optional<views::Letters> WidgetView::NeededLetters() const {
  const auto measure = surface_.MeasureOf(base_.GetFont());
  return views::FittingLetters(
      [&](const views::Letters& letters) { return measure(base_.Caption(), letters) <= CaptionRoom(); });
}

std::optional<views::TextRoom> WidgetView::RoomOf(TextView text, int) const {
  const int room = CaptionRoom();
  if (room == 0) return {};
  return views::TextRoom{surface_.MeasureOf(base_.GetFont())(text, views::kSmallestLetters), room};
}

void WidgetView::ShowCaption(bool asItIs) {
  const views::FittedText fitted =
      views::Fit(base_.Caption(), CaptionRoom(), surface_.MeasureOf(base_.GetFont()), surface_.LettersOf(base_));
  SetFont(fitted.letters);
  surface_.SetToolTip(base_, views::ToolTipWith(fitted.isCut ? base_.Caption() : Text(), base_.ToolTipText()));
  const std::wstring text = asItIs ? ToWide(fitted.text) : WithoutShortcut(fitted.text);
  if (ToWide(TextOf(window_)) != text) ::SetWindowTextW(window_, text.c_str());
}

}  // namespace ORXKMPrintProp::win32
