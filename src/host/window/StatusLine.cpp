#include "host/window/StatusLine.h"

#include <QPainter>
#include <QStyle>

#include "host/window/Spoken.h"

namespace ORXKMPrintProp::host {

StatusLine::StatusLine(QWidget* parent) : QLabel(parent) {
  SpeakAsNotification(*this);
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void StatusLine::Say(const QString& text) {
  if (text == this->text()) return;
  setText(text);
  FitToolTip();
  Speak(*this);
}

/// The window gets no wider for a message.
QSize StatusLine::sizeHint() const { return {0, fontMetrics().height()}; }

QString StatusLine::Shown() const { return fontMetrics().elidedText(text(), Qt::ElideRight, width()); }

void StatusLine::FitToolTip() {
  const bool isCut = Shown() != text();
  setToolTip(isCut ? QStringLiteral("<qt>%1</qt>").arg(text().toHtmlEscaped()) : QString());
}

void StatusLine::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  FitToolTip();
}

void StatusLine::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  style()->drawItemText(&painter, rect(), Qt::AlignLeading | Qt::AlignVCenter, palette(), isEnabled(), Shown(),
                        foregroundRole());
}

}  // namespace ORXKMPrintProp::host
