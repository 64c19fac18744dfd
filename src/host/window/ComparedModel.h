#pragma once

#include <QAbstractTableModel>

#include "host/editor/ComparedTable.h"

namespace ORXKMPrintProp::host {

/// A compared table for a table view. Cells that differ bear a mark and have another background; what the file says
/// stands in their tooltip and in what assistive programs are told. Rows of the file that are gone are struck out.
class ComparedModel : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void Show(ComparedTable table);
  /// The next cell that differs, or the one before, from none on the first or the last; not valid when there is none.
  QModelIndex Mark(const QModelIndex& from = {}, bool forward = true) const;
  /// What is seen of a cell that is too narrow for its text.
  QString CutText(const QModelIndex& index) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

 private:
  ComparedTable table_;
};

}  // namespace ORXKMPrintProp::host
