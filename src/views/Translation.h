#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>

// The language in which a program with a window speaks. What the dialog's own captions are is left to its text table.

namespace ORXKMPrintProp::views {

struct Language {
  std::string code = "en";  ///< by ISO 639
  /// A text of ours in that language, in UTF-8; none for English.
  std::function<std::string(const char* english)> translate = {};
};

/// English until somebody sets another one, which is not to be done while another thread shows something.
const Language& CurrentLanguage();
void SetLanguage(Language language);

/// A text of ours in the current language, in UTF-8: English, unless there is a translation of it.
/// @param english a literal, which `scripts/update-translations` finds where it stands.
std::string Translated(const char* english);

/// The sentence with the values in the places {0}, {1} and so on, which a translation may have in any order.
template <class Char>
std::basic_string<Char> Filled(std::basic_string_view<Char> sentence,
                               std::initializer_list<std::type_identity_t<std::basic_string_view<Char>>> values) {
  std::basic_string<Char> filled;
  for (std::size_t i = 0; i < sentence.size(); ++i) {
    const bool isPlace = sentence[i] == Char{'{'} && i + 2 < sentence.size() && sentence[i + 2] == Char{'}'};
    const std::size_t number = isPlace ? static_cast<std::size_t>(sentence[i + 1] - Char{'0'}) : values.size();
    if (number < values.size()) {
      filled += values.begin()[number];
      i += 2;
    } else {
      filled += sentence[i];
    }
  }
  return filled;
}

template <class Char>
std::basic_string<Char> Filled(const std::basic_string<Char>& sentence,
                               std::initializer_list<std::type_identity_t<std::basic_string_view<Char>>> values) {
  return Filled(std::basic_string_view<Char>(sentence), values);
}

}  // namespace ORXKMPrintProp::views
