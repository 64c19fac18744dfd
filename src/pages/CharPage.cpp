#include "pages/CharPage.h"

#include "pages/Fields.h"

namespace ORXKMPrintProp {

CharPage::CharPage(PageState& state)
    : ListPage(state, 1, gCurChar),
      chkCharHierDisplay(state.dialog.Get<CheckBox>(u"chkCharHierDisplay")),
      txtCharHierLevel(state.dialog.Get<TextBox>(u"txtCharHierLevel")),
      cmbCharNoSums(state.dialog.Get<ComboBox>(u"cmbCharNoSums")),
      cmdTotalsRow(state.dialog.Get<CommandButton>(u"cmdPrintLayout", 4)),
      columns_(state, u"Char", [this] { return Shown().get(); }),
      breaks_(state) {}

Collection<PrnItemRef> CharPage::Items() const { return ItemsOf(state_.Characteristics()); }

std::shared_ptr<PrnCharCls> CharPage::Shown() const {
  return gCurChar > 0 ? state_.Characteristics().Item(gCurChar) : nullptr;
}

void CharPage::ResetCharPage() {
  gCurChar = -1;
  columns_.Blank();
}

void CharPage::ShowCharPage() {
  gCurChar = -1;
  FillLists();
  breaks_.FillBreakCombos();
  SelectFirst(false);
}

void CharPage::ShowProps() {
  const auto characteristic = Shown();
  if (!characteristic) {
    EnableCharProps(false);
    return;
  }
  EnableCharProps(true);
  columns_.Show(*characteristic);
  Show(chkCharHierDisplay, characteristic->HryActive());
  OnHierDisplay();
  Show(cmbCharNoSums, characteristic->NoSums());
}

void CharPage::EnableCharProps(bool Enable) {
  if (!Enable) {
    columns_.Blank();
    chkCharHierDisplay.Value(0);
    txtCharHierLevel.SetText({});
    cmbCharNoSums.ListIndex(-1);
  }
  const auto characteristic = Enable ? Shown() : nullptr;
  const bool hasHierarchy = characteristic && !characteristic->HieNm().empty() && !state_.mReadOnly;
  columns_.EnableAll(Enable && !state_.mReadOnly);
  cmbCharNoSums.Enabled(Enable && !state_.mReadOnly);
  cmdTotalsRow.Enabled(Enable);
  chkCharHierDisplay.Enabled(hasHierarchy);
  txtCharHierLevel.Enabled(hasHierarchy && ModPrnGen::CheckToBool(chkCharHierDisplay.Value()));
}

void CharPage::OnHierDisplay() {
  const auto characteristic = Shown();
  if (!characteristic) return;
  const bool display = ModPrnGen::CheckToBool(chkCharHierDisplay.Value());
  const bool hasHierarchy = !characteristic->HieNm().empty();
  if (display) {
    Show(txtCharHierLevel, characteristic->HryLevel());
  } else {
    txtCharHierLevel.SetText({});
  }
  txtCharHierLevel.Enabled(display && hasHierarchy && !state_.mReadOnly);
}

void CharPage::StoreProps() {
  const auto characteristic = Shown();
  if (!characteristic) return;
  columns_.Store(*characteristic);
  Store(chkCharHierDisplay, characteristic->HryActive);
  StoreLeading(txtCharHierLevel, characteristic->HryLevel);
  Store(cmbCharNoSums, characteristic->NoSums);
}

void CharPage::StoreOrder() {
  StoreItemOrder();
  for (const auto& characteristic : state_.Characteristics()) {
    characteristic->QueryBreak(false);
    characteristic->PageBreak(false);
    characteristic->BreakArea(false);
  }
  breaks_.StoreCharBreaks();
  breaks_.RebuildBreakCombos(lstPrint);
}

void CharPage::StoreCharPage() {
  StoreOrder();
  StoreProps();
}

void CharPage::EnableCharPage() {
  EnableLists();
  breaks_.EnableBreakCombos();
  const bool active = state_.loaded && gCurChar != -1;
  const bool enabled = active && !state_.mReadOnly;
  const bool hasHierarchy = enabled && !(Shown() && Shown()->HieNm().empty());
  columns_.EnableAll(enabled);
  chkCharHierDisplay.Enabled(hasHierarchy);
  txtCharHierLevel.Enabled(hasHierarchy);
  cmbCharNoSums.Enabled(enabled);
}

}  // namespace ORXKMPrintProp
