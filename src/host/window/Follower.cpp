#include "host/window/Follower.h"

#include <QApplication>
#include <utility>

namespace ORXKMPrintProp::host {
namespace {

constexpr int kPause = 600;  // milliseconds

bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
    case QEvent::InputMethod:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
      return true;
    default:
      return false;
  }
}

}  // namespace

Follower::Follower(const QWidget& shown, std::function<void()> read, QObject* parent)
    : QObject(parent), shown_(shown), read_(std::move(read)) {
  pause_.setSingleShot(true);
  pause_.setInterval(kPause);
  connect(&pause_, &QTimer::timeout, this, &Follower::Read);
}

void Follower::SetOn(bool isOn) {
  isOn_ = isOn;
  Follow();
}

void Follower::SetStale(bool isStale) {
  isStale_ = isStale;
  Follow();
}

void Follower::Follow() {
  if (isOn_ && isStale_) {
    pause_.start();
    QCoreApplication::instance()->installEventFilter(this);
  } else {
    pause_.stop();
    QCoreApplication::instance()->removeEventFilter(this);
  }
}

bool Follower::eventFilter(QObject* object, QEvent* event) {
  if (IsInput(event->type()) ? pause_.isActive() : object == &shown_ && event->type() == QEvent::Show) pause_.start();
  return false;
}

void Follower::Read() {
  if (!shown_.isVisible()) return;
  if (QApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget() ||
      QApplication::activeModalWidget()) {
    return pause_.start();
  }
  read_();
}

}  // namespace ORXKMPrintProp::host
