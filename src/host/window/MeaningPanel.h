#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

#include "host/Snapshot.h"

class QLabel;
class QPushButton;
class QTableView;
class QTabWidget;

namespace ORXKMPrintProp::host {

class ComparedModel;
class PageSketchView;

/// Shows what the settings mean: a sketch of the page, and the four tables as they are read back with the cells
/// marked that are others than in the file. It shows what it is given and reads nothing itself.
class MeaningPanel : public QWidget {
 public:
  /// @param refresh what the button does
  explicit MeaningPanel(std::function<void()> refresh, QWidget* parent = nullptr);

  void Show(const Snapshot& file, const Snapshot& now);
  /// Tells whether the user has changed something since.
  /// @param note what is to be told beside it, empty for nothing
  void SetState(bool isStale, const QString& note);

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void MakeTabs();
  /// What can't be seen is computed when it can.
  void Fill();
  void FillTable(std::size_t table);
  /// A table comes to the front with the first of its marks in sight.
  void ShowFront();

  QLabel* state_;
  QPushButton* refresh_;
  QTabWidget* tabs_ = nullptr;  ///< none until the panel has been seen
  PageSketchView* sketch_ = nullptr;
  std::vector<ComparedModel*> models_;
  std::vector<QTableView*> views_;
  bool isFilled_ = false;
  Snapshot file_;
  Snapshot now_;
};

}  // namespace ORXKMPrintProp::host
