#pragma once

#include <windows.h>

#include <string>

#include "tables/Text.h"

namespace ORXKMPrintProp::win32 {

inline std::wstring ToWide(TextView text) { return {text.begin(), text.end()}; }
inline Text ToText(std::wstring_view text) { return {text.begin(), text.end()}; }

inline Text TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return ToText(text);
}

}  // namespace ORXKMPrintProp::win32
