// What the component writes where the system looks classes up, and what its type library tells.

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <set>
#include <string>
#include <vector>

#include "automation/Variants.h"
#include "server/served.h"

namespace ORXKMPrintProp::test {
namespace {

using automation::ComRef;

constexpr GUID kLibrary{0xA6771170, 0x67DC, 0x4AA4, {0x99, 0xC2, 0x1F, 0x49, 0xA8, 0x9B, 0x1F, 0x55}};

/// The keys below a key: classes, interfaces and libraries by their numbers, and the names of classes.
void AddKeys(HKEY key, const std::wstring& path, int depth, std::set<std::wstring>& keys) {
  wchar_t name[256];
  for (DWORD i = 0; ::RegEnumKeyW(key, i, name, 256) == ERROR_SUCCESS; ++i) {
    const std::wstring found = path + L"\\" + name;
    keys.insert(found);
    HKEY below = nullptr;
    if (depth > 1 && ::RegOpenKeyExW(key, name, 0, KEY_READ, &below) == ERROR_SUCCESS) {
      AddKeys(below, found, depth - 1, keys);
      ::RegCloseKey(below);
    }
  }
}

std::set<std::wstring> RegisteredKeys() {
  std::set<std::wstring> keys;
  for (const HKEY hive : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
    HKEY classes = nullptr;
    ::RegCreateKeyW(hive, L"Software\\Classes", &classes);
    AddKeys(classes, hive == HKEY_CURRENT_USER ? L"user" : L"machine", 2, keys);
    ::RegCloseKey(classes);
  }
  return keys;
}

/// The keys of which the one has and the other not.
std::wstring Difference(const std::set<std::wstring>& a, const std::set<std::wstring>& b) {
  std::vector<std::wstring> keys;
  std::set_symmetric_difference(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(keys));
  return std::accumulate(keys.begin(), keys.end(), std::wstring(),
                         [](const std::wstring& text, const std::wstring& key) { return text + key + L" "; });
}

TEST(Registration, MakesTheClassesKnownAndLeavesNothingBehind) {
  const Component component;
  component.Unregister();
  const auto before = RegisteredKeys();
  for (int twice = 0; twice < 2; ++twice) ASSERT_EQ(component.Register(), S_OK);
  CLSID id;
  ASSERT_EQ(::CLSIDFromProgID(L"ORXKMPrintProp.ORXQueryPrnProp", &id), S_OK);
  EXPECT_TRUE(id == __uuidof(::ORXQueryPrnProp));
  for (const CLSID& known : {__uuidof(::ORXQueryPrnProp), __uuidof(::PrnEnums)}) {
    ComRef<IDispatch> made;
    EXPECT_EQ(
        ::CoCreateInstance(known, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, reinterpret_cast<void**>(made.Out())),
        S_OK);
  }
  for (const wchar_t* key : {L"Control", L"ToolboxBitmap32", L"MiscStatus\\1",
                             L"Implemented Categories\\{40FC6ED4-2438-11CF-A3DB-080036F12502}"}) {
    const std::wstring name = std::wstring(L"CLSID\\{ECD25CD0-BB4D-477F-B58E-97243D6A7ED8}\\") + key;
    EXPECT_EQ(::RegGetValueW(HKEY_CLASSES_ROOT, name.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, nullptr, nullptr),
              ERROR_SUCCESS)
        << ToAscii(Text(name.begin(), name.end()));
  }
  ComRef<IOleObject> made;
  ASSERT_EQ(::CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IOleObject, reinterpret_cast<void**>(made.Out())),
            S_OK);
  DWORD status = 0;
  EXPECT_EQ(made->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
  EXPECT_EQ(status, 131473u) << "as registered";
  made = nullptr;
  ComRef<ITypeLib> library;
  EXPECT_EQ(::LoadRegTypeLib(kLibrary, 1, 0, 0, library.Out()), S_OK);
  EXPECT_GE(RegisteredKeys().size(), before.size() + 10);
  library = nullptr;
  ASSERT_EQ(component.Unregister(), S_OK);
  EXPECT_EQ(Difference(RegisteredKeys(), before), L"");
  EXPECT_EQ(component.Unregister(), S_OK) << "again";
}

/// While it lives, what is written below the machine's hive is refused: that is one that ends with the session, and
/// takes no key that stays.
class MachineIsRefused {
 public:
  MachineIsRefused() {
    ::RegCreateKeyExW(HKEY_CURRENT_USER, kKey, 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr, &hive_,
                      nullptr);
    ::RegOverridePredefKey(HKEY_LOCAL_MACHINE, hive_);
  }
  ~MachineIsRefused() {
    ::RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    ::RegCloseKey(hive_);
    ::RegDeleteTreeW(HKEY_CURRENT_USER, kKey);
  }
  MachineIsRefused(const MachineIsRefused&) = delete;
  MachineIsRefused& operator=(const MachineIsRefused&) = delete;

 private:
  static constexpr const wchar_t* kKey = L"Software\\PrnPropRefused";
  HKEY hive_ = nullptr;
};

TEST(Registration, IsForOneUserWhereTheMachineRefuses) {
  const Component component;
  component.Unregister();
  const auto before = RegisteredKeys();
  {
    const MachineIsRefused refused;
    ASSERT_EQ(component.Register(), S_OK);
  }
  const auto registered = RegisteredKeys();
  EXPECT_TRUE(registered.contains(L"user\\ORXKMPrintProp.ORXQueryPrnProp"));
  EXPECT_FALSE(registered.contains(L"machine\\ORXKMPrintProp.ORXQueryPrnProp"));
  ASSERT_EQ(component.Unregister(), S_OK);
  EXPECT_EQ(Difference(RegisteredKeys(), before), L"");
}

/// "name(arguments)" of each function, in order, an asterisk ahead of those that say nothing of themselves.
std::string FunctionsOf(ITypeInfo* info) {
  TYPEATTR* attributes = nullptr;
  info->GetTypeAttr(&attributes);
  std::string text;
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    FUNCDESC* function = nullptr;
    info->GetFuncDesc(i, &function);
    if (function->memid < 1000) {
      BSTR name = nullptr, help = nullptr;
      info->GetDocumentation(function->memid, &name, &help, nullptr, nullptr);
      text += (::SysStringLen(help) > 0 ? "" : "*") + ToAscii(automation::ViewOf(name)) + "=" +
              std::to_string(function->memid) + " ";
      ::SysFreeString(name);
      ::SysFreeString(help);
    }
    info->ReleaseFuncDesc(function);
  }
  info->ReleaseTypeAttr(attributes);
  return text;
}

/// "NAME=value" of each constant.
std::string ConstantsOf(ITypeInfo* info) {
  TYPEATTR* attributes = nullptr;
  info->GetTypeAttr(&attributes);
  std::string text;
  for (UINT i = 0; i < attributes->cVars; ++i) {
    VARDESC* constant = nullptr;
    info->GetVarDesc(i, &constant);
    BSTR name = nullptr;
    info->GetDocumentation(constant->memid, &name, nullptr, nullptr, nullptr);
    text += ToAscii(automation::ViewOf(name)) + "=" + std::to_string(constant->lpvarValue->lVal) + " ";
    ::SysFreeString(name);
    info->ReleaseVarDesc(constant);
  }
  info->ReleaseTypeAttr(attributes);
  return text;
}

TEST(TypeLibrary, TellsMembersEventsAndEnumerations) {
  const Component component;
  ComRef<ITypeLib> library;
  ASSERT_EQ(::LoadTypeLibEx(PRNPROP_COMPONENT, REGKIND_NONE, library.Out()), S_OK);
  const struct {
    const wchar_t* type;
    std::string (*tell)(ITypeInfo*);
    const char* expected;
  } rows[] = {
      {L"_ORXQueryPrnProp", FunctionsOf,
       "ORXSetPrnTables=1 ORXGenPropTable=2 ORXDimTable=3 ORXMemTable=4 ORXAtrTable=5 ORXControlTexts=6 "
       "ORXSetPrintLayout=7 ORXSetReadOnly=8 "},
      {L"__ORXQueryPrnProp", FunctionsOf, "ORXPrintLayoutGet=1 ORXOrderChanged=2 "},
      {L"_PrnEnums", FunctionsOf, ""},
      {L"PP_ValuePresentation", ConstantsOf, "PP_VALP_KEYTEXT=0 PP_VALP_TEXT=1 PP_VALP_KEY=2 PP_VALP_TEXTKEY=3 "},
      {L"PP_Alignment", ConstantsOf, "PP_PRN_ALIGN_LEFT=0 PP_PRN_ALIGN_RIGHT=1 PP_PRN_ALIGN_CENTER=2 "},
      {L"PP_PrnDirection", ConstantsOf, "PP_PRN_DIR_HORIZONTAL=0 PP_PRN_DIR_VERTICAL=1 "},
      {L"PP_SumPosit", ConstantsOf, "PP_PRN_SUM_TOPLEFT=0 PP_PRN_SUM_BOTTOMRIGHT=1 "},
      {L"PP_SignPrsnt", ConstantsOf, "PP_PRN_SIGN_PREFIX=0 PP_PRN_SIGN_POSTFIX=1 PP_PRN_SIGN_BRACES=2 "},
      {L"PP_CurUnitPosition", ConstantsOf,
       "PP_PRN_CUPOS_LEFT=0 PP_PRN_CUPOS_RIGHT=1 PP_PRN_CUPOS_HEAD=2 PP_PRN_CUPOS_NONE=3 "},
      {L"PP_NoSums", ConstantsOf, "PP_PRN_NOSUMS_NEVER=0 PP_PRN_NOSUMS_CONDITION=1 PP_PRN_NOSUMS_ALWAYS=2 "},
  };
  for (const auto& row : rows) {
    ComRef<ITypeInfo> info;
    MEMBERID member = 0;
    USHORT count = 1;
    std::wstring name = row.type;
    ASSERT_EQ(library->FindName(name.data(), 0, info.Out(), &member, &count), S_OK);
    ASSERT_EQ(count, 1) << ToAscii(Text(name.begin(), name.end()));
    EXPECT_EQ(row.tell(info.Get()), row.expected);
  }
}

}  // namespace
}  // namespace ORXKMPrintProp::test
