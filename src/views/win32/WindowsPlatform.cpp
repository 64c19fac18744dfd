#include "views/win32/WindowsPlatform.h"

#include <windows.h>

#include <array>

namespace ORXKMPrintProp::win32 {
namespace {

const wchar_t* Characters(TextView text) { return reinterpret_cast<const wchar_t*>(text.data()); }

}  // namespace

int WindowsPlatform::CompareTexts(TextView a, TextView b) const {
  const int order =
      ::CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, Characters(a), static_cast<int>(a.size()), Characters(b),
                       static_cast<int>(b.size()));
  // A text that the system can't compare still has its place.
  return order == 0 ? Platform::CompareTexts(a, b) : order - CSTR_EQUAL;
}

Text WindowsPlatform::DialogFontFace() const {
  std::array<char, 80> face{};
  const HWND window = ::GetActiveWindow();
  const HDC context = ::GetDC(window);
  const HGDIOBJ former = ::SelectObject(context, ::GetStockObject(DEFAULT_GUI_FONT));
  ::GetTextFaceA(context, static_cast<int>(face.size()), face.data());
  ::SelectObject(context, former);
  ::ReleaseDC(window, context);

  std::array<wchar_t, 80> wide{};
  const int length = ::MultiByteToWideChar(CP_ACP, 0, face.data(), static_cast<int>(face.size()), wide.data(),
                                           static_cast<int>(wide.size()));
  return Text(wide.data(), wide.data() + length);
}

const WindowsPlatform& WindowsPlatform::Instance() {
  static const WindowsPlatform platform;
  return platform;
}

}  // namespace ORXKMPrintProp::win32
