#include "dialog/Lists.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "tables/Conversions.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp {

struct EntryWidget::Entry {
  Text text;
  std::int32_t data = 0;
  bool selected = false;
  /// The one that sorts last of the entries up to this one. Known for the first `ranked_` entries.
  const Entry* greatest = nullptr;
};

EntryWidget::EntryWidget(WidgetContext& context, const LayoutRow& row) : Widget(context, row) {}
EntryWidget::~EntryWidget() = default;

inline std::unique_ptr<EntryWidget::Entry> EntryWidget::Take(std::int16_t index) {
  Entry& taken = At(index);
  OnRemove(taken);
  auto entry = entries_.Take(static_cast<std::size_t>(index));
  ranked_ = std::min(ranked_, static_cast<std::size_t>(index));
  if (IndexFollowsEntry()) {
    if (listIndex_ == index) {
      listIndex_ = -1;
    } else if (listIndex_ > index) {
      --listIndex_;
    }
  }
  context_.view->EntryRemoved(*this, index);
  return entry;
}

inline void EntryWidget::Put(std::size_t place, std::unique_ptr<Entry>&& entry) {
  entries_.Insert(place, std::move(entry));
  newIndex_ = static_cast<std::int16_t>(place);
  if (IndexFollowsEntry() && listIndex_ >= newIndex_) ++listIndex_;
  context_.view->EntryAdded(*this, newIndex_);
}

void EntryWidget::AddItem(Text text, std::optional<std::int16_t> index) {
  if (entries_.size() >= std::numeric_limits<std::int16_t>::max()) {
    throw RunTimeError(ErrorKind::Overflow, Text(Row().name.name) + u" can hold no more entries.");
  }
  if (index && (*index < 0 || *index > ListCount())) ThrowIndex(*index);
  const bool toSortedPlace = !index && Row().sorted;
  const std::size_t place = index           ? static_cast<std::size_t>(*index)
                            : toSortedPlace ? SortedPlace(text)
                                            : entries_.size();
  auto entry = std::make_unique<Entry>();
  entry->text = std::move(text);
  // At its sorted place an entry is the greatest up to there, and no greatest one behind it changes.
  entry->greatest = entry.get();
  const std::size_t ranked = toSortedPlace ? ranked_ + 1 : std::min(ranked_, place);
  Put(place, std::move(entry));
  ranked_ = ranked;
}

void EntryWidget::RemoveItem(std::int16_t index) { Take(index); }

void EntryWidget::MoveItem(std::int16_t index, std::int16_t to) {
  if (!Has(to)) ThrowIndex(to);
  auto entry = Take(index);
  const auto place = static_cast<std::size_t>(to);
  ranked_ = std::min(ranked_, place);
  Put(place, std::move(entry));
}

void EntryWidget::Clear() {
  entries_.Clear();
  ranked_ = 0;
  listIndex_ = -1;
  OnClear();
  context_.view->EntriesCleared(*this);
}

const Text& EntryWidget::List(std::int16_t index) const { return At(index).text; }

void EntryWidget::List(std::int16_t index, Text text) {
  Entry& entry = At(index);
  ranked_ = std::min(ranked_, static_cast<std::size_t>(index));
  if (entry.text == text) return;
  entry.text = std::move(text);
  TellEntry(index, EntryProperty::Text);
}

std::int32_t EntryWidget::ItemData(std::int16_t index) const { return At(index).data; }
void EntryWidget::ItemData(std::int16_t index, std::int32_t data) { At(index).data = data; }

void EntryWidget::ListIndex(std::int16_t index) {
  if (index != -1 && !Has(index)) ThrowIndex(index);
  if (index == ListIndex()) return;
  OnListIndex(index);
  Raise(Click);
}

EntryWidget::Entry& EntryWidget::At(std::int16_t index) const {
  if (!Has(index)) ThrowIndex(index);
  return *entries_[static_cast<std::size_t>(index)];
}

/// Ahead of the first entry that sorts behind the text, in whatever order the entries stand: that entry is always
/// the greatest one up to itself, and these ascend.
std::size_t EntryWidget::SortedPlace(TextView text) {
  const Platform& platform = context_.platform;
  for (; ranked_ < entries_.size(); ++ranked_) {
    Entry& entry = *entries_[ranked_];
    const Entry* const before = ranked_ == 0 ? nullptr : entries_[ranked_ - 1]->greatest;
    entry.greatest = before && platform.CompareTexts(before->text, entry.text) >= 0 ? before : &entry;
  }
  std::size_t first = 0;
  std::size_t last = entries_.size();
  while (first < last) {
    const std::size_t middle = first + (last - first) / 2;
    if (platform.CompareTexts(entries_[middle]->greatest->text, text) > 0) {
      last = middle;
    } else {
      first = middle + 1;
    }
  }
  return first;
}

Refusal ComboBox::UserPick(std::int16_t index) {
  if (const Refusal refusal = Refuses(); refusal != Refusal::None) return refusal;
  if (!Has(index)) return Refusal::NoSuchEntry;
  ListIndex(index);
  return Refusal::None;
}

bool ListBox::Selected(std::int16_t index) const { return At(index).selected; }

void ListBox::Selected(std::int16_t index, bool selected) {
  if (At(index).selected != selected) Select(index, selected);
}

void ListBox::Select(std::int16_t index, bool selected) {
  if (IsMulti()) {
    Mark(index, selected);
  } else {
    SelectOnly(selected ? index : std::int16_t{-1});
  }
  Raise(Click);
}

std::int16_t ListBox::ListIndex() const {
  const std::int16_t index = EntryWidget::ListIndex();
  return Has(index) ? index : std::int16_t{-1};
}

Refusal ListBox::UserMouseDown(std::int16_t entry, std::int16_t button) {
  if (const Refusal refusal = RefusesEntry(entry); refusal != Refusal::None) return refusal;
  if (button == kLeftButton) held_ = true;
  Place(entry);
  Raise(MouseDown, button);
  if (button == kLeftButton && held_ && Has(entry)) Select(entry, !IsMulti() || !Selected(entry));
  return Refusal::None;
}

Refusal ListBox::UserMouseMove(std::int16_t entry) {
  if (const Refusal refusal = RefusesEntry(entry); refusal != Refusal::None) return refusal;
  if (!held_) return Refusal::None;
  Place(entry);
  Raise(MouseMove, kLeftButton);
  return Refusal::None;
}

void ListBox::UserMouseUp(std::int16_t button) {
  if (button == kLeftButton) {
    held_ = false;
    Place(ListIndex());
  }
  Raise(MouseUp, button);
}

Refusal ListBox::UserMoveCaret(std::int16_t entry) {
  if (const Refusal refusal = RefusesEntry(entry); refusal != Refusal::None) return refusal;
  if (IsMulti() || Selected(entry)) {
    Place(entry);
  } else {
    Selected(entry, true);
  }
  return Refusal::None;
}

Refusal ListBox::UserToggle() {
  const std::int16_t entry = ListIndex();
  const Refusal refusal = RefusesEntry(entry);
  if (refusal == Refusal::None && IsMulti()) Selected(entry, !Selected(entry));
  return refusal;
}

Refusal ListBox::UserDragStep(std::int16_t direction) {
  const std::int16_t entry = ListIndex();
  const auto neighbour = static_cast<std::int16_t>(entry + direction);
  if (const Refusal refusal = RefusesEntry(entry); refusal != Refusal::None) return refusal;
  if (!Has(neighbour)) return Refusal::NoSuchEntry;
  if (!MouseMove) return Refusal::None;
  held_ = true;
  try {
    Raise(MouseDown, kLeftButton);
    UserMouseMove(neighbour);
  } catch (...) {
    UserMouseUp(kLeftButton);
    throw;
  }
  UserMouseUp(kLeftButton);
  return Refusal::None;
}

void ListBox::OnListIndex(std::int16_t index) {
  if (IsMulti()) {
    Place(index);
  } else {
    SelectOnly(index);
  }
}

void ListBox::OnRemove(Entry& entry) {
  selCount_ = static_cast<std::int16_t>(selCount_ - std::exchange(entry.selected, false));
}

void ListBox::Mark(std::int16_t index, bool selected) {
  Entry& entry = At(index);
  if (entry.selected == selected) return;
  selCount_ = static_cast<std::int16_t>(selCount_ + (selected ? 1 : -1));
  entry.selected = selected;
  TellEntry(index, EntryProperty::Selected);
}

void ListBox::SelectOnly(std::int16_t index) {
  for (std::int16_t i = 0; i < ListCount(); ++i) Mark(i, i == index);
  Place(index);
}

Refusal ListBox::RefusesEntry(std::int16_t entry) const {
  const Refusal refusal = Refuses();
  return refusal == Refusal::None && !Has(entry) ? Refusal::NoSuchEntry : refusal;
}

}  // namespace ORXKMPrintProp
