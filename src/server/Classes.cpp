#include "server/Classes.h"

#include <ole2.h>
// What stands first here is where the numbers of the interface are defined.
#include <initguid.h>

#include "ORXKMPrintProp.h"
#include "control/SharedValues.h"
#include "server/ControlObject.h"
#include "server/EnumsObject.h"

namespace ORXKMPrintProp::server {
namespace {

// The host's objects that the shared values hold must not outlive what is its own.
const bool kReleasesSharedValues = [] {
  automation::LiveObjects::onLastOfThread = ReleaseSharedValues;
  return true;
}();

IUnknown* MakeControl() { return static_cast<_ORXQueryPrnProp*>(new ControlObject); }
IUnknown* MakeEnums() { return static_cast<_PrnEnums*>(new EnumsObject); }

}  // namespace

const automation::InProcServer& Server() {
  static const automation::ServerClass classes[] = {
      {__uuidof(::ORXQueryPrnProp), L"ORXKMPrintProp.ORXQueryPrnProp", L"Batch-print settings of a query", MakeControl},
      {__uuidof(::PrnEnums), L"ORXKMPrintProp.PrnEnums", L"Enumerations of batch-print settings", MakeEnums},
  };
  static const automation::InProcServer server{classes, &LIBID_ORXKMPrintProp};
  return server;
}

}  // namespace ORXKMPrintProp::server
