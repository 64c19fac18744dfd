#pragma once

#include <QStringList>
#include <QWidget>
#include <cstdint>
#include <vector>

#include "control/ORXQueryPrnProp.h"

class QPushButton;
class QScrollArea;

namespace ORXKMPrintProp::qt {
class PrnPropView;
}

namespace ORXKMPrintProp::host {

class EditedSettings;
class MeaningPanel;

/// The dialog with what a host adds to it: OK, Cancel and Apply, the editor of layouts, and a panel that shows what
/// the settings mean.
///
/// Whether something has changed, only a read of the tables can tell, and a read commits the page on top. So the
/// window reads where a commit is due anyway: after a change of the tab, after ORXOrderChanged, at OK, Apply, Cancel
/// and close, and when the user asks for it by Refresh. In between, any input that can change a setting counts as a
/// change, until the next read knows better.
class SettingsWindow : public QWidget, private ORXQueryPrnPropEvents {
 public:
  /// @param settings must outlive the window.
  explicit SettingsWindow(EditedSettings& settings, QWidget* parent = nullptr);
  ~SettingsWindow() override;

  /// Keeps the window within that, also when the panel unfolds. Where there is room for the dialog alone, the panel
  /// folds; where there is none for the whole dialog, it scrolls.
  void FitInto(const QSize& room);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) override;
  void ORXOrderChanged() override;

  QWidget* MakeButtons();
  void Fold(bool unfold);
  void BoundDialog();
  void OnUsed(const Widget& widget);
  std::vector<std::int32_t> PrintOrder() const;
  void MarkEdited();
  /// Reads now, or when the user's action has come to its end. @return whether the tables could be read.
  bool Read();
  void ReadLater();
  void ShowMeaning();
  void ShowState();
  /// A line for each field of the dialog in which the user has typed what is no number.
  QStringList NotStored() const;

  void Accept();
  /// @return whether the target holds the settings now.
  bool Save();
  bool AcceptsFields();
  bool AcceptsLosses();
  bool AcceptsOvertaking();
  bool MayClose();
  void Tell(const QString& what, const QString& why);

  EditedSettings& settings_;
  qt::PrnPropView* view_;
  MeaningPanel* panel_;
  QScrollArea* dialog_;  ///< the view in it
  QPushButton* preview_ = nullptr;
  QPushButton* apply_ = nullptr;
  int unfoldedWidth_ = 0;
  QSize room_{QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
  std::vector<std::int32_t> printOrder_;  ///< as the user has left it
  bool isEdited_ = false;                 ///< by the user, since the last read
  bool isTouched_ = false;                ///< the same since the last save
  bool isDone_ = false;
};

}  // namespace ORXKMPrintProp::host
