#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "views/Search.h"

/// @file
/// What keys do in the widgets that hold entries, and to the tabs. What they do to the text of a box is the toolkit's.

namespace ORXKMPrintProp::views {

/// `A` is that letter with Ctrl.
enum class Key { Other, Up, Down, Left, Right, Home, End, PageUp, PageDown, Space, Tab, A };

/// A key with what is held beside it.
struct KeyPress {
  Key key = Key::Other;
  bool shift = false;
  bool control = false;
  bool alt = false;
  Text text = {};  ///< what the key types, empty for nothing
};

/// The keys of a list: arrows and page keys move the caret, with Shift they select what it goes over, Space toggles the
/// entry at the caret, Ctrl+A selects all entries, Alt with an arrow takes the entry a step up or down, and letters
/// search. All of it in the steps that a user can do one by one.
class ListKeys {
 public:
  /// What the key does, none when it is not for the list. What is done may be the end of this object. Page keys go by
  /// as many entries as are `visible` at a time.
  std::function<void()> ActionOf(ListBox& list, const KeyPress& press, int visible);

 private:
  /// What has been selected with Shift, as long as the caret has moved with Shift alone.
  struct Stretch {
    int anchor = -1;
    int end = -1;
    int entries = 0;                 ///< of the list
    std::vector<int> selected = {};  ///< by these keys, from the anchor on

    void GoTo(ListBox& list, int entry);
  };

  std::function<void()> SingleActionOf(ListBox& list, const KeyPress& press, int visible);

  std::shared_ptr<Stretch> stretch_ = std::make_shared<Stretch>();
  TypeAhead search_;
};

/// What Alt with an arrow does: takes the entry at the caret, or where a caret begins, a step up (-1) or down (1). None
/// where it can go no further, and in a list that can't be reordered or used now.
std::function<void()> ReorderOf(ListBox& list, std::int16_t step);

/// What the focus does to a list that gets it by keyboard: a caret goes to the first selected entry, else to the first
/// one. None where there is a caret, or where it would select.
std::function<void()> ActionOfFocus(ListBox& list);

/// The entry that the key picks in a combo box whose list is closed, none when it picks none. It may be the one that
/// is shown.
std::optional<std::int16_t> PickOf(const ComboBox& combo, const KeyPress& press, TypeAhead& search);

/// The page that the key brings to the top: with Ctrl Tab and the page keys from anywhere, round and round; on the
/// tabs themselves also the arrows, Home and End.
std::optional<std::int16_t> TabOf(const SSTab& tabs, const KeyPress& press, bool isOnTabs);

/// For a person, in the program's language: "Space" "selects the entry, ...".
struct KeyRow {
  enum class Place { Dialog, Tabs, AnyList, ListOfSeveral, PrintList, ComboBox, Button, CheckBox };

  Place place;
  std::string keys;
  std::string does;
};
std::vector<KeyRow> KeyTable();
/// Where these keys are for: "in the whole dialog", "in a list".
std::string WordsOf(KeyRow::Place place);

/// What is particular about the keys of a list, in a sentence each, for a screen reader.
std::string KeysSpoken(const ListBox& list);

}  // namespace ORXKMPrintProp::views
