#pragma once

#include "pages/Fields.h"
#include "pages/Page.h"
#include "pages/PageState.h"

namespace ORXKMPrintProp {

/// The first page: each input widget stands for one property of the root. The layout buttons stay usable in read-only
/// mode.
class GeneralPage : public Page {
 public:
  explicit GeneralPage(const PageState& state);

  void ShowPage() override { fields_.Show(state_.Root()); }
  void StorePage() override { fields_.Store(state_.Root()); }
  void EnablePage() override { fields_.Enable(!state_.mReadOnly); }

 private:
  const PageState& state_;
  Fields<PrnPropCls> fields_;
};

}  // namespace ORXKMPrintProp
