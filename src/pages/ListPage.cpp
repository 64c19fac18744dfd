#include "pages/ListPage.h"

#include <initializer_list>
#include <utility>

#include "pages/ListRoutines.h"

namespace ORXKMPrintProp {

ListPage::ListPage(PageState& state, std::int16_t tab, std::int16_t& current)
    : state_(state),
      lstAvail(state.dialog.Get<ListBox>(u"lstAvail", tab)),
      lstPrint(state.dialog.Get<ListBox>(u"lstPrint", tab)),
      cmdLeftToRight(state.dialog.Get<CommandButton>(u"cmdLeftToRight", tab)),
      cmdRightToLeft(state.dialog.Get<CommandButton>(u"cmdRightToLeft", tab)),
      current_(current) {
  cmdLeftToRight.Click = state.WhenReady([this] {
    if (MayTake(lstAvail.SelCount())) Transfer(lstAvail, lstPrint);
  });
  cmdRightToLeft.Click = state.WhenReady([this] { Transfer(lstPrint, lstAvail); });
  lstPrint.Click = state.WhenReady([this] { SelectionChanged(); });
  lstPrint.MouseDown = state.WhenReady([this](std::int16_t button) { MouseDown(button); });
  lstPrint.MouseMove = state.WhenReady([this](std::int16_t button) { MouseMove(button); });
  lstPrint.MouseUp = state.WhenReady([this](std::int16_t button) { MouseUp(button); });
}

void ListPage::ResetPage() { EndDrag(); }

void ListPage::EndDrag() {
  mDragIndex = -1;
  state_.dialog.MousePointer(Dialog::kDefaultPointer);
}

void ListPage::FollowDragged(std::int32_t item) {
  std::int16_t index = 0;
  while (index < lstPrint.ListCount() && lstPrint.ItemData(index) != item) ++index;
  if (index == lstPrint.ListCount()) return EndDrag();
  mDragIndex = mDragStart = index;
}

void ListPage::StorePage() {
  StoreOrder();
  StoreProps();
}

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
  } catch (const Overtaken&) {
    throw;
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
    if (item->Hidden()) ModPrnGen::AppendItem(lstAvail, item->Text(), number);
  }
  for (const auto& [position, printed] : ModPrnGen::PrintedByPosition(items)) {
    ModPrnGen::AppendItem(lstPrint, items.Item(printed)->Text(), printed);
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

void ListPage::Transfer(ListBox& source, ListBox& target) {
  const bool isDragged = mDragIndex != -1;
  const std::int32_t dragged = isDragged ? lstPrint.ItemData(mDragIndex) : 0;
  const std::int16_t moved = ModPrnGen::MoveSelectedItems(source, target);
  if (isDragged) FollowDragged(dragged);
  StoreOrder();
  SelectionChanged();
  if (moved > 0) OnTransferred();
}

void ListPage::MouseDown(std::int16_t Button) {
  if (state_.mReadOnly || Button != ListBox::kLeftButton) return;
  mDragIndex = mDragStart = lstPrint.ListIndex();
}

void ListPage::MouseMove(std::int16_t Button) {
  if (state_.mReadOnly || Button != ListBox::kLeftButton || mDragIndex == -1) return;
  state_.dialog.MousePointer(Dialog::kDragPointer);
  const std::int16_t New = lstPrint.ListIndex();
  if (New == mDragIndex) return;
  lstPrint.MoveItem(mDragIndex, New);
  const std::int16_t former = std::exchange(mDragIndex, New);
  lstPrint.Selected(New, true);
  lstPrint.Selected(former, false);
}

void ListPage::MouseUp(std::int16_t Button) {
  // A drag can't begin in read-only mode; one that has begun before ends as it would.
  if (Button != ListBox::kLeftButton || mDragIndex == -1) return;
  const bool isElsewhere = mDragIndex != mDragStart;
  // Settled ahead of what follows, which may fail.
  EndDrag();
  OnDragEnded(isElsewhere);
}

}  // namespace ORXKMPrintProp
