#pragma once

#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdlib>

namespace ORXKMPrintProp::bench {

/// Ends the program, without any tidying up, as soon as the window has been painted once. For measuring the start.
class ExitAfterFirstPaint : public QObject {
 public:
  explicit ExitAfterFirstPaint(QWidget& window) : QObject(&window) { window.installEventFilter(this); }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    // What lies on the window is painted before the timer gets its turn.
    if (event->type() == QEvent::Paint) QTimer::singleShot(0, [] { std::_Exit(0); });
    return false;
  }
};

}  // namespace ORXKMPrintProp::bench
