#include "views/qt/ListBoxView.h"

#include <QApplication>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "views/qt/QtKeys.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt {
namespace {

class EntryDelegate : public QStyledItemDelegate {
 public:
  EntryDelegate(const ListBox& list, ListBoxView& view) : QStyledItemDelegate(&view), list_(list), view_(view) {}

  /// Rows stand close, so that two of them fit the lowest list of the layout.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {QStyledItemDelegate::sizeHint(option, index).width(), option.fontMetrics.height()};
  }

  /// The mark of the caret that styles draw is not seen on a selected entry.
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    const auto entry = static_cast<std::int16_t>(index.row());
    if (entry != list_.ListIndex() || !view_.IsCaretShown()) return;
    painter->setPen(option.palette.color(list_.Selected(entry) ? QPalette::HighlightedText : QPalette::Text));
    painter->drawRect(option.rect.adjusted(1, 1, -2, -1));
  }

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    // The row may be wider than what is seen of it.
    const bool isCut = index.isValid() && sizeHint(option, index).width() > view->viewport()->width();
    if (event->type() != QEvent::ToolTip || !isCut) return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), ToolTipOf(index.data().toString()), view, option.rect);
    return true;
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const auto entry = static_cast<std::int16_t>(index.row());
    option->state.setFlag(QStyle::State_Selected, entry < list_.ListCount() && list_.Selected(entry));
    option->state.setFlag(QStyle::State_HasFocus, false);
  }

 private:
  const ListBox& list_;
  const ListBoxView& view_;
};

int HeightOf(const QMouseEvent& event) { return event.position().toPoint().y(); }

std::int16_t ButtonOf(const QMouseEvent& event) {
  switch (event.button()) {
    case Qt::LeftButton:
      return ListBox::kLeftButton;
    case Qt::RightButton:
      return ListBox::kRightButton;
    default:
      return 0;
  }
}

}  // namespace

ListBoxView::ListBoxView(ListBox& list, const Reports& reports, QWidget* parent)
    : ViewOf(list, reports, parent),
      entries_(new EntryModel(
          list,
          [this] {
            ShowSelection();
            ShowCaret();
          },
          this)) {
  setModel(entries_);
  setItemDelegate(new EntryDelegate(list, *this));
  setSelectionMode(list.Row().multiSelect ? MultiSelection : SingleSelection);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setAutoScroll(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scrolling_.setInterval(views::ListPointer::kScrollInterval);
  connect(&scrolling_, &QTimer::timeout, this, [this] {
    // Where another window has taken the mouse, no release comes.
    const QWidget* const modal = QApplication::activeModalWidget();
    if (modal && modal != window()) return pointer_.Release();
    pointer_.OnTimer();
  });
}

void ListBoxView::Refresh() {
  WidgetView::Refresh();
  // Qt tells of no tooltip of a list.
  QString description = ToQString(widget_.ToolTipText());
  if (!description.isEmpty()) description += QStringLiteral(". ");
  setAccessibleDescription(description + QString::fromStdString(views::KeysSpoken(widget_)));
  entries_->CatchUp();
}

void ListBoxView::ShowCaretAlways(bool always) {
  if (std::exchange(isCaretShown_, always) != always) viewport()->update();
}

void ListBoxView::Show(WidgetProperty what) {
  if (what == WidgetProperty::ListIndex) return entries_->RestChanged();
  WidgetView::Show(what);
}

void ListBoxView::EntryChanged(int, EntryProperty what) {
  what == EntryProperty::Text ? entries_->EntriesChanged() : entries_->RestChanged();
}

void ListBoxView::mousePressEvent(QMouseEvent* event) {
  entries_->CatchUp();
  pointer_.Press(ButtonOf(*event), event->buttons() != event->button(), HeightOf(*event));
}

void ListBoxView::mouseMoveEvent(QMouseEvent* event) {
  entries_->CatchUp();
  const Qt::MouseButtons buttons = event->buttons();
  pointer_.Move(buttons.testFlag(Qt::LeftButton), buttons & ~Qt::MouseButtons(Qt::LeftButton), HeightOf(*event));
}

void ListBoxView::mouseReleaseEvent(QMouseEvent* event) { pointer_.Release(ButtonOf(*event)); }

int ListBoxView::EntryAt(int y) const { return indexAt({viewport()->rect().center().x(), y}).row(); }

void ListBoxView::ScrollBy(int step) {
  QScrollBar& bar = *verticalScrollBar();
  bar.setValue(bar.value() + step);
}

void ListBoxView::RunTimer(bool on) {
  if (on == scrolling_.isActive()) return;
  if (on) {
    scrolling_.start();
  } else {
    scrolling_.stop();
  }
}

void ListBoxView::ReleaseLater() {
  QTimer::singleShot(0, this, [this] { pointer_.Release(); });
}

void ListBoxView::keyPressEvent(QKeyEvent* event) {
  if (pointer_.IsHeld()) return;
  const int rowHeight = std::max(sizeHintForRow(0), 1);
  const auto action = keys_.ActionOf(widget_, ToKeyPress(*event), Height() / rowHeight);
  if (action) {
    Perform(action);
  } else {
    event->ignore();
  }
}

void ListBoxView::keyboardSearch(const QString& text) {
  if (const auto action = keys_.ActionOf(widget_, {.text = ToText(text)}, 1)) Perform(action);
}

void ListBoxView::focusInEvent(QFocusEvent* event) {
  QListView::focusInEvent(event);
  // Qt gives the focused list a current entry by itself.
  ShowCaret();
  const Qt::FocusReason reason = event->reason();
  if (reason != Qt::TabFocusReason && reason != Qt::BacktabFocusReason && reason != Qt::ShortcutFocusReason) return;
  if (const auto action = views::ActionOfFocus(widget_)) Perform(action);
}

void ListBoxView::changeEvent(QEvent* event) {
  QListView::changeEvent(event);
  if (event->type() == QEvent::EnabledChange && !isEnabled()) pointer_.LetGo();
}

void ListBoxView::hideEvent(QHideEvent* event) {
  QListView::hideEvent(event);
  pointer_.LetGo();
}

void ListBoxView::paintEvent(QPaintEvent* event) {
  if (!entries_->IsCaughtUp()) {
    entries_->CatchUp();
    // Else the entries have their places behind this painting only.
    executeDelayedItemsLayout();
  }
  QListView::paintEvent(event);
  if (!hasFocus()) return;
  // There may be no caret to show it.
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::Highlight));
  painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}

void ListBoxView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QListView::selectionChanged(selected, deselected);
  if (!entries_->IsCaughtUp()) return;
  for (const QItemSelection* const changed : {&selected, &deselected}) {
    for (const QItemSelectionRange& range : *changed) {
      for (int row = range.top(); row <= range.bottom(); ++row) {
        const auto entry = static_cast<std::int16_t>(row);
        if (widget_.Selected(entry) == (changed == &selected)) continue;
        entries_->RestChanged();
        Perform([&] {
          widget_.UserMoveCaret(entry);
          widget_.UserToggle();
        });
        return;
      }
    }
  }
}

QItemSelectionModel::SelectionFlags ListBoxView::selectionCommand(const QModelIndex&, const QEvent*) const {
  return QItemSelectionModel::NoUpdate;
}

void ListBoxView::ShowCaret() {
  const QModelIndex caret = entries_->index(widget_.ListIndex());
  if (caret == currentIndex()) return;
  if (!caret.isValid()) {
    shownCaret_ = -1;
    selectionModel()->clearCurrentIndex();
    return;
  }
  selectionModel()->setCurrentIndex(caret, QItemSelectionModel::NoUpdate);
  // Under the pointer nothing is to slip away, nor where the user has scrolled to.
  if (std::exchange(shownCaret_, caret.row()) != caret.row() && !pointer_.IsHeld()) scrollTo(caret);
}

void ListBoxView::ShowSelection() {
  QItemSelection selection;
  for (int begin = 0, left = widget_.SelCount(); left > 0 && begin < widget_.ListCount(); ++begin) {
    int end = begin;
    while (end < widget_.ListCount() && widget_.Selected(static_cast<std::int16_t>(end))) ++end;
    if (end == begin) continue;
    selection.select(entries_->index(begin), entries_->index(end - 1));
    left -= end - begin;
    begin = end;
  }
  // To tell what of many ranges is new, Qt would compare all with all.
  constexpr int kFew = 500;
  if (selection.size() > kFew) selectionModel()->reset();
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  viewport()->update();
}

}  // namespace ORXKMPrintProp::qt
