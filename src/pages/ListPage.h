#pragma once

#include <cstdint>
#include <memory>

#include "model/PrnItemCls.h"
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
/// list of print items, and a frame that shows the settings of the one selected print item.
///
/// A routine that changes the current item stores the settings into the old item, then sets the number, then shows
/// the new item: the writes raise Click and come back here, and find nothing left to do.
class ListPage {
 public:
  ListPage(const ListPage&) = delete;
  ListPage& operator=(const ListPage&) = delete;
  virtual ~ListPage() = default;

  /// Lists into the model: the print items hold 1, 2, 3 ... in the order of their list, what is not there is hidden.
  virtual void StoreOrder() = 0;
  /// Reacts to the selection of the print list. With one entry selected its settings are shown, else none.
  void SelectionChanged();

  /// A drag has changed the order of the print list.
  void NoteDrag() { orderDragged_ = true; }

  ListBox& lstAvail;
  ListBox& lstPrint;
  CommandButton& cmdLeftToRight;
  CommandButton& cmdRightToLeft;

 protected:
  /// @param tab the page's number, which is the index of its lists and buttons too.
  /// @param current the shared number of the item whose settings are shown.
  ListPage(PageState& state, std::int16_t tab, std::int16_t& current);

  /// The items that the lists show.
  virtual Collection<PrnItemRef> Items() const = 0;
  virtual void StoreProps() = 0;
  virtual void ShowProps() = 0;

  /// Makes the item the current one and shows its settings, or none for -1.
  void ShowItem(std::int16_t item);
  void ClearLists();
  /// Hidden items go to the one list in item order, the others to the print list in the order of their position.
  void FillLists();
  void StoreItemOrder();
  /// Shows the first print item, or none. @param moveCaret the caret goes to it too.
  void SelectFirst(bool moveCaret);
  /// Another owner of items has been picked: what was shown is stored, and the lists are filled with its items.
  /// @param current the shared number of the owner that was shown.
  void OwnerChanged(std::int16_t owner, std::int16_t& current);
  /// The available list and the buttons, which read-only mode disables.
  void EnableLists();

  PageState& state_;

 private:
  std::int16_t& current_;
  bool orderDragged_ = false;  ///< since the order was last stored, or the lists were filled
};

}  // namespace ORXKMPrintProp
