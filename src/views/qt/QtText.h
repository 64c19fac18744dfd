#pragma once

#include <QString>
#include <QStringView>

#include "tables/Text.h"

namespace ORXKMPrintProp::qt {

inline QString ToQString(TextView text) {
  return QStringView(text.data(), static_cast<qsizetype>(text.size())).toString();
}

inline Text ToText(const QString& text) { return text.toStdU16String(); }

/// The text for a Qt widget that takes "&" for the mark of a shortcut key: the dialog has none, "&" is shown.
inline QString WithoutShortcut(QString text) { return text.replace(u'&', QStringLiteral("&&")); }

}  // namespace ORXKMPrintProp::qt
