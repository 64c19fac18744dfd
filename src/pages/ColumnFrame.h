#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "model/PrnItemCls.h"
#include "pages/PageState.h"

namespace ORXKMPrintProp {

/// A check box for automatic width and the boxes that hold a width while it is not checked.
class AutoWidth {
 public:
  /// @param values the widths of the item that is shown, in the order of the boxes; empty while none is.
  AutoWidth(PageState& state, CheckBox& check, std::vector<TextBox*> boxes,
            std::function<std::vector<std::int16_t>()> values);

  void Show(bool automatic);
  void Blank();
  /// The widths follow the check box: empty and disabled, or as the model has them.
  void Follow();

 private:
  PageState& state_;
  CheckBox& check_;
  std::vector<TextBox*> boxes_;
  std::function<std::vector<std::int16_t>()> values_;
};

/// The settings of two columns, as the frames of the Characteristics and of the Attributes page show them.
class ColumnFrame {
 public:
  using Shown = std::function<const PrnColumnsCls*()>;

  /// @param page what the widgets' names have behind their kind: "Char" or "Attr".
  /// @param shown the item whose settings are shown, null while there is none.
  ColumnFrame(PageState& state, TextView page, Shown shown);

  void Show(const PrnColumnsCls& item);
  void Store(PrnColumnsCls& item) const;
  void Blank();
  /// Every widget, whatever the check box says.
  void EnableAll(bool enabled);

  /// The second column shows for two columns only, and the labels tell what stands in which.
  void OnPresentation();
  /// The widths follow the check box.
  void OnAutoWidth() { autoWidth_.Follow(); }

  ComboBox& cmbPresentation;
  CheckBox& chkColAutoWidth;

 private:
  TextBox& txtColTitle;
  ComboBox& cmbColAlign1;
  ComboBox& cmbColAlign2;
  TextBox& txtColWidth1;
  TextBox& txtColWidth2;
  CheckBox& chkColEachPage1;
  CheckBox& chkColEachPage2;
  Label& lblCol1;
  Label& lblCol2;
  AutoWidth autoWidth_;
};

/// Sets the captions of the two columns' labels. A presentation that is none leaves them, one with a single column
/// leaves the second.
void SetColumnLabels(std::int32_t Presentation, Label& Label1, Label& Label2);

}  // namespace ORXKMPrintProp
