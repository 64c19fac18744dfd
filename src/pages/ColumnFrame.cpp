#include "pages/ColumnFrame.h"

#include <initializer_list>
#include <utility>

namespace ORXKMPrintProp {
namespace {

using C = PrnColumnsCls;
constexpr FieldOf<C> kFields[] = {
    PropertyField<C, &C::Presentation, ChoiceField>(u"cmb?Presentation"),
    PropertyField<C, &C::ColTitle, TextField>(u"txt?ColTitle"),
    PropertyField<C, &C::ColAlign1, ChoiceField>(u"cmb?ColAlign1"),
    PropertyField<C, &C::ColAlign2, ChoiceField>(u"cmb?ColAlign2"),
    PropertyField<C, &C::ColAutoWidth, FlagField>(u"chk?ColAutoWidth"),
    PropertyField<C, &C::ColFix1, FlagField>(u"chk?ColEachPage1"),
    PropertyField<C, &C::ColFix2, FlagField>(u"chk?ColEachPage2"),
};
constexpr FieldOf<C> kWidths[] = {
    PropertyField<C, &C::ColWidth1, LeadingNumberField>(u"txt?ColWidth1"),
    PropertyField<C, &C::ColWidth2, LeadingNumberField>(u"txt?ColWidth2"),
};

template <class W>
W& Find(const PageState& state, const char16_t* kind, TextView page, const char16_t* property) {
  return state.dialog.Get<W>(kind + Text(page) + property);
}

}  // namespace

ColumnFrame::ColumnFrame(const PageState& state, TextView page, std::function<bool()> isShowing, const Shown& shown)
    : cmbPresentation(Find<ComboBox>(state, u"cmb", page, u"Presentation")),
      chkColAutoWidth(Find<CheckBox>(state, u"chk", page, u"ColAutoWidth")),
      cmbColAlign2(Find<ComboBox>(state, u"cmb", page, u"ColAlign2")),
      txtColWidth2(Find<TextBox>(state, u"txt", page, u"ColWidth2")),
      chkColEachPage2(Find<CheckBox>(state, u"chk", page, u"ColEachPage2")),
      lblCol1(Find<Label>(state, u"lbl", page, u"Col1")),
      lblCol2(Find<Label>(state, u"lbl", page, u"Col2")),
      fields_(state.dialog, kFields, page),
      autoWidth_(state, chkColAutoWidth, {state.dialog, kWidths, page}, shown) {
  cmbPresentation.Click = state.WhenReady([this] { OnPresentation(); });
  chkColAutoWidth.Click = state.WhenReady([this, isShowing = std::move(isShowing)] {
    if (isShowing()) autoWidth_.Follow();
  });
}

void ColumnFrame::Show(const PrnColumnsCls& item) const {
  fields_.Show(item);
  autoWidth_.Follow();
}

void ColumnFrame::Store(PrnColumnsCls& item) const {
  fields_.Store(item);
  autoWidth_.Widths().Store(item);
}

void ColumnFrame::Blank() const {
  fields_.Blank();
  autoWidth_.Widths().Blank();
}

void ColumnFrame::Enable(bool enabled) const {
  fields_.Enable(enabled);
  autoWidth_.Widths().Enable(enabled);
}

void ColumnFrame::OnPresentation() const {
  const std::int16_t presentation = cmbPresentation.ListIndex();
  const bool oneColumn = presentation == PP_VALP_TEXT || presentation == PP_VALP_KEY;
  for (Widget* const widget :
       std::initializer_list<Widget*>{&lblCol2, &cmbColAlign2, &txtColWidth2, &chkColEachPage2}) {
    widget->Visible(!oneColumn);
  }
  if (oneColumn) {
    txtColWidth2.SetText(u"0");
    chkColEachPage2.Value(0);
  }
  SetColumnLabels(presentation, lblCol1, lblCol2);
}

void SetColumnLabels(std::int32_t Presentation, Label& Label1, Label& Label2) {
  const auto key = [] { return PageState::LookUp(u"ID_DLG_VALPRES_3", u"Key"); };
  const auto description = [] { return PageState::LookUp(u"ID_DLG_VALPRES_2", u"Description"); };
  switch (Presentation) {
    case PP_VALP_KEYTEXT:
      Label1.Caption(key());
      Label2.Caption(description());
      break;
    case PP_VALP_TEXT:
      Label1.Caption(description());
      break;
    case PP_VALP_KEY:
      Label1.Caption(key());
      break;
    case PP_VALP_TEXTKEY:
      Label1.Caption(description());
      Label2.Caption(key());
      break;
    default:
      break;
  }
}

}  // namespace ORXKMPrintProp
