#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>

#include "host/Driver.h"

namespace ORXKMPrintProp::host {

struct DriveOptions {
  std::string settings;              ///< path of the settings document
  std::optional<std::string> texts;  ///< path of the document whose text table is used instead
  bool readOnly = false;
  std::string script = "-";  ///< path of the script
};

template <class AnyDriver>
std::unique_ptr<Driver> MakeDriver(std::ostream& out) {
  return std::make_unique<AnyDriver>(out);
}

/// Loads settings into a control and does to it, without a window unless the driver has one, what each line of the
/// script says. Everything that happens is one JSON object a line on `out`.
/// @return an ExitStatus: kUsage when a line is not understood, which `err` tells before anything is carried out.
/// @throws DocumentError when a file can't be read, before anything is carried out.
int Drive(const DriveOptions& options, std::ostream& out, std::ostream& err,
          std::unique_ptr<Driver> (*makeDriver)(std::ostream& out) = MakeDriver<Driver>);

}  // namespace ORXKMPrintProp::host
