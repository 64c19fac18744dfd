#include "pages/BreakSelectors.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "dialog/DialogTexts.h"
#include "pages/ListRoutines.h"
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

/// A selection that has become the last print characteristic goes. @return whether it has.
bool DropLast(ComboBox& combo, const ListBox& print) {
  const std::int16_t last = LastOf(print);
  if (last < 0 || SelectedItem(combo) != print.ItemData(last)) return false;
  combo.RemoveItem(combo.ListIndex());
  return true;
}

}  // namespace

BreakSelectors::BreakSelectors(const PageState& state)
    : state_(state),
      cmbCharQueryBreak(state.dialog.Get<ComboBox>(u"cmbCharQueryBreak")),
      cmbCharPageBreak(state.dialog.Get<ComboBox>(u"cmbCharPageBreak")),
      cmbCharBreakArea(state.dialog.Get<ComboBox>(u"cmbCharBreakArea")),
      selectors_{Selector{cmbCharQueryBreak, &PrnCharCls::QueryBreak},
                 Selector{cmbCharPageBreak, &PrnCharCls::PageBreak},
                 Selector{cmbCharBreakArea, &PrnCharCls::BreakArea}} {
  cmbCharQueryBreak.Click = state.WhenReady([this] { OnQueryBreak(); });
  cmbCharPageBreak.Click = state.WhenReady([this] { OnPageBreak(); });
}

void BreakSelectors::FillBreakCombos() {
  for (const Selector& selector : selectors_) selector.combo.Clear();
  for (const Selector& selector : selectors_) {
    ModPrnGen::AppendItem(selector.combo, PageState::LookUp(kNoneText.key, kNoneText.text), kNoBreak);
  }

  const PrnCharCollCls& characteristics = state_.Characteristics();
  std::array<std::int32_t, 3> saved;
  saved.fill(kNoBreak);
  std::int32_t number = 0;
  for (const auto& characteristic : characteristics) {
    ++number;
    for (std::size_t s = 0; s < selectors_.size(); ++s) {
      if (!characteristic->Hidden() && ((*characteristic).*selectors_[s].flag)()) saved[s] = number;
    }
  }
  auto offered = ModPrnGen::PrintedOncePerPosition(characteristics);
  // The last one is offered by none. Where a flag says it, there is nothing below it either.
  if (!offered.empty()) {
    const auto last = std::find(saved.begin(), saved.end(), offered.back().second);
    std::fill(last, saved.end(), kNoBreak);
    offered.pop_back();
  }
  for (const Selector& selector : selectors_) {
    for (const auto& [position, item] : offered) {
      ModPrnGen::AppendItem(selector.combo, characteristics.Item(item)->Text(), item);
    }
  }
  for (std::size_t s = 0; s < selectors_.size(); ++s) {
    ComboBox& combo = selectors_[s].combo;
    for (std::int16_t i = 0; i < combo.ListCount(); ++i) {
      if (combo.ItemData(i) == saved[s]) combo.ListIndex(i);
    }
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

  // What is last goes ahead of the others' coming, since no combo box has room for more than there are print
  // characteristics.
  if (DropLast(cmbCharQueryBreak, print)) cmbCharQueryBreak.ListIndex(0);
  {
    const std::int32_t selected = SelectedItem(cmbCharQueryBreak);
    PositionInserter inserter(cmbCharQueryBreak, PositionsIn(state_.Characteristics()));
    for (std::int16_t i = 0; i < LastOf(print); ++i) {
      if (print.ItemData(i) != selected) inserter.Insert(print.List(i), print.ItemData(i));
    }
  }
  if (DropLast(cmbCharPageBreak, print)) cmbCharPageBreak.ListIndex(0);
  OfferBelow(cmbCharQueryBreak, cmbCharPageBreak);
  const bool dropped = DropLast(cmbCharBreakArea, print);
  OfferBelow(cmbCharPageBreak, cmbCharBreakArea);
  if (dropped) cmbCharBreakArea.ListIndex(LastOf(cmbCharBreakArea));
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
