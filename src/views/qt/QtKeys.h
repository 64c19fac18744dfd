#pragma once

#include "views/Keys.h"

class QKeyEvent;

namespace ORXKMPrintProp::qt {

views::KeyPress ToKeyPress(const QKeyEvent& event);

}  // namespace ORXKMPrintProp::qt
