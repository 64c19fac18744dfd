#include "views/qt/CaptionViews.h"

#include <qdrawutil.h>
#include <QKeyEvent>
#include <QPainter>
#include <QRegion>
#include <QStyle>
#include <QStyleOptionButton>

#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt {
namespace {

/// Of a frame's caption from the frame's edge, and the blank at both its ends, in pixels.
constexpr int kCaptionIndent = 7;
constexpr int kCaptionBlank = 3;
/// Between a label's text and what lies beside the label.
constexpr int kLabelBlank = 3;

}  // namespace

void FrameView::Refresh() {
  WidgetView::Refresh();
  setTitle(WithoutShortcut(FitCaption(width() - 2 * (kCaptionIndent + kCaptionBlank))));
  update();
}

void FrameView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int textWidth = fontMetrics().size(Qt::TextShowMnemonic, title()).width();
  const QRect caption(kCaptionIndent, 0, textWidth + 2 * kCaptionBlank, fontMetrics().height());
  if (textWidth > 0) painter.setClipRegion(QRegion(rect()) - caption);
  qDrawShadeRect(&painter, rect().adjusted(0, caption.height() / 2, 0, 0), palette(), true);
  painter.setClipping(false);
  style()->drawItemText(&painter, caption, Qt::AlignCenter | Qt::TextShowMnemonic, palette(), isEnabled(), title(),
                        QPalette::WindowText);
}

LabelView::LabelView(Label& label, const Reports& reports, QWidget* parent) : ViewOf(label, reports, parent) {
  setTextFormat(Qt::PlainText);
}

void LabelView::Refresh() {
  WidgetView::Refresh();
  const QString text = FitCaption(width() - kLabelBlank);
  setText(buddy() ? WithoutShortcut(text) : text);
}

ButtonView::ButtonView(CommandButton& button, const Reports& reports, QWidget* parent)
    : ViewOf(button, reports, parent) {
  setAutoDefault(false);
  connect(this, &QPushButton::clicked, this, [this] { Perform([this] { widget_.UserPress(); }); });
}

void ButtonView::Refresh() {
  WidgetView::Refresh();
  QStyleOptionButton option;
  initStyleOption(&option);
  const QRect inside = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
  setText(WithoutShortcut(FitCaption(inside.width())));
}

void ButtonView::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isEnter || (event->modifiers() & ~Qt::KeypadModifier)) return QPushButton::keyPressEvent(event);
  if (!event->isAutoRepeat()) click();
}

CheckBoxView::CheckBoxView(CheckBox& check, const Reports& reports, QWidget* parent) : ViewOf(check, reports, parent) {
  // Also by assistive programs, past mouse and keys.
  connect(this, &QCheckBox::toggled, this, [this](bool checked) {
    if (checked != (widget_.Value() != 0)) Perform([this] { widget_.UserToggle(); });
  });
}

void CheckBoxView::Refresh() {
  WidgetView::Refresh();
  const int box = style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) +
                  style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this);
  setText(WithoutShortcut(FitCaption(width() - box)));
  setChecked(widget_.Value() != 0);
}

}  // namespace ORXKMPrintProp::qt
