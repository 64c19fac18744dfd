#include "server/Classes.h"

#include <ole2.h>
// Makes the interface's header define the numbers that it names, which is to happen in one place.
#include <initguid.h>

#include "ORXKMPrintProp.h"
#include "control/SharedValues.h"
#include "server/ControlObject.h"
#include "server/EnumsObject.h"

namespace ORXKMPrintProp::server {
namespace {

IUnknown* MakeControl() { return static_cast<_ORXQueryPrnProp*>(new ControlObject); }
IUnknown* MakeEnums() { return static_cast<_PrnEnums*>(new EnumsObject); }

}  // namespace

const automation::InProcServer& Server() {
  static const automation::ServerClass classes[] = {
      {__uuidof(::ORXQueryPrnProp), L"ORXKMPrintProp.ORXQueryPrnProp", L"Batch-print settings of a query", MakeControl},
      {__uuidof(::PrnEnums), L"ORXKMPrintProp.PrnEnums", L"Enumerations of batch-print settings", MakeEnums},
  };
  static const automation::InProcServer server = [] {
    // The host's objects that the shared values hold must not outlive the last of ours.
    automation::LiveObjects::onLastOfThread = ReleaseSharedValues;
    return automation::InProcServer{classes, &LIBID_ORXKMPrintProp};
  }();
  return server;
}

}  // namespace ORXKMPrintProp::server
