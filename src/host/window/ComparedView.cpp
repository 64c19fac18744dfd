#include "host/window/ComparedView.h"

#include <QHeaderView>
#include <QStyle>
#include <QStyledItemDelegate>

namespace ORXKMPrintProp::host {
namespace {

class CellDelegate : public QStyledItemDelegate {
 public:
  CellDelegate(const ComparedModel& model, QObject* parent) : QStyledItemDelegate(parent), model_(model) {}

  /// For the whole text.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem wide = option;
    wide.rect.setWidth(QWIDGETSIZE_MAX);
    return QStyledItemDelegate::sizeHint(wide, index);
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const QStyle& style = *option->widget->style();
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, option, option->widget) + 1;
    if (option->fontMetrics.horizontalAdvance(option->text) > option->rect.width() - 2 * margin) {
      option->text = model_.CutText(index);
    }
  }

 private:
  const ComparedModel& model_;
};

}  // namespace

ComparedView::ComparedView(QWidget* parent) : QTableView(parent) {
  setModel(&model_);
  setItemDelegate(new CellDelegate(model_, this));
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setAlternatingRowColors(true);
  setWordWrap(false);
  constexpr int kMeasuredRows = 50;
  horizontalHeader()->setResizeContentsPrecision(kMeasuredRows);
  constexpr int kMostWidth = 300;
  horizontalHeader()->setMaximumSectionSize(kMostWidth);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
}

void ComparedView::ComeToFront() {
  resizeColumnsToContents();
  if (const QModelIndex mark = model_.Mark(); mark.isValid()) scrollTo(mark);
}

}  // namespace ORXKMPrintProp::host
