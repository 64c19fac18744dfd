#pragma once

#include <QListView>
#include <QTimer>

#include "views/Keys.h"
#include "views/ListPointer.h"
#include "views/qt/EntryModel.h"
#include "views/qt/WidgetView.h"

namespace ORXKMPrintProp::qt {

/// Selection and caret are those of the ListBox. Qt's selection model follows them, for screen readers; what these
/// change in it is taken for the user's hand.
class ListBoxView : public ViewOf<QListView, ListBox>, private views::ListGlass {
 public:
  ListBoxView(ListBox& list, const Reports& reports, QWidget* parent);
  void Refresh() override;
  void Show(WidgetProperty what) override;
  void EntryChanged(int index, EntryProperty what) override;
  void EntryAdded(int) override { entries_->EntriesChanged(); }
  void EntryRemoved(int) override { entries_->EntriesChanged(); }
  void EntriesCleared() override { entries_->EntriesChanged(); }
  /// The caret is seen without the focus, too.
  void ShowCaretAlways(bool always);
  bool IsCaretShown() const { return isCaretShown_ || hasFocus(); }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyboardSearch(const QString& text) override;
  void focusInEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

 private:
  int Height() const override { return viewport()->height(); }
  int EntryAt(int y) const override;
  void ScrollBy(int step) override;
  void RunTimer(bool on) override;
  void ReleaseLater() override;
  void Perform(const std::function<void()>& action) override { WidgetView::Perform(action); }

  void ShowCaret();
  void ShowSelection();

  EntryModel* entries_;
  int shownCaret_ = -1;
  bool isCaretShown_ = false;
  QTimer scrolling_;
  views::ListKeys keys_;
  views::ListPointer pointer_{widget_, *this};
};

}  // namespace ORXKMPrintProp::qt
