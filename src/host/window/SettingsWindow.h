#pragma once

#include <QKeySequence>
#include <QList>
#include <QPointer>
#include <QWidget>

#include "host/editor/Editor.h"

class QPushButton;
class QScrollArea;

namespace ORXKMPrintProp::qt {
class PrnPropView;
}

namespace ORXKMPrintProp::host {

class MeaningPanel;
class OrderButtons;
class StatusLine;

/// The dialog with what a host adds to it: OK, Cancel and Apply, Undo, Redo and Revert, the editor of layouts, a panel
/// that shows what the settings mean, and a line that tells what has come of what the user does.
class SettingsWindow : public QWidget, private EditorWindow {
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
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowMeaning(const Snapshot& file, const Snapshot& now) override;
  void ShowState(const EditorState& state) override;
  Choice Ask(const Question& question) override;
  std::optional<Text> EditLayout(const Text& name, const Text& layout, bool readOnly) override;
  std::optional<std::string> PickFile(FileUse use, const std::string& proposed) override;
  RecentFiles Remembered() override;
  void Remember(const RecentFiles& files) override;
  void Focus(const Widget& widget) override;

  QWidget* MakeButtons();
  QPushButton* MakeStepButton(const QString& objectName, const QString& name, char16_t sign,
                              const QList<QKeySequence>& keys, void (Editor::*step)());
  /// A button that is disabled under the focus gives it back to the dialog.
  void SetEnabled(QPushButton& button, bool enabled);
  void Fold(bool unfold);
  /// As the user has left the last one.
  void TakeRememberedSize();
  void BoundDialog();
  void Accept();

  Editor editor_;
  qt::PrnPropView* view_;
  MeaningPanel* panel_;
  QScrollArea* dialog_;  ///< the view in it
  OrderButtons* order_;
  StatusLine* status_;
  QPushButton* preview_ = nullptr;
  QPushButton* apply_ = nullptr;
  QPushButton* undo_ = nullptr;
  QPushButton* redo_ = nullptr;
  QPushButton* revert_ = nullptr;
  QPointer<QWidget> lastFocus_;  ///< in the dialog
  int unfoldedWidth_ = 0;
  QSize room_{QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
};

}  // namespace ORXKMPrintProp::host
