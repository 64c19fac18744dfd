#pragma once

#include "pages/PageState.h"

namespace ORXKMPrintProp {

/// The first page: each input widget stands for one property of the root.
class GeneralPage {
 public:
  explicit GeneralPage(PageState& state);

  void ShowGeneralPage();
  void StoreGeneralPage();
  /// The layout buttons stay usable in read-only mode.
  void EnableGeneralPage();

 private:
  PageState& state_;
  TextBox& txtGenPrnTitle;
  TextBox& txtGenMaxPages;
  ComboBox& cmbGenPrnDirection;
  CheckBox& chkGenShowNoZeros;
  CheckBox& chkGenUseColors;
  TextBox& txtGenMarginTop;
  TextBox& txtGenMarginBottom;
  TextBox& txtGenMarginLeft;
  TextBox& txtGenMarginRight;
  ComboBox& cmbGenSumPosit;
  CheckBox& chkGenNoMultTexts;
  ComboBox& cmbGenSignPrsnt;
  CheckBox& chkGenNoLines;
  ComboBox& cmbGenCurUnitPosition;
};

}  // namespace ORXKMPrintProp
