#include "views/Search.h"

#include <algorithm>
#include <functional>

#include "tables/CaseFolding.h"
#include "views/TabOrder.h"

namespace ORXKMPrintProp::views {
namespace {

bool IsAlike(char16_t a, char16_t b) { return FoldCase(a) == FoldCase(b); }

bool BeginsWith(TextView entry, TextView head) {
  return entry.size() >= head.size() && FoldedEqual()(entry.substr(0, head.size()), head);
}

bool Contains(TextView entry, TextView part) {
  return std::search(entry.begin(), entry.end(), part.begin(), part.end(), IsAlike) != entry.end();
}

bool IsOneLetterAgain(TextView typed) {
  return std::all_of(typed.begin(), typed.end(), [&](char16_t c) { return IsAlike(c, typed.front()); });
}

/// The first entry that is meant, round and round.
std::optional<std::int16_t> Next(const EntryWidget& widget, SearchFrom from,
                                 const std::function<bool(TextView entry)>& isMeant) {
  const int count = widget.ListCount();
  const int first = widget.ListIndex() + (from == SearchFrom::Caret ? 0 : 1);
  for (int i = 0; i < count; ++i) {
    const auto entry = static_cast<std::int16_t>((first + count + i) % count);
    if (isMeant(widget.List(entry))) return entry;
  }
  return {};
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
  return Next(widget, isLetter ? SearchFrom::BehindCaret : SearchFrom::Caret,
              [&](TextView entry) { return BeginsWith(entry, wanted); });
}

std::optional<std::int16_t> FindEntry(const EntryWidget& widget, TextView part, SearchFrom from) {
  if (part.empty()) return {};
  return Next(widget, from, [&](TextView entry) { return Contains(entry, part); });
}

ListBox* ListAtHand(const Dialog& dialog, ListBox* hadFocus) {
  const auto isReached = [](const Widget* widget) { return widget && widget->Refuses() == Refusal::None; };
  if (isReached(hadFocus)) return hadFocus;
  for (Widget* const widget : TabOrder(dialog)) {
    auto* const list = dynamic_cast<ListBox*>(widget);
    if (isReached(list)) return list;
  }
  return nullptr;
}

}  // namespace ORXKMPrintProp::views
