#pragma once

#include "pages/BreakSelectors.h"
#include "pages/ColumnFrame.h"
#include "pages/ListPage.h"

namespace ORXKMPrintProp {

/// The second page: which characteristics are printed, in which order, with which breaks, and the settings of the
/// one that is selected.
class CharPage : public ListPage {
 public:
  explicit CharPage(PageState& state);

  /// Blanks the frame, so that showing an item sets all that follows from its presentation.
  void ResetCharPage();
  void ShowCharPage();
  void StoreCharPage();
  void EnableCharPage();

  /// Lists and break selectors into the model; the selectors are rebuilt for the new order.
  void StoreOrder() override;
  void ResetCharBreaks() { breaks_.ResetCharBreaks(); }

  BreakSelectors& Breaks() { return breaks_; }
  ColumnFrame& Columns() { return columns_; }
  void OnHierDisplay();

  CheckBox& chkCharHierDisplay;

 private:
  Collection<PrnItemRef> Items() const override;
  void StoreProps() override;
  void ShowProps() override;

  /// The characteristic whose settings are shown, none for -1.
  std::shared_ptr<PrnCharCls> Shown() const;
  void EnableCharProps(bool Enable);

  TextBox& txtCharHierLevel;
  ComboBox& cmbCharNoSums;
  CommandButton& cmdTotalsRow;
  ColumnFrame columns_;
  BreakSelectors breaks_;
};

}  // namespace ORXKMPrintProp
