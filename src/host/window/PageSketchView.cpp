#include "host/window/PageSketchView.h"

#include <QAccessibleWidget>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "host/window/Translation.h"

namespace ORXKMPrintProp::host {
namespace {

constexpr int kGap = 6;  // around the papers

const QColor kPaper(255, 255, 255);
const QColor kMargin(200, 200, 200);

/// A picture whose words are put together when somebody asks for them.
class SpokenSketch : public QAccessibleWidget {
 public:
  explicit SpokenSketch(PageSketchView& view) : QAccessibleWidget(&view, QAccessible::Graphic), view_(view) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Description ? view_.Words() : QAccessibleWidget::text(kind);
  }

 private:
  const PageSketchView& view_;
};

QAccessibleInterface* MakeSpoken(const QString&, QObject* object) {
  auto* const view = dynamic_cast<PageSketchView*>(object);
  return view ? new SpokenSketch(*view) : nullptr;
}

}  // namespace

PageSketchView::PageSketchView(QWidget* parent) : QWidget(parent) {
  // Before anything is told of this one.
  QAccessible::installFactory(MakeSpoken);
  QFont small = font();
  small.setPointSizeF(small.pointSizeF() * 0.85);
  setFont(small);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(Tr("Sketch of the printed page"));
}

void PageSketchView::Show(const Snapshot& readBack) {
  painter_ = std::make_unique<SketchPainter>(SketchOf(readBack), font());
  readBack_ = readBack;
  Arrange();
  QAccessibleEvent event(this, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&event);
}

QString PageSketchView::Words() const { return painter_ ? QString::fromStdString(WordsOf(readBack_)) : QString(); }

void PageSketchView::Zoom(double scale) {
  room_ = 0;
  scale_ = scale;
  Arrange();
}

void PageSketchView::FitInto(int width) {
  room_ = width;
  Arrange();
}

void PageSketchView::Arrange() {
  if (!painter_) return;
  int width = painter_->FullWidth();
  if (room_ > 0) {
    const SketchFit fit = painter_->FitInto(room_ - 2 * kGap);
    scale_ = fit.scale;
    width = fit.width;
  }
  papers_ = painter_->Papers(width);
  QSize size(0, kGap);
  for (const SketchPaper& paper : papers_) size = QSize(paper.width + 2 * kGap, size.height() + paper.Height() + kGap);
  setFixedSize(size * scale_);
  update();
}

void PageSketchView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setClipRect(event->rect());
  painter.scale(scale_, scale_);
  const QRectF seen = painter.clipBoundingRect();
  int top = kGap;
  for (const SketchPaper& paper : papers_) {
    const QRect sheet(kGap, top, paper.width, paper.Height());
    painter.fillRect(sheet.translated(2, 2), palette().color(QPalette::Mid));
    painter.fillRect(sheet, kPaper);
    painter.setPen(QPen(kMargin, 1, Qt::DotLine));
    painter.drawRect(sheet.marginsRemoved(paper.margins).adjusted(-1, -1, 0, 0));
    int down = sheet.top() + paper.margins.top();
    for (const SketchStrip& strip : paper.strips) {
      if (down + strip.height >= seen.top() && down <= seen.bottom()) {
        strip.paint(painter, sheet.left() + paper.margins.left(), down);
      }
      down += strip.height;
    }
    top += sheet.height() + kGap;
  }
}

}  // namespace ORXKMPrintProp::host
