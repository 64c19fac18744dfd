#include "pages/StrPage.h"

#include "pages/ListRoutines.h"

namespace ORXKMPrintProp {
namespace {

using E = PrnStrElemCls;
constexpr FieldOf<E> kFields[] = {
    PropertyField<E, &E::ColTitle, TextField>(u"txtStrColTitle"),
    PropertyField<E, &E::ColAlign, ChoiceField>(u"cmbStrColAlign"),
    PropertyField<E, &E::ColAutoWidth, FlagField>(u"chkStrColAutoWidth"),
};
constexpr FieldOf<E> kWidths[] = {PropertyField<E, &E::ColWidth, LeadingNumberField>(u"txtStrColWidth")};

}  // namespace

StrPage::StrPage(PageState& state)
    : ListPage(state, kStrTab, state.curStrElem),
      lstStrStructures(state.dialog.Get<ListBox>(u"lstStrStructures")),
      chkStrColAutoWidth(state.dialog.Get<CheckBox>(u"chkStrColAutoWidth")),
      fields_(state.dialog, kFields),
      autoWidth_(state, chkStrColAutoWidth, {state.dialog, kWidths}, [this] { return Shown(); }) {
  lstStrStructures.Click = state.WhenReady([this] { StructureChanged(); });
  chkStrColAutoWidth.Click = state.WhenReady([this] {
    if (state_.curStr != -1 && state_.curStrElem != -1) autoWidth_.Follow();
  });
}

PrnStructureCls& StrPage::Structure() const {
  return state_.curStr == 1 ? state_.Root().Structure1() : state_.Root().Structure2();
}

Collection<PrnItemRef> StrPage::Items() const { return ItemsOf(Structure().Elements()); }

std::shared_ptr<PrnStrElemCls> StrPage::Shown() const {
  const bool isStructure = state_.curStr == 1 || state_.curStr == 2;
  return isStructure && state_.curStrElem > 0 ? Structure().Elements().Item(state_.curStrElem) : nullptr;
}

void StrPage::ResetPage() {
  ListPage::ResetPage();
  state_.curStr = state_.curStrElem = -1;
  lstStrStructures.Clear();
  ClearLists();
  Blank();
  Enable(!state_.mReadOnly);
  state_.curStr = state_.curStrElem = 0;
}

void StrPage::ShowPage() {
  lstStrStructures.Clear();
  ClearLists();
  Offer(state_.Root().Structure1(), 1);
  Offer(state_.Root().Structure2(), 2);
}

void StrPage::Offer(const PrnStructureCls& structure, std::int16_t number) {
  if (structure.Name().empty()) return;
  ModPrnGen::AppendItem(lstStrStructures, structure.Text(), number);
  if (lstStrStructures.ListCount() > 1) return;
  state_.curStr = state_.curStrElem = -1;
  lstStrStructures.ListIndex(0);
}

void StrPage::StructureChanged() {
  OwnerChanged(static_cast<std::int16_t>(lstStrStructures.ItemData(lstStrStructures.ListIndex())), state_.curStr);
}

void StrPage::ShowProps() {
  const auto element = Shown();
  if (!element) Blank();
  Enable(element && !state_.mReadOnly);
  if (!element) return;
  fields_.Show(*element);
  autoWidth_.Follow();
}

void StrPage::Blank() const {
  fields_.Blank();
  autoWidth_.Widths().Blank();
}

void StrPage::Enable(bool enabled) const {
  fields_.Enable(enabled);
  autoWidth_.Widths().Enable(enabled);
}

void StrPage::StoreProps() {
  const auto element = Shown();
  if (!element) return;
  fields_.Store(*element);
  autoWidth_.Widths().Store(*element);
}

void StrPage::EnablePage() {
  EnableLists();
  Enable(state_.loaded && state_.curStrElem != -1 && !state_.mReadOnly);
}

}  // namespace ORXKMPrintProp
