#include "pages/GeneralPage.h"

#include <algorithm>
#include <iterator>

namespace ORXKMPrintProp {
namespace {

/// `PP_PRN_CUPOS_HEAD` has no entry: it is shown as a blank field and stays until the user picks an entry.
struct CurUnitPositionField {
  static constexpr FieldKind kKind = FieldKind::Choice;
  /// By entry.
  static constexpr PP_CurUnitPosition kValues[] = {PP_PRN_CUPOS_LEFT, PP_PRN_CUPOS_RIGHT, PP_PRN_CUPOS_NONE};

  static void Show(PP_CurUnitPosition value, Widget& combo) {
    const auto* const found = std::find(std::begin(kValues), std::end(kValues), value);
    ChoiceField::Show(found == std::end(kValues) ? -1 : static_cast<std::int32_t>(found - kValues), combo);
  }
  static void Store(const Widget& combo, Property<PP_CurUnitPosition>& property) {
    if (const std::int16_t index = ChoiceField::Picked(combo); index >= 0) property(kValues[index]);
  }
};

using C = PrnPropCls;
constexpr FieldOf<C> kFields[] = {
    PropertyField<C, &C::Title, TextField>(u"txtGenPrnTitle"),
    PropertyField<C, &C::MaxPages, LeadingNumberField>(u"txtGenMaxPages"),
    PropertyField<C, &C::Direction, ChoiceField>(u"cmbGenPrnDirection"),
    PropertyField<C, &C::ShowNoZeros, FlagField>(u"chkGenShowNoZeros"),
    PropertyField<C, &C::UseColors, FlagField>(u"chkGenUseColors"),
    PropertyField<C, &C::MarginTop, WholeNumberField>(u"txtGenMarginTop"),
    PropertyField<C, &C::MarginBottom, WholeNumberField>(u"txtGenMarginBottom"),
    PropertyField<C, &C::MarginLeft, WholeNumberField>(u"txtGenMarginLeft"),
    PropertyField<C, &C::MarginRight, WholeNumberField>(u"txtGenMarginRight"),
    PropertyField<C, &C::SumPosit, ChoiceField>(u"cmbGenSumPosit"),
    PropertyField<C, &C::NoMultTxt, FlagField>(u"chkGenNoMultTexts"),
    PropertyField<C, &C::SignPrsnt, ChoiceField>(u"cmbGenSignPrsnt"),
    PropertyField<C, &C::NoLines, FlagField>(u"chkGenNoLines"),
    PropertyField<C, &C::CurUnitPosition, CurUnitPositionField>(u"cmbGenCurUnitPosition"),
};

}  // namespace

GeneralPage::GeneralPage(const PageState& state) : state_(state), fields_(state.dialog, kFields) {}

}  // namespace ORXKMPrintProp
