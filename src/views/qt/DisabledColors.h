#pragma once

#include <QPalette>

namespace ORXKMPrintProp::qt {

/// How well two colours can be told from each other: the ratio of their luminances, from 1 to 21.
double ContrastOf(const QColor& a, const QColor& b);

/// The palette with texts of what is disabled that can still be read well, though they are fainter than the others.
QPalette WithReadableDisabled(QPalette palette);

}  // namespace ORXKMPrintProp::qt
