#pragma once

#include "pages/ColumnFrame.h"
#include "pages/ListPage.h"

namespace ORXKMPrintProp {

/// The fourth page: for each structure the elements that are printed, and the settings of the one that is selected.
/// It works like the Attributes page; what differs:
///
/// - The selector is a list of at most two structures, and the lists are always emptied first.
/// - The second structure is added after the first has been selected and shown.
/// - An element has one column. The order is always stored, the settings only for structure 1 or 2.
class StrPage : public ListPage {
 public:
  explicit StrPage(PageState& state);

  /// Back to what the page is at control start.
  void ResetStrPage();
  void ShowStrPage();
  void StoreStrPage();
  void EnableStrPage();

  void StoreOrder() override { StoreItemOrder(); }

  void StructureChanged();
  void OnAutoWidth() { autoWidth_.Follow(); }

  ListBox& lstStrStructures;
  CheckBox& chkStrColAutoWidth;

 private:
  Collection<PrnItemRef> Items() const override;
  void StoreProps() override;
  void ShowProps() override;

  /// The structure that is shown: the first for 1, the second for any other number.
  PrnStructureCls& Structure() const;
  /// The element whose settings are shown, or none.
  std::shared_ptr<PrnStrElemCls> Shown() const;
  void Offer(const PrnStructureCls& structure, std::int16_t number);
  void Blank();
  void EnableAll(bool enabled);

  TextBox& txtStrColTitle;
  ComboBox& cmbStrColAlign;
  TextBox& txtStrColWidth;
  AutoWidth autoWidth_;
};

}  // namespace ORXKMPrintProp
