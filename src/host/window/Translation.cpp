#include "host/window/Translation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

#include "views/Translation.h"

namespace ORXKMPrintProp::host {

Translation::Translation(const std::string& language) {
  const QLocale locale(QString::fromStdString(language));
  if (!ours_.load(locale, QStringLiteral("prnprop"), QStringLiteral("_"), QStringLiteral(":/translations"))) return;
  QCoreApplication::installTranslator(&ours_);
  if (qts_.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&qts_);
  }
  views::SetLanguage({.code = language, .translate = [](const char* english) { return Tr(english).toStdString(); }});
}

/// Translators that end are no longer installed.
Translation::~Translation() { views::SetLanguage({}); }

QString Tr(const char* english) { return QCoreApplication::translate("prnprop", english); }

QString Tr(const char* english, const QString& value) {
  return QString::fromStdU16String(views::Filled(Tr(english).toStdU16String(), {value.toStdU16String()}));
}

}  // namespace ORXKMPrintProp::host
