#pragma once

#include <windows.h>

#include <string>

#include "tables/Text.h"

namespace ORXKMPrintProp::win32 {

inline std::wstring ToWide(TextView text) { return {text.begin(), text.end()}; }
inline Text ToText(std::wstring_view text) { return {text.begin(), text.end()}; }

/// For windows that take an ampersand for the mark of a shortcut.
inline std::wstring WithoutShortcut(TextView text) {
  std::wstring doubled;
  for (const char16_t character : text) doubled.append(character == u'&' ? 2 : 1, static_cast<wchar_t>(character));
  return doubled;
}

inline Text TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return ToText(text);
}

}  // namespace ORXKMPrintProp::win32
