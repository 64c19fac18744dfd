#include "views/qt/QtFontPlatform.h"

#include <QFontDatabase>

#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt {

Text QtFontPlatform::GetTextFace(Context, std::size_t length) {
  Text face = ToText(QFontDatabase::systemFont(QFontDatabase::GeneralFont).family());
  face.resize(length - 1);
  return face + u'\0';
}

}  // namespace ORXKMPrintProp::qt
