#pragma once

#include <stdexcept>

#include "views/hand.h"
#include "views/qt/PrnPropView.h"

namespace ORXKMPrintProp::qt::test {

/// The Qt widget of that name, `lstPrint(1)`.
template <class QtWidget = QWidget>
QtWidget& Glass(const QWidget& view, const std::string& name) {
  auto* const found = view.findChild<QtWidget*>(QString::fromStdString(name));
  if (!found) throw std::runtime_error("no widget " + name);
  return *found;
}

}  // namespace ORXKMPrintProp::qt::test
