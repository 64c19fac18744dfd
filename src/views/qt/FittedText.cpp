#include "views/qt/FittedText.h"

#include <QFontMetrics>

namespace ORXKMPrintProp::qt {

FittedText::FittedText(const QString& fullText, const QFont& fullFont, int width) : text(fullText), font(fullFont) {
  const auto fits = [&] { return QFontMetrics(font).horizontalAdvance(text) <= width; };
  while (!fits()) {
    if (Shrink(font, fullFont)) continue;
    isCut = true;
    text = QFontMetrics(font).elidedText(text, Qt::ElideRight, width);
    return;
  }
}

bool Shrink(QFont& font, const QFont& fullFont) {
  constexpr double kStep = 0.05;
  constexpr double kSmallest = 0.7;
  const double size = font.pointSizeF() - kStep * fullFont.pointSizeF();
  if (size < (kSmallest - kStep / 2) * fullFont.pointSizeF()) return false;
  font.setPointSizeF(size);
  return true;
}

}  // namespace ORXKMPrintProp::qt
