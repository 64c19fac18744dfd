#include "views/Translation.h"

#include <utility>

namespace ORXKMPrintProp::views {
namespace {

Language current;

}  // namespace

const Language& CurrentLanguage() { return current; }

void SetLanguage(Language language) { current = std::move(language); }

std::string Translated(const char* english) { return current.translate ? current.translate(english) : english; }

}  // namespace ORXKMPrintProp::views
