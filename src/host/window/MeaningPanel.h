#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

#include "host/Snapshot.h"

class QLabel;
class QPushButton;
class QTabWidget;

namespace ORXKMPrintProp::host {

class ChangesView;
class ComparedView;
class PagePanel;

/// Shows what the settings mean: a sketch of the page, what has changed since the file in plain words, and the four
/// tables as they are read back with the cells marked that are others than in the file. It shows what it is given and
/// reads nothing itself.
class MeaningPanel : public QWidget {
 public:
  /// @param read reads the settings back, and shows here what they are now. @return whether they could be read
  explicit MeaningPanel(std::function<bool()> read, QWidget* parent = nullptr);

  void Show(const Snapshot& file, const Snapshot& now);
  /// Tells whether the user has changed something since.
  void SetStale(bool isStale);

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void MakeTabs();
  /// What can't be seen is computed when it can.
  void Fill();
  void FillTable(std::size_t table);
  /// A table comes to the front with the first of its marks in sight; the changes are worked out when they do.
  void ShowFront();
  ComparedView* FrontTable() const;
  /// Brings the next cell that differs to the front, or the one before, in whichever table that is.
  void GoToMark(bool forward);

  std::function<bool()> read_;
  QLabel* state_;
  QPushButton* refresh_;
  QTabWidget* tabs_ = nullptr;  ///< none until the panel has been seen
  PagePanel* page_ = nullptr;
  ChangesView* changes_ = nullptr;
  std::vector<ComparedView*> views_;
  QPushButton* next_ = nullptr;
  bool isFilled_ = false;
  bool isStale_ = false;
  bool areChangesTold_ = false;  ///< since the tables were shown
  Snapshot file_;
  Snapshot now_;
};

}  // namespace ORXKMPrintProp::host
