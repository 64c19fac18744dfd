#include "views/qt/WidgetView.h"

#include <QPointer>
#include <QTextDocument>
#include <exception>

#include "tables/RunTimeError.h"
#include "views/qt/FittedText.h"
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
  SetFont(StoredFont());
  ShowToolTip({});
  glass_.setEnabled(base_.Enabled());
  glass_.setVisible(base_.Visible());
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
    report(QStringLiteral("A handler failed without telling why."));
  }
}

void WidgetView::SetFont(const QFont& font) {
  // A change of font costs a widget its layout and style, also when it is none.
  if (glass_.font() != font) glass_.setFont(font);
}

QFont WidgetView::StoredFont() const { return ToQFont(base_.GetFont()); }

QFont ToQFont(const Font& stored) {
  QFont font(ToQString(stored.Name));
  font.setPointSizeF(stored.Size);
  font.setWeight(static_cast<QFont::Weight>(stored.Weight));
  return font;
}

void WidgetView::ShowToolTip(const QString& cutText) {
  QString text = cutText;
  if (!text.isEmpty() && !base_.ToolTipText().empty()) text += u'\n';
  text += ToQString(base_.ToolTipText());
  glass_.setToolTip(ToolTipOf(text));
}

QString WidgetView::FitCaption(int width) {
  const QString caption = ToQString(base_.Caption());
  const FittedText fitted(caption, StoredFont(), width);
  SetFont(fitted.font);
  if (fitted.isCut) ShowToolTip(caption);
  return fitted.text;
}

}  // namespace ORXKMPrintProp::qt
