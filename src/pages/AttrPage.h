#pragma once

#include <memory>

#include "pages/ColumnFrame.h"
#include "pages/ListPage.h"

namespace ORXKMPrintProp {

/// The third page: for each print characteristic the attributes that are printed, and the settings of the one that
/// is selected. It is the Characteristics page one level down; what differs:
///
/// - A selector on top says whose attributes the lists hold. With no print characteristic nothing is refilled.
/// - There are no breaks, no limit, no event; a drag waits for the next `StoreOrder`.
/// - The order is stored only once a characteristic has been shown, the settings only for a positive number.
class AttrPage : public ListPage {
 public:
  explicit AttrPage(PageState& state);

  void ResetPage() override;
  void ShowPage() override;
  void EnablePage() override;

 private:
  Collection<PrnItemRef> Items() const override;
  void StoreProps() override;
  void ShowProps() override;
  void StoreOrder() override;
  void AttrCharChanged();

  /// The attribute whose settings are shown, none for a number that is not positive.
  std::shared_ptr<PrnAttrCls> Shown() const;

  ComboBox& cmbAttrChar;
  ColumnFrame columns_;
};

}  // namespace ORXKMPrintProp
