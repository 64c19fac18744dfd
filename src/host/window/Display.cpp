#include "host/window/Display.h"

#include <QByteArray>

namespace ORXKMPrintProp::host {

bool HasDisplay() {
  for (const char* const name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
    if (!qEnvironmentVariableIsEmpty(name)) return true;
  }
  return false;
}

void DrawInMemoryWithoutDisplay() {
  if (!HasDisplay()) qputenv("QT_QPA_PLATFORM", "offscreen");
}

}  // namespace ORXKMPrintProp::host
