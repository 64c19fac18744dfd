#pragma once

#include <memory>

#include "pages/AutoWidth.h"
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

  void ResetPage() override;
  void ShowPage() override;
  void EnablePage() override;

 private:
  Collection<PrnItemRef> Items() const override;
  void StoreProps() override;
  void ShowProps() override;
  void StructureChanged();

  /// The structure that is shown: the first for 1, the second for any other number.
  PrnStructureCls& Structure() const;
  /// The element whose settings are shown, or none.
  std::shared_ptr<PrnStrElemCls> Shown() const;
  void Offer(const PrnStructureCls& structure, std::int16_t number);
  void Blank() const;
  void Enable(bool enabled) const;

  ListBox& lstStrStructures;
  CheckBox& chkStrColAutoWidth;
  Fields<PrnStrElemCls> fields_;  ///< all but the width
  AutoWidth<PrnStrElemCls> autoWidth_;
};

}  // namespace ORXKMPrintProp
