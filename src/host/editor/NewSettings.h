#pragma once

#include "host/SettingsDocument.h"

namespace ORXKMPrintProp::host {

/// What an editor begins with that is given no file: a small example, of which messages speak as "new settings".
SettingsDocument NewSettings();

}  // namespace ORXKMPrintProp::host
