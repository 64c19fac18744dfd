#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ORXKMPrintProp::host {

/// What to say behind the complaint of an unknown word: ", did you mean TITLE?" with the known word that is most like
/// it, regardless of upper and lower case. Empty where none is.
std::string DidYouMean(std::string_view word, const std::vector<std::string>& known);

}  // namespace ORXKMPrintProp::host
