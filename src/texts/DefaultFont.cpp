#include "texts/DefaultFont.h"

namespace ORXKMPrintProp {

Text gDefaultFontName;

namespace RBDoubleByteCS {

Text FontPlatform::GetTextFace(Context, std::size_t length) {
  Text face = u"MS Sans Serif";
  face.resize(length);
  return face;
}

void GetDefaultDialogFont(FontPlatform& platform) {
  constexpr std::size_t kLength = 80;
  const FontPlatform::Window window = platform.GetActiveWindow();
  const FontPlatform::Context context = platform.GetContext(window);
  const Text face = platform.GetTextFace(context, kLength);
  platform.ReleaseContext(window, context);
  gDefaultFontName = TrimAtNul(face);
}

Text TrimAtNul(const Text& text) { return text.substr(0, text.find(u'\0')); }

}  // namespace RBDoubleByteCS
}  // namespace ORXKMPrintProp
