#pragma once

#include <QColor>
#include <QFont>
#include <QMargins>
#include <functional>
#include <vector>

#include "host/editor/PageSketch.h"

class QPainter;
class QPaintDevice;

namespace ORXKMPrintProp::host {

/// As wide as its paper without the margins; paper is filled with strips from top to bottom.
struct SketchStrip {
  int height;
  bool opens;  ///< a part of the page, which is kept on one sheet where it fits on one
  std::function<void(QPainter& painter, int left, int top)> paint;
};

struct SketchPaper {
  int width;
  QMargins margins;
  std::vector<SketchStrip> strips;

  int Height() const;
};

/// How a page is painted on something that is as wide as that: made smaller, and what is still too wide is folded.
struct SketchFit {
  double scale;
  int width;  ///< of the paper, before it is made smaller
};

/// Paints a page as it is described. All lengths are pixels of what it is painted on.
class SketchPainter {
 public:
  /// Text that is smaller than that can't be read.
  static constexpr double kLeastScale = 0.85;

  /// @param font of the values
  /// @param device what it is painted on; none for a screen
  SketchPainter(PageSketch sketch, const QFont& font, const QPaintDevice* device = nullptr);
  SketchPainter(const SketchPainter&) = delete;
  SketchPainter& operator=(const SketchPainter&) = delete;

  const PageSketch& Sketch() const { return sketch_; }
  /// That of paper on which the whole page needs no fold.
  int FullWidth() const;
  SketchFit FitInto(int width) const;
  /// The paper of the top page, the page and the end page, the first and the last only where there is a layout for
  /// them. Columns for which there is no room go on further down, in bands that each have all lines.
  /// @return what paints itself by this object
  std::vector<SketchPaper> Papers(int width) const;

 private:
  /// Columns that stand beside each other, none of them wider than the paper's body.
  struct Band {
    std::size_t first;
    std::size_t end;
    int body;
  };

  struct TextStyle {
    QFont font;
    QColor color;
    QColor fill = {};  ///< behind it; none unless it is valid
  };

  int Length(int pixels) const;
  int WidthOf(std::size_t column, int body) const;
  std::vector<Band> BandsFor(int body) const;
  void AddText(SketchPaper& paper, const TextStyle& style, const Text& text, bool opens) const;
  void AddGap(SketchPaper& paper) const;
  void AddLayout(SketchPaper& paper, PageLayout layout) const;
  void AddBand(SketchPaper& paper, const Band& band, bool isOnly) const;
  void PaintText(QPainter& painter, const TextStyle& style, const QRect& box, int alignment, const Text& text) const;
  void PaintHeading(QPainter& painter, const Band& band, int left, int top) const;
  void PaintCells(QPainter& painter, const SketchLine& line, const Band& band, int left, int top) const;
  void PaintBreak(QPainter& painter, SketchLineKind kind, const QRect& box) const;

  PageSketch sketch_;
  const QPaintDevice* device_;
  double unit_;  ///< what is one pixel of a screen
  QFont plain_;
  QFont bold_;
  QFont small_;
  int lineHeight_;
  QMargins margins_;
  int fullBody_;
  std::vector<int> widths_;  ///< of the columns
};

}  // namespace ORXKMPrintProp::host
