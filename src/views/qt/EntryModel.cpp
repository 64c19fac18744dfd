#include "views/qt/EntryModel.h"

#include "views/Fitting.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt {

EntryModel::EntryModel(const EntryWidget& widget, QObject* parent)
    : QAbstractListModel(parent), widget_(widget), rows_(widget.ListCount()) {}

QVariant EntryModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !index.isValid() || index.row() >= widget_.ListCount()) return {};
  return ToQString(views::OnOneLine(widget_.List(static_cast<std::int16_t>(index.row()))));
}

void EntryModel::EntryAdded(int index) {
  beginInsertRows({}, index, index);
  ++rows_;
  endInsertRows();
}

void EntryModel::EntryRemoved(int index) {
  beginRemoveRows({}, index, index);
  --rows_;
  endRemoveRows();
}

void EntryModel::EntriesCleared() {
  beginResetModel();
  rows_ = 0;
  endResetModel();
}

void EntryModel::EntryChanged(int index) { emit dataChanged(this->index(index), this->index(index)); }

void EntryModel::EntriesChanged() {
  if (rows_ > 0) emit dataChanged(index(0), index(rows_ - 1));
}

}  // namespace ORXKMPrintProp::qt
