#pragma once

#include <QAbstractListModel>

#include "dialog/Lists.h"

namespace ORXKMPrintProp::qt {

/// The entries of a list or combo box as rows. It hears of a change when the widget has changed already, so between
/// the two it knows one row more or less than the widget has entries.
class EntryModel : public QAbstractListModel {
 public:
  EntryModel(const EntryWidget& widget, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  QVariant data(const QModelIndex& index, int role) const override;

  void EntryAdded(int index);
  void EntryRemoved(int index);
  void EntriesCleared();
  /// Its text or its selection.
  void EntryChanged(int index);
  /// Any of them.
  void EntriesChanged();

 private:
  const EntryWidget& widget_;
  int rows_;
};

}  // namespace ORXKMPrintProp::qt
