#include "FirstPaint.h"
#include "host/editor/EditedSettings.h"
#include "host/window/Edit.h"
#include "host/window/SettingsWindow.h"

/// What `prnprop edit` does until its first paint.
/// edit_window DOCUMENT
int main(int argc, char** argv) {
  using namespace ORXKMPrintProp::host;
  if (argc != 2) return 2;
  EditProgram program;
  program.Open({.file = argv[1]});
  new ORXKMPrintProp::bench::ExitAfterFirstPaint(program.Window());
  return program.Run();
}
