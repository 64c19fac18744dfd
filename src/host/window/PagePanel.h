#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "host/Snapshot.h"

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QPushButton;

namespace ORXKMPrintProp::host {

class Follower;
class PageArea;
class PageSketchView;

/// A sketch of the page, in the size that the user likes, on the screen, in a PDF file or on a printer; and whether it
/// follows what he changes. Size and following are remembered.
class PagePanel : public QWidget {
 public:
  /// @param read reads the settings back; what they are now is shown here before it returns. False where that failed.
  /// @param parent which shows all of what the settings mean
  PagePanel(std::function<bool()> read, QWidget* parent);

  void Show(const Snapshot& readBack);
  /// Tells whether the user has changed something since.
  void SetStale(bool isStale);
  /// What takes the focus, in the order of Tab.
  std::vector<QWidget*> InTabOrder() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QPushButton* MakeButton(const QString& caption, const QString& name, const QString& tip, std::function<void()> press);
  QBoxLayout* MakeControls();
  void MakeShortcuts();
  void ShowZoom();
  /// By so many steps.
  void ZoomBy(int steps);
  void SavePdf();
  void Print();
  void Tell(const QString& what, const QString& why);

  std::function<bool()> read_;
  PageSketchView* sketch_;
  PageArea* area_;
  Follower* follower_;
  QPushButton* smaller_ = nullptr;
  QComboBox* zoom_ = nullptr;
  QPushButton* larger_ = nullptr;
  QCheckBox* follow_ = nullptr;
  QPushButton* pdf_ = nullptr;
  QPushButton* print_ = nullptr;
  QBoxLayout* controls_ = nullptr;
  int controlsWidth_ = 0;  ///< that they need beside each other
};

}  // namespace ORXKMPrintProp::host
