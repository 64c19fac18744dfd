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
  setTitle(WithoutShortcut(FitCaption()));
  update();
}

std::optional<int> FrameView::CaptionRoom() const { return width() - 2 * (kCaptionIndent + kCaptionBlank); }

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
  const QString text = FitCaption();
  setText(buddy() ? WithoutShortcut(text) : text);
}

std::optional<int> LabelView::CaptionRoom() const { return width() - kLabelBlank; }

ButtonView::ButtonView(CommandButton& button, const Reports& reports, QWidget* parent)
    : ViewOf(button, reports, parent) {
  setAutoDefault(false);
  connect(this, &QPushButton::clicked, this, [this] { Perform([this] { widget_.UserPress(); }); });
}

void ButtonView::Refresh() {
  WidgetView::Refresh();
  setText(WithoutShortcut(FitCaption()));
}

std::optional<int> ButtonView::CaptionRoom() const {
  QStyleOptionButton option;
  initStyleOption(&option);
  return style()->subElementRect(QStyle::SE_PushButtonContents, &option, this).width();
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
  setText(WithoutShortcut(FitCaption()));
  setChecked(widget_.Value() != 0);
}

std::optional<int> CheckBoxView::CaptionRoom() const {
  return width() - style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) -
         style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this);
}

}  // namespace ORXKMPrintProp::qt
