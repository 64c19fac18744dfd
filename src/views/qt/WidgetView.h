#pragma once

#include <QFont>
#include <QString>
#include <QWidget>
#include <functional>
#include <optional>

#include "dialog/Lists.h"
#include "views/Fitting.h"
#include "views/Places.h"

namespace ORXKMPrintProp::qt {

/// What the view of a widget tells of what the user does, and asks.
struct Reports {
  std::function<void(const QString& message)> failed;
  std::function<void(const Widget& widget)> used;
  std::function<views::Letters(const Widget& widget)> letters;  ///< of its caption
};

/// The tooltip that shows the text as it is, also where it looks like markup.
QString ToolTipOf(const QString& text);

/// Draws one widget of the dialog and hands in what the user does with it. It keeps nothing of the widget's content.
class WidgetView {
 public:
  WidgetView(QWidget& glass, Widget& widget, const Reports& reports);
  virtual ~WidgetView() = default;
  WidgetView(const WidgetView&) = delete;
  WidgetView& operator=(const WidgetView&) = delete;

  /// The Qt widget that is seen.
  QWidget& Glass() const { return glass_; }

  /// Shows all that the widget holds now.
  virtual void Refresh();
  /// Shows what has changed; what is not one property's own is shown with all the rest.
  virtual void Show(WidgetProperty what);
  virtual void EntryChanged(int /*index*/, EntryProperty) {}
  virtual void EntryAdded(int /*index*/) {}
  virtual void EntryRemoved(int /*index*/) {}
  virtual void EntriesCleared() {}

  /// The only way in for what the user does: reports a failure, and shows the widget as it is afterwards, whether
  /// the action was carried out, refused or failed. The view may be gone when it returns.
  void Perform(const std::function<void()>& action);
  /// The greatest letters in which the widget's caption fits, none where it is cut.
  std::optional<views::Letters> NeededLetters() const;
  /// How another text would lie in the widget, in the place of its caption or as one of its entries.
  /// @param text that is not shown.
  /// @param tab of a tab strip, which tab it is for.
  /// @return none where the widget shows nothing of the kind.
  virtual std::optional<views::TextRoom> RoomOf(TextView text, int tab) const;

 protected:
  /// The same for what changes nothing.
  void Attempt(const std::function<void()>& action);

  QFont StoredFont() const;
  views::Measure MeasureOfCaption() const;
  void SetFont(const QFont& font);
  /// The widget's tooltip, and ahead of it a text that could not be shown in full.
  void ShowToolTip(const QString& cutText);
  /// How many pixels there are for the caption; none in a widget that shows none.
  virtual std::optional<int> CaptionRoom() const { return {}; }
  /// Sets font and tooltip for the caption to fit.
  /// @return what is to be shown of it.
  QString FitCaption();

 private:
  QWidget& glass_;
  Widget& base_;
  const Reports& reports_;
};

QFont ToQFont(const Font& stored);
QFont InLetters(QFont font, const views::Letters& letters);
views::Resolution ResolutionOf(const QWidget& widget);

/// The same as a Qt widget of that class.
template <class QtWidget, class W>
class ViewOf : public QtWidget, public WidgetView {
 public:
  ViewOf(W& widget, const Reports& reports, QWidget* parent)
      : QtWidget(parent), WidgetView(*static_cast<QtWidget*>(this), widget, reports), widget_(widget) {}

 protected:
  W& widget_;
};

}  // namespace ORXKMPrintProp::qt
