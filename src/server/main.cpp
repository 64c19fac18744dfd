// The entry points of ORXKMPrintProp.dll.

#include "automation/InProcServer.h"
#include "server/Classes.h"

using ORXKMPrintProp::automation::InProcServer;
using ORXKMPrintProp::server::Server;

STDAPI DllGetClassObject(REFCLSID id, REFIID interfaceId, void** result) {
  return Server().GetClassObject(id, interfaceId, result);
}
STDAPI DllCanUnloadNow() { return InProcServer::CanUnloadNow(); }
STDAPI DllRegisterServer() { return Server().Register(); }
STDAPI DllUnregisterServer() { return Server().Unregister(); }
