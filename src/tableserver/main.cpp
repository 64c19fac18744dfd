// The entry points of PrnPropTables.dll.

#include "automation/InProcServer.h"
#include "tableserver/TableObjects.h"

namespace {

using namespace ORXKMPrintProp;

const automation::ServerClass kClasses[] = {
    {{0x1A35406F, 0x79E8, 0x4C0D, {0xBF, 0x75, 0x3B, 0xC8, 0x65, 0x7D, 0x8E, 0x3D}},
     L"PrnPropTables.Table",
     L"Plain table for ORXKMPrintProp",
     [] { return tableserver::MakeTable(MemoryTable::Create({})); }},
};
const automation::InProcServer kServer{kClasses};

}  // namespace

STDAPI DllGetClassObject(REFCLSID id, REFIID interfaceId, void** result) {
  return kServer.GetClassObject(id, interfaceId, result);
}
STDAPI DllCanUnloadNow() { return automation::InProcServer::CanUnloadNow(); }
STDAPI DllRegisterServer() { return kServer.Register(); }
STDAPI DllUnregisterServer() { return kServer.Unregister(); }
