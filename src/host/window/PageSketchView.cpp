#include "host/window/PageSketchView.h"

#include <QPainter>
#include <algorithm>
#include <numeric>

#include "views/qt/QtText.h"

namespace ORXKMPrintProp::host {
namespace {

using qt::ToQString;

constexpr int kGap = 6;           // around the paper, and beside the text of a cell
constexpr int kLeastWidth = 300;  // of the paper's body
constexpr int kThick = 3;         // the line below the heading of a column that is on each page

const QColor kPaper(255, 255, 255);
const QColor kInk(32, 32, 32);
const QColor kFaint(120, 120, 120);
const QColor kRule(200, 200, 200);
const QColor kHeading(214, 228, 245);
const QColor kTotals(240, 240, 232);
const QColor kBreak(176, 72, 32);

int AlignmentOf(PP_Alignment align) {
  static constexpr int flags[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
  return flags[align] | Qt::AlignVCenter;
}

QFont Bold(QFont font) {
  font.setBold(true);
  return font;
}

QFont Small(QFont font) {
  font.setPointSizeF(font.pointSizeF() * 0.85);
  return font;
}

}  // namespace

PageSketchView::PageSketchView(QWidget* parent) : QWidget(parent) {
  setFont(Small(font()));
  setAccessibleName(QStringLiteral("Sketch of the printed page"));
}

void PageSketchView::Show(PageSketch sketch) {
  sketch_ = std::move(sketch);
  Measure();
}

void PageSketchView::Measure() {
  const QFontMetrics bold(Bold(font()));
  const QFontMetrics small(Small(font()));
  measures_.lineHeight = bold.height() + 2;
  widths_.clear();
  for (std::size_t i = 0; i < sketch_.columns.size(); ++i) {
    const SketchColumn& column = sketch_.columns[i];
    int width = column.width * bold.horizontalAdvance(u'0');
    if (column.width == 0) {
      width =
          std::max(bold.horizontalAdvance(ToQString(column.title)), small.horizontalAdvance(ToQString(column.what)));
      for (const SketchLine& line : sketch_.lines) {
        const bool isSpanning = line.kind == SketchLineKind::Totals && !column.isNumber;
        if (i < line.cells.size() && !isSpanning) {
          width = std::max(width, bold.horizontalAdvance(ToQString(line.cells[i])));
        }
      }
    }
    // An advance is rounded down, and what is a part of a pixel too long is cut.
    widths_.push_back(width + kGap + 1);
  }
  const auto margin = [&](std::size_t side) { return std::clamp(sketch_.margins[side], 0, PageSketch::kMostMargin); };
  const int width = std::max(std::accumulate(widths_.begin(), widths_.end(), 0), kLeastWidth);
  const auto lines = static_cast<int>(sketch_.lines.size() + 4 + sketch_.notes.size());
  measures_.body = QRect(kGap + margin(2), kGap + margin(0), width + 1, lines * measures_.lineHeight + kThick);
  measures_.paper = measures_.body.adjusted(-margin(2), -margin(0), margin(3), margin(1));
  Scale();
}

void PageSketchView::FitInto(int width) {
  room_ = width;
  Scale();
}

void PageSketchView::Scale() {
  const QSize size = measures_.paper.size() + QSize(2 * kGap, 2 * kGap);
  scale_ = room_ > 0 ? std::min(1.0, static_cast<double>(room_) / size.width()) : 1.0;
  setFixedSize(size * scale_);
  update();
}

void PageSketchView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.scale(scale_, scale_);
  painter.fillRect(measures_.paper.translated(2, 2), palette().color(QPalette::Mid));
  painter.fillRect(measures_.paper, kPaper);
  painter.setPen(QPen(kRule, 1, Qt::DotLine));
  painter.drawRect(measures_.body.adjusted(-1, -1, 0, 0));

  const QRect& body = measures_.body;
  const int step = measures_.lineHeight;
  int top = body.top();
  painter.setPen(kInk);
  painter.setFont(Bold(font()));
  const auto paintLine = [&](const Text& text) {
    painter.drawText(QRect(body.left(), top, body.width(), step), Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(ToQString(text), Qt::ElideRight, body.width()));
  };
  paintLine(sketch_.title);
  top += step + step / 2;
  PaintHeading(painter, top);
  top += 2 * step + kThick;
  for (const SketchLine& line : sketch_.lines) {
    if (line.cells.empty()) {
      PaintBreak(painter, line.kind, top);
    } else {
      PaintCells(painter, line, top);
    }
    top += step;
  }
  top += step / 2;
  painter.setFont(Small(font()));
  painter.setPen(kFaint);
  for (const Text& note : sketch_.notes) {
    paintLine(note);
    top += step;
  }
}

void PageSketchView::PaintHeading(QPainter& painter, int top) const {
  const int step = measures_.lineHeight;
  int left = measures_.body.left();
  for (std::size_t i = 0; i < sketch_.columns.size(); ++i) {
    const SketchColumn& column = sketch_.columns[i];
    const QRect box(left, top, widths_[i], 2 * step + kThick);
    if (sketch_.colored) painter.fillRect(box, kHeading);
    const QRect inner = box.adjusted(kGap / 2, 0, -kGap / 2, 0);
    const auto paint = [&](const QFont& font, const QColor& color, const QString& text, int row) {
      painter.setFont(font);
      painter.setPen(color);
      painter.drawText(QRect(inner.left(), top + row * step, inner.width(), step), AlignmentOf(column.align),
                       QFontMetrics(font).elidedText(text, Qt::ElideRight, inner.width()));
    };
    paint(Bold(font()), kInk, ToQString(column.title), 0);
    paint(Small(font()), kFaint, ToQString(column.what), 1);
    const int thickness = column.everyPage ? kThick : 1;
    painter.fillRect(box.left(), box.bottom() + 1 - thickness, box.width(), thickness, kInk);
    left += widths_[i];
  }
}

void PageSketchView::PaintCells(QPainter& painter, const SketchLine& line, int top) const {
  const bool isTotals = line.kind == SketchLineKind::Totals;
  const QFont face = isTotals ? Bold(font()) : font();
  int left = measures_.body.left();
  const int right = left + std::accumulate(widths_.begin(), widths_.end(), 0);
  if (isTotals) painter.fillRect(QRect(left, top, right - left, measures_.lineHeight), kTotals);
  painter.setFont(face);
  for (std::size_t i = 0; i < line.cells.size(); ++i) {
    const SketchColumn& column = sketch_.columns[i];
    const QRect box(left, top, widths_[i], measures_.lineHeight);
    const QString text = ToQString(line.cells[i]);
    QRect inner = box.adjusted(kGap / 2, 0, -kGap / 2, 0);
    // The words of a totals row run on over the empty cells behind them.
    for (std::size_t next = i + 1; isTotals && !column.isNumber && !text.isEmpty() && next < line.cells.size() &&
                                   line.cells[next].empty() && !sketch_.columns[next].isNumber;
         ++next) {
      inner.setRight(inner.right() + widths_[next]);
    }
    painter.setPen(kInk);
    painter.drawText(inner, isTotals && !column.isNumber ? AlignmentOf(PP_PRN_ALIGN_LEFT) : AlignmentOf(column.align),
                     QFontMetrics(face).elidedText(text, Qt::ElideRight, inner.width()));
    painter.setPen(kRule);
    if (sketch_.ruled && !isTotals) painter.drawLine(box.topRight(), box.bottomRight());
    left += widths_[i];
  }
  if (sketch_.ruled) {
    painter.setPen(kRule);
    painter.drawLine(measures_.body.left(), top + measures_.lineHeight - 1, right, top + measures_.lineHeight - 1);
  }
}

void PageSketchView::PaintBreak(QPainter& painter, SketchLineKind kind, int top) const {
  const QString words = kind == SketchLineKind::CoverPage ? QStringLiteral("new cover page")
                        : kind == SketchLineKind::NewPage ? QStringLiteral("new page")
                                                          : QStringLiteral("new block");
  const QRect& body = measures_.body;
  painter.setFont(Small(font()));
  const int width = painter.fontMetrics().horizontalAdvance(words);
  const int middle = top + measures_.lineHeight / 2;
  painter.setPen(QPen(kBreak, 1, kind == SketchLineKind::NewBlock ? Qt::DotLine : Qt::DashLine));
  painter.drawLine(body.left(), middle, body.left() + 2 * kGap, middle);
  painter.drawLine(body.left() + 4 * kGap + width, middle, body.right(), middle);
  painter.setPen(kBreak);
  painter.drawText(QRect(body.left() + 3 * kGap, top, width + kGap, measures_.lineHeight), Qt::AlignVCenter, words);
}

}  // namespace ORXKMPrintProp::host
