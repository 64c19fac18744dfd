#pragma once

#include "tables/Text.h"
#include "views/Translation.h"

namespace ORXKMPrintProp::host {

/// A text of ours in the current language, as `views::Translated` gives it.
Text TranslatedText(const char* english);

/// How the text table in use calls something, on one line; where there is no table or it has no such key, our own word
/// for it in the current language.
/// @throws RunTimeError from the text table.
Text WordFor(TextView key, const char* english);

}  // namespace ORXKMPrintProp::host
