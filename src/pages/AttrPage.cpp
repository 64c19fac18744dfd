#include "pages/AttrPage.h"

#include "pages/ListRoutines.h"

namespace ORXKMPrintProp {

AttrPage::AttrPage(PageState& state)
    : ListPage(state, kAttrTab, state.curAttr),
      cmbAttrChar(state.dialog.Get<ComboBox>(u"cmbAttrChar")),
      columns_(
          state, u"Attr", [&state] { return state.curAttrChar != -1 && state.curAttr != -1; },
          [this] { return Shown(); }) {
  cmbAttrChar.Click = state.WhenReady([this] { AttrCharChanged(); });
}

Collection<PrnItemRef> AttrPage::Items() const {
  return ItemsOf(state_.Characteristics().Item(state_.curAttrChar)->Attributes());
}

std::shared_ptr<PrnAttrCls> AttrPage::Shown() const {
  if (state_.curAttrChar <= 0 || state_.curAttr <= 0) return nullptr;
  return state_.Characteristics().Item(state_.curAttrChar)->Attributes().Item(state_.curAttr);
}

void AttrPage::ResetPage() {
  ListPage::ResetPage();
  state_.curAttrChar = state_.curAttr = -1;
  cmbAttrChar.Clear();
  ClearLists();
  columns_.Blank();
  columns_.Enable(!state_.mReadOnly);
  state_.curAttrChar = state_.curAttr = 0;
}

void AttrPage::ShowPage() {
  cmbAttrChar.Clear();
  const auto& characteristics = state_.Characteristics();
  for (const auto& [position, number] : ModPrnGen::PrintedOncePerPosition(characteristics)) {
    ModPrnGen::AppendItem(cmbAttrChar, characteristics.Item(number)->Text(), number);
  }
  if (cmbAttrChar.ListCount() == 0) return;
  state_.curAttrChar = state_.curAttr = -1;
  cmbAttrChar.ListIndex(0);
}

void AttrPage::AttrCharChanged() {
  OwnerChanged(static_cast<std::int16_t>(cmbAttrChar.ItemData(cmbAttrChar.ListIndex())), state_.curAttrChar);
}

void AttrPage::ShowProps() {
  const auto attribute = Shown();
  if (!attribute) columns_.Blank();
  columns_.Enable(attribute && !state_.mReadOnly);
  if (attribute) columns_.Show(*attribute);
}

void AttrPage::StoreProps() {
  if (const auto attribute = Shown()) columns_.Store(*attribute);
}

void AttrPage::StoreOrder() {
  if (state_.curAttrChar != 0) StoreItemOrder();
}

void AttrPage::EnablePage() {
  EnableLists();
  columns_.Enable(state_.loaded && state_.curAttr != -1 && !state_.mReadOnly);
}

}  // namespace ORXKMPrintProp
