// What hosts hear of the control, and do inside its events.

#include <gtest/gtest.h>
#include <ocidl.h>
#include <olectl.h>

#include <functional>
#include <memory>

#include "automation/ComObject.h"
#include "automation/Variants.h"
#include "server/DialogUser.h"
#include "server/served.h"

namespace ORXKMPrintProp::test {
namespace {

using automation::Bstr;
using automation::ComRef;

/// A sink that notes what it hears, and does something then.
class Sink final : public automation::ComObject<IDispatch> {
 public:
  Sink(std::string name, std::string& heard, std::function<HRESULT()> act = {})
      : name_(std::move(name)), heard_(heard), act_(std::move(act)) {}
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO* exception,
                      UINT*) override {
    heard_ += name_ + std::to_string(id);
    for (UINT i = parameters->cArgs; i-- > 0;) heard_ += "," + ToString(automation::FromVariant(parameters->rgvarg[i]));
    heard_ += " ";
    const HRESULT result = act_ ? act_() : S_OK;
    if (result == DISP_E_EXCEPTION) {
      exception->scode = kFaultNumber;
      exception->bstrSource = ::SysAllocString(kFaultSource);
      exception->bstrDescription = ::SysAllocString(kFaultWords);
    }
    return result;
  }

 private:
  std::string name_;
  std::string& heard_;
  std::function<HRESULT()> act_;
};

class SinksTest : public testing::Test {
 protected:
  ComRef<IConnectionPoint> Point() const {
    ComRef<IConnectionPoint> point;
    control.As<IConnectionPointContainer>()->FindConnectionPoint(__uuidof(__ORXQueryPrnProp), point.Out());
    return point;
  }
  DWORD Connect(const std::string& name, std::function<HRESULT()> act = {}) {
    const auto sink = ComRef<IDispatch>::Taken(new Sink(name, heard, std::move(act)));
    DWORD cookie = 0;
    EXPECT_EQ(Point()->Advise(sink.Get(), &cookie), S_OK);
    return cookie;
  }
  /// The user clicks on a widget. @return "ok", or how a handler fails.
  std::string Use(TextView widget, short place = 0) const {
    const HRESULT used = control.As<server::IDialogUser>()->Use(Bstr(widget).Get(), place);
    return used == S_OK ? "ok" : ErrorOf(used);
  }

  const Component component;
  HostTables tables{Settings("IOBJNM='A' IOBJTXT='A' AXIS='Y'\nIOBJNM='B' IOBJTXT='B'")};
  ComRef<_ORXQueryPrnProp> control = component.NewControl();
  std::string heard;
};

TEST_F(SinksTest, HearBothEventsInTheOrderOfConnecting) {
  ASSERT_EQ(tables.LoadInto(control.Get()), "True");
  Connect("a");
  const DWORD second = Connect("b");
  EXPECT_EQ(Use(u"cmdPrintLayout(2)"), "ok");
  const std::pair<TextView, short> uses[] = {
      {u"tstPrint", 1}, {u"cmdPrintLayout(4)", 0}, {u"lstAvail(1)", 0}, {u"cmdLeftToRight(1)", 0}};
  for (const auto& [widget, place] : uses) EXPECT_EQ(Use(widget, place), "ok") << ToAscii(widget);
  EXPECT_EQ(heard, "a1,2,'' b1,2,'' a1,4,'A' b1,4,'A' a2 b2 ");
  heard.clear();
  EXPECT_EQ(Point()->Unadvise(second), S_OK);
  EXPECT_EQ(Point()->Unadvise(second), CONNECT_E_NOCONNECTION);
  Use(u"tstPrint", 0);
  Use(u"cmdPrintLayout(0)");
  EXPECT_EQ(heard, "a1,0,'' ");
  EXPECT_EQ(Use(u"cmdPrintLayout(4)"), "0x00000001") << "its page is not on top";
  EXPECT_EQ(Use(u"none"), ErrorOf(E_INVALIDARG));
}

TEST_F(SinksTest, AreAllToldBeforeTheFirstFailureEndsTheAction) {
  ASSERT_EQ(tables.LoadInto(control.Get()), "True");
  Connect("a", [] { return DISP_E_EXCEPTION; });
  Connect("b", [] { return E_FAIL; });
  Connect("c", [] { return DISP_E_MEMBERNOTFOUND; });
  EXPECT_EQ(Use(u"cmdPrintLayout(1)"), "0x800A1234 Foreign: It went wrong.");
  EXPECT_EQ(heard, "a1,1,'' b1,1,'' c1,1,'' ");
}

TEST_F(SinksTest, DoAnythingInsideAnEvent) {
  ASSERT_EQ(tables.LoadInto(control.Get()), "True");
  const HostTables others(Settings("IOBJNM='N'"));
  DWORD later = 0;
  const auto reads = [&] {
    ComRef<IDispatch> table;
    const HRESULT read = control->get_ORXAtrTable(table.Out());
    return table.Get() == others.atr.Get() ? read : E_FAIL;
  };
  const auto storesALayout = [&] {
    automation::OwnedVariant button, nothing;
    return control->ORXSetPrintLayout(Bstr(u"<x>").Get(), button, nullptr, &nothing);
  };
  const struct {
    const char* what;
    std::function<HRESULT()> act;
    const char* heard;
  } rows[] = {
      {"loads", [&] { return others.LoadInto(control.Get()) == "True" ? S_OK : E_FAIL; }, "x1,0,'' y1,0,'' "},
      {"reads", reads, "x1,0,'' y1,0,'' "},
      {"stores a layout", storesALayout, "x1,0,'' y1,0,'' "},
      {"switches read-only", [&] { return control->ORXSetReadOnly(VARIANT_TRUE); }, "x1,0,'' y1,0,'' "},
      {"disconnects the next", [&] { return Point()->Unadvise(later); }, "x1,0,'' "},
      {"connects", [&] { return Connect("z"), S_OK; }, "x1,0,'' y1,0,'' "},
  };
  for (const auto& row : rows) {
    heard.clear();
    const DWORD x = Connect("x", row.act);
    later = Connect("y");
    EXPECT_EQ(Use(u"cmdPrintLayout(0)"), "ok") << row.what;
    EXPECT_EQ(heard, row.heard) << row.what;
    Point()->Unadvise(x);
    Point()->Unadvise(later);
  }
}

TEST_F(SinksTest, ReleaseTheControlInsideAnEventWhichEndsBehindIt) {
  ASSERT_EQ(tables.LoadInto(control.Get()), "True");
  server::IDialogUser* const user = control.As<server::IDialogUser>().Detach();
  control = nullptr;
  // A sink that disconnects itself at its end.
  struct AtEnd {
    ~AtEnd() { EXPECT_EQ(point->Unadvise(cookie), CONNECT_E_NOCONNECTION); }
    ComRef<IConnectionPoint> point;
    DWORD cookie;
  };
  auto atEnd = std::make_shared<AtEnd>();
  ComRef<IConnectionPointContainer> container;
  user->QueryInterface(__uuidof(IConnectionPointContainer), reinterpret_cast<void**>(container.Out()));
  container->FindConnectionPoint(__uuidof(__ORXQueryPrnProp), atEnd->point.Out());
  const auto connect = [&](const std::string& name, std::function<HRESULT()> act) {
    const auto sink = ComRef<IDispatch>::Taken(new Sink(name, heard, std::move(act)));
    return atEnd->point->Advise(sink.Get(), &atEnd->cookie);
  };
  connect("a", [user] { return user->Release() > 0 ? S_OK : E_FAIL; });
  connect("b", [held = atEnd] { return S_OK; });
  const std::weak_ptr<AtEnd> ended = atEnd;
  const Bstr button(u"cmdPrintLayout(0)");
  container = nullptr;
  atEnd = nullptr;
  EXPECT_EQ(user->Use(button.Get(), 0), S_OK);
  EXPECT_EQ(heard, "a1,0,'' b1,0,'' ");
  EXPECT_TRUE(ended.expired());
  EXPECT_TRUE(component.CanUnloadNow());
}

TEST_F(SinksTest, AreEnumerated) {
  const DWORD cookies[] = {Connect("a"), Connect("b"), Connect("c")};
  ComRef<IEnumConnections> connections;
  ASSERT_EQ(Point()->EnumConnections(connections.Out()), S_OK);
  CONNECTDATA given[4];
  ULONG count = 0;
  ASSERT_EQ(connections->Skip(1), S_OK);
  ASSERT_EQ(connections->Next(4, given, &count), S_FALSE);
  ASSERT_EQ(count, 2u);
  for (ULONG i = 0; i < count; ++i) EXPECT_EQ(given[i].dwCookie, cookies[i + 1]);
  ComRef<IEnumConnectionPoints> points;
  ASSERT_EQ(control.As<IConnectionPointContainer>()->EnumConnectionPoints(points.Out()), S_OK);
  ComRef<IConnectionPoint> point;
  ASSERT_EQ(points->Next(1, point.Out(), nullptr), S_OK);
  EXPECT_EQ(point.Get(), Point().Get());
  IID id;
  ASSERT_EQ(point->GetConnectionInterface(&id), S_OK);
  EXPECT_TRUE(id == __uuidof(__ORXQueryPrnProp));

  const auto held = Point();
  control = nullptr;
  DWORD cookie = 0;
  EXPECT_EQ(held->Advise(given[0].pUnk, &cookie), CONNECT_E_CANNOTCONNECT) << "the control has ended";
  for (ULONG i = 0; i < count; ++i) given[i].pUnk->Release();
}

}  // namespace
}  // namespace ORXKMPrintProp::test
