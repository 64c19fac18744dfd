#include "host/Load.h"

#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "host/Terminal.h"
#include "host/Utf8.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::host {
namespace {

[[noreturn]] void Fail(const SettingsDocument& document, TextView words) {
  throw LoadError(OneLine(document.file + ": the load fails: " + ToUtf8(words)));
}

}  // namespace

void LoadAndReadBack(const SettingsDocument& document) {
  const SharedValuesGuard guard;
  ORXQueryPrnProp control;
  try {
    if (!control.ORXSetPrnTables(document.general, document.dimension, document.member, document.attribute)) {
      Fail(document, gErrorText);
    }
    // Any of the four reads rewrites all tables.
    if (!control.ORXGenPropTable()) Fail(document, u"the tables could not be read back");
  } catch (const RunTimeError& error) {
    Fail(document, error.Message());
  }
}

}  // namespace ORXKMPrintProp::host
