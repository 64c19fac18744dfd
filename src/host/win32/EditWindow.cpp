#include "host/win32/EditWindow.h"

#include <algorithm>
#include <system_error>

#include "host/Utf8.h"
#include "host/editor/EditorKeys.h"
#include "host/win32/LayoutEditor.h"
#include "host/win32/QuestionBox.h"
#include "views/win32/Styled.h"
#include "views/win32/WindowsKeys.h"
#include "views/win32/WindowsText.h"

namespace ORXKMPrintProp::host {
namespace {

constexpr const wchar_t* kClass = L"prnprop.Editor";
constexpr int kApply = 3;

std::wstring Wide(const std::string& utf8) { return win32::ToWide(FromUtf8(utf8)); }

/// A drag is to come to its end first, and an open list to be closed.
bool IsInTheMiddle() {
  const HWND focus = ::GetFocus();
  return ::GetCapture() || (focus && ::SendMessageW(focus, CB_GETDROPPEDSTATE, 0, 0));
}

}  // namespace

EditWindow::EditWindow(EditedSettings& settings) : editor_(settings, *this) {
  WNDCLASSEXW kind{};
  kind.cbSize = sizeof kind;
  kind.lpfnWndProc = OnMessageOf;
  kind.hInstance = win32::OwnModule();
  kind.hIcon = ::LoadIconW(nullptr, MAKEINTRESOURCEW(32512));
  kind.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
  kind.hbrBackground = ::GetSysColorBrush(COLOR_BTNFACE);
  kind.lpszClassName = kClass;
  ::RegisterClassExW(&kind);
  constexpr DWORD kStyle = (WS_OVERLAPPEDWINDOW & ~WS_MAXIMIZEBOX) | WS_CLIPCHILDREN;
  window_ = ::CreateWindowExW(WS_EX_CONTROLPARENT, kClass, Wide(editor_.Title("")).c_str(), kStyle, CW_USEDEFAULT,
                              CW_USEDEFAULT, 400, 300, nullptr, nullptr, kind.hInstance, nullptr);
  if (!window_) throw std::system_error(static_cast<int>(::GetLastError()), std::system_category(), "no window");
  try {
    MakeWindows(settings.Control().GetDialog());
  } catch (...) {
    ::DestroyWindow(window_);
    throw;
  }
  ::SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  dpi_ = win32::PrnPropView::DpiOf(window_);
  FitFonts();
  SetClientSize(window_, WholeSize());
  ::DragAcceptFiles(window_, TRUE);
  editor_.Show();
}

EditWindow::~EditWindow() {
  if (window_) ::DestroyWindow(window_);
}

void EditWindow::MakeWindows(Dialog& dialog) {
  dialog_ = std::make_unique<Viewport>(window_);
  view_ = std::make_unique<win32::PrnPropView>(
      dialog, dialog_->Window(),
      win32::Reports{.failed = [this](const Text& why) { editor_.OnFailed(ToUtf8(why)); },
                     .used = [this](const Widget& widget) { editor_.OnUsed(widget); },
                     .focused =
                         [this](bool has) {
                           if (!has) return;
                           dialog_->BringIntoSight(::GetFocus());
                           buttons_.ShowDefault();
                         },
                     .left = [this](int step) { PassFocus(step); }});
  ::ShowWindow(view_->Window(), SW_SHOWNA);
  status_ = MakeChild(window_, L"STATIC", L"", SS_OWNERDRAW | SS_NOPREFIX);
  buttons_.Make(window_, {{IDOK, L"&OK"}, {IDCANCEL, L"&Cancel"}, {kApply, L"&Apply"}}, IDOK);
}

void EditWindow::Show() {
  ::ShowWindow(window_, SW_SHOWDEFAULT);
  ::SetForegroundWindow(window_);
  RestoreFocus();
  ::UpdateWindow(window_);
}

void EditWindow::Run() {
  while (window_ && ::WaitMessage()) HandleMessages();
}

void EditWindow::HandleMessages() {
  MSG message{};
  while (window_ && ::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (TakeKey(message)) continue;
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

SIZE EditWindow::WholeSize() const {
  const SIZE dialog = win32::PrnPropView::NaturalSize(dpi_);
  return {dialog.cx, dialog.cy + buttons_.Size().cy + 2 * Pixels(7, dpi_)};
}

void EditWindow::FitFonts() {
  OwnedFont font = MessageFont(dpi_);
  ::SendMessageW(status_, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
  buttons_.SetFont(font.get(), dpi_);
  font_ = std::move(font);
}

void EditWindow::Place() {
  RECT inside{};
  ::GetClientRect(window_, &inside);
  const int margin = Pixels(7, dpi_);
  const SIZE row = buttons_.Size();
  const int bottom = inside.bottom - row.cy - 2 * margin;
  ::MoveWindow(dialog_->Window(), 0, 0, inside.right, bottom, TRUE);
  dialog_->Show(view_->Window(), win32::PrnPropView::NaturalSize(dpi_));
  buttons_.MoveTo(inside.right - margin, inside.bottom - margin);
  // Two lines have their place there.
  ::MoveWindow(status_, margin, bottom + margin / 2, std::max(0L, inside.right - row.cx - 3 * margin),
               inside.bottom - bottom - margin, TRUE);
}

LRESULT CALLBACK EditWindow::OnMessageOf(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const self = reinterpret_cast<EditWindow*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
  return self ? self->OnMessage(message, wParam, lParam) : ::DefWindowProcW(window, message, wParam, lParam);
}

LRESULT EditWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      if (HIWORD(wParam) == BN_CLICKED) OnButton(LOWORD(wParam));
      if (HIWORD(wParam) == BN_SETFOCUS) buttons_.ShowDefault();
      return 0;
    case WM_DRAWITEM:
      DrawStatus(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      return TRUE;
    case WM_SIZE:
      Place();
      return 0;
    case WM_GETMINMAXINFO: {
      auto& bounds = *reinterpret_cast<MINMAXINFO*>(lParam);
      RECT outside{}, inside{};
      ::GetWindowRect(window_, &outside);
      ::GetClientRect(window_, &inside);
      const SIZE whole = WholeSize();
      const POINT frame{outside.right - outside.left - inside.right, outside.bottom - outside.top - inside.bottom};
      bounds.ptMaxTrackSize = {whole.cx + frame.x, whole.cy + frame.y};
      bounds.ptMinTrackSize = {std::min(bounds.ptMaxTrackSize.x, buttons_.Size().cx * 3 / 2),
                               std::min(bounds.ptMaxTrackSize.y, buttons_.Size().cy * 8)};
      return 0;
    }
    case WM_DPICHANGED: {
      dpi_ = HIWORD(wParam);
      FitFonts();
      const RECT& place = *reinterpret_cast<const RECT*>(lParam);
      ::SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
      SetClientSize(window_, WholeSize());
      Place();
      return 0;
    }
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
      FitFonts();
      Place();
      ::SendMessageW(view_->Window(), message, wParam, lParam);
      return ::DefWindowProcW(window_, message, wParam, lParam);
    case WM_ACTIVATE:
      if (LOWORD(wParam) == WA_INACTIVE && ::GetFocus() != window_) lastFocus_ = ::GetFocus();
      return ::DefWindowProcW(window_, message, wParam, lParam);
    case WM_SETFOCUS:
      RestoreFocus();
      return 0;
    case WM_DROPFILES:
      OpenDropped(reinterpret_cast<HDROP>(wParam));
      return 0;
    case WM_QUERYENDSESSION:
      return !IsWaiting() && editor_.MayClose();
    case WM_CLOSE:
      if (!IsWaiting() && editor_.MayClose()) ::DestroyWindow(window_);
      return 0;
    case WM_NCDESTROY:
      ::SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
      return ::DefWindowProcW(std::exchange(window_, nullptr), message, wParam, lParam);
    default:
      return ::DefWindowProcW(window_, message, wParam, lParam);
  }
}

void EditWindow::OpenDropped(HDROP files) {
  std::wstring path(::DragQueryFileW(files, 0, nullptr, 0) + 1, L'\0');
  path.resize(::DragQueryFileW(files, 0, path.data(), static_cast<UINT>(path.size())));
  ::DragFinish(files);
  if (!IsWaiting() && !path.empty()) editor_.Open(ToUtf8(Text(path.begin(), path.end())));
}

void EditWindow::DrawStatus(const DRAWITEMSTRUCT& item) const {
  RECT place = item.rcItem;
  const std::wstring text = win32::ToWide(win32::TextOf(status_));
  ::FillRect(item.hDC, &place, ::GetSysColorBrush(COLOR_BTNFACE));
  ::SetTextColor(item.hDC, ::GetSysColor(COLOR_BTNTEXT));
  ::SetBkMode(item.hDC, TRANSPARENT);
  ::DrawTextW(item.hDC, text.c_str(), static_cast<int>(text.size()), &place,
              DT_WORDBREAK | DT_NOPREFIX | DT_EDITCONTROL | DT_END_ELLIPSIS);
}

bool EditWindow::TakeKey(const MSG& message) {
  if (!window_ || !::IsChild(window_, message.hwnd)) return false;
  if (view_->TakeKey(message)) return true;
  if (message.message == WM_SYSCHAR) {
    const HWND button = buttons_.ByMnemonic(static_cast<wchar_t>(message.wParam));
    if (!button || IsInTheMiddle()) return false;
    if (::IsWindowEnabled(button)) OnButton(::GetDlgCtrlID(button));
    return true;
  }
  return message.message == WM_KEYDOWN && TakePlainKey(message);
}

bool EditWindow::TakePlainKey(const MSG& message) {
  const views::KeyPress press = win32::ToKeyPress(message.wParam);
  if (press.alt || IsInTheMiddle()) return false;
  const bool isRepeated = (message.lParam & (1 << 30)) != 0;
  const bool isPlain = !press.control && !press.shift;
  switch (message.wParam) {
    case VK_TAB:
      if (press.control) return false;
      PassFocus(press.shift ? -1 : 1);
      return true;
    case VK_RETURN:
      if (!isPlain) return false;
      if (!isRepeated) OnButton(buttons_.Contains(message.hwnd) ? ::GetDlgCtrlID(message.hwnd) : IDOK);
      return true;
    case VK_ESCAPE:
      if (!isRepeated) OnButton(IDCANCEL);
      return true;
    case VK_F1:
      if (!isPlain) return false;
      ::MessageBoxW(window_, Wide(EditorKeysInLines(false)).c_str(), L"Keys", MB_OK);
      return true;
    case VK_F5:
      if (!isPlain) return false;
      editor_.Read();
      return true;
    case 'N':
    case 'O':
      if (!press.control || press.shift) return false;
      if (!isRepeated) message.wParam == 'N' ? editor_.New() : editor_.Open();
      return true;
    case 'S':
      if (!press.control) return false;
      if (!isRepeated) press.shift ? editor_.SaveAs() : editor_.Save();
      return true;
    case 'Y':
    case 'Z':
      if (!press.control || (press.shift && message.wParam == 'Y')) return false;
      if (message.wParam == 'Z' && !press.shift) {
        editor_.Undo();
      } else {
        editor_.Redo();
      }
      return true;
    default:
      return false;
  }
}

/// The dialog and the buttons are one ring.
void EditWindow::PassFocus(int step) {
  const auto& buttons = buttons_.Windows();
  const auto count = static_cast<int>(buttons.size());
  const HWND focus = ::GetFocus();
  int at = step > 0 ? -1 : count;
  for (int i = 0; i < count; ++i) {
    if (buttons[static_cast<std::size_t>(i)] == focus) at = i;
  }
  for (at += step; at >= 0 && at < count; at += step) {
    const HWND button = buttons[static_cast<std::size_t>(at)];
    if (!::IsWindowEnabled(button)) continue;
    ::SetFocus(button);
    return;
  }
  view_->TakeFocus(step);
}

void EditWindow::RestoreFocus() {
  const bool isThere =
      lastFocus_ && ::IsChild(window_, lastFocus_) && ::IsWindowVisible(lastFocus_) && ::IsWindowEnabled(lastFocus_);
  if (isThere) {
    ::SetFocus(lastFocus_);
  } else {
    view_->TakeFocus(0);
  }
}

void EditWindow::OnButton(int id) {
  if (IsWaiting()) return;
  switch (id) {
    case IDOK:
      return Accept();
    case IDCANCEL:
      ::SendMessageW(window_, WM_CLOSE, 0, 0);
      return;
    case kApply:
      editor_.Save();
      return;
    default:
      return;
  }
}

void EditWindow::Accept() {
  if (editor_.Save()) ::SendMessageW(window_, WM_CLOSE, 0, 0);
}

void EditWindow::ShowState(const EditorState& state) {
  ::SetWindowTextW(window_, Wide(editor_.Title(state.isModified ? "*" : "")).c_str());
  const HWND apply = buttons_.Window(kApply);
  if (!state.canApply && ::GetFocus() == apply) ::SetFocus(buttons_.Window(IDOK));
  ::EnableWindow(apply, state.canApply);
  const Text message = FromUtf8(state.message);
  if (win32::TextOf(status_) == message) return;
  ::SetWindowTextW(status_, win32::ToWide(message).c_str());
  ::InvalidateRect(status_, nullptr, TRUE);
  // It is spoken though the focus is elsewhere.
  if (!message.empty()) ::NotifyWinEvent(EVENT_SYSTEM_ALERT, status_, OBJID_CLIENT, CHILDID_SELF);
}

Choice EditWindow::Ask(const Question& question) { return AskIn(window_, question); }

std::optional<Text> EditWindow::EditLayout(const Text& name, const Text& layout, bool readOnly) {
  return EditLayoutIn(window_, name, layout, readOnly);
}

}  // namespace ORXKMPrintProp::host
