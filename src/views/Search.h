#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

#include "dialog/Dialog.h"

/// @file
/// How an entry is found by its text, regardless of case.

namespace ORXKMPrintProp::views {

/// Finds the entry that begins with what is typed, round and round. Keys that follow each other within a second count
/// as one text, where an entry begins with it; the same letter again leads to the next entry that begins with it.
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

enum class SearchFrom { Caret, BehindCaret };

/// The next entry with the text anywhere in it, round and round.
/// @return none when there is no such entry, or no text.
std::optional<std::int16_t> FindEntry(const EntryWidget& widget, TextView part, SearchFrom from);

/// The list in which an entry is looked for: the one that had the focus last, else the first one on the page. Null
/// where the user can reach none.
ListBox* ListAtHand(const Dialog& dialog, ListBox* hadFocus);

}  // namespace ORXKMPrintProp::views
