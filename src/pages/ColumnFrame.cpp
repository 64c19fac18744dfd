#include "pages/ColumnFrame.h"

#include <cstddef>
#include <initializer_list>
#include <utility>

#include "pages/Fields.h"
#include "texts/LookupText.h"

namespace ORXKMPrintProp {

AutoWidth::AutoWidth(PageState& state, CheckBox& check, std::vector<TextBox*> boxes,
                     std::function<std::vector<std::int16_t>()> values)
    : state_(state), check_(check), boxes_(std::move(boxes)), values_(std::move(values)) {}

void AutoWidth::Show(bool automatic) {
  ORXKMPrintProp::Show(check_, automatic);
  Follow();
}

void AutoWidth::Blank() {
  check_.Value(0);
  for (TextBox* const box : boxes_) box->SetText({});
}

void AutoWidth::Follow() {
  const bool automatic = ModPrnGen::CheckToBool(check_.Value());
  const auto values = automatic ? std::vector<std::int16_t>() : values_();
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    if (i < values.size()) {
      ORXKMPrintProp::Show(*boxes_[i], values[i]);
    } else {
      boxes_[i]->SetText({});
    }
    boxes_[i]->Enabled(!automatic && !state_.mReadOnly);
  }
}

namespace {

template <class W>
W& Find(PageState& state, const char16_t* kind, TextView page, const char16_t* property) {
  return state.dialog.Get<W>(kind + Text(page) + property);
}

}  // namespace

ColumnFrame::ColumnFrame(PageState& state, TextView page, Shown shown)
    : cmbPresentation(Find<ComboBox>(state, u"cmb", page, u"Presentation")),
      chkColAutoWidth(Find<CheckBox>(state, u"chk", page, u"ColAutoWidth")),
      txtColTitle(Find<TextBox>(state, u"txt", page, u"ColTitle")),
      cmbColAlign1(Find<ComboBox>(state, u"cmb", page, u"ColAlign1")),
      cmbColAlign2(Find<ComboBox>(state, u"cmb", page, u"ColAlign2")),
      txtColWidth1(Find<TextBox>(state, u"txt", page, u"ColWidth1")),
      txtColWidth2(Find<TextBox>(state, u"txt", page, u"ColWidth2")),
      chkColEachPage1(Find<CheckBox>(state, u"chk", page, u"ColEachPage1")),
      chkColEachPage2(Find<CheckBox>(state, u"chk", page, u"ColEachPage2")),
      lblCol1(Find<Label>(state, u"lbl", page, u"Col1")),
      lblCol2(Find<Label>(state, u"lbl", page, u"Col2")),
      autoWidth_(state, chkColAutoWidth, {&txtColWidth1, &txtColWidth2}, [shown = std::move(shown)] {
        const PrnColumnsCls* const item = shown();
        return item ? std::vector{item->ColWidth1(), item->ColWidth2()} : std::vector<std::int16_t>();
      }) {}

void ColumnFrame::Show(const PrnColumnsCls& item) {
  ORXKMPrintProp::Show(cmbPresentation, item.Presentation());
  ORXKMPrintProp::Show(txtColTitle, item.ColTitle());
  ORXKMPrintProp::Show(cmbColAlign1, item.ColAlign1());
  ORXKMPrintProp::Show(cmbColAlign2, item.ColAlign2());
  autoWidth_.Show(item.ColAutoWidth());
  ORXKMPrintProp::Show(chkColEachPage1, item.ColFix1());
  ORXKMPrintProp::Show(chkColEachPage2, item.ColFix2());
}

void ColumnFrame::Store(PrnColumnsCls& item) const {
  ORXKMPrintProp::Store(cmbPresentation, item.Presentation);
  ORXKMPrintProp::Store(txtColTitle, item.ColTitle);
  ORXKMPrintProp::Store(cmbColAlign1, item.ColAlign1);
  ORXKMPrintProp::Store(cmbColAlign2, item.ColAlign2);
  ORXKMPrintProp::Store(chkColAutoWidth, item.ColAutoWidth);
  StoreLeading(txtColWidth1, item.ColWidth1);
  StoreLeading(txtColWidth2, item.ColWidth2);
  ORXKMPrintProp::Store(chkColEachPage1, item.ColFix1);
  ORXKMPrintProp::Store(chkColEachPage2, item.ColFix2);
}

void ColumnFrame::Blank() {
  cmbPresentation.ListIndex(-1);
  txtColTitle.SetText({});
  cmbColAlign1.ListIndex(-1);
  cmbColAlign2.ListIndex(-1);
  autoWidth_.Blank();
  chkColEachPage1.Value(0);
  chkColEachPage2.Value(0);
}

void ColumnFrame::EnableAll(bool enabled) {
  for (Widget* const widget :
       std::initializer_list<Widget*>{&cmbPresentation, &txtColTitle, &cmbColAlign1, &cmbColAlign2, &chkColAutoWidth,
                                      &txtColWidth1, &txtColWidth2, &chkColEachPage1, &chkColEachPage2}) {
    widget->Enabled(enabled);
  }
}

void ColumnFrame::OnPresentation() {
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
  const auto key = [] { return ModPrnGen::LookupText(u"ID_DLG_VALPRES_3", u"Key"); };
  const auto description = [] { return ModPrnGen::LookupText(u"ID_DLG_VALPRES_2", u"Description"); };
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
