#pragma once

#include <QTableView>

#include "host/window/ComparedModel.h"

namespace ORXKMPrintProp::host {

/// Shows a compared table. A cell that differs and is too narrow for its text shows the part that differs.
class ComparedView : public QTableView {
 public:
  explicit ComparedView(QWidget* parent = nullptr);

  void Show(ComparedTable table) { model_.Show(std::move(table)); }
  bool HasMarks() const { return model_.Mark().isValid(); }
  /// Fits the columns, and brings the first of the marks in sight.
  void ComeToFront();
  /// The next cell that differs, or the one before, from the current one on or from none; not valid behind the last.
  QModelIndex MarkFrom(bool current, bool forward) const {
    return model_.Mark(current ? currentIndex() : QModelIndex(), forward);
  }

 private:
  ComparedModel model_;
};

}  // namespace ORXKMPrintProp::host
