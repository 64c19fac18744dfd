#include "host/window/SketchPainter.h"

#include <QFontMetrics>
#include <QPaintDevice>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "host/PrintRows.h"
#include "host/Words.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::host {
namespace {

using qt::ToQString;

// In pixels of a screen.
constexpr int kGap = 6;           // beside the text of a cell
constexpr int kLeastBody = 300;   // of a page that is not folded
constexpr int kLeastFolded = 60;  // of one that is
constexpr int kThick = 3;         // the line below the heading of a column that is on each page
constexpr double kScreenDpi = 96;

const QColor kInk(32, 32, 32);
const QColor kFaint(110, 110, 110);
const QColor kRule(200, 200, 200);
const QColor kHeading(214, 228, 245);
const QColor kTotals(240, 240, 232);
const QColor kLayout(253, 244, 214);
const QColor kBreak(176, 72, 32);

int AlignmentOf(PP_Alignment align) {
  static constexpr int flags[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
  return flags[align] | Qt::AlignVCenter;
}

constexpr int kLeft = Qt::AlignLeft | Qt::AlignVCenter;

QFont Bold(QFont font) {
  font.setBold(true);
  return font;
}

QFont Small(QFont font) {
  font.setPointSizeF(font.pointSizeF() * 0.85);
  return font;
}

}  // namespace

int SketchPaper::Height() const {
  return std::accumulate(strips.begin(), strips.end(), margins.top() + margins.bottom(),
                         [](int height, const SketchStrip& strip) { return height + strip.height; });
}

SketchPainter::SketchPainter(PageSketch sketch, const QFont& font, const QPaintDevice* device)
    : sketch_(std::move(sketch)),
      device_(device),
      unit_(device ? device->logicalDpiX() / kScreenDpi : 1),
      plain_(font),
      bold_(Bold(font)),
      small_(Small(font)) {
  const QFontMetrics bold(bold_, device);
  const QFontMetrics small(small_, device);
  lineHeight_ = bold.height() + Length(3);
  for (std::size_t i = 0; i < sketch_.columns.size(); ++i) {
    const SketchColumn& column = sketch_.columns[i];
    int width = column.width * bold.horizontalAdvance(u'0');
    if (column.width == 0) {
      width =
          std::max(bold.horizontalAdvance(ToQString(column.title)), small.horizontalAdvance(ToQString(column.what)));
      TextView last;
      for (const SketchLine& line : sketch_.lines) {
        const bool isSpanning = line.kind >= SketchLineKind::Totals && !column.isNumber;
        if (line.cells.empty() || isSpanning || line.cells[i] == last) continue;
        last = line.cells[i];
        width = std::max(width, bold.horizontalAdvance(ToQString(last)));
      }
    }
    // An advance is rounded down, and what is a part of a pixel too long is cut.
    widths_.push_back(width + Length(kGap) + 1);
  }
  const auto margin = [&](std::size_t side) {
    return Length(std::clamp(sketch_.margins[side], 0, PageSketch::kMostMargin));
  };
  margins_ = QMargins(margin(2), margin(0), margin(3), margin(1));
  fullBody_ = std::max(std::accumulate(widths_.begin(), widths_.end(), 0), Length(kLeastBody));
}

int SketchPainter::Length(int pixels) const { return static_cast<int>(std::lround(pixels * unit_)); }

int SketchPainter::FullWidth() const { return margins_.left() + fullBody_ + margins_.right(); }

SketchFit SketchPainter::FitInto(int width) const {
  const double scale = std::min(1.0, static_cast<double>(width) / FullWidth());
  if (scale >= kLeastScale) return {.scale = scale, .width = FullWidth()};
  return {.scale = kLeastScale, .width = static_cast<int>(width / kLeastScale)};
}

std::vector<SketchPaper> SketchPainter::Papers(int width) const {
  const int body = std::clamp(width - margins_.left() - margins_.right(), Length(kLeastFolded), fullBody_);
  const auto paper = [&] {
    return SketchPaper{.width = margins_.left() + body + margins_.right(), .margins = margins_, .strips = {}};
  };
  std::vector<SketchPaper> papers;
  const auto addPage = [&](PageLayout layout) {
    if (sketch_.layouts[layout].empty()) return;
    AddLayout(papers.emplace_back(paper()), layout);
  };
  addPage(kTopPage);
  SketchPaper page = paper();
  AddLayout(page, kHeadPart);
  AddText(page, {bold_, kInk}, sketch_.title, true);
  AddGap(page);
  const std::vector<Band> bands = BandsFor(body);
  for (const Band& band : bands) AddBand(page, band, bands.size() == 1);
  AddLayout(page, kFootPart);
  for (const Text& note : sketch_.notes) AddText(page, {small_, kFaint}, note, &note == &sketch_.notes.front());
  papers.push_back(std::move(page));
  addPage(kEndPage);
  return papers;
}

int SketchPainter::WidthOf(std::size_t column, int body) const { return std::min(widths_[column], body); }

std::vector<SketchPainter::Band> SketchPainter::BandsFor(int body) const {
  std::vector<Band> bands;
  int used = 0;
  for (std::size_t i = 0; i < widths_.size(); ++i) {
    const int width = WidthOf(i, body);
    if (bands.empty() || used + width > body) {
      bands.push_back({.first = i, .end = i, .body = body});
      used = 0;
    }
    used += width;
    bands.back().end = i + 1;
  }
  return bands;
}

void SketchPainter::AddText(SketchPaper& paper, const TextStyle& style, const Text& text, bool opens) const {
  const int width = paper.width - margins_.left() - margins_.right();
  const int indent = style.fill.isValid() ? Length(kGap) / 2 : 0;
  paper.strips.push_back({lineHeight_, opens, [=, this](QPainter& painter, int left, int top) {
                            const QRect box(left, top, width, lineHeight_);
                            if (style.fill.isValid()) painter.fillRect(box, style.fill);
                            PaintText(painter, style, box.adjusted(indent, 0, -indent, 0), kLeft, text);
                          }});
}

void SketchPainter::AddGap(SketchPaper& paper) const {
  paper.strips.push_back({lineHeight_ / 2, false, [](QPainter&, int, int) {}});
}

void SketchPainter::AddLayout(SketchPaper& paper, PageLayout layout) const {
  if (sketch_.layouts[layout].empty()) return;
  AddText(paper, {small_, kFaint, kLayout}, PageLayoutName(layout), true);
  for (const Text& line : sketch_.layouts[layout]) AddText(paper, {plain_, kInk, kLayout}, line, false);
  AddGap(paper);
}

void SketchPainter::AddBand(SketchPaper& paper, const Band& band, bool isOnly) const {
  if (!isOnly) {
    const auto number = [](std::size_t column) { return Digits(static_cast<int>(column)); };
    AddText(paper, {small_, kFaint},
            views::Filled(TranslatedText("Columns {0} to {1} of {2}"),
                          {number(band.first + 1), number(band.end), number(widths_.size())}),
            band.first > 0);
  }
  paper.strips.push_back({2 * lineHeight_ + Length(kThick), false, [this, band](QPainter& painter, int left, int top) {
                            PaintHeading(painter, band, left, top);
                          }});
  for (const SketchLine& line : sketch_.lines) {
    paper.strips.push_back({lineHeight_, false, [this, &line, band](QPainter& painter, int left, int top) {
                              if (line.cells.empty()) {
                                PaintBreak(painter, line.kind, QRect(left, top, band.body, lineHeight_));
                              } else {
                                PaintCells(painter, line, band, left, top);
                              }
                            }});
  }
  AddGap(paper);
}

void SketchPainter::PaintText(QPainter& painter, const TextStyle& style, const QRect& box, int alignment,
                              const Text& text) const {
  if (text.empty() || (painter.hasClipping() && !painter.clipBoundingRect().intersects(box))) return;
  painter.setFont(style.font);
  painter.setPen(style.color);
  painter.drawText(box, alignment,
                   QFontMetrics(style.font, device_).elidedText(ToQString(text), Qt::ElideRight, box.width()));
}

void SketchPainter::PaintHeading(QPainter& painter, const Band& band, int left, int top) const {
  for (std::size_t i = band.first; i < band.end; ++i) {
    const SketchColumn& column = sketch_.columns[i];
    const QRect box(left, top, WidthOf(i, band.body), 2 * lineHeight_ + Length(kThick));
    if (sketch_.colored) painter.fillRect(box, kHeading);
    QRect inner = box.adjusted(Length(kGap) / 2, 0, -Length(kGap) / 2, 0);
    inner.setHeight(lineHeight_);
    PaintText(painter, {bold_, kInk}, inner, AlignmentOf(column.align), column.title);
    PaintText(painter, {small_, kFaint}, inner.translated(0, lineHeight_), AlignmentOf(column.align), column.what);
    const int thickness = Length(column.everyPage ? kThick : 1);
    painter.fillRect(box.left(), box.bottom() + 1 - thickness, box.width(), thickness, kInk);
    left += box.width();
  }
}

void SketchPainter::PaintCells(QPainter& painter, const SketchLine& line, const Band& band, int left, int top) const {
  const bool isTotals = line.kind == SketchLineKind::Totals;
  const bool isLayout = line.kind == SketchLineKind::TotalsLayout;
  const auto isFree = [&](std::size_t i) {
    return line.cells[i].empty() && (isLayout || !sketch_.columns[i].isNumber);
  };
  int right = left;
  for (std::size_t i = band.first; i < band.end; ++i) right += WidthOf(i, band.body);
  if (isTotals) painter.fillRect(QRect(left, top, right - left, lineHeight_), kTotals);
  const QPen rule(kRule, Length(1));
  const int bottom = top + lineHeight_ - 1;
  const int begin = left;
  for (std::size_t i = band.first; i < band.end; ++i) {
    const SketchColumn& column = sketch_.columns[i];
    const QRect box(left, top, WidthOf(i, band.body), lineHeight_);
    QRect inner = box.adjusted(Length(kGap) / 2, 0, -Length(kGap) / 2, -Length(2));
    // The words of a totals row, and its layout, run on over the empty cells behind them.
    const bool isWords = (isTotals || isLayout) && !column.isNumber;
    if (isWords && !line.cells[i].empty()) {
      for (std::size_t next = i + 1; next < band.end && isFree(next); ++next) {
        inner.setRight(inner.right() + WidthOf(next, band.body));
      }
      if (isLayout) painter.fillRect(QRect(left, top, right - left, lineHeight_), kLayout);
    }
    PaintText(painter, {isTotals ? bold_ : plain_, kInk}, inner, isWords ? kLeft : AlignmentOf(column.align),
              line.cells[i]);
    painter.setPen(rule);
    if (sketch_.ruled && !isTotals && !isLayout) painter.drawLine(box.right(), top, box.right(), bottom);
    left += box.width();
  }
  painter.setPen(rule);
  if (sketch_.ruled) painter.drawLine(begin, bottom, right, bottom);
}

void SketchPainter::PaintBreak(QPainter& painter, SketchLineKind kind, const QRect& box) const {
  const Text words = BreakName(kind);
  const int gap = Length(kGap);
  const int advance = QFontMetrics(small_, device_).horizontalAdvance(ToQString(words));
  const int middle = box.top() + lineHeight_ / 2;
  painter.setPen(QPen(kBreak, Length(1), kind == SketchLineKind::NewBlock ? Qt::DotLine : Qt::DashLine));
  painter.drawLine(box.left(), middle, box.left() + 2 * gap, middle);
  painter.drawLine(box.left() + 4 * gap + advance, middle, box.right(), middle);
  PaintText(painter, {small_, kBreak}, QRect(box.left() + 3 * gap, box.top(), advance + gap, lineHeight_), kLeft,
            words);
}

}  // namespace ORXKMPrintProp::host
