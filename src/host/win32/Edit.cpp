#include "host/win32/Edit.h"

#include <windows.h>

#include <memory>
#include <system_error>

#include "host/ExitStatus.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/Program.h"
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
  std::unique_ptr<EditedSettings> settings;
  try {
    settings = std::make_unique<EditedSettings>(ToEdit(options), win32::WindowsPlatform::Instance());
  } catch (const std::exception& error) {
    // Ahead of the box, which may stand there for long.
    const int status = TellFailure(error);
    if (!isSeen) Tell(error.what());
    return status;
  }
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
