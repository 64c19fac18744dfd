#pragma once

#include <QLineEdit>

#include "views/qt/WidgetView.h"

namespace ORXKMPrintProp::qt {

/// A field to type in, each key filtered by the widget.
class TextBoxView : public ViewOf<QLineEdit, TextBox> {
 public:
  TextBoxView(TextBox& box, const Reports& reports, QWidget* parent);
  void Refresh() override;
  void Show(WidgetProperty what) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;

 private:
  void ShowText();
  /// What becomes of typed text.
  QString Filtered(const QString& typed);
  char16_t FilterKey(char16_t key);

  bool isTyping_ = false;  ///< what changes now is what the user has typed
};

}  // namespace ORXKMPrintProp::qt
