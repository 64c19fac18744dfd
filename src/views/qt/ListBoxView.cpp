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

namespace ORXKMPrintProp::qt {
namespace {

constexpr int kScrollInterval = 60;  // milliseconds an entry

class EntryDelegate : public QStyledItemDelegate {
 public:
  EntryDelegate(const ListBox& list, QObject* parent) : QStyledItemDelegate(parent), list_(list) {}

  /// Rows stand close, so that two of them fit the lowest list of the layout.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {QStyledItemDelegate::sizeHint(option, index).width(), option.fontMetrics.height()};
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
    option->state.setFlag(QStyle::State_HasFocus,
                          entry == list_.ListIndex() && option->widget && option->widget->hasFocus());
  }

 private:
  const ListBox& list_;
};

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
    : ViewOf(list, reports, parent), entries_(new EntryModel(list, this)) {
  setModel(entries_);
  setItemDelegate(new EntryDelegate(list, this));
  setSelectionMode(list.Row().multiSelect ? MultiSelection : SingleSelection);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setAutoScroll(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scrolling_.setInterval(kScrollInterval);
  connect(&scrolling_, &QTimer::timeout, this, [this] { ScrollDrag(); });
}

/// What has begun also ends, though nobody is told of it any more.
ListBoxView::~ListBoxView() {
  if (pressed_ == 0) return;
  try {
    widget_.UserMouseUp(pressed_);
  } catch (...) {
    return;
  }
}

void ListBoxView::Refresh() {
  WidgetView::Refresh();
  entries_->EntriesChanged();
  ShowSelection();
  ShowCaret();
}

void ListBoxView::EntryAdded(int index) {
  entries_->EntryAdded(index);
  ShowCaret();
}

void ListBoxView::EntryRemoved(int index) {
  entries_->EntryRemoved(index);
  ShowCaret();
}

void ListBoxView::EntriesCleared() { entries_->EntriesCleared(); }

void ListBoxView::mousePressEvent(QMouseEvent* event) {
  const std::int16_t button = ButtonOf(*event);
  const QModelIndex entry = indexAt(event->position().toPoint());
  const bool isAnotherHeld = event->buttons() != event->button();
  if (button == 0 || isAnotherHeld || !entry.isValid()) return;
  Release(pressed_);
  pressed_ = button;
  Perform([&] { widget_.UserMouseDown(static_cast<std::int16_t>(entry.row()), button); });
}

void ListBoxView::mouseMoveEvent(QMouseEvent* event) {
  if (pressed_ != ListBox::kLeftButton) return;
  if (!(event->buttons() & Qt::LeftButton)) {
    // It went up while something else had the mouse.
    Release(pressed_);
  } else if (event->buttons() == Qt::LeftButton) {
    DragTo(event->position().toPoint());
  }
}

void ListBoxView::mouseReleaseEvent(QMouseEvent* event) {
  if (const std::int16_t button = ButtonOf(*event); button != 0 && button == pressed_) Release(button);
}

void ListBoxView::DragTo(QPoint position) {
  pointer_ = position;
  const QRect area = viewport()->rect();
  const bool isOutside = position.y() < area.top() || position.y() > area.bottom();
  if (!isOutside) scrolling_.stop();
  if (isOutside && !scrolling_.isActive()) scrolling_.start();

  const QModelIndex under = indexAt({area.center().x(), std::clamp(position.y(), area.top(), area.bottom())});
  const int entry = under.isValid() ? under.row() : widget_.ListCount() - 1;
  Perform([&] { widget_.UserMouseMove(static_cast<std::int16_t>(entry)); });
}

void ListBoxView::ScrollDrag() {
  // Where another window has taken the mouse, no release comes.
  const QWidget* const modal = QApplication::activeModalWidget();
  if (modal && modal != window()) return Release(pressed_);
  QScrollBar& bar = *verticalScrollBar();
  bar.setValue(bar.value() + (pointer_.y() < 0 ? -1 : 1));
  DragTo(pointer_);
}

void ListBoxView::Release(std::int16_t button) {
  if (pressed_ == 0) return;
  pressed_ = 0;
  scrolling_.stop();
  Perform([&] { widget_.UserMouseUp(button); });
}

void ListBoxView::ReleaseLater() {
  if (pressed_ == 0) return;
  scrolling_.stop();
  // Not at once: what disables the list may be the handler of the very drag.
  QTimer::singleShot(0, this, [this] { Release(pressed_); });
}

void ListBoxView::keyPressEvent(QKeyEvent* event) {
  if (pressed_ != 0) return;
  struct CaretKey {
    int key;
    CursorAction action;
  };
  static constexpr CaretKey kCaretKeys[] = {
      {Qt::Key_Up, MoveUp},         {Qt::Key_Down, MoveDown},         {Qt::Key_Left, MoveUp},
      {Qt::Key_Right, MoveDown},    {Qt::Key_Home, MoveHome},         {Qt::Key_End, MoveEnd},
      {Qt::Key_PageUp, MovePageUp}, {Qt::Key_PageDown, MovePageDown},
  };
  const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
  const int key = event->key();
  if (modifiers == Qt::AltModifier && (key == Qt::Key_Up || key == Qt::Key_Down)) {
    Perform([&] { widget_.UserDragStep(key == Qt::Key_Up ? -1 : 1); });
    return;
  }
  if (modifiers & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) {
    event->ignore();
    return;
  }
  if (key == Qt::Key_Space) {
    Perform([&] { widget_.UserToggle(); });
    return;
  }
  const auto caret =
      std::find_if(std::begin(kCaretKeys), std::end(kCaretKeys), [&](const CaretKey& row) { return row.key == key; });
  if (caret != std::end(kCaretKeys)) {
    MoveCaret(moveCursor(caret->action, Qt::NoModifier));
  } else if (!event->text().isEmpty() && event->text().at(0).isPrint()) {
    keyboardSearch(event->text());
  } else {
    event->ignore();
  }
}

void ListBoxView::keyboardSearch(const QString& text) {
  const int count = widget_.ListCount();
  if (count == 0) return;
  const QModelIndex next = entries_->index((widget_.ListIndex() + 1) % count);
  const QModelIndexList found = entries_->match(next, Qt::DisplayRole, text, 1, Qt::MatchStartsWith | Qt::MatchWrap);
  if (!found.isEmpty()) MoveCaret(found.front());
}

void ListBoxView::MoveCaret(const QModelIndex& entry) {
  if (entry.isValid()) Perform([&] { widget_.UserMoveCaret(static_cast<std::int16_t>(entry.row())); });
}

void ListBoxView::focusInEvent(QFocusEvent* event) {
  QListView::focusInEvent(event);
  // Qt gives the focused list a current entry by itself.
  ShowCaret();
}

void ListBoxView::changeEvent(QEvent* event) {
  QListView::changeEvent(event);
  if (event->type() == QEvent::EnabledChange && !isEnabled()) ReleaseLater();
}

void ListBoxView::hideEvent(QHideEvent* event) {
  QListView::hideEvent(event);
  ReleaseLater();
}

void ListBoxView::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  if (!hasFocus()) return;
  // There may be no caret to show it.
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::Highlight));
  painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}

void ListBoxView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QListView::selectionChanged(selected, deselected);
  // An entry has gone, and its row is to follow.
  if (entries_->rowCount() != widget_.ListCount()) return;
  for (const QItemSelection* const changed : {&selected, &deselected}) {
    for (const QItemSelectionRange& range : *changed) {
      for (int row = range.top(); row <= range.bottom(); ++row) {
        const auto entry = static_cast<std::int16_t>(row);
        if (widget_.Selected(entry) == (changed == &selected)) continue;
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
    selectionModel()->clearCurrentIndex();
    return;
  }
  selectionModel()->setCurrentIndex(caret, QItemSelectionModel::NoUpdate);
  // Under the pointer nothing is to slip away.
  if (pressed_ == 0) scrollTo(caret);
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
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

}  // namespace ORXKMPrintProp::qt
