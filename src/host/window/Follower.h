#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

namespace ORXKMPrintProp::host {

/// Reads the settings when the user pauses after a change: when neither keys nor mouse have been used for a while, no
/// button of the mouse is held, and nothing is open in front of the window.
class Follower : public QObject {
 public:
  /// @param shown what shows the settings; nothing is read while it can't be seen. Must outlive this object.
  Follower(const QWidget& shown, std::function<void()> read, QObject* parent);

  void SetOn(bool isOn);
  /// Tells whether the user has changed something since the settings were read.
  void SetStale(bool isStale);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Follow();
  void Read();

  const QWidget& shown_;
  std::function<void()> read_;
  QTimer pause_;
  bool isOn_ = false;
  bool isStale_ = false;
};

}  // namespace ORXKMPrintProp::host
