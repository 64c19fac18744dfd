#include "host/window/Spoken.h"

#include <QAccessibleWidget>
#include <QLabel>

namespace ORXKMPrintProp::host {
namespace {

constexpr const char* kSpokenRole = "spokenRole";

class Spoken : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  QString text(QAccessible::Text which) const override {
    const auto* const label = qobject_cast<const QLabel*>(widget());
    return label && which == QAccessible::Name ? label->text() : QAccessibleWidget::text(which);
  }
};

QAccessibleInterface* MakeSpoken(const QString&, QObject* object) {
  const QVariant role = object->property(kSpokenRole);
  if (!role.isValid()) return nullptr;
  return new Spoken(static_cast<QWidget*>(object), static_cast<QAccessible::Role>(role.toInt()));
}

void SpeakAs(QWidget& widget, QAccessible::Role role) {
  widget.setProperty(kSpokenRole, static_cast<int>(role));
  QAccessible::installFactory(MakeSpoken);
}

}  // namespace

void SpeakAsWindow(QWidget& widget) { SpeakAs(widget, QAccessible::Window); }

void SpeakAsNotification(QLabel& label) { SpeakAs(label, QAccessible::Notification); }

/// An alert would not go over the desktop's bus; a notification is spoken when it shows.
void Speak(QLabel& notification) {
  if (notification.text().isEmpty()) return;
  QAccessibleEvent shown(&notification, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&shown);
}

}  // namespace ORXKMPrintProp::host
