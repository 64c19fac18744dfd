#pragma once

#include <windows.h>

#include <algorithm>
#include <string>
#include <string_view>

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

/// A NUL would end the text of an edit window: it stands there as what is no character.
inline constexpr wchar_t kNulInEdit = 0xFFFF;

inline std::wstring ToEdit(TextView text) {
  std::wstring wide = ToWide(text);
  std::replace(wide.begin(), wide.end(), L'\0', kNulInEdit);
  return wide;
}
inline Text EditTextOf(HWND window) {
  Text text = TextOf(window);
  std::replace(text.begin(), text.end(), static_cast<char16_t>(kNulInEdit), u'\0');
  return text;
}

/// The character as one or two units of text.
inline std::wstring UnitsOf(char32_t character) {
  if (character < 0x10000) return {static_cast<wchar_t>(character)};
  const char32_t rest = character - 0x10000;
  return {static_cast<wchar_t>(0xD800 + (rest >> 10)), static_cast<wchar_t>(0xDC00 + (rest & 0x3FF))};
}

}  // namespace ORXKMPrintProp::win32
