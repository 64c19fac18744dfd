#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>

class QPushButton;

namespace ORXKMPrintProp {
class Dialog;
namespace qt {
class PrnPropView;
}
}  // namespace ORXKMPrintProp

namespace ORXKMPrintProp::host {

/// Up and Down, which move the entry at the caret of the print list on top, for whoever can't drag.
class OrderButtons : public QWidget {
 public:
  /// @param isReadOnly whether nothing may be moved.
  OrderButtons(Dialog& dialog, qt::PrnPropView& view, std::function<bool()> isReadOnly, QWidget* parent);

  /// Lets the buttons be pressed as far as there is something to move.
  void Update();

 private:
  std::function<void()> ActionOf(std::int16_t step) const;

  Dialog& dialog_;
  qt::PrnPropView& view_;
  std::function<bool()> isReadOnly_;
  QPushButton* up_;
  QPushButton* down_;
};

}  // namespace ORXKMPrintProp::host
