#include "host/win32/Form.h"

#include <algorithm>
#include <utility>

#include "views/win32/PrnPropView.h"

namespace ORXKMPrintProp::host {

Form::Form(std::wstring title, std::vector<ButtonText> buttons, int preset, bool isSizable)
    : title_(std::move(title)), texts_(std::move(buttons)), preset_(preset), isSizable_(isSizable) {}

int Form::Run(HWND owner) {
  // Ahead of what a dialog is made from: no menu, no class, no title of its own.
  struct alignas(DWORD) {
    DLGTEMPLATE dialog;
    WORD none[3];
  } form{};
  form.dialog.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | (isSizable_ ? WS_THICKFRAME : DS_MODALFRAME);
  const INT_PTR pressed =
      ::DialogBoxIndirectParamW(nullptr, &form.dialog, owner, OnMessageOf, reinterpret_cast<LPARAM>(this));
  window_ = nullptr;
  if (failure_) std::rethrow_exception(failure_);
  return pressed > 0 ? static_cast<int>(pressed) : IDCANCEL;
}

INT_PTR CALLBACK Form::OnMessageOf(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    ::SetWindowLongPtrW(window, DWLP_USER, lParam);
    reinterpret_cast<Form*>(lParam)->window_ = window;
  }
  auto* const self = reinterpret_cast<Form*>(::GetWindowLongPtrW(window, DWLP_USER));
  if (!self) return FALSE;
  // No exception is to cross the system's loop.
  try {
    return self->OnMessage(message, wParam, lParam);
  } catch (...) {
    self->failure_ = std::current_exception();
    ::EndDialog(window, IDCANCEL);
    return FALSE;
  }
}

INT_PTR Form::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      Begin();
      return FALSE;
    case WM_COMMAND: {
      const int id = LOWORD(wParam);
      if (HIWORD(wParam) == BN_CLICKED && (id == IDCANCEL || buttons_.Window(id)) && MayEnd(id)) {
        ::EndDialog(window_, id);
      }
      return TRUE;
    }
    case WM_SIZE:
      Place();
      return TRUE;
    case WM_GETMINMAXINFO:
      if (buttons_.Windows().empty()) return FALSE;
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {buttons_.Size().cx + 6 * Margin(),
                                                               buttons_.Size().cy + 12 * Margin()};
      return TRUE;
    case WM_DPICHANGED: {
      const RECT& place = *reinterpret_cast<const RECT*>(lParam);
      ::SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
      Arrange(!isSizable_);
      return TRUE;
    }
    case WM_PAINT: {
      PAINTSTRUCT paint{};
      Paint(::BeginPaint(window_, &paint));
      ::EndPaint(window_, &paint);
      return TRUE;
    }
    default:
      return FALSE;
  }
}

void Form::Begin() {
  ::SetWindowTextW(window_, title_.c_str());
  Make();
  buttons_.Make(window_, texts_, preset_);
  ::SendMessageW(window_, DM_SETDEFID, static_cast<WPARAM>(preset_), 0);
  Arrange(true);
  const HWND owner = ::GetWindow(window_, GW_OWNER);
  RECT around = WorkAreaAt(owner ? owner : window_), place{};
  if (owner) ::GetWindowRect(owner, &around);
  ::GetWindowRect(window_, &place);
  ::SetWindowPos(window_, nullptr, (around.left + around.right - place.right + place.left) / 2,
                 (around.top + around.bottom - place.bottom + place.top) / 2, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  // Within the screen.
  Arrange(true);
  const HWND first = First();
  ::SetFocus(first ? first : buttons_.Window(preset_));
}

void Form::Arrange(bool setSize) {
  dpi_ = win32::PrnPropView::DpiOf(window_);
  OwnedFont font = MessageFont(dpi_);
  wanted_ = Fit(font.get());
  buttons_.SetFont(font.get(), dpi_);
  font_ = std::move(font);
  const int margin = Margin();
  const SIZE row = buttons_.Size();
  if (setSize) {
    SetClientSize(window_, {std::max(wanted_.cx, row.cx) + 2 * margin, wanted_.cy + row.cy + 3 * margin});
  }
  Place();
}

void Form::Place() {
  if (buttons_.Windows().empty()) return;
  RECT inside{};
  ::GetClientRect(window_, &inside);
  const int margin = Margin();
  buttons_.MoveTo(inside.right - margin, inside.bottom - margin);
  MoveTo({margin, margin, inside.right - margin, inside.bottom - 2 * margin - static_cast<int>(buttons_.Size().cy)});
  ::InvalidateRect(window_, nullptr, TRUE);
}

}  // namespace ORXKMPrintProp::host
