#include "pages/StrPage.h"

#include <initializer_list>

#include "pages/Fields.h"

namespace ORXKMPrintProp {

StrPage::StrPage(PageState& state)
    : ListPage(state, 3, gCurStrElem),
      lstStrStructures(state.dialog.Get<ListBox>(u"lstStrStructures")),
      chkStrColAutoWidth(state.dialog.Get<CheckBox>(u"chkStrColAutoWidth")),
      txtStrColTitle(state.dialog.Get<TextBox>(u"txtStrColTitle")),
      cmbStrColAlign(state.dialog.Get<ComboBox>(u"cmbStrColAlign")),
      txtStrColWidth(state.dialog.Get<TextBox>(u"txtStrColWidth")),
      autoWidth_(state, chkStrColAutoWidth, {&txtStrColWidth}, [this] {
        const auto element = Shown();
        return element ? std::vector{element->ColWidth()} : std::vector<std::int16_t>();
      }) {}

PrnStructureCls& StrPage::Structure() const {
  return gCurStr == 1 ? state_.Root().Structure1() : state_.Root().Structure2();
}

Collection<PrnItemRef> StrPage::Items() const { return ItemsOf(Structure().Elements()); }

std::shared_ptr<PrnStrElemCls> StrPage::Shown() const {
  const bool isStructure = gCurStr == 1 || gCurStr == 2;
  return isStructure && gCurStrElem > 0 ? Structure().Elements().Item(gCurStrElem) : nullptr;
}

void StrPage::ResetStrPage() {
  gCurStr = gCurStrElem = -1;
  lstStrStructures.Clear();
  ClearLists();
  Blank();
  EnableAll(!state_.mReadOnly);
  gCurStr = gCurStrElem = 0;
}

void StrPage::ShowStrPage() {
  lstStrStructures.Clear();
  ClearLists();
  Offer(state_.Root().Structure1(), 1);
  Offer(state_.Root().Structure2(), 2);
}

void StrPage::Offer(const PrnStructureCls& structure, std::int16_t number) {
  if (structure.Name().empty()) return;
  ModPrnGen::ListInsertByPosition(lstStrStructures, structure.Text(), number, nullptr);
  if (lstStrStructures.ListCount() > 1) return;
  gCurStr = gCurStrElem = -1;
  lstStrStructures.ListIndex(0);
}

void StrPage::StructureChanged() {
  OwnerChanged(static_cast<std::int16_t>(lstStrStructures.ItemData(lstStrStructures.ListIndex())), gCurStr);
}

void StrPage::ShowProps() {
  const auto element = Shown();
  if (!element) Blank();
  EnableAll(element && !state_.mReadOnly);
  if (!element) return;
  Show(txtStrColTitle, element->ColTitle());
  Show(cmbStrColAlign, element->ColAlign());
  autoWidth_.Show(element->ColAutoWidth());
}

void StrPage::Blank() {
  txtStrColTitle.SetText({});
  cmbStrColAlign.ListIndex(-1);
  autoWidth_.Blank();
}

void StrPage::EnableAll(bool enabled) {
  for (Widget* const widget :
       std::initializer_list<Widget*>{&txtStrColTitle, &cmbStrColAlign, &chkStrColAutoWidth, &txtStrColWidth}) {
    widget->Enabled(enabled);
  }
}

void StrPage::StoreProps() {
  const auto element = Shown();
  if (!element) return;
  Store(txtStrColTitle, element->ColTitle);
  Store(cmbStrColAlign, element->ColAlign);
  Store(chkStrColAutoWidth, element->ColAutoWidth);
  StoreLeading(txtStrColWidth, element->ColWidth);
}

void StrPage::StoreStrPage() {
  StoreOrder();
  StoreProps();
}

void StrPage::EnableStrPage() {
  EnableLists();
  EnableAll(state_.loaded && gCurStrElem != -1 && !state_.mReadOnly);
}

}  // namespace ORXKMPrintProp
