#include "pages/ListPage.h"

#include <initializer_list>

#include "pages/ListRoutines.h"

namespace ORXKMPrintProp {

ListPage::ListPage(PageState& state, std::int16_t tab, std::int16_t& current)
    : lstAvail(state.dialog.Get<ListBox>(u"lstAvail", tab)),
      lstPrint(state.dialog.Get<ListBox>(u"lstPrint", tab)),
      cmdLeftToRight(state.dialog.Get<CommandButton>(u"cmdLeftToRight", tab)),
      cmdRightToLeft(state.dialog.Get<CommandButton>(u"cmdRightToLeft", tab)),
      state_(state),
      current_(current) {}

void ListPage::SelectionChanged() {
  if (lstPrint.SelCount() != 1) {
    StoreProps();
    ShowItem(-1);
    return;
  }
  std::int16_t selected = 0;
  while (!lstPrint.Selected(selected)) ++selected;
  const auto item = static_cast<std::int16_t>(lstPrint.ItemData(selected));
  if (item == current_) return;
  StoreProps();
  ShowItem(item);
}

void ListPage::ShowItem(std::int16_t item) {
  current_ = item;
  try {
    ShowProps();
  } catch (...) {
    // The settings of one item are never stored into another.
    current_ = -1;
    throw;
  }
}

void ListPage::ClearLists() {
  orderDragged_ = false;
  lstAvail.Clear();
  lstPrint.Clear();
}

void ListPage::FillLists() {
  ClearLists();
  const auto items = Items();
  std::int32_t number = 0;
  for (const PrnItemRef& item : items) {
    ++number;
    if (item->Hidden()) ModPrnGen::ListInsertByPosition(lstAvail, item->Text(), number, nullptr);
  }
  for (const std::int32_t printed : ModPrnGen::PrintedByPosition(items)) {
    ModPrnGen::ListInsertByPosition(lstPrint, items.Item(printed)->Text(), printed, nullptr);
  }
}

void ListPage::StoreItemOrder() {
  orderDragged_ = false;
  const auto items = Items();
  for (const PrnItemRef& item : items) {
    item->Hidden(true);
    item->Position(0);
  }
  for (std::int16_t i = 0; i < lstPrint.ListCount(); ++i) {
    PrnItemCls& item = *items.Item(lstPrint.ItemData(i));
    item.Hidden(false);
    item.Position(static_cast<std::int16_t>(i + 1));
  }
}

void ListPage::SelectFirst(bool moveCaret) {
  if (lstPrint.ListCount() == 0) {
    ShowItem(-1);
    return;
  }
  current_ = static_cast<std::int16_t>(lstPrint.ItemData(0));
  lstPrint.Selected(0, true);
  if (moveCaret) lstPrint.ListIndex(0);
  ShowItem(current_);
}

void ListPage::OwnerChanged(std::int16_t owner, std::int16_t& current) {
  if (owner == current) return;
  if (orderDragged_) StoreOrder();
  StoreProps();
  current = owner;
  FillLists();
  SelectFirst(true);
}

void ListPage::EnableLists() {
  for (Widget* const widget : std::initializer_list<Widget*>{&lstAvail, &cmdLeftToRight, &cmdRightToLeft}) {
    widget->Enabled(!state_.mReadOnly);
  }
}

}  // namespace ORXKMPrintProp
