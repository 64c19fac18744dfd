#pragma once

#include <cstdint>
#include <memory>

#include "model/PrnItemCls.h"
#include "pages/Page.h"
#include "pages/PageState.h"
#include "tables/Collection.h"

namespace ORXKMPrintProp {

using PrnItemRef = std::shared_ptr<PrnItemCls>;

/// The items of a model's collection, by the same numbers.
template <class Items>
Collection<PrnItemRef> ItemsOf(const Items& items) {
  Collection<PrnItemRef> refs;
  for (const auto& item : items) refs.Add(item);
  return refs;
}

/// What the Characteristics, the Attributes and the Structures page have in common: a list of available items, a
/// list of print items, what moves entries in and between them, and a frame that shows the settings of the one
/// selected print item.
///
/// A routine that changes the current item stores the settings into the old item, then sets the number, then shows
/// the new item: the writes raise Click and come back here, and find nothing left to do.
class ListPage : public Page {
 public:
  /// Ends a drag, as the lists will be filled anew.
  void ResetPage() override;
  void StorePage() override;

 protected:
  /// @param tab the page's number, which is the index of its lists and buttons too.
  /// @param current the number of the item whose settings are shown.
  ListPage(PageState& state, std::int16_t tab, std::int16_t& current);

  /// The items that the lists show.
  virtual Collection<PrnItemRef> Items() const = 0;
  virtual void StoreProps() = 0;
  virtual void ShowProps() = 0;
  /// Lists into the model: the print items hold 1, 2, 3 ... in the order of their list, what is not there is hidden.
  virtual void StoreOrder() { StoreItemOrder(); }

  /// Whether the print list takes so many more entries; if not, the user has been told.
  virtual bool MayTake(std::int16_t /*more*/) { return true; }
  /// A button has moved entries, and the order is stored.
  virtual void OnTransferred() {}
  /// The button has gone up over the print list, with the dragged entry elsewhere or where it was. The order is stored
  /// when it is next asked for.
  virtual void OnDragEnded(bool isElsewhere) { orderDragged_ |= isElsewhere; }

  void ClearLists();
  /// Hidden items go to the one list in item order, the others to the print list in the order of their position.
  void FillLists();
  void StoreItemOrder();
  /// Shows the first print item, or none. @param moveCaret the caret goes to it too.
  void SelectFirst(bool moveCaret);
  /// Another owner of items has been picked: what was shown is stored, and the lists are filled with its items.
  /// @param current the number of the owner that was shown.
  void OwnerChanged(std::int16_t owner, std::int16_t& current);
  /// The available list and the buttons, which read-only mode disables.
  void EnableLists();

  PageState& state_;
  ListBox& lstAvail;
  ListBox& lstPrint;

 private:
  /// Reacts to the selection of the print list. With one entry selected its settings are shown, else none.
  void SelectionChanged();
  /// Makes the item the current one and shows its settings, or none for -1.
  void ShowItem(std::int16_t item);
  void Transfer(ListBox& source, ListBox& target);
  /// A transfer in the middle of a drag, whose order is stored: the drag goes on from where the entry of that item
  /// stands now, or ends when that is gone.
  void FollowDragged(std::int32_t item);
  void EndDrag();
  void MouseDown(std::int16_t Button);
  void MouseMove(std::int16_t Button);
  void MouseUp(std::int16_t Button);

  CommandButton& cmdLeftToRight;
  CommandButton& cmdRightToLeft;
  std::int16_t& current_;
  std::int16_t mDragIndex = -1;  ///< index of the entry being dragged, -1 for none
  std::int16_t mDragStart = 0;   ///< where the drag began
  bool orderDragged_ = false;    ///< since the order was last stored, or the lists were filled
};

}  // namespace ORXKMPrintProp
