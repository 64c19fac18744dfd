#include "pages/PrintLists.h"

#include <utility>

#include "pages/ListRoutines.h"
#include "texts/LookupText.h"

namespace ORXKMPrintProp {
PrintLists::PrintLists(PageState& state, CharPage& charPage, std::function<ListPage*(std::int16_t tab)> pageOf,
                       std::function<bool()> orderChanged)
    : state_(state), charPage_(charPage), pageOf_(std::move(pageOf)), orderChanged_(std::move(orderChanged)) {}

void PrintLists::LeftToRight(std::int16_t Index) {
  ListPage& page = *pageOf_(Index);
  if (state_.dialog.TabStrip().Tab() == kCharTab &&
      charPage_.lstPrint.ListCount() + charPage_.lstAvail.SelCount() > kMaxPrintCharacteristics) {
    const Text text = ModPrnGen::LookupText(u"ID_PRN_MSGMAX10", u"You may only use up to ten print characteristics");
    const Text title = ModPrnGen::LookupText(u"ID_PRN_ERROR", u"Error");
    state_.dialog.GetView().MsgBox(text, title);
    return;
  }
  AfterTransfer(ModPrnGen::MoveSelectedItems(page.lstAvail, page.lstPrint));
}

void PrintLists::RightToLeft(std::int16_t Index) {
  ListPage& page = *pageOf_(Index);
  AfterTransfer(ModPrnGen::MoveSelectedItems(page.lstPrint, page.lstAvail));
}

void PrintLists::AfterTransfer(std::int16_t moved) {
  ListPage* const page = pageOf_(state_.dialog.TabStrip().Tab());
  if (!page) return;
  page->StoreOrder();
  page->SelectionChanged();
  if (page == &charPage_ && moved > 0 && orderChanged_()) charPage_.ResetCharBreaks();
}

void PrintLists::MouseDown(std::int16_t Index, std::int16_t Button) {
  if (state_.mReadOnly || Button != ListBox::kLeftButton) return;
  mDragIndex = mDragStart = pageOf_(Index)->lstPrint.ListIndex();
}

void PrintLists::MouseMove(std::int16_t Index, std::int16_t Button) {
  if (state_.mReadOnly || Button != ListBox::kLeftButton || mDragIndex == -1) return;
  state_.dialog.MousePointer(Dialog::kDragPointer);
  ListBox& list = pageOf_(Index)->lstPrint;
  const std::int16_t New = list.ListIndex();
  if (New == mDragIndex) return;
  const Text text = list.List(mDragIndex);
  const std::int32_t item = list.ItemData(mDragIndex);
  list.RemoveItem(mDragIndex);
  list.AddItem(text, New);
  list.ItemData(New, item);
  const std::int16_t former = std::exchange(mDragIndex, New);
  if (Index == kCharTab) mDragMoved = true;
  list.Selected(New, true);
  list.Selected(former, false);
}

void PrintLists::MouseUp(std::int16_t Index, std::int16_t Button) {
  // A drag can't begin in read-only mode; one that has begun before ends as it would.
  if (Button != ListBox::kLeftButton || mDragIndex == -1) return;
  state_.dialog.MousePointer(Dialog::kDefaultPointer);
  const bool isElsewhere = mDragIndex != mDragStart;
  const bool raise = Index == kCharTab && mDragMoved && isElsewhere;
  if (isElsewhere) pageOf_(Index)->NoteDrag();
  // Settled ahead of the event, whose handler may fail.
  mDragIndex = -1;
  if (raise) mDragMoved = false;
  if (raise && !orderChanged_()) return;
  if (Index != kCharTab) return;
  charPage_.StoreOrder();
  if (isElsewhere) charPage_.ResetCharBreaks();
}

void PrintLists::EndDrag() {
  mDragIndex = -1;
  mDragMoved = false;
  state_.dialog.MousePointer(Dialog::kDefaultPointer);
}

}  // namespace ORXKMPrintProp
