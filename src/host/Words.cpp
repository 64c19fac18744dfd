#include "host/Words.h"

#include "host/Terminal.h"
#include "host/Utf8.h"
#include "texts/LookupText.h"

namespace ORXKMPrintProp::host {

Text TranslatedText(const char* english) { return FromUtf8(views::Translated(english)); }

Text WordFor(TextView key, const char* english) { return OneLine(ModPrnGen::LookupText(key, TranslatedText(english))); }

}  // namespace ORXKMPrintProp::host
