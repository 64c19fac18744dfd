#include "views/Keys.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "views/Translation.h"

namespace ORXKMPrintProp::views {
namespace {

bool IsTyped(const KeyPress& press) { return !press.text.empty() && press.text.front() >= u' '; }

/// Where a caret begins, -1 in a list without entries.
std::int16_t BeginOf(const ListBox& list) {
  std::int16_t first = 0;
  if (list.SelCount() == 0) return list.ListCount() > 0 ? first : std::int16_t{-1};
  while (!list.Selected(first)) ++first;
  return first;
}

bool IsOfSeveral(const ListBox& list) { return list.Row().multiSelect; }

/// A caret does not select here.
void GiveCaret(ListBox& list) {
  if (list.ListIndex() < 0 && IsOfSeveral(list)) list.UserMoveCaret(BeginOf(list));
}

/// @return whether the list goes on as it was but for the selection.
bool Toggle(ListBox& list, int entry) {
  const std::int16_t count = list.ListCount();
  return list.UserMoveCaret(static_cast<std::int16_t>(entry)) == Refusal::None && list.UserToggle() == Refusal::None &&
         list.ListCount() == count;
}

void Reorder(ListBox& list, std::int16_t step) {
  GiveCaret(list);
  list.UserDragStep(step);
}

void SelectAll(ListBox& list, bool selected) {
  GiveCaret(list);
  const std::int16_t caret = list.ListIndex();
  for (std::int16_t i = 0; i < list.ListCount(); ++i) {
    if (list.Selected(i) != selected && !Toggle(list, i)) return;
  }
  list.UserMoveCaret(caret);
}

/// Where the caret goes. Without one every key leads to where it begins.
std::optional<int> CaretOf(const ListBox& list, Key key, int visible) {
  const int page = std::max(visible - 1, 1);
  const int caret = list.ListIndex();
  const auto to = [&](int entry) {
    return std::optional<int>(caret < 0 ? BeginOf(list) : std::clamp(entry, 0, std::max(list.ListCount() - 1, 0)));
  };
  switch (key) {
    case Key::Up:
    case Key::Left:
      return to(caret - 1);
    case Key::Down:
    case Key::Right:
      return to(caret + 1);
    case Key::Home:
      return to(0);
    case Key::End:
      return to(list.ListCount() - 1);
    case Key::PageUp:
      return to(caret - page);
    case Key::PageDown:
      return to(caret + page);
    default:
      return {};
  }
}

}  // namespace

void ListKeys::Stretch::GoTo(ListBox& list, int entry) {
  GiveCaret(list);
  int at = list.ListIndex();
  if (at < 0) return;
  if (anchor < 0 || end != at || entries != list.ListCount()) {
    *this = {.anchor = at, .entries = list.ListCount()};
    if (!list.Selected(static_cast<std::int16_t>(at))) {
      selected.push_back(at);
      if (!Toggle(list, at)) return;
    }
  }
  for (end = at; at != entry; end = at) {
    const int next = at + (entry > at ? 1 : -1);
    const bool isBack = std::abs(next - anchor) < std::abs(at - anchor);
    const int passed = isBack ? at : next;
    at = next;
    const bool isSelected = list.Selected(static_cast<std::int16_t>(passed));
    if (!isBack) {
      if (isSelected) continue;
      selected.push_back(passed);
    } else {
      if (selected.empty() || selected.back() != passed) continue;
      selected.pop_back();
      if (!isSelected) continue;
    }
    if (!Toggle(list, passed)) return;
  }
  list.UserMoveCaret(static_cast<std::int16_t>(entry));
}

std::function<void()> ListKeys::ActionOf(ListBox& list, const KeyPress& press, int visible) {
  const bool isExtending = press.shift && !press.control && !press.alt && IsOfSeveral(list);
  const auto caret = isExtending ? CaretOf(list, press.key, visible) : std::nullopt;
  if (caret) {
    return [&list, stretch = stretch_, entry = *caret] { stretch->GoTo(list, entry); };
  }
  auto action = SingleActionOf(list, press, visible);
  if (action) stretch_ = std::make_shared<Stretch>();
  return action;
}

std::function<void()> ListKeys::SingleActionOf(ListBox& list, const KeyPress& press, int visible) {
  const bool isArrow = press.key == Key::Up || press.key == Key::Down;
  if (press.alt && isArrow && !press.control && !press.shift) {
    const auto step = static_cast<std::int16_t>(press.key == Key::Up ? -1 : 1);
    return [&list, step] { Reorder(list, step); };
  }
  if (press.key == Key::A && press.control && !press.alt && IsOfSeveral(list)) {
    return [&list, selected = !press.shift] { SelectAll(list, selected); };
  }
  if (press.alt || press.control) return {};
  if (press.key == Key::Space) {
    return [&list] {
      GiveCaret(list);
      list.UserToggle();
    };
  }
  const auto moveTo = [&list](int entry) {
    return [&list, entry] { list.UserMoveCaret(static_cast<std::int16_t>(entry)); };
  };
  if (const auto caret = CaretOf(list, press.key, visible)) return moveTo(*caret);
  if (!IsTyped(press)) return {};
  const auto found = search_.Find(list, press.text);
  if (!found) return [] {};
  return moveTo(*found);
}

std::function<void()> ReorderOf(ListBox& list, std::int16_t step) {
  if (list.Refuses() != Refusal::None || !list.MouseMove) return {};
  const int entry = list.ListIndex() < 0 ? BeginOf(list) : list.ListIndex();
  if (entry < 0 || entry + step < 0 || entry + step >= list.ListCount()) return {};
  return [&list, step] { Reorder(list, step); };
}

std::function<void()> ActionOfFocus(ListBox& list) {
  if (list.ListIndex() >= 0 || list.ListCount() == 0 || !IsOfSeveral(list)) return {};
  return [&list] { GiveCaret(list); };
}

std::optional<std::int16_t> PickOf(const ComboBox& combo, const KeyPress& press, TypeAhead& search) {
  if (press.alt || press.control || combo.ListCount() == 0) return {};
  const int last = combo.ListCount() - 1;
  const auto to = [&](int entry) { return std::optional(static_cast<std::int16_t>(std::clamp(entry, 0, last))); };
  switch (press.key) {
    case Key::Up:
    case Key::PageUp:
      return to(combo.ListIndex() - 1);
    case Key::Down:
    case Key::PageDown:
      return to(combo.ListIndex() + 1);
    case Key::Home:
      return to(0);
    case Key::End:
      return to(last);
    case Key::Other:
    case Key::A:
      return IsTyped(press) ? search.Find(combo, press.text) : std::nullopt;
    default:
      return {};
  }
}

std::optional<std::int16_t> TabOf(const SSTab& tabs, const KeyPress& press, bool isOnTabs) {
  struct TabKey {
    Key key;
    bool control, shift;
    int step;
    bool round;
  };
  static constexpr TabKey kKeys[] = {
      {Key::Tab, true, false, 1, true},
      {Key::PageDown, true, false, 1, true},
      {Key::Tab, true, true, -1, true},
      {Key::PageUp, true, false, -1, true},
      {Key::Right, false, false, 1, false},
      {Key::Left, false, false, -1, false},
      {Key::End, false, false, SSTab::kTabs, false},
      {Key::Home, false, false, -SSTab::kTabs, false},
  };
  for (const TabKey& row : kKeys) {
    if (press.key != row.key || press.control != row.control || press.shift != row.shift || press.alt) continue;
    if (!row.round && !isOnTabs) continue;
    const int tab = tabs.Tab() + row.step;
    return static_cast<std::int16_t>(row.round ? (tab + SSTab::kTabs) % SSTab::kTabs
                                               : std::clamp(tab, 0, SSTab::kTabs - 1));
  }
  return {};
}

std::vector<KeyRow> KeyTable() {
  using enum KeyRow::Place;
  return {
      {Dialog, Translated("Tab and Shift+Tab"), Translated("lead to the next field and to the one before")},
      {Dialog, Translated("Ctrl+Tab and Ctrl+PgDown"), Translated("bring the next page to the top")},
      {Dialog, Translated("Ctrl+Shift+Tab and Ctrl+PgUp"), Translated("bring the page before to the top")},
      {Tabs, Translated("Arrows, Home and End"), Translated("bring another page to the top")},
      {AnyList, Translated("Arrows, PgUp, PgDown, Home and End"), Translated("lead to another entry")},
      {AnyList, Translated("Letters"), Translated("lead to the entry that begins with them")},
      {ListOfSeveral, Translated("Space"), Translated("selects the entry, or takes it out of the selection")},
      {ListOfSeveral, Translated("Shift with arrows, PgUp, PgDown, Home and End"),
       Translated("selects all entries on the way")},
      {ListOfSeveral, Translated("Ctrl+A"), Translated("selects all entries")},
      {ListOfSeveral, Translated("Ctrl+Shift+A"), Translated("takes all entries out of the selection")},
      {PrintList, Translated("Alt+Up and Alt+Down"), Translated("move the entry up and down in the print order")},
      {ComboBox, Translated("Up, Down, Home and End"), Translated("pick another entry")},
      {ComboBox, Translated("Letters"), Translated("pick the entry that begins with them")},
      {ComboBox, Translated("F4 and Alt+Down"), Translated("open the list")},
      {Button, Translated("Space and Enter"), Translated("press the button")},
      {CheckBox, Translated("Space"), Translated("ticks the box, or takes the tick out")},
  };
}

std::string WordsOf(KeyRow::Place place) {
  using enum KeyRow::Place;
  switch (place) {
    case Dialog:
      return Translated("in the whole dialog");
    case Tabs:
      return Translated("on the tabs");
    case AnyList:
      return Translated("in a list");
    case ListOfSeveral:
      return Translated("in a list of entries to select");
    case PrintList:
      return Translated("in a list of what is printed");
    case ComboBox:
      return Translated("in a box with a list");
    case Button:
      return Translated("on a button");
    case CheckBox:
      return Translated("on a check box");
  }
  return {};
}

std::string KeysSpoken(const ListBox& list) {
  using enum KeyRow::Place;
  // What leads to another entry needs no words in a list where there is more.
  const bool isReordered = list.MouseMove != nullptr;
  std::string spoken;
  for (const KeyRow& row : KeyTable()) {
    const bool isMeant = IsOfSeveral(list) ? row.place == ListOfSeveral || (row.place == PrintList && isReordered)
                                           : row.place == AnyList;
    if (isMeant) spoken += (spoken.empty() ? "" : " ") + row.keys + " " + row.does + ".";
  }
  return spoken;
}

}  // namespace ORXKMPrintProp::views
