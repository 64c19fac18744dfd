#include "views/qt/EntryModel.h"

#include <utility>

#include "views/Fitting.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt {

EntryModel::EntryModel(const EntryWidget& widget, std::function<void()> showRest, QObject* parent)
    : QAbstractListModel(parent), widget_(widget), showRest_(std::move(showRest)) {
  EntriesChanged();
}

QVariant EntryModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !index.isValid() || index.row() >= widget_.ListCount()) return {};
  return ToQString(views::OnOneLine(widget_.List(static_cast<std::int16_t>(index.row()))));
}

void EntryModel::EntriesChanged() {
  areRowsBehind_ = true;
  RestChanged();
}

void EntryModel::RestChanged() {
  if (std::exchange(isBehind_, true)) return;
  QMetaObject::invokeMethod(
      this, [this] { CatchUp(); }, Qt::QueuedConnection);
}

void EntryModel::CatchUp() {
  if (!std::exchange(isBehind_, false)) return;
  if (std::exchange(areRowsBehind_, false)) {
    beginResetModel();
    rows_ = widget_.ListCount();
    endResetModel();
  }
  showRest_();
}

}  // namespace ORXKMPrintProp::qt
