#pragma once

#include <QString>
#include <QTranslator>
#include <string>

namespace ORXKMPrintProp::host {

/// While it lives, the program speaks that language in its windows, and Qt in its own, as far as there are
/// translations.
class Translation {
 public:
  /// Needs the application. @param language by ISO 639; English and what is not known change nothing.
  explicit Translation(const std::string& language);
  Translation(const Translation&) = delete;
  Translation& operator=(const Translation&) = delete;
  ~Translation();

 private:
  QTranslator ours_;
  QTranslator qts_;
};

/// A text of ours in the current language, as `views::Translated` gives it.
QString Tr(const char* english);
/// @param value in the place {0}.
QString Tr(const char* english, const QString& value);

}  // namespace ORXKMPrintProp::host
