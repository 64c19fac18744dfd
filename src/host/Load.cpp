#include "host/Load.h"

#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "host/Terminal.h"
#include "host/Utf8.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::host {

LoadError::LoadError(const SettingsDocument& document, TextView words)
    : std::runtime_error(OneLine(document.file + ": the load fails: " + ToUtf8(words))) {}

void LoadAndReadBack(const SettingsDocument& document) {
  const SharedValuesGuard guard;
  ORXQueryPrnProp control;
  try {
    if (!control.ORXSetPrnTables(document.general, document.dimension, document.member, document.attribute)) {
      throw LoadError(document, gErrorText);
    }
    // Any of the four reads rewrites all tables.
    if (!control.ORXGenPropTable()) throw LoadError(document, u"the tables could not be read back");
  } catch (const RunTimeError& error) {
    throw LoadError(document, error.Message());
  }
}

}  // namespace ORXKMPrintProp::host
