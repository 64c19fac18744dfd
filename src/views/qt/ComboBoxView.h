#pragma once

#include <QComboBox>

#include "views/Keys.h"
#include "views/qt/EntryModel.h"
#include "views/qt/WidgetView.h"

namespace ORXKMPrintProp::qt {

/// A field with the list of entries that opens from it.
class ComboBoxView : public ViewOf<QComboBox, ComboBox> {
 public:
  ComboBoxView(ComboBox& combo, const Reports& reports, QWidget* parent);
  void Refresh() override;
  void Show(WidgetProperty what) override;
  void EntryChanged(int, EntryProperty) override { entries_->EntriesChanged(); }
  void EntryAdded(int) override { entries_->EntriesChanged(); }
  void EntryRemoved(int) override { entries_->EntriesChanged(); }
  void EntriesCleared() override { entries_->EntriesChanged(); }
  std::optional<views::TextRoom> RoomOf(TextView text, int tab) const override;
  void showPopup() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void initStyleOption(QStyleOptionComboBox* option) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  int FieldWidth(const QStyleOptionComboBox& option) const;
  /// Qt picks an entry by itself when entries come and go.
  void ShowPicked();

  EntryModel* entries_;
  views::TypeAhead search_;
};

}  // namespace ORXKMPrintProp::qt
