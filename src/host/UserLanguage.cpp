#include "host/UserLanguage.h"

#include <cstdlib>
#include <string_view>

#include "host/Files.h"

namespace ORXKMPrintProp::host {
namespace {

std::string_view Named(const char* variable) {
  const char* const value = std::getenv(variable);
  return value ? value : "";
}

std::string_view LocaleOfMessages() {
  for (const char* const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    if (!Named(variable).empty()) return Named(variable);
  }
  return {};
}

/// "de" of "de_DE.UTF-8" and of "de:en"; none of "C" and "POSIX".
std::string_view LanguageOf(std::string_view locale) {
  const std::string_view language = locale.substr(0, locale.find_first_of("_-.@:"));
  return language == "C" || language == "POSIX" ? "" : language;
}

}  // namespace

std::string UserLanguage() {
  const std::string_view locale = LocaleOfMessages();
  if (locale.empty()) return SystemLanguage();
  // A list in order of preference, beside any locale with a language.
  const std::string_view preferred = LanguageOf(Named("LANGUAGE"));
  const std::string_view language = LanguageOf(locale);
  return std::string(language.empty() || preferred.empty() ? language : preferred);
}

}  // namespace ORXKMPrintProp::host
