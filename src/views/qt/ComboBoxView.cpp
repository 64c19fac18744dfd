#include "views/qt/ComboBoxView.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QStyleOptionComboBox>
#include <QWheelEvent>

#include "views/qt/QtKeys.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt {

ComboBoxView::ComboBoxView(ComboBox& combo, const Reports& reports, QWidget* parent)
    : ViewOf(combo, reports, parent),
      entries_(new EntryModel(
          combo, [this] { ShowPicked(); }, this)) {
  setModel(entries_);
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QComboBox::activated, this,
          [this](int index) { Perform([&] { widget_.UserPick(static_cast<std::int16_t>(index)); }); });
}

void ComboBoxView::Refresh() {
  WidgetView::Refresh();
  entries_->CatchUp();
  // Qt may have picked another one.
  ShowPicked();
  if (!isEnabled()) hidePopup();
}

void ComboBoxView::Show(WidgetProperty what) {
  if (what == WidgetProperty::ListIndex) return entries_->RestChanged();
  WidgetView::Show(what);
  if (what == WidgetProperty::Enabled && !isEnabled()) hidePopup();
}

void ComboBoxView::showPopup() {
  entries_->CatchUp();
  // Entries that are wider than the field are read in the open list.
  view()->setMinimumWidth(view()->sizeHintForColumn(0) +
                          style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this));
  QComboBox::showPopup();
}

void ComboBoxView::keyPressEvent(QKeyEvent* event) {
  const views::KeyPress press = ToKeyPress(*event);
  if (const auto entry = views::PickOf(widget_, press, search_)) {
    Perform([&] { widget_.UserPick(*entry); });
  } else if (press.control) {
    // The page keys change the page of the dialog, not the entry.
    event->ignore();
  } else if (press.key != views::Key::Other || event->text().isEmpty() || !event->text().at(0).isPrint()) {
    QComboBox::keyPressEvent(event);
  }
}

void ComboBoxView::paintEvent(QPaintEvent* event) {
  entries_->CatchUp();
  QComboBox::paintEvent(event);
}

void ComboBoxView::wheelEvent(QWheelEvent* event) {
  entries_->CatchUp();
  if (hasFocus()) {
    QComboBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

void ComboBoxView::ShowPicked() {
  setCurrentIndex(widget_.ListIndex());
  QStyleOptionComboBox option;
  initStyleOption(&option);
  const bool isCut = option.currentText != currentText();
  ShowToolTip(isCut ? currentText() : QString());
}

int ComboBoxView::FieldWidth(const QStyleOptionComboBox& option) const {
  constexpr int kBlank = 2;  // what styles leave beside the text
  return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this).width() - kBlank;
}

std::optional<views::TextRoom> ComboBoxView::RoomOf(TextView text, int) const {
  QStyleOptionComboBox option;
  initStyleOption(&option);
  return views::TextRoom{option.fontMetrics.horizontalAdvance(ToQString(views::OnOneLine(text))), FieldWidth(option)};
}

void ComboBoxView::initStyleOption(QStyleOptionComboBox* option) const {
  QComboBox::initStyleOption(option);
  option->currentText = option->fontMetrics.elidedText(currentText(), Qt::ElideRight, FieldWidth(*option));
}

}  // namespace ORXKMPrintProp::qt
