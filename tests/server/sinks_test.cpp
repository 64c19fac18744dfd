// What hosts hear of the control, and do inside its events.

#include <memory>

#include "automation/Variants.h"
#include "server/container.h"

namespace ORXKMPrintProp::test {
namespace {

using automation::Bstr;
using automation::ComRef;

class SinksTest : public InPlace {
 protected:
  void SetUp() override {
    InPlace::SetUp();
    Load(tables);
    ASSERT_EQ(Do(OLEIVERB_UIACTIVATE), S_OK);
  }
  HostTables tables{Settings("IOBJNM='A' IOBJTXT='A' AXIS='Y'\nIOBJNM='B' IOBJTXT='B'")};
};

TEST_F(SinksTest, HearBothEventsInTheOrderOfConnecting) {
  Connect("a");
  const DWORD second = Connect("b");
  Use(u"cmdPrintLayout(2)");
  Use(u"tstPrint", 1);
  for (const TextView widget : {u"cmdPrintLayout(4)", u"lstAvail(1)", u"cmdLeftToRight(1)"}) Use(widget);
  EXPECT_EQ(heard, "a1,2,'' b1,2,'' a1,4,'A' b1,4,'A' a2 b2 ");
  heard.clear();
  EXPECT_EQ(Point()->Unadvise(second), S_OK);
  EXPECT_EQ(Point()->Unadvise(second), CONNECT_E_NOCONNECTION);
  Use(u"tstPrint", 0);
  Use(u"cmdPrintLayout(0)");
  Use(u"cmdPrintLayout(4)");
  EXPECT_EQ(heard, "a1,0,'' ") << "the page of the other is not on top";
}

TEST_F(SinksTest, AreAllToldBeforeTheFirstFailureEndsTheAction) {
  Connect("a", [] { return DISP_E_EXCEPTION; });
  Connect("b", [] { return E_FAIL; });
  Connect("c", [] { return DISP_E_MEMBERNOTFOUND; });
  static std::string words;
  words.clear();
  void* const ears = ::AddVectoredExceptionHandler(TRUE, [](EXCEPTION_POINTERS* raised) -> LONG {
    const EXCEPTION_RECORD& record = *raised->ExceptionRecord;
    if (record.ExceptionCode == static_cast<DWORD>(DBG_PRINTEXCEPTION_C)) {
      words += reinterpret_cast<const char*>(record.ExceptionInformation[1]);
    }
    return EXCEPTION_CONTINUE_SEARCH;
  });
  Use(u"cmdPrintLayout(1)");
  ::RemoveVectoredExceptionHandler(ears);
  EXPECT_EQ(words, "It went wrong.") << "what a debugger is told";
  EXPECT_EQ(heard, "a1,1,'' b1,1,'' c1,1,'' ");
}

TEST_F(SinksTest, DoAnythingInsideAnEvent) {
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
    Use(u"cmdPrintLayout(0)");
    EXPECT_EQ(heard, row.heard) << row.what;
    Point()->Unadvise(x);
    Point()->Unadvise(later);
  }
}

TEST_F(SinksTest, ReleaseTheControlInsideAnEventWhichEndsBehindIt) {
  // A sink that disconnects itself at its end.
  struct AtEnd {
    ~AtEnd() { EXPECT_EQ(point->Unadvise(cookie), CONNECT_E_NOCONNECTION); }
    ComRef<IConnectionPoint> point;
    DWORD cookie;
  };
  auto atEnd = std::make_shared<AtEnd>();
  atEnd->point = Point();
  Connect("a", [this] {
    object = nullptr;
    control = nullptr;
    return S_OK;
  });
  atEnd->cookie = Connect("b", [held = atEnd] { return S_OK; });
  const std::weak_ptr<AtEnd> ended = atEnd;
  atEnd = nullptr;
  Use(u"cmdPrintLayout(0)");
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
  Unmake();
  DWORD cookie = 0;
  EXPECT_EQ(held->Advise(given[0].pUnk, &cookie), CONNECT_E_CANNOTCONNECT) << "the control has ended";
  for (ULONG i = 0; i < count; ++i) given[i].pUnk->Release();
}

}  // namespace
}  // namespace ORXKMPrintProp::test
