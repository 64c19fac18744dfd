#include "views/Keys.h"

#include <algorithm>

#include "tables/CaseFolding.h"

namespace ORXKMPrintProp::views {
namespace {

bool BeginsWith(TextView entry, TextView head) {
  return entry.size() >= head.size() && FoldedEqual()(entry.substr(0, head.size()), head);
}

bool IsTyped(const KeyPress& press) { return !press.text.empty() && press.text.front() >= u' '; }

bool IsOneLetterAgain(TextView typed) {
  return std::all_of(typed.begin(), typed.end(), [&](char16_t c) { return FoldCase(c) == FoldCase(typed.front()); });
}

/// Where the caret goes. Without one every key leads to the first entry.
std::optional<int> CaretOf(const ListBox& list, Key key, int visible) {
  const int page = std::max(visible - 1, 1);
  const int caret = list.ListIndex();
  const auto to = [&](int entry) {
    return std::optional(caret < 0 ? 0 : std::clamp(entry, 0, std::max(list.ListCount() - 1, 0)));
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

std::optional<std::int16_t> TypeAhead::Find(const EntryWidget& widget, TextView typed, Clock::time_point now) {
  if (now - last_ > std::chrono::seconds(1)) typed_.clear();
  last_ = now;
  typed_ += typed;
  auto found = Search(widget);
  if (!found && typed_.size() > typed.size()) {
    typed_ = typed;
    found = Search(widget);
  }
  return found;
}

std::optional<std::int16_t> TypeAhead::Search(const EntryWidget& widget) const {
  // A text goes on at the entry that is found already, a letter alone behind it.
  const bool isLetter = IsOneLetterAgain(typed_);
  const TextView wanted = isLetter ? TextView(typed_).substr(0, 1) : TextView(typed_);
  const int count = widget.ListCount();
  for (int i = 0; i < count; ++i) {
    const auto entry = static_cast<std::int16_t>((widget.ListIndex() + (isLetter ? 1 : 0) + count + i) % count);
    if (BeginsWith(widget.List(entry), wanted)) return entry;
  }
  return {};
}

std::function<void()> ActionOf(ListBox& list, const KeyPress& press, int visible, TypeAhead& search) {
  const bool isArrow = press.key == Key::Up || press.key == Key::Down;
  if (press.alt && isArrow && !press.control && !press.shift) {
    const auto step = static_cast<std::int16_t>(press.key == Key::Up ? -1 : 1);
    return [&list, step] { list.UserDragStep(step); };
  }
  if (press.alt || press.control) return {};
  if (press.key == Key::Space) return [&list] { list.UserToggle(); };
  const auto moveTo = [&list](int entry) {
    return [&list, entry] { list.UserMoveCaret(static_cast<std::int16_t>(entry)); };
  };
  if (const auto caret = CaretOf(list, press.key, visible)) return moveTo(*caret);
  if (!IsTyped(press)) return {};
  const auto found = search.Find(list, press.text);
  if (!found) return [] {};
  return moveTo(*found);
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

}  // namespace ORXKMPrintProp::views
