#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "host/window/Snapshot.h"

class QLabel;
class QPushButton;
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
  /// Tells that the user has changed something since.
  void SetStale(bool stale);
  bool IsStale() const { return isStale_; }

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void MakeTabs();
  /// What can't be seen is computed when it comes to the front.
  void FillFront();
  void Fill(std::size_t tab);

  QLabel* state_;
  QPushButton* refresh_;
  QTabWidget* tabs_ = nullptr;  ///< none until the panel has been seen
  PageSketchView* sketch_ = nullptr;
  std::vector<ComparedModel*> models_;
  std::vector<bool> isFilled_;  ///< by tab
  Snapshot file_;
  Snapshot now_;
  bool isStale_ = false;
};

}  // namespace ORXKMPrintProp::host
