#pragma once

#include <QPushButton>

namespace ORXKMPrintProp::host {

/// A button that is no wider than its sign, for a window that is to be as narrow as a small screen is. A click leaves
/// the focus where it is.
/// @param name how it is called in English, and in small letters its object name.
inline QPushButton* MakeSignButton(const char* name, char16_t sign, QWidget* parent) {
  auto* const button = new QPushButton(QString(QChar(sign)), parent);
  button->setAccessibleName(QLatin1String(name));
  button->setObjectName(button->accessibleName().toLower());
  button->setFixedWidth(button->sizeHint().height());
  button->setAutoDefault(true);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

}  // namespace ORXKMPrintProp::host
