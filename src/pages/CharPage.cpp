#include "pages/CharPage.h"

#include "dialog/DialogTexts.h"

namespace ORXKMPrintProp {
namespace {

using C = PrnCharCls;
constexpr FieldOf<C> kFields[] = {
    PropertyField<C, &C::HryActive, FlagField>(u"chkCharHierDisplay"),
    PropertyField<C, &C::HryLevel, LeadingNumberField>(u"txtCharHierLevel"),
    PropertyField<C, &C::NoSums, ChoiceField>(u"cmbCharNoSums"),
};

}  // namespace

CharPage::CharPage(PageState& state)
    : ListPage(state, kCharTab, state.curChar),
      chkCharHierDisplay(state.dialog.Get<CheckBox>(u"chkCharHierDisplay")),
      txtCharHierLevel(state.dialog.Get<TextBox>(u"txtCharHierLevel")),
      cmdTotalsRow(state.dialog.Get<CommandButton>(u"cmdPrintLayout", kTotalsRowButton)),
      columns_(
          state, u"Char", [&state] { return state.curChar != -1; }, [this] { return Shown(); }),
      fields_(state.dialog, kFields),
      breaks_(state) {
  chkCharHierDisplay.Click = state.WhenReady([this] { OnHierDisplay(); });
}

Collection<PrnItemRef> CharPage::Items() const { return ItemsOf(state_.Characteristics()); }

std::shared_ptr<PrnCharCls> CharPage::Shown() const {
  return state_.curChar > 0 ? state_.Characteristics().Item(state_.curChar) : nullptr;
}

void CharPage::ResetPage() {
  ListPage::ResetPage();
  state_.curChar = -1;
  columns_.Blank();
}

void CharPage::ShowPage() {
  state_.curChar = -1;
  FillLists();
  breaks_.FillBreakCombos();
  SelectFirst(false);
}

void CharPage::ShowProps() {
  const auto characteristic = Shown();
  EnableCharProps(characteristic != nullptr);
  if (!characteristic) return;
  columns_.Show(*characteristic);
  fields_.Show(*characteristic);
  OnHierDisplay();
}

void CharPage::EnableCharProps(bool Enable) {
  if (!Enable) {
    columns_.Blank();
    fields_.Blank();
  }
  const bool enabled = Enable && !state_.mReadOnly;
  const bool hasHierarchy = enabled && !Shown()->HieNm().empty();
  columns_.Enable(enabled);
  fields_.Enable(enabled);
  cmdTotalsRow.Enabled(Enable);
  chkCharHierDisplay.Enabled(hasHierarchy);
  txtCharHierLevel.Enabled(hasHierarchy && ModPrnGen::CheckToBool(chkCharHierDisplay.Value()));
}

void CharPage::OnHierDisplay() {
  const auto characteristic = Shown();
  if (!characteristic) return;
  const bool display = ModPrnGen::CheckToBool(chkCharHierDisplay.Value());
  if (display) {
    LeadingNumberField::Show(characteristic->HryLevel(), txtCharHierLevel);
  } else {
    txtCharHierLevel.SetText({});
  }
  txtCharHierLevel.Enabled(display && !characteristic->HieNm().empty() && !state_.mReadOnly);
}

void CharPage::StoreProps() {
  const auto characteristic = Shown();
  if (!characteristic) return;
  columns_.Store(*characteristic);
  fields_.Store(*characteristic);
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

bool CharPage::MayTake(std::int16_t more) {
  if (lstPrint.ListCount() + more <= kMaxPrintCharacteristics) return true;
  const Text text = PageState::LookUp(kTooManyText.key, kTooManyText.text);
  const Text title = PageState::LookUp(kErrorText.key, kErrorText.text);
  state_.dialog.GetView().MsgBox(text, title);
  return false;
}

void CharPage::OnTransferred() {
  if (state_.orderChanged()) breaks_.ResetCharBreaks();
}

void CharPage::OnDragEnded(bool isElsewhere) {
  if (isElsewhere && !state_.orderChanged()) return;
  StoreOrder();
  if (isElsewhere) breaks_.ResetCharBreaks();
}

void CharPage::EnablePage() {
  EnableLists();
  breaks_.EnableBreakCombos();
  const bool enabled = state_.loaded && state_.curChar != -1 && !state_.mReadOnly;
  const bool hasHierarchy = enabled && !(Shown() && Shown()->HieNm().empty());
  columns_.Enable(enabled);
  fields_.Enable(enabled);
  chkCharHierDisplay.Enabled(hasHierarchy);
  txtCharHierLevel.Enabled(hasHierarchy);
}

}  // namespace ORXKMPrintProp
