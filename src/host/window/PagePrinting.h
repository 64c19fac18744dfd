#pragma once

#include <QByteArray>
#include <QFont>

#include "host/editor/PageSketch.h"

class QPagedPaintDevice;

namespace ORXKMPrintProp::host {

/// Sets A4 paper, across where the page is wider than it is tall paper that it fits.
void SetPaper(QPagedPaintDevice& device, const PageSketch& sketch, const QFont& font);

/// Prints all of the page, on as many sheets as it needs; top page and end page have sheets of their own.
/// @return whether the device took it
bool PrintPage(QPagedPaintDevice& device, const PageSketch& sketch, const QFont& font);

/// The page as a PDF file.
QByteArray PdfOf(const PageSketch& sketch, const QFont& font);

}  // namespace ORXKMPrintProp::host
