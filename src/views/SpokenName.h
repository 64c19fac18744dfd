#pragma once

#include <vector>

#include "dialog/Dialog.h"

namespace ORXKMPrintProp::views {

/// How a screen reader calls a widget: by its own caption; a field by the label beside it, and in a table of
/// columns by the label above it too; a transfer button, which shows but an arrow, by its tooltip.
class SpokenName {
 public:
  SpokenName(const Dialog& dialog, const Widget& widget);

  bool DependsOn(const Widget& widget) const;
  Text Spoken() const;
  /// Those of the name that are labels.
  std::vector<const Label*> Labels() const;

 private:
  /// Those whose captions make the name, in its order.
  std::vector<const Widget*> sources_;
};

}  // namespace ORXKMPrintProp::views
