#include "host/win32/Edit.h"

#include <windows.h>

#include <system_error>

#include "host/ExitStatus.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/win32/Apartment.h"
#include "host/win32/EditWindow.h"
#include "host/win32/QuestionBox.h"
#include "views/win32/WindowsPlatform.h"

namespace ORXKMPrintProp::host {
namespace {

/// A console that was opened for this program alone would lie beside its window, and take the settings with it when it
/// is closed. @return whether there was one.
bool LeaveOwnConsole() {
  DWORD processes[2]{};
  return ::GetConsoleProcessList(processes, 2) == 1 && ::FreeConsole();
}

/// To somebody who has started the program from the desktop and sees no standard error.
void Tell(const std::string& words) { AskIn(nullptr, {.text = words, .further = {}}); }

}  // namespace

int Edit(const EditOptions& options) {
  const Apartment apartment;
  const bool isSeen = !LeaveOwnConsole() && IsTerminal(stderr);
  const auto& platform = win32::WindowsPlatform::Instance();
  const auto settings = isSeen ? OpenToEdit(options, platform, {}) : OpenToEdit(options, platform, Tell);
  try {
    EditWindow window(*settings);
    window.Show();
    window.Run();
  } catch (const std::system_error&) {
    throw LoadError("there is no display to open a window on");
  }
  return kSuccess;
}

}  // namespace ORXKMPrintProp::host
