#pragma once

#include <QWidget>
#include <vector>

#include "host/editor/PageSketch.h"

class QPainter;

namespace ORXKMPrintProp::host {

/// Paints a page as it is described, as wide as its columns need, or made smaller.
class PageSketchView : public QWidget {
 public:
  explicit PageSketchView(QWidget* parent = nullptr);

  void Show(PageSketch sketch);
  /// Makes the page as small as it must be for that width in pixels; 0 for its full size.
  void FitInto(int width);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Measures {
    int lineHeight;
    QRect paper;
    QRect body;  ///< the paper without its margins
  };

  void Measure();
  void Scale();
  void PaintHeading(QPainter& painter, int top) const;
  void PaintCells(QPainter& painter, const SketchLine& line, int top) const;
  void PaintBreak(QPainter& painter, SketchLineKind kind, int top) const;

  PageSketch sketch_;
  std::vector<int> widths_;  ///< of the columns, in pixels
  Measures measures_{};
  int room_ = 0;
  double scale_ = 1;
};

}  // namespace ORXKMPrintProp::host
