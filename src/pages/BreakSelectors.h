#pragma once

#include <array>
#include <cstdint>

#include "pages/PageState.h"

namespace ORXKMPrintProp {

/// The three selectors of the frame "At group change...": the print characteristic at whose group change a new
/// cover page, page or block begins.
///
/// Index 0 is always the entry for no break, with ItemData -1; the others are print characteristics in print order.
/// A selector offers only what lies below the selection of the one above it, and none offers the last print
/// characteristic. Between two stores the selections are the truth, and the flags of the model lag behind.
class BreakSelectors {
 public:
  explicit BreakSelectors(const PageState& state);

  /// Fills the selectors from the model and selects what its flags say.
  void FillBreakCombos();
  /// Selections into the flags, which the caller has cleared.
  void StoreCharBreaks();
  /// Rebuilds the selectors for the print order, keeping selections where that can be done.
  /// @param print the print list, whose order the positions of the model have.
  void RebuildBreakCombos(const ListBox& print);
  /// No cover page and no page break, and a block at the last characteristic offered.
  void ResetCharBreaks();

  void EnableBreakCombos();

 private:
  struct Selector {
    ComboBox& combo;
    FlagProperty PrnCharCls::*flag;
  };

  void OnQueryBreak();
  void OnPageBreak();
  void RefillBreakCombo(const ComboBox& Upper, ComboBox& Lower);
  /// Offers those entries of `upper` below its selection that `lower` does not have.
  void OfferBelow(const ComboBox& upper, ComboBox& lower);

  const PageState& state_;
  ComboBox& cmbCharQueryBreak;
  ComboBox& cmbCharPageBreak;
  ComboBox& cmbCharBreakArea;
  /// From top to bottom.
  const std::array<Selector, 3> selectors_;
};

}  // namespace ORXKMPrintProp
