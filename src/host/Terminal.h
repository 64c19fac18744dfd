#pragma once

#include <string>
#include <string_view>

#include "tables/Text.h"

namespace ORXKMPrintProp::host {

/// The text with a blank for every control character, line ends among them: fit for one line of a terminal.
Text OneLine(TextView text);

/// The same for what is UTF-8 already.
std::string OneLine(std::string_view utf8);

/// Columns that the text takes on a terminal: two for a wide East Asian character, none for a combining mark.
int DisplayWidth(TextView text);

}  // namespace ORXKMPrintProp::host
