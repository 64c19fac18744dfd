#include "host/window/SpokenWindow.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace ORXKMPrintProp::host {
namespace {

constexpr const char* kIsWindow = "isSpokenAsWindow";

QAccessibleInterface* MakeSpoken(const QString&, QObject* object) {
  auto* const widget = qobject_cast<QWidget*>(object);
  return widget && widget->property(kIsWindow).toBool() ? new QAccessibleWidget(widget, QAccessible::Window) : nullptr;
}

}  // namespace

void SpeakAsWindow(QWidget& widget) {
  widget.setProperty(kIsWindow, true);
  QAccessible::installFactory(MakeSpoken);
}

}  // namespace ORXKMPrintProp::host
