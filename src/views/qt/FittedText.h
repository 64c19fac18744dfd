#pragma once

#include <QFont>
#include <QString>

namespace ORXKMPrintProp::qt {

/// A text made to fit a width: in a smaller face if need be, and where the smallest one does not do, cut.
struct FittedText {
  FittedText(const QString& fullText, const QFont& fullFont, int width);

  QString text;
  QFont font;
  bool isCut = false;
};

/// Whether a smaller face is left, which the font then is. It ends at 70 % of the full font's size.
bool Shrink(QFont& font, const QFont& fullFont);

}  // namespace ORXKMPrintProp::qt
