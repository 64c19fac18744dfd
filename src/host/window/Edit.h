#pragma once

#include <memory>

class QApplication;

namespace ORXKMPrintProp::qt {
class QtPlatform;
}

namespace ORXKMPrintProp::host {

struct EditOptions;
class EditedSettings;
class SettingsWindow;
class Translation;

/// The program of a document that is edited in a window.
class EditProgram {
 public:
  /// @throws LoadError where there is no display.
  EditProgram();
  EditProgram(const EditProgram&) = delete;
  EditProgram& operator=(const EditProgram&) = delete;
  ~EditProgram();

  /// Makes the window.
  /// @throws DocumentError for a document that can't be read, or could not be saved where it is to be; LoadError for
  /// one that does not load.
  void Open(const EditOptions& options);
  SettingsWindow& Window() { return *window_; }
  /// Shows the window, and ends when the user has closed it. @return 0
  int Run();

 private:
  int argc_ = 1;
  char name_[8] = "prnprop";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
  std::unique_ptr<Translation> translation_;
  std::unique_ptr<qt::QtPlatform> platform_;
  std::unique_ptr<EditedSettings> settings_;
  std::unique_ptr<SettingsWindow> window_;
};

/// Opens the document in a window, and ends when the user has closed it. What fails is told on standard error and then,
/// where nobody sees that, in a message box. @return an ExitStatus
/// @throws LoadError where there is no display.
int Edit(const EditOptions& options);

}  // namespace ORXKMPrintProp::host
