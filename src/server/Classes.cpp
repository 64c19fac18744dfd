#include "server/Classes.h"

#include <ole2.h>
// Makes the interface's header define the numbers that it names, which is to happen in one place.
#include <initguid.h>

#include "ORXKMPrintProp.h"
#include "control/SharedValues.h"
#include "server/ControlObject.h"
#include "server/EnumsObject.h"
#include "server/InPlaceControl.h"

namespace ORXKMPrintProp::server {
namespace {

IUnknown* MakeControl() { return static_cast<_ORXQueryPrnProp*>(new ControlObject); }
IUnknown* MakeEnums() { return static_cast<_PrnEnums*>(new EnumsObject); }

/// A designer lists the control by these and shows its picture; containers ask for the rest ahead of making one.
constexpr automation::ClassEntry kControlEntries[] = {
    {L"Control", L""},
    {L"MiscStatus", L"0"},
    {L"MiscStatus\\1", kMiscStatusText},
    {L"ToolboxBitmap32", L", 1", true},
    {L"Verb\\0", L"&Edit,0,2"},
    {L"Implemented Categories\\{40FC6ED4-2438-11CF-A3DB-080036F12502}", L""},  // controls
    {L"Implemented Categories\\{40FC6ED5-2438-11CF-A3DB-080036F12502}", L""},  // what can be called late-bound
};

}  // namespace

const automation::InProcServer& Server() {
  static const automation::ServerClass classes[] = {
      {__uuidof(::ORXQueryPrnProp), L"ORXKMPrintProp.ORXQueryPrnProp", L"Batch-print settings of a query", MakeControl,
       kControlEntries},
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
