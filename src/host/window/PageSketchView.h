#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "host/Snapshot.h"
#include "host/window/SketchPainter.h"

namespace ORXKMPrintProp::host {

/// Shows a page on its paper, and tells it in words to assistive programs. Takes the focus and leaves the arrow keys
/// to what it scrolls in.
class PageSketchView : public QWidget {
 public:
  explicit PageSketchView(QWidget* parent = nullptr);

  void Show(const Snapshot& readBack);
  /// How much the page is made larger or smaller.
  void Zoom(double scale);
  /// Fits the page into that width, in pixels.
  void FitInto(int width);
  double Scale() const { return scale_; }

  /// What is shown.
  const PageSketch& Sketch() const { return painter_->Sketch(); }
  QString Words() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Arrange();

  Snapshot readBack_;
  std::unique_ptr<SketchPainter> painter_;
  std::vector<SketchPaper> papers_;
  int room_ = 0;  ///< 0 for a page that is not fitted into any
  double scale_ = 1;
};

}  // namespace ORXKMPrintProp::host
