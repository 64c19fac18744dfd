#pragma once

#include <QPushButton>

namespace ORXKMPrintProp::host {

/// A button that is no wider than its sign, for a window that is to be as narrow as a small screen is. A click leaves
/// the focus where it is.
/// @param objectName by which it is found, in whatever language.
/// @param name as which it is spoken of.
inline QPushButton* MakeSignButton(const QString& objectName, const QString& name, char16_t sign, QWidget* parent) {
  auto* const button = new QPushButton(QString(QChar(sign)), parent);
  button->setAccessibleName(name);
  button->setObjectName(objectName);
  button->setFixedWidth(button->sizeHint().height());
  button->setAutoDefault(true);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

}  // namespace ORXKMPrintProp::host
