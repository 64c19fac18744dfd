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

/// The program of a document that is edited in a window.
class EditProgram {
 public:
  /// Makes the window. Where nobody sees standard error, a message box first says what is thrown here.
  /// @throws DocumentError for a document that can't be read, or could not be saved; LoadError for one that does not
  /// load, and where there is no display.
  explicit EditProgram(const EditOptions& options);
  EditProgram(const EditProgram&) = delete;
  EditProgram& operator=(const EditProgram&) = delete;
  ~EditProgram();

  SettingsWindow& Window() { return *window_; }
  /// Shows the window, and ends when the user has closed it. @return 0
  int Run();

 private:
  int argc_ = 1;
  char name_[8] = "prnprop";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
  std::unique_ptr<qt::QtPlatform> platform_;
  std::unique_ptr<EditedSettings> settings_;
  std::unique_ptr<SettingsWindow> window_;
};

}  // namespace ORXKMPrintProp::host
