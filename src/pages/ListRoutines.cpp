#include "pages/ListRoutines.h"

#include <cstddef>
#include <limits>
#include <utility>

namespace ORXKMPrintProp::ModPrnGen {
namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int16_t>::min();
constexpr std::size_t kPositions = 1 << 16;

std::size_t SlotOf(std::int32_t position) { return static_cast<std::size_t>(position - kLowest); }

}  // namespace

std::int16_t MoveSelectedItems(ListBox& Source, ListBox& Target) {
  const std::int16_t moved = Source.SelCount();
  if (moved == 0) return 0;
  const std::int16_t behind = Target.ListCount();
  for (auto i = static_cast<std::int16_t>(Source.ListCount() - 1); i >= 0; --i) {
    if (!Source.Selected(i)) continue;
    Text text = Source.List(i);
    const std::int32_t item = Source.ItemData(i);
    Source.RemoveItem(i);
    if (Target.Sorted()) {
      Target.AddItem(std::move(text));
    } else {
      Target.AddItem(std::move(text), behind);
    }
    Target.ItemData(Target.NewIndex(), item);
  }
  return moved;
}

PositionInserter::PositionInserter(EntryWidget& widget, PositionOf positions, bool once)
    : widget_(widget), positions_(std::move(positions)), once_(once) {
  if (!positions_) return;
  sums_.resize(kPositions + 1);
  begins_.resize(kPositions);
  bool any = false;
  std::int32_t greatest = 0;
  for (std::int16_t i = 0; i < widget_.ListCount(); ++i) {
    if (const std::int32_t item = widget_.ItemData(i); item > 0) {
      const std::int32_t position = positions_(item);
      if (!any || position > greatest) greatest = position;
      any = true;
    }
    if (any) {
      CountEntry(greatest);
    } else {
      ++leading_;
    }
  }
}

std::int16_t PositionInserter::Insert(const Text& text, std::int32_t item) {
  std::int16_t index = widget_.ListCount();
  if (positions_) {
    const std::int32_t position = positions_(item);
    if (once_ && begins_[SlotOf(position)]) return EntriesUpTo(position - 1);
    index = EntriesUpTo(position);
    CountEntry(position);
  }
  widget_.AddItem(text, index);
  widget_.ItemData(index, item);
  return index;
}

// The sums are a binary indexed tree: slot i holds the lengths of the i & -i slots that end with it.

std::int16_t PositionInserter::EntriesUpTo(std::int32_t position) const {
  std::int32_t entries = leading_;
  for (std::size_t i = SlotOf(position + 1); i > 0; i &= i - 1) entries += sums_[i];
  return static_cast<std::int16_t>(entries);
}

void PositionInserter::CountEntry(std::int32_t stretch) {
  begins_[SlotOf(stretch)] = true;
  for (std::size_t i = SlotOf(stretch) + 1; i <= kPositions; i += i & (~i + 1)) ++sums_[i];
}

std::int16_t ListInsertByPosition(ListBox& List, const Text& ItemText, std::int32_t ItemNumber,
                                  const PositionOf& Items) {
  return PositionInserter(List, Items).Insert(ItemText, ItemNumber);
}

std::int16_t ComboInsertByPosition(ComboBox& Combo, const Text& ItemText, std::int32_t ItemNumber,
                                   const PositionOf& Items) {
  return PositionInserter(Combo, Items).Insert(ItemText, ItemNumber);
}

void FilterDigitKey(std::int16_t& KeyAscii) {
  const bool isDigit = KeyAscii >= u'0' && KeyAscii <= u'9';
  if (!isDigit && KeyAscii != static_cast<std::int16_t>(TextBox::kBackspace)) KeyAscii = 0;
}

}  // namespace ORXKMPrintProp::ModPrnGen
