#include "pages/BreakSelectors.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "pages/ListRoutines.h"
#include "texts/LookupText.h"

namespace ORXKMPrintProp {
namespace {

using ModPrnGen::PositionInserter;
using ModPrnGen::PositionsIn;

constexpr std::int32_t kNoBreak = -1;

std::int16_t LastOf(const EntryWidget& widget) { return static_cast<std::int16_t>(widget.ListCount() - 1); }

/// The item number that is selected, `kNoBreak` for none.
std::int32_t SelectedItem(const ComboBox& combo) {
  return combo.ListIndex() < 0 ? kNoBreak : combo.ItemData(combo.ListIndex());
}

/// What stays is the entry for no break and the selected entry.
void CutDown(ComboBox& combo) {
  for (std::int16_t i = LastOf(combo); i >= 1; --i) {
    if (i != combo.ListIndex()) combo.RemoveItem(i);
  }
}

/// The last print characteristic can't be selected: its entry goes, and another is selected in its place.
void Deselect(ComboBox& combo, std::int32_t last, bool selectLast) {
  if (SelectedItem(combo) != last) return;
  combo.RemoveItem(combo.ListIndex());
  combo.ListIndex(selectLast ? LastOf(combo) : std::int16_t{0});
}

}  // namespace

BreakSelectors::BreakSelectors(PageState& state)
    : state_(state),
      cmbCharQueryBreak(state.dialog.Get<ComboBox>(u"cmbCharQueryBreak")),
      cmbCharPageBreak(state.dialog.Get<ComboBox>(u"cmbCharPageBreak")),
      cmbCharBreakArea(state.dialog.Get<ComboBox>(u"cmbCharBreakArea")),
      selectors_{Selector{cmbCharQueryBreak, &PrnCharCls::QueryBreak},
                 Selector{cmbCharPageBreak, &PrnCharCls::PageBreak},
                 Selector{cmbCharBreakArea, &PrnCharCls::BreakArea}} {}

void BreakSelectors::FillBreakCombos() {
  const PrnCharCollCls& characteristics = state_.Characteristics();
  const auto printed = ModPrnGen::PrintedByPosition(characteristics);
  std::array<std::int32_t, 3> saved{};
  for (std::size_t s = 0; s < selectors_.size(); ++s) {
    ComboBox& combo = selectors_[s].combo;
    combo.Clear();
    ModPrnGen::ComboInsertByPosition(combo, ModPrnGen::LookupText(u"ID_PRN_NONE", u"<None>"), kNoBreak, nullptr);
    saved[s] = kNoBreak;
    PositionInserter inserter(combo, PositionsIn(characteristics));
    for (const std::int32_t number : printed) {
      const PrnCharCls& characteristic = *characteristics.Item(number);
      inserter.Insert(characteristic.Text(), number);
      // Of several that hold the flag the last one in item order counts.
      if ((characteristic.*selectors_[s].flag)()) saved[s] = std::max(saved[s], number);
    }
  }
  for (std::size_t s = 0; s < selectors_.size(); ++s) {
    ComboBox& combo = selectors_[s].combo;
    for (std::int16_t i = 0; i < combo.ListCount(); ++i) {
      if (combo.ItemData(i) == saved[s]) combo.ListIndex(i);
    }
  }
  for (const Selector& selector : selectors_) {
    if (selector.combo.ListCount() >= 2) selector.combo.RemoveItem(LastOf(selector.combo));
  }
  for (const Selector& selector : selectors_) {
    if (selector.combo.ListIndex() < 0) selector.combo.ListIndex(0);
  }
}

void BreakSelectors::OnQueryBreak() {
  RefillBreakCombo(cmbCharQueryBreak, cmbCharPageBreak);
  RefillBreakCombo(cmbCharPageBreak, cmbCharBreakArea);
}

void BreakSelectors::OnPageBreak() { RefillBreakCombo(cmbCharPageBreak, cmbCharBreakArea); }

void BreakSelectors::RefillBreakCombo(const ComboBox& Upper, ComboBox& Lower) {
  if (Lower.ListCount() == 0) return;
  for (std::int16_t i = LastOf(Lower); i >= 1; --i) Lower.RemoveItem(i);
  OfferBelow(Upper, Lower);
  Lower.ListIndex(0);
}

void BreakSelectors::OfferBelow(const ComboBox& upper, ComboBox& lower) {
  const std::int32_t selected = SelectedItem(lower);
  PositionInserter inserter(lower, PositionsIn(state_.Characteristics()));
  for (auto i = static_cast<std::int16_t>(upper.ListIndex() + 1); i < upper.ListCount(); ++i) {
    const std::int32_t item = upper.ItemData(i);
    if (item > 0 && item != selected) inserter.Insert(upper.List(i), item);
  }
}

void BreakSelectors::StoreCharBreaks() {
  for (const Selector& selector : selectors_) {
    if (selector.combo.ListIndex() < 0) selector.combo.ListIndex(0);
    const std::int32_t item = SelectedItem(selector.combo);
    if (item <= 0) continue;
    PrnCharCls& characteristic = *state_.Characteristics().Item(item);
    if (characteristic.Hidden()) {
      selector.combo.ListIndex(0);
    } else {
      (characteristic.*selector.flag)(true);
    }
  }
}

void BreakSelectors::RebuildBreakCombos(const ListBox& print) {
  for (const Selector& selector : selectors_) CutDown(selector.combo);

  const std::int16_t last = LastOf(print);
  {
    const std::int32_t selected = SelectedItem(cmbCharQueryBreak);
    PositionInserter inserter(cmbCharQueryBreak, PositionsIn(state_.Characteristics()));
    for (std::int16_t i = 0; i < last; ++i) {
      if (print.ItemData(i) != selected) inserter.Insert(print.List(i), print.ItemData(i));
    }
  }
  const std::int32_t lastItem = last >= 0 ? print.ItemData(last) : 0;
  if (last >= 0) Deselect(cmbCharQueryBreak, lastItem, false);
  OfferBelow(cmbCharQueryBreak, cmbCharPageBreak);
  if (last >= 0) Deselect(cmbCharPageBreak, lastItem, false);
  OfferBelow(cmbCharPageBreak, cmbCharBreakArea);
  if (last >= 0) Deselect(cmbCharBreakArea, lastItem, true);
}

void BreakSelectors::ResetCharBreaks() {
  cmbCharQueryBreak.ListIndex(0);
  cmbCharPageBreak.ListIndex(0);
  cmbCharBreakArea.ListIndex(LastOf(cmbCharBreakArea));
}

void BreakSelectors::EnableBreakCombos() {
  for (const Selector& selector : selectors_) selector.combo.Enabled(!state_.mReadOnly);
}

}  // namespace ORXKMPrintProp
