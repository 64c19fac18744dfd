#include "host/Readback.h"

#include <ostream>

#include "host/Files.h"
#include "host/Load.h"
#include "host/SettingsDocument.h"

namespace ORXKMPrintProp::host {

void Readback(const std::string& path, const std::string& outPath, std::ostream& out) {
  const SettingsDocument document = ReadSettings(path);
  LoadAndReadBack(document);
  if (outPath == kStandardStream) {
    out << ToJson(document);
  } else {
    SaveFile(outPath, ToJson(document));
  }
}

}  // namespace ORXKMPrintProp::host
