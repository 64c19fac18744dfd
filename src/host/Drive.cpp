#include "host/Drive.h"

#include <ostream>
#include <vector>

#include "host/ExitStatus.h"

namespace ORXKMPrintProp::host {

int Drive(const DriveOptions& options, std::ostream& out, std::ostream& err,
          std::unique_ptr<Driver> (*makeDriver)(std::ostream& out)) {
  const SettingsDocument settings = ReadSettings(options.settings);
  const MemoryTableRef texts = options.texts ? ReadSettings(*options.texts).texts : settings.texts;

  const std::unique_ptr<Driver> driver = makeDriver(out);
  std::vector<ScriptStep> steps;
  try {
    steps = ReadScript(options.script, driver->GetDialog());
  } catch (const ScriptError& error) {
    err << "prnprop: " << error.what() << "\n";
    return kUsage;
  }
  driver->Start(settings, texts, options.readOnly);
  for (const ScriptStep& step : steps) driver->Play(step);
  return kSuccess;
}

}  // namespace ORXKMPrintProp::host
