#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "pages/Fields.h"
#include "pages/ListRoutines.h"
#include "pages/PageState.h"

namespace ORXKMPrintProp {

/// A check box for automatic width, and the boxes that hold a width while it is not checked.
template <class Item>
class AutoWidth {
 public:
  /// @param shown the item whose settings are shown, none while there is none.
  AutoWidth(const PageState& state, CheckBox& check, Fields<Item> widths, std::function<std::shared_ptr<Item>()> shown)
      : state_(state), check_(check), widths_(std::move(widths)), shown_(std::move(shown)) {}

  /// The widths follow the check box: empty and disabled, or as the model has them.
  void Follow() const {
    const bool automatic = ModPrnGen::CheckToBool(check_.Value());
    const auto item = automatic ? nullptr : shown_();
    if (item) {
      widths_.Show(*item);
    } else {
      widths_.Blank();
    }
    widths_.Enable(!automatic && !state_.mReadOnly);
  }

  const Fields<Item>& Widths() const { return widths_; }

 private:
  const PageState& state_;
  CheckBox& check_;
  Fields<Item> widths_;
  std::function<std::shared_ptr<Item>()> shown_;
};

}  // namespace ORXKMPrintProp
