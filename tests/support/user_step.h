#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "dialog/Dialog.h"

namespace ORXKMPrintProp::test {

/// Each part of a text that stands apart from the others.
template <class Action>
void ForEach(const std::string& text, const std::string& apart, Action action) {
  for (std::size_t at = 0, end = 0; at < text.size(); at = end + apart.size()) {
    end = std::min(text.find(apart, at), text.size());
    action(text.substr(at, end - at));
  }
}

/// What a user does to a widget, from a line that names it as the layout does, `lstPrint(1)`:
///
///     tab 1, pick COMBO 2, toggle CHECK, press BUTTON, key BOX x, edit BOX new text
///     click LIST 0 (with more entries a drag), rclick LIST 0, down LIST 0, move LIST 1, up LIST
///     keys BOX xyz, drag LIST 0 1 (the same as `key` and `click`)
///     caret LIST 1, space LIST, shift LIST -1 (the entry at the caret, with its neighbour)
struct UserStep {
  UserStep(const Dialog& dialog, const std::string& line);

  Refusal Do() const;

  std::string verb;
  Widget* widget;                     ///< null when the line names none
  std::string rest;                   ///< what stands behind the widget
  std::vector<std::int16_t> numbers;  ///< that the rest begins with
};

}  // namespace ORXKMPrintProp::test
