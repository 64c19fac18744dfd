#pragma once

#include <QAbstractListModel>
#include <functional>

#include "dialog/Lists.h"

namespace ORXKMPrintProp::qt {

/// The entries of a list or combo box as rows. What changes in the widget is shown once for all of a change: when Qt's
/// events are dealt with next, or at `CatchUp`. Until then there are the rows of before, whose texts are those of now.
class EntryModel : public QAbstractListModel {
 public:
  /// @param widget must outlive it.
  /// @param showRest shows what is no row's own, as soon as the rows are those of the widget.
  /// @param parent as for any object.
  EntryModel(const EntryWidget& widget, std::function<void()> showRest, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  QVariant data(const QModelIndex& index, int role) const override;

  /// Entries have come or gone, or have another text.
  void EntriesChanged();
  /// Selection or `ListIndex`.
  void RestChanged();
  void CatchUp();
  /// Nothing waits to be shown.
  bool IsCaughtUp() const { return !isBehind_; }

 private:
  const EntryWidget& widget_;
  std::function<void()> showRest_;
  int rows_ = 0;
  bool isBehind_ = false;
  bool areRowsBehind_ = false;
};

}  // namespace ORXKMPrintProp::qt
