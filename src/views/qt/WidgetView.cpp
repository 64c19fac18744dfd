#include "views/qt/WidgetView.h"

#include <QFontMetrics>
#include <QPointer>
#include <QTextDocument>
#include <exception>

#include "tables/RunTimeError.h"
#include "views/Translation.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt {

QString ToolTipOf(const QString& text) {
  return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

WidgetView::WidgetView(QWidget& glass, Widget& widget, const Reports& reports)
    : glass_(glass), base_(widget), reports_(reports) {
  glass.setObjectName(ToQString(widget.Row().name.Spelled()));
}

void WidgetView::Refresh() {
  if (!CaptionRoom()) SetFont(StoredFont());
  ShowToolTip({});
  glass_.setEnabled(base_.Enabled());
  glass_.setVisible(base_.Visible());
}

void WidgetView::Show(WidgetProperty what) {
  switch (what) {
    case WidgetProperty::Enabled:
      return glass_.setEnabled(base_.Enabled());
    case WidgetProperty::Visible:
      return glass_.setVisible(base_.Visible());
    default:
      Refresh();
  }
}

void WidgetView::Perform(const std::function<void()>& action) {
  const QPointer<QWidget> glass(&glass_);
  Attempt(action);
  if (glass) Refresh();
  if (glass) Attempt([this] { reports_.used(base_); });
}

void WidgetView::Attempt(const std::function<void()>& action) {
  // Whoever is called back may run an event loop, and delete the view in it.
  const QPointer<QWidget> glass(&glass_);
  const auto report = [&](const QString& why) {
    if (glass) reports_.failed(why);
  };
  try {
    action();
  } catch (const RunTimeError& error) {
    report(ToQString(error.Message()));
  } catch (const std::exception& error) {
    report(QString::fromUtf8(error.what()));
  } catch (...) {
    report(QString::fromStdString(views::Translated("A handler failed without telling why.")));
  }
}

void WidgetView::SetFont(const QFont& font) {
  // A change of font costs a widget its layout and style, also when it changes nothing.
  if (glass_.font() != font) glass_.setFont(font);
}

QFont WidgetView::StoredFont() const { return ToQFont(base_.GetFont()); }

QFont InLetters(QFont font, const views::Letters& letters) {
  if (letters.size != 100) font.setPointSizeF(font.pointSizeF() * letters.size / 100);
  if (letters.width != 100) font.setStretch(letters.width);
  return font;
}

views::Resolution ResolutionOf(const QWidget& widget) {
  return {static_cast<double>(widget.logicalDpiX()), static_cast<double>(widget.logicalDpiY())};
}

QFont ToQFont(const Font& stored) {
  QFont font(ToQString(stored.Name));
  font.setPointSizeF(stored.Size);
  font.setWeight(static_cast<QFont::Weight>(stored.Weight));
  return font;
}

void WidgetView::ShowToolTip(const QString& cutText) {
  glass_.setToolTip(ToolTipOf(ToQString(views::ToolTipWith(ToText(cutText), base_.ToolTipText()))));
}

views::Measure WidgetView::MeasureOfCaption() const {
  return [full = StoredFont()](TextView text, const views::Letters& letters) {
    return QFontMetrics(InLetters(full, letters)).horizontalAdvance(ToQString(text));
  };
}

std::optional<views::Letters> WidgetView::NeededLetters() const {
  const auto measure = MeasureOfCaption();
  const int room = CaptionRoom().value_or(0);
  return views::FittingLetters(
      [&](const views::Letters& letters) { return measure(base_.Caption(), letters) <= room; });
}

std::optional<views::TextRoom> WidgetView::RoomOf(TextView text, int) const {
  const std::optional<int> room = CaptionRoom();
  if (!room) return {};
  return views::TextRoom{MeasureOfCaption()(text, views::kSmallestLetters), *room};
}

QString WidgetView::FitCaption() {
  const views::FittedText fitted =
      views::Fit(base_.Caption(), CaptionRoom().value_or(0), MeasureOfCaption(), reports_.letters(base_));
  SetFont(InLetters(StoredFont(), fitted.letters));
  if (fitted.isCut) ShowToolTip(ToQString(base_.Caption()));
  return ToQString(fitted.text);
}

}  // namespace ORXKMPrintProp::qt
