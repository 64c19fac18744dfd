#include "host/editor/WindowCommands.h"
#include "host/window/Edit.h"
#include "host/window/Measure.h"
#include "host/window/Shot.h"

int main(int argc, char** argv) {
  using namespace ORXKMPrintProp::host;
  return RunProgram(argc, argv, {.edit = Edit, .shot = Shot, .measure = Measure});
}
