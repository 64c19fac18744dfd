// The component as other programs have it.

#include <gtest/gtest.h>
#include <ocidl.h>

#include <barrier>
#include <thread>

#include "automation/Variants.h"
#include "host/SettingsDocument.h"
#include "server/served.h"
#include "views/win32/WindowsPlatform.h"

namespace ORXKMPrintProp::test {
namespace {

using automation::Bstr;
using automation::ComRef;
using automation::OwnedVariant;

TEST(Server, GivesTheVeryTablesBackAsTheLibraryWritesThem) {
  const auto made = [] {
    return Settings("IOBJNM='A' AXIS='Y' POSIT=2 PR_COL1_WIDTH=12\nIOBJNM='B' AXIS='X'\nIOBJNM='S' IS_STRUCTURE='X'",
                    "IOBJNM='A' ATTRINM='a'", "IOBJNM='S' CHAVL='e' HIDDEN='X'", "TITLE='T' PRINT_DIRECTION='H'");
  };
  const Settings settings = made(), same = made();
  ORXKMPrintProp::ORXQueryPrnProp inProgram;
  same.LoadInto(inProgram);
  inProgram.ORXSetPrintLayout(u"<top>", std::int16_t{0}, u"");
  inProgram.ORXGenPropTable();

  const Component component;
  const HostTables tables(settings);
  const auto control = component.NewControl();
  IDispatch* given = tables.gen.Get();
  ASSERT_EQ(control->get_ORXGenPropTable(&given), S_OK);
  EXPECT_EQ(given, nullptr) << "before the first load";
  ASSERT_EQ(tables.LoadInto(control.Get()), "True");
  OwnedVariant empty, button;
  button.vt = VT_CY;  // 0, as it is
  button.cyVal.int64 = 0;
  empty.vt = VT_I4;
  ASSERT_EQ(control->ORXSetPrintLayout(Bstr(u"<top>").Get(), button, nullptr, &empty), S_OK);
  EXPECT_EQ(empty.vt, VT_EMPTY);
  const struct {
    HRESULT (STDMETHODCALLTYPE _ORXQueryPrnProp::*read)(IDispatch**);
    IDispatch* table;
  } rows[] = {{&_ORXQueryPrnProp::get_ORXGenPropTable, tables.gen.Get()},
              {&_ORXQueryPrnProp::get_ORXDimTable, tables.dim.Get()},
              {&_ORXQueryPrnProp::get_ORXMemTable, tables.mem.Get()},
              {&_ORXQueryPrnProp::get_ORXAtrTable, tables.atr.Get()}};
  for (const auto& row : rows) {
    ComRef<IDispatch> table;
    ASSERT_EQ((control.Get()->*row.read)(table.Out()), S_OK);
    EXPECT_EQ(table.Get(), row.table);
  }
  EXPECT_EQ(settings.Brief(), same.Brief());
}

TEST(Server, TellsFailuresByNumberSourceAndWords) {
  const Component component;
  const auto control = component.NewControl();
  const struct {
    const char* dimension;
    const char* general;
    const char* result;
  } rows[] = {
      {"", "", "False"},
      {"IOBJNM='A' POSIT='x'", "TITLE=''",
       "0x800A000D ORXKMPrintProp.ORXQueryPrnProp: it_dim, row 1, column POSIT: The text \"x\" is not a number."},
      {"", "MARGIN_TOP=70000",
       "0x800A0006 ORXKMPrintProp.ORXQueryPrnProp: GenPropTable, row 1, column MARGIN_TOP: The number 70000 does not "
       "fit "
       "into 16 bits."},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(HostTables(Settings(row.dimension, "", "", row.general)).LoadInto(control.Get()), row.result);
  }
  const HostTables twice(Settings("IOBJNM='A'\nIOBJNM='B'", "IOBJNM='A'\nIOBJNM='B'\nIOBJNM='A'"));
  EXPECT_EQ(twice.LoadInto(control.Get()).substr(0, 10), "0x800A01C9");

  HostTables none(Settings("", "", ""));
  none.mem = nullptr;
  EXPECT_EQ(none.LoadInto(control.Get()),
            "0x800A005B ORXKMPrintProp.ORXQueryPrnProp: There is no object where one is needed.");

  const HostTables failing(Settings("IOBJNM='A'"));
  failing.watch->failAt = 2;  // behind the look-up of RowCount
  failing.watch->fault = Fault::Exception;
  EXPECT_EQ(failing.LoadInto(control.Get()), "0x800A1234 Foreign: It went wrong.");

  ASSERT_EQ(HostTables(Settings("IOBJNM='A'")).LoadInto(control.Get()), "True");
  OwnedVariant result, button;
  button.vt = VT_I2;
  button.iVal = 7;
  EXPECT_EQ(ErrorOf(control->ORXSetPrintLayout(nullptr, button, nullptr, &result)).substr(0, 10), "0x800A0009");
  EXPECT_EQ(control->ORXSetReadOnly(VARIANT_TRUE), S_OK);
  EXPECT_EQ(control->get_ORXDimTable(nullptr), E_POINTER);
}

/// A late-bound call by name. @return how it ends: "ok", the failure of the call, or what was told of an exception.
std::string CallLate(IDispatch* object, const wchar_t* name, std::vector<std::int32_t> arguments, WORD flags) {
  OLECHAR* names[] = {const_cast<OLECHAR*>(name)};
  DISPID id = DISPID_UNKNOWN;
  if (FAILED(object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id))) return "no such member";
  std::vector<VARIANT> values(arguments.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    values[i].vt = VT_I4;
    values[i].lVal = arguments[i];
  }
  DISPPARAMS parameters{values.data(), nullptr, static_cast<UINT>(values.size()), 0};
  OwnedVariant result;
  EXCEPINFO exception{};
  const HRESULT called =
      object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, &result, &exception, nullptr);
  if (called == DISP_E_EXCEPTION) {
    return std::to_string(exception.scode & 0xFFFF) + " " + ToAscii(automation::ViewOf(exception.bstrDescription));
  }
  return called == DISP_E_BADPARAMCOUNT  ? "number of arguments"
         : called == DISP_E_TYPEMISMATCH ? "type"
         : called == S_OK                ? "ok"
                                         : ErrorOf(called);
}

TEST(Server, IsCalledLateBound) {
  const Component component;
  const auto control = component.NewControl();
  ASSERT_EQ(HostTables(Settings("IOBJNM='A'")).LoadInto(control.Get()), "True");
  const struct {
    const wchar_t* member;
    std::vector<std::int32_t> arguments;
    WORD flags;
    const char* result;
  } rows[] = {
      {L"ORXDimTable", {}, DISPATCH_PROPERTYGET, "ok"},
      {L"orxdimtable", {}, DISPATCH_METHOD, "ok"},
      {L"ORXSetReadOnly", {1}, DISPATCH_METHOD | DISPATCH_PROPERTYGET, "ok"},
      {L"ORXSetReadOnly", {}, DISPATCH_METHOD, "number of arguments"},
      {L"ORXControlTexts", {7}, DISPATCH_METHOD, "type"},
      {L"ORXSetPrintLayout", {0, 7, 0}, DISPATCH_METHOD, "9 There is no page layout 7, only 0 to 3."},
      {L"Title", {}, DISPATCH_PROPERTYGET, "no such member"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(CallLate(control.Get(), row.member, row.arguments, row.flags), row.result);
  }
  ComRef<IDispatch> enums;
  ASSERT_EQ(component.Factory(__uuidof(::PrnEnums))
                ->CreateInstance(nullptr, IID_IDispatch, reinterpret_cast<void**>(enums.Out())),
            S_OK);
  EXPECT_EQ(CallLate(enums.Get(), L"ORXDimTable", {}, DISPATCH_METHOD), "no such member");
}

TEST(Server, IsOneObjectByAllItsInterfaces) {
  const Component component;
  const auto control = component.NewControl();
  const auto identity = control.As<IUnknown>();
  EXPECT_EQ(control.As<IDispatch>().As<IUnknown>().Get(), identity.Get());
  EXPECT_EQ(control.As<IConnectionPointContainer>().As<IUnknown>().Get(), identity.Get());
  EXPECT_EQ(control.As<IProvideClassInfo>().As<IUnknown>().Get(), identity.Get());
  EXPECT_EQ(control.As<ISupportErrorInfo>()->InterfaceSupportsErrorInfo(__uuidof(_ORXQueryPrnProp)), S_OK);
  EXPECT_FALSE(control.As<IPersistFile>());
  GUID events;
  ASSERT_EQ(control.As<IProvideClassInfo2>()->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
  EXPECT_TRUE(events == __uuidof(__ORXQueryPrnProp));
  ComRef<ITypeInfo> info;
  ASSERT_EQ(control.As<IProvideClassInfo>()->GetClassInfo(info.Out()), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
  EXPECT_TRUE(attributes->guid == __uuidof(::ORXQueryPrnProp));
  info->ReleaseTypeAttr(attributes);
  IUnknown* aggregated = identity.Get();
  EXPECT_EQ(component.Factory(__uuidof(::ORXQueryPrnProp))
                ->CreateInstance(identity.Get(), IID_IUnknown, reinterpret_cast<void**>(&aggregated)),
            CLASS_E_NOAGGREGATION);
  EXPECT_EQ(aggregated, nullptr);
  EXPECT_FALSE(component.Factory(__uuidof(_ORXQueryPrnProp))) << "no such class";
}

TEST(Server, LetsGoOfTheHostsObjectsWithItsLastObject) {
  const Component component;
  EXPECT_TRUE(component.CanUnloadNow());
  HostTables tables(Settings("IOBJNM='A'"));
  {
    const auto texts = Foreign(MakeHostTable(TableFrom(Kind::Texts, "TARGETID='ID_PRN_GENERAL' CAPTION='Allgemein'")),
                               Known::ByNames, tables.watch);
    auto control = component.NewControl();
    const auto other = component.NewControl();
    VARIANT_BOOL result = VARIANT_TRUE;
    ASSERT_EQ(control->ORXControlTexts(texts.Get(), &result), S_OK);
    EXPECT_EQ(result, VARIANT_FALSE);
    ASSERT_EQ(tables.LoadInto(control.Get()), "True");
    control = nullptr;
    EXPECT_FALSE(component.CanUnloadNow());
  }
  EXPECT_TRUE(component.CanUnloadNow());
  tables.gen = tables.dim = tables.mem = tables.atr = nullptr;
  EXPECT_EQ(tables.watch->alive, 0);
  const auto factory = component.Factory(__uuidof(::PrnEnums));
  EXPECT_FALSE(component.CanUnloadNow());
  factory->LockServer(TRUE);
  factory->LockServer(FALSE);
}

/// What comes of the work with a control of its own, again and again.
std::string Work(const Component& component, const std::string& name) {
  std::string found;
  for (int i = 0; i < 20; ++i) {
    const HostTables tables(
        Settings("IOBJNM='" + name + "' AXIS='Y'\nIOBJNM='B'", "IOBJNM='" + name + "' ATTRINM='1'"));
    const auto control = component.NewControl();
    tables.LoadInto(control.Get());
    control->ORXSetReadOnly(VARIANT_TRUE);
    ComRef<IDispatch> table;
    control->get_ORXDimTable(table.Out());
    const HostTables refused(Settings("", "", "", ""));
    found = tables.settings.Brief() + refused.LoadInto(control.Get());
  }
  return found;
}

TEST(Server, WorksInTwoApartmentsAtOnce) {
  const Component component;
  const std::string expected[] = {Work(component, "X"), Work(component, "Y")};
  std::barrier start(2);
  const auto apartment = [&](int which) {
    return std::thread([&, which] {
      ::CoInitialize(nullptr);
      start.arrive_and_wait();
      for (int i = 0; i < 5; ++i) EXPECT_EQ(Work(component, which == 0 ? "X" : "Y"), expected[which]);
      ::CoUninitialize();
    });
  };
  std::thread first = apartment(0);
  std::thread second = apartment(1);
  first.join();
  second.join();
  EXPECT_TRUE(component.CanUnloadNow());
}

TEST(Server, GoesWithItsLastUserAndThreadsEndBehindIt) {
  const auto use = [] {
    const Component component;
    const auto control = component.NewControl();
    EXPECT_EQ(HostTables(Settings("IOBJNM='A'")).LoadInto(control.Get()), "True");
  };
  use();
  EXPECT_EQ(::GetModuleHandleW(L"ORXKMPrintProp.dll"), nullptr);
  std::thread(use).join();
  EXPECT_EQ(::GetModuleHandleW(L"ORXKMPrintProp.dll"), nullptr);
}

TEST(WindowsPlatform, HasTheSystemsDialogFontAndTheOrderOfTheUsersLanguage) {
  const auto& platform = win32::WindowsPlatform::Instance();
  const Text face = platform.DialogFontFace();
  EXPECT_EQ(face.size(), 80u);
  // The face that text in that font has on the screen.
  const HDC screen = ::GetDC(nullptr);
  const HGDIOBJ former = ::SelectObject(screen, ::GetStockObject(DEFAULT_GUI_FONT));
  wchar_t expected[80];
  ::GetTextFaceW(screen, 80, expected);
  ::SelectObject(screen, former);
  ::ReleaseDC(nullptr, screen);
  EXPECT_EQ(ToAscii(face.substr(0, face.find(u'\0'))), ToAscii(Text(expected, expected + ::lstrlenW(expected))));
  EXPECT_LT(platform.CompareTexts(u"\u00e4ther", u"B"), 0);
  EXPECT_GT(platform.CompareTexts(u"b", u"A"), 0);
  EXPECT_EQ(platform.CompareTexts(u"REGION", u"region"), 0);
  EXPECT_LT(platform.CompareTexts(u"", u"a"), 0);
}

}  // namespace
}  // namespace ORXKMPrintProp::test
