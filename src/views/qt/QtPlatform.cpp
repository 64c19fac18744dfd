#include "views/qt/QtPlatform.h"

#include <QCollator>
#include <QFontDatabase>
#include <QLocale>

#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt {

QtPlatform::QtPlatform() : order_(std::make_unique<QCollator>(QLocale::system().collation())) {
  order_->setCaseSensitivity(Qt::CaseInsensitive);
}

QtPlatform::~QtPlatform() = default;

int QtPlatform::CompareTexts(TextView a, TextView b) const {
  return order_->compare(QStringView(a.data(), static_cast<qsizetype>(a.size())),
                         QStringView(b.data(), static_cast<qsizetype>(b.size())));
}

Text QtPlatform::DialogFontFace() const {
  return ToText(QFontDatabase::systemFont(QFontDatabase::GeneralFont).family());
}

}  // namespace ORXKMPrintProp::qt
