#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>

#include "dialog/Lists.h"

// What keys do in the widgets that hold entries, and to the tabs. What they do to the text of a box is the toolkit's.

namespace ORXKMPrintProp::views {

enum class Key { Other, Up, Down, Left, Right, Home, End, PageUp, PageDown, Space, Tab };

struct KeyPress {
  Key key = Key::Other;
  bool shift = false;
  bool control = false;
  bool alt = false;
  Text text = {};  ///< what the key types, empty for nothing
};

/// Finds the entry that begins with what is typed, regardless of case, round and round. Keys that follow each other
/// within a second count as one text, where an entry begins with it; the same letter again leads to the next entry that
/// begins with it.
class TypeAhead {
 public:
  using Clock = std::chrono::steady_clock;

  /// @return none when there is no such entry.
  std::optional<std::int16_t> Find(const EntryWidget& widget, TextView typed, Clock::time_point now = Clock::now());

 private:
  std::optional<std::int16_t> Search(const EntryWidget& widget) const;

  Text typed_;
  Clock::time_point last_;
};

/// What the key does to a list, none when it is not for it: arrows and page keys move the caret, Space toggles the
/// entry at the caret, Alt with an arrow takes it a step up or down, and letters search.
/// @param visible how many entries are seen at a time.
std::function<void()> ActionOf(ListBox& list, const KeyPress& press, int visible, TypeAhead& search);

/// The entry that the key picks in a combo box whose list is closed, none when it picks none. It may be the one that
/// is shown.
std::optional<std::int16_t> PickOf(const ComboBox& combo, const KeyPress& press, TypeAhead& search);

/// The page that the key brings to the top: with Ctrl Tab and the page keys from anywhere, round and round; on the
/// tabs themselves also the arrows, Home and End.
std::optional<std::int16_t> TabOf(const SSTab& tabs, const KeyPress& press, bool isOnTabs);

}  // namespace ORXKMPrintProp::views
