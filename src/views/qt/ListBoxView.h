#pragma once

#include <QListView>
#include <QPoint>
#include <QTimer>

#include "views/qt/EntryModel.h"
#include "views/qt/WidgetView.h"

namespace ORXKMPrintProp::qt {

/// Selection and caret are those of the ListBox. Qt's selection model follows them, for screen readers; what these
/// change in it is taken for the user's hand.
class ListBoxView : public ViewOf<QListView, ListBox> {
 public:
  ListBoxView(ListBox& list, const Reports& reports, QWidget* parent);
  ~ListBoxView() override;
  void Refresh() override;
  void EntryAdded(int index) override;
  void EntryRemoved(int index) override;
  void EntriesCleared() override;

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
  void DragTo(QPoint position);
  void ScrollDrag();
  void Release(std::int16_t button);
  /// A list that is disabled or hidden hears of no button any more.
  void ReleaseLater();
  void MoveCaret(const QModelIndex& entry);
  void ShowCaret();
  void ShowSelection();

  EntryModel* entries_;
  std::int16_t pressed_ = 0;  ///< the button that is held since it went down on an entry, 0 for none
  QPoint pointer_;            ///< where it was last, with the left button held
  QTimer scrolling_;          ///< runs while it is held above or below the list
};

}  // namespace ORXKMPrintProp::qt
