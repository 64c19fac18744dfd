#pragma once

#include <QApplication>

namespace ORXKMPrintProp::host {

/// Whether there is something to open windows on: a display, or a platform that the user has named.
bool HasDisplay();

/// Whether a person may see what the application opens there.
bool IsDisplayed();

/// Makes Qt draw in memory, unless the user has named a platform.
void DrawInMemory();

/// An application that nobody sees, unless the user has named a platform.
class ApplicationInMemory {
 public:
  ApplicationInMemory();

 private:
  int argc_ = 1;
  char name_[8] = "prnprop";
  char* argv_[2] = {name_, nullptr};
  QApplication application_;
};

/// Takes over what Qt says. Where it can't use the display it ends the program, which is then told like any failure,
/// with the status `kLoss`.
/// @param warn its warnings about the desktop still go to standard error.
void TakeQtMessages(bool warn);

}  // namespace ORXKMPrintProp::host
