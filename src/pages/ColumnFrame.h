#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "model/PrnItemCls.h"
#include "pages/AutoWidth.h"
#include "pages/Fields.h"
#include "pages/PageState.h"

namespace ORXKMPrintProp {

/// The settings of two columns, as the frames of the Characteristics and of the Attributes page show them.
class ColumnFrame {
 public:
  using Shown = std::function<std::shared_ptr<PrnColumnsCls>()>;

  /// @param page what the widgets' names have behind their kind: "Char" or "Attr".
  /// @param isShowing whether something is selected, or nothing has been shown yet.
  /// @param shown the item whose settings are shown, none while there is none.
  ColumnFrame(const PageState& state, TextView page, std::function<bool()> isShowing, const Shown& shown);

  void Show(const PrnColumnsCls& item) const;
  void Store(PrnColumnsCls& item) const;
  void Blank() const;
  /// Every widget, whatever the check box says.
  void Enable(bool enabled) const;

 private:
  /// The second column shows for two columns only, and the labels say what stands in which.
  void OnPresentation() const;

  ComboBox& cmbPresentation;
  CheckBox& chkColAutoWidth;
  ComboBox& cmbColAlign2;
  TextBox& txtColWidth2;
  CheckBox& chkColEachPage2;
  Label& lblCol1;
  Label& lblCol2;
  Fields<PrnColumnsCls> fields_;  ///< all but the widths
  AutoWidth<PrnColumnsCls> autoWidth_;
};

/// Sets the captions of the two columns' labels. Any other number than a presentation leaves them, one with a single
/// column leaves the second.
void SetColumnLabels(std::int32_t Presentation, Label& Label1, Label& Label2);

}  // namespace ORXKMPrintProp
