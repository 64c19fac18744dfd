#pragma once

#include <memory>

#include "pages/BreakSelectors.h"
#include "pages/ColumnFrame.h"
#include "pages/ListPage.h"

namespace ORXKMPrintProp {

/// The second page: which characteristics are printed, in which order, with which breaks, and the settings of the
/// one that is selected.
///
/// `ORXOrderChanged` reaches the host from here, inside the user's action. When the host loads other settings in its
/// handler, the rest of the action is dropped: it was about settings that are gone.
class CharPage : public ListPage {
 public:
  explicit CharPage(PageState& state);

  /// Blanks the frame too, so that showing an item sets all that follows from its presentation.
  void ResetPage() override;
  void ShowPage() override;
  void EnablePage() override;

 private:
  Collection<PrnItemRef> Items() const override;
  void StoreProps() override;
  void ShowProps() override;
  /// Lists and break selectors into the model; the selectors are rebuilt for the new order.
  void StoreOrder() override;
  bool MayTake(std::int16_t more) override;
  void OnTransferred() override;
  void OnDragEnded(bool isElsewhere) override;
  void OnHierDisplay();

  /// The characteristic whose settings are shown, none for -1.
  std::shared_ptr<PrnCharCls> Shown() const;
  void EnableCharProps(bool Enable);

  CheckBox& chkCharHierDisplay;
  TextBox& txtCharHierLevel;
  CommandButton& cmdTotalsRow;
  ColumnFrame columns_;
  Fields<PrnCharCls> fields_;  ///< all below the columns
  BreakSelectors breaks_;
};

}  // namespace ORXKMPrintProp
