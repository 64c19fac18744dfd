#pragma once

#include "tables/Text.h"

namespace ORXKMPrintProp {

/// The character in the form in which upper and lower case are alike, by simple case folding: one character for
/// one, in no language's particular order. Surrogates stay as they are.
char16_t FoldCase(char16_t c);
Text FoldCase(TextView text);

}  // namespace ORXKMPrintProp
