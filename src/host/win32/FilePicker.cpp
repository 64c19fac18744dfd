#include "host/win32/FilePicker.h"

#include <windows.h>

#include <commdlg.h>

#include <algorithm>
#include <cwchar>

#include "host/Utf8.h"
#include "views/win32/WindowsText.h"

namespace ORXKMPrintProp::host {

std::optional<std::string> PickFileIn(HWND owner, FileUse use, const std::string& proposed) {
  constexpr std::size_t kRoom = 32768;  // the longest path of the system
  std::wstring path(kRoom, L'\0');
  const std::wstring known = win32::ToWide(FromUtf8(proposed));
  std::wstring folder = known.substr(0, known.find_last_of(L"\\/:") + 1);
  if (use == FileUse::Save) std::copy_n(known.begin(), std::min(known.size(), kRoom - 1), path.begin());
  OPENFILENAMEW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.lpstrFilter = L"Settings documents (*.json)\0*.json\0All files\0*.*\0";
  dialog.lpstrFile = path.data();
  dialog.nMaxFile = static_cast<DWORD>(path.size());
  dialog.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
  dialog.lpstrDefExt = L"json";
  dialog.Flags = OFN_EXPLORER | OFN_NOCHANGEDIR | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST;
  dialog.Flags |= use == FileUse::Save ? OFN_OVERWRITEPROMPT : OFN_FILEMUSTEXIST;
  if (!(use == FileUse::Save ? ::GetSaveFileNameW : ::GetOpenFileNameW)(&dialog)) return {};
  return ToUtf8(Text(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(std::wcslen(path.c_str()))));
}

}  // namespace ORXKMPrintProp::host
