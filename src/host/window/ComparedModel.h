#pragma once

#include <QAbstractTableModel>

#include "host/editor/ComparedTable.h"

namespace ORXKMPrintProp::host {

/// A compared table for a table view. Cells that differ have another background, and tell in their tooltip what the
/// file says; rows of the file that are gone are struck out.
class ComparedModel : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void Show(ComparedTable table);
  /// The first cell that differs; not valid when there is none.
  const QPersistentModelIndex& FirstMark() const { return firstMark_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

 private:
  ComparedTable table_;
  QPersistentModelIndex firstMark_;
};

}  // namespace ORXKMPrintProp::host
