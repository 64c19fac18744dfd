#include "pages/AttrPage.h"

#include "pages/ListRoutines.h"

namespace ORXKMPrintProp {

AttrPage::AttrPage(PageState& state)
    : ListPage(state, 2, gCurAttr),
      cmbAttrChar(state.dialog.Get<ComboBox>(u"cmbAttrChar")),
      columns_(state, u"Attr", [this] { return Shown().get(); }) {}

Collection<PrnItemRef> AttrPage::Items() const {
  return ItemsOf(state_.Characteristics().Item(gCurAttrChar)->Attributes());
}

std::shared_ptr<PrnAttrCls> AttrPage::Shown() const {
  if (gCurAttrChar <= 0 || gCurAttr <= 0) return nullptr;
  return state_.Characteristics().Item(gCurAttrChar)->Attributes().Item(gCurAttr);
}

void AttrPage::ResetAttrPage() {
  gCurAttrChar = gCurAttr = -1;
  cmbAttrChar.Clear();
  ClearLists();
  columns_.Blank();
  columns_.EnableAll(!state_.mReadOnly);
  gCurAttrChar = gCurAttr = 0;
}

void AttrPage::ShowAttrPage() {
  cmbAttrChar.Clear();
  const auto& characteristics = state_.Characteristics();
  for (const std::int32_t number : ModPrnGen::PrintedOncePerPosition(characteristics)) {
    ModPrnGen::ComboInsertByPosition(cmbAttrChar, characteristics.Item(number)->Text(), number, nullptr);
  }
  if (cmbAttrChar.ListCount() == 0) return;
  gCurAttrChar = gCurAttr = -1;
  cmbAttrChar.ListIndex(0);
}

void AttrPage::AttrCharChanged() {
  OwnerChanged(static_cast<std::int16_t>(cmbAttrChar.ItemData(cmbAttrChar.ListIndex())), gCurAttrChar);
}

void AttrPage::ShowProps() {
  const auto attribute = lstPrint.ListCount() > 0 ? Shown() : nullptr;
  if (!attribute) columns_.Blank();
  columns_.EnableAll(attribute && !state_.mReadOnly);
  if (attribute) columns_.Show(*attribute);
}

void AttrPage::StoreProps() {
  if (const auto attribute = Shown()) columns_.Store(*attribute);
}

void AttrPage::StoreOrder() {
  if (gCurAttrChar != 0) StoreItemOrder();
}

void AttrPage::StoreAttrPage() {
  StoreOrder();
  StoreProps();
}

void AttrPage::EnableAttrPage() {
  EnableLists();
  columns_.EnableAll(state_.loaded && gCurAttr != -1 && !state_.mReadOnly);
}

}  // namespace ORXKMPrintProp
