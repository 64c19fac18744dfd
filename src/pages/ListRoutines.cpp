#include "pages/ListRoutines.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace ORXKMPrintProp::ModPrnGen {

std::int16_t MoveSelectedItems(ListBox& Source, ListBox& Target) {
  const std::int16_t moved = Source.SelCount();
  if (moved == 0) return 0;
  const std::int16_t behind = Target.ListCount();
  for (auto i = static_cast<std::int16_t>(Source.ListCount() - 1); i >= 0; --i) {
    if (!Source.Selected(i)) continue;
    // It comes before it goes: when memory runs out, no entry is lost.
    if (Target.Sorted()) {
      Target.AddItem(Source.List(i));
    } else {
      Target.AddItem(Source.List(i), behind);
    }
    Target.ItemData(Target.NewIndex(), Source.ItemData(i));
    Source.RemoveItem(i);
  }
  return moved;
}

PositionInserter::PositionInserter(ComboBox& combo, PositionOf positions)
    : combo_(combo), positions_(std::move(positions)) {
  std::int32_t greatest = std::numeric_limits<std::int32_t>::min();
  for (std::int16_t i = 0; i < combo_.ListCount(); ++i) {
    if (const std::int32_t item = combo_.ItemData(i); item > 0) greatest = std::max<int>(greatest, positions_(item));
    greatest_.push_back(greatest);
  }
}

void PositionInserter::Insert(const Text& text, std::int32_t item) {
  const std::int32_t position = positions_(item);
  const auto behind = std::lower_bound(greatest_.begin(), greatest_.end(), position);
  if (behind != greatest_.end() && *behind == position) return;
  const auto index = static_cast<std::int16_t>(behind - greatest_.begin());
  greatest_.insert(behind, position);
  combo_.AddItem(text, index);
  combo_.ItemData(index, item);
}

void AppendItem(EntryWidget& widget, Text text, std::int32_t item) {
  const std::int16_t index = widget.ListCount();
  widget.AddItem(std::move(text), index);
  widget.ItemData(index, item);
}

void FilterDigitKey(std::int16_t& KeyAscii) {
  const bool isDigit = KeyAscii >= u'0' && KeyAscii <= u'9';
  if (!isDigit && KeyAscii != static_cast<std::int16_t>(TextBox::kBackspace)) KeyAscii = 0;
}

}  // namespace ORXKMPrintProp::ModPrnGen
