#include "pages/GeneralPage.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

#include "pages/Fields.h"

namespace ORXKMPrintProp {
namespace {

/// The values of the entries of `cmbGenCurUnitPosition`; `PP_PRN_CUPOS_HEAD` has none.
constexpr PP_CurUnitPosition kCurUnitPositions[] = {PP_PRN_CUPOS_LEFT, PP_PRN_CUPOS_RIGHT, PP_PRN_CUPOS_NONE};

void ShowCurUnitPosition(ComboBox& combo, PP_CurUnitPosition value) {
  const auto* const found = std::find(std::begin(kCurUnitPositions), std::end(kCurUnitPositions), value);
  Show(combo, found == std::end(kCurUnitPositions) ? -1 : static_cast<std::int32_t>(found - kCurUnitPositions));
}

void StoreCurUnitPosition(const ComboBox& combo, Property<PP_CurUnitPosition>& property) {
  if (combo.ListIndex() >= 0) property(kCurUnitPositions[combo.ListIndex()]);
}

}  // namespace

GeneralPage::GeneralPage(PageState& state)
    : state_(state),
      txtGenPrnTitle(state.dialog.Get<TextBox>(u"txtGenPrnTitle")),
      txtGenMaxPages(state.dialog.Get<TextBox>(u"txtGenMaxPages")),
      cmbGenPrnDirection(state.dialog.Get<ComboBox>(u"cmbGenPrnDirection")),
      chkGenShowNoZeros(state.dialog.Get<CheckBox>(u"chkGenShowNoZeros")),
      chkGenUseColors(state.dialog.Get<CheckBox>(u"chkGenUseColors")),
      txtGenMarginTop(state.dialog.Get<TextBox>(u"txtGenMarginTop")),
      txtGenMarginBottom(state.dialog.Get<TextBox>(u"txtGenMarginBottom")),
      txtGenMarginLeft(state.dialog.Get<TextBox>(u"txtGenMarginLeft")),
      txtGenMarginRight(state.dialog.Get<TextBox>(u"txtGenMarginRight")),
      cmbGenSumPosit(state.dialog.Get<ComboBox>(u"cmbGenSumPosit")),
      chkGenNoMultTexts(state.dialog.Get<CheckBox>(u"chkGenNoMultTexts")),
      cmbGenSignPrsnt(state.dialog.Get<ComboBox>(u"cmbGenSignPrsnt")),
      chkGenNoLines(state.dialog.Get<CheckBox>(u"chkGenNoLines")),
      cmbGenCurUnitPosition(state.dialog.Get<ComboBox>(u"cmbGenCurUnitPosition")) {}

void GeneralPage::ShowGeneralPage() {
  const PrnPropCls& root = state_.Root();
  Show(txtGenPrnTitle, root.Title());
  Show(txtGenMaxPages, root.MaxPages());
  Show(cmbGenPrnDirection, root.Direction());
  Show(chkGenShowNoZeros, root.ShowNoZeros());
  Show(chkGenUseColors, root.UseColors());
  Show(txtGenMarginTop, root.MarginTop());
  Show(txtGenMarginBottom, root.MarginBottom());
  Show(txtGenMarginLeft, root.MarginLeft());
  Show(txtGenMarginRight, root.MarginRight());
  Show(cmbGenSumPosit, root.SumPosit());
  Show(chkGenNoMultTexts, root.NoMultTxt());
  Show(cmbGenSignPrsnt, root.SignPrsnt());
  Show(chkGenNoLines, root.NoLines());
  ShowCurUnitPosition(cmbGenCurUnitPosition, root.CurUnitPosition());
}

void GeneralPage::StoreGeneralPage() {
  PrnPropCls& root = state_.Root();
  Store(txtGenPrnTitle, root.Title);
  Store(cmbGenPrnDirection, root.Direction);
  StoreLeading(txtGenMaxPages, root.MaxPages);
  Store(chkGenShowNoZeros, root.ShowNoZeros);
  Store(chkGenUseColors, root.UseColors);
  StoreWhole(txtGenMarginTop, root.MarginTop);
  StoreWhole(txtGenMarginBottom, root.MarginBottom);
  StoreWhole(txtGenMarginLeft, root.MarginLeft);
  StoreWhole(txtGenMarginRight, root.MarginRight);
  Store(cmbGenSumPosit, root.SumPosit);
  Store(chkGenNoMultTexts, root.NoMultTxt);
  Store(cmbGenSignPrsnt, root.SignPrsnt);
  Store(chkGenNoLines, root.NoLines);
  StoreCurUnitPosition(cmbGenCurUnitPosition, root.CurUnitPosition);
}

void GeneralPage::EnableGeneralPage() {
  for (Widget* const widget : std::initializer_list<Widget*>{
           &txtGenPrnTitle, &txtGenMaxPages, &cmbGenPrnDirection, &chkGenShowNoZeros, &chkGenUseColors,
           &txtGenMarginTop, &txtGenMarginBottom, &txtGenMarginLeft, &txtGenMarginRight, &cmbGenSumPosit,
           &chkGenNoMultTexts, &cmbGenSignPrsnt, &chkGenNoLines, &cmbGenCurUnitPosition}) {
    widget->Enabled(!state_.mReadOnly);
  }
}

}  // namespace ORXKMPrintProp
