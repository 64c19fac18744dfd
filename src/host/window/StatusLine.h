#pragma once

#include <QLabel>

namespace ORXKMPrintProp::host {

/// A line of text. Where there is no room for all of it, it ends in dots, and the tooltip tells the rest. Assistive
/// programs speak what it says anew, wherever the focus is.
class StatusLine : public QLabel {
 public:
  explicit StatusLine(QWidget* parent = nullptr);

  void Say(const QString& text);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QString Shown() const;
  void FitToolTip();
};

}  // namespace ORXKMPrintProp::host
