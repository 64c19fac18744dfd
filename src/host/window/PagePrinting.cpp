#include "host/window/PagePrinting.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <iterator>
#include <numeric>

#include "host/window/SketchPainter.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::host {
namespace {

constexpr qreal kSheetMargin = 10;  // millimetres, on top of the page's own

using Strips = std::vector<SketchStrip>;

int HeightOf(Strips::const_iterator begin, Strips::const_iterator end) {
  return std::accumulate(begin, end, 0, [](int sum, const SketchStrip& strip) { return sum + strip.height; });
}

/// How many strips go on a sheet; at least one does.
Strips::const_iterator EndOfSheet(Strips::const_iterator begin, Strips::const_iterator end, int room) {
  auto sheetEnd = begin;
  int used = 0;
  while (sheetEnd != end) {
    const auto partEnd = std::find_if(std::next(sheetEnd), end, [](const SketchStrip& strip) { return strip.opens; });
    const int height = HeightOf(sheetEnd, partEnd);
    if (used + height > room) break;
    used += height;
    sheetEnd = partEnd;
  }
  if (sheetEnd != begin) return sheetEnd;
  // The part is taller than a sheet.
  do used += (sheetEnd++)->height;
  while (sheetEnd != end && used + sheetEnd->height <= room);
  return sheetEnd;
}

}  // namespace

void SetPaper(QPagedPaintDevice& device, const PageSketch& sketch, const QFont& font) {
  const QMarginsF margins(kSheetMargin, kSheetMargin, kSheetMargin, kSheetMargin);
  device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, margins, QPageLayout::Millimeter));
  const SketchPainter page(sketch, font, &device);
  if (page.FullWidth() * SketchPainter::kLeastScale > device.width()) {
    device.setPageOrientation(QPageLayout::Landscape);
  }
}

bool PrintPage(QPagedPaintDevice& device, const PageSketch& sketch, const QFont& font) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  const SketchPainter page(sketch, font, &device);
  const auto [scale, width] = page.FitInto(device.width());
  painter.scale(scale, scale);
  bool isFirst = true;
  for (const SketchPaper& paper : page.Papers(width)) {
    const int room = static_cast<int>(device.height() / scale) - paper.margins.top() - paper.margins.bottom();
    for (auto strip = paper.strips.begin(); strip != paper.strips.end();) {
      if (!isFirst && !device.newPage()) return false;
      isFirst = false;
      int top = paper.margins.top();
      for (const auto end = EndOfSheet(strip, paper.strips.end(), room); strip != end; ++strip) {
        strip->paint(painter, paper.margins.left(), top);
        top += strip->height;
      }
    }
  }
  return painter.end();
}

QByteArray PdfOf(const PageSketch& sketch, const QFont& font) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(qt::ToQString(sketch.title));
  writer.setCreator(QStringLiteral("prnprop"));
  SetPaper(writer, sketch, font);
  PrintPage(writer, sketch, font);
  return bytes;
}

}  // namespace ORXKMPrintProp::host
