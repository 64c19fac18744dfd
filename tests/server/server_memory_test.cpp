// Each allocation in the use of the component fails once: nothing goes out but the failure of the call.

#include <gtest/gtest.h>
#include <ocidl.h>

#include "ORXKMPrintProp.h"
#include "automation/ComObject.h"
#include "automation/Variants.h"
#include "control/SharedValues.h"
#include "memory/failing_new.h"
#include "server/Classes.h"
#include "support/loaded.h"
#include "tableserver/TableObjects.h"

namespace ORXKMPrintProp::test {
namespace {

using automation::Bstr;
using automation::ComRef;

ComRef<IDispatch> HostTable(const TableRef& table) {
  auto memory = std::dynamic_pointer_cast<MemoryTable>(table);
  return ComRef<IUnknown>::Taken(tableserver::MakeTable(std::move(memory))).As<IDispatch>();
}

/// What a host does, with the failing allocation, 0 for none. @return how many allocations there were, and
/// whether a call has failed.
std::pair<std::size_t, bool> Play(std::size_t failing) {
  const Settings settings("IOBJNM='A' IOBJTXT='A' AXIS='Y'\nIOBJNM='B' IOBJTXT='B'", "IOBJNM='A' ATTRINM='a'");
  const ComRef<IDispatch> tables[] = {HostTable(settings.gen), HostTable(settings.dim), HostTable(settings.mem),
                                      HostTable(settings.atr)};
  const auto texts = HostTable(TableFrom(Kind::Texts, "TARGETID='ID_PRN_GENERAL' CAPTION='Allgemein'"));
  const Bstr layout(u"<page/>");
  bool hasFailed = false;
  const auto tried = [&](HRESULT result) {
    hasFailed |= FAILED(result);
    return SUCCEEDED(result);
  };
  gAllocations = 0;
  gFailing = failing;
  gIsCounting = true;
  {
    ComRef<IClassFactory> factory;
    ComRef<_ORXQueryPrnProp> control;
    if (tried(server::Server().GetClassObject(__uuidof(::ORXQueryPrnProp), IID_IClassFactory,
                                              reinterpret_cast<void**>(factory.Out())))) {
      tried(factory->CreateInstance(nullptr, __uuidof(_ORXQueryPrnProp), reinterpret_cast<void**>(control.Out())));
    }
    if (control) {
      VARIANT_BOOL result = VARIANT_FALSE;
      tried(control->ORXControlTexts(texts.Get(), &result));
      tried(control->ORXSetPrnTables(tables[0].Get(), tables[1].Get(), tables[2].Get(), tables[3].Get(), &result));
      automation::OwnedVariant number, nothing;
      tried(control->ORXSetPrintLayout(layout.Get(), number, nullptr, &nothing));
      ComRef<IConnectionPoint> point;
      ComRef<IEnumConnections> connections;
      DWORD cookie = 0;
      tried(control.As<IConnectionPointContainer>()->FindConnectionPoint(__uuidof(__ORXQueryPrnProp), point.Out()));
      tried(point->Advise(tables[0].Get(), &cookie));
      tried(point->EnumConnections(connections.Out()));
      ComRef<IDispatch> table;
      tried(control->get_ORXDimTable(table.Out()));
    }
  }
  gIsCounting = false;
  ReleaseSharedValues();  // the tables here are objects of the same library
  return {gAllocations, hasFailed};
}

TEST(OutOfMemoryInTheServer, IsTheFailureOfTheCall) {
  ::CoInitialize(nullptr);
  const long alive = automation::LiveObjects::Count();
  const auto [allocations, fails] = Play(0);
  ASSERT_GT(allocations, 500u);
  ASSERT_FALSE(fails);
  std::size_t failed = 0;
  for (std::size_t failing = 1; failing <= allocations; ++failing) {
    failed += Play(failing).second ? 1 : 0;
    ASSERT_EQ(automation::LiveObjects::Count(), alive) << failing;
  }
  EXPECT_FALSE(Play(0).second);
  // A text that can't be looked up has its default.
  EXPECT_GT(failed * 3, allocations * 2);
  ::CoUninitialize();
}

}  // namespace
}  // namespace ORXKMPrintProp::test
