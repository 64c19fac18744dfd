#include "automation/InProcServer.h"

#include <array>
#include <string>
#include <vector>

#include "automation/ComObject.h"
#include "automation/ComRef.h"
#include "automation/Failures.h"

extern "C" {
// The headers of mingw-w64 leave these two out.
HRESULT WINAPI RegisterTypeLibForUser(ITypeLib*, OLECHAR*, OLECHAR*);
HRESULT WINAPI UnRegisterTypeLibForUser(REFGUID, WORD, WORD, LCID, SYSKIND);
}

namespace ORXKMPrintProp::automation {
namespace {

class ClassFactory final : public ComObject<IClassFactory> {
 public:
  explicit ClassFactory(const ServerClass& made) : made_(made) {}

  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID interfaceId, void** result) override {
    if (!result) return E_POINTER;
    *result = nullptr;
    if (outer) return CLASS_E_NOAGGREGATION;
    try {
      return ComRef<IUnknown>::Taken(made_.create())->QueryInterface(interfaceId, result);
    } catch (...) {
      return CurrentFailure({}).number;
    }
  }
  STDMETHODIMP LockServer(BOOL lock) override {
    LiveObjects::Lock(lock);
    return S_OK;
  }

 private:
  const ServerClass& made_;
};

/// The path of the file that this code is in.
std::wstring OwnPath() {
  HMODULE module = nullptr;
  ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&OwnPath), &module);
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = ::GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) return path.substr(0, length);
    path.resize(path.size() * 2);
  }
}

ComRef<ITypeLib> LoadTypeLibrary() {
  ComRef<ITypeLib> library;
  Check(::LoadTypeLibEx(OwnPath().c_str(), REGKIND_NONE, library.Out()));
  return library;
}

std::wstring Spelled(const GUID& id) {
  std::array<wchar_t, 40> text{};
  ::StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
  return text.data();
}

/// A key below Software\Classes with its default value, or one of its values by name.
struct Entry {
  std::wstring key;
  const wchar_t* name;
  std::wstring value;
};

std::vector<Entry> EntriesOf(const ServerClass& registered, const GUID* typeLibrary, const std::wstring& path) {
  const std::wstring id = Spelled(registered.id);
  const std::wstring byId = L"CLSID\\" + id;
  const std::wstring byName = registered.programId;
  const std::wstring byVersion = byName + L".1";
  std::vector<Entry> entries = {
      {byId, nullptr, registered.name},
      {byId + L"\\InprocServer32", nullptr, path},
      {byId + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
      {byId + L"\\ProgID", nullptr, byVersion},
      {byId + L"\\VersionIndependentProgID", nullptr, byName},
      {byId + L"\\Programmable", nullptr, L""},
      {byId + L"\\Version", nullptr, L"1.0"},
      {byName, nullptr, registered.name},
      {byName + L"\\CLSID", nullptr, id},
      {byName + L"\\CurVer", nullptr, byVersion},
      {byVersion, nullptr, registered.name},
      {byVersion + L"\\CLSID", nullptr, id},
  };
  if (typeLibrary) entries.push_back({byId + L"\\TypeLib", nullptr, Spelled(*typeLibrary)});
  for (const ClassEntry& entry : registered.entries) {
    entries.push_back({byId + L"\\" + entry.key, nullptr, (entry.behindPath ? path : L"") + entry.value});
  }
  return entries;
}

std::wstring BelowClasses(const std::wstring& key) { return L"Software\\Classes\\" + key; }

LSTATUS Write(HKEY hive, const Entry& entry) {
  const auto bytes = static_cast<DWORD>((entry.value.size() + 1) * sizeof(wchar_t));
  return ::RegSetKeyValueW(hive, BelowClasses(entry.key).c_str(), entry.name, REG_SZ, entry.value.c_str(), bytes);
}

/// A key that is looked at.
class Key {
 public:
  Key(HKEY hive, const std::wstring& name) {
    ::RegOpenKeyExW(hive, BelowClasses(name).c_str(), 0, KEY_READ, &key_);
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() {
    if (key_) ::RegCloseKey(key_);
  }

  bool IsThere() const { return key_ != nullptr; }
  bool IsEmpty() const {
    DWORD keys = 0, values = 0;
    return key_ &&
           ::RegQueryInfoKeyW(key_, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values, nullptr, nullptr,
                              nullptr, nullptr) == ERROR_SUCCESS &&
           keys == 0 && values == 0;
  }

 private:
  HKEY key_ = nullptr;
};

/// What was deleted, or was not there, is gone.
bool IsGone(LSTATUS deleted) { return deleted == ERROR_SUCCESS || deleted == ERROR_FILE_NOT_FOUND; }

struct Hive {
  HKEY key;
  HRESULT(WINAPI* registerLibrary)(ITypeLib*, OLECHAR*, OLECHAR*);
  HRESULT(WINAPI* unregisterLibrary)(REFGUID, WORD, WORD, LCID, SYSKIND);
};
const Hive kMachine{HKEY_LOCAL_MACHINE, ::RegisterTypeLib, ::UnRegisterTypeLib};
const Hive kUser{HKEY_CURRENT_USER, ::RegisterTypeLibForUser, ::UnRegisterTypeLibForUser};

HRESULT RegisterIn(const Hive& hive, const InProcServer& server) noexcept {
  try {
    std::wstring path = OwnPath();
    for (const ServerClass& registered : server.classes) {
      for (const Entry& entry : EntriesOf(registered, server.typeLibrary, path)) {
        if (const LSTATUS status = Write(hive.key, entry); status != ERROR_SUCCESS) return HRESULT_FROM_WIN32(status);
      }
    }
    return server.typeLibrary ? hive.registerLibrary(LoadTypeLibrary().Get(), path.data(), nullptr) : S_OK;
  } catch (...) {
    return CurrentFailure({}).number;
  }
}

HRESULT UnregisterFrom(const Hive& hive, const InProcServer& server) {
  HRESULT result = S_OK;
  for (const ServerClass& registered : server.classes) {
    const std::wstring name = registered.programId;
    for (const std::wstring& key : {L"CLSID\\" + Spelled(registered.id), name, name + L".1"}) {
      const LSTATUS status = ::RegDeleteTreeW(hive.key, BelowClasses(key).c_str());
      if (!IsGone(status)) result = HRESULT_FROM_WIN32(status);
    }
  }
  // A user who had no classes of his own has got the key for all of them.
  if (Key(hive.key, L"CLSID").IsEmpty()) ::RegDeleteKeyW(hive.key, BelowClasses(L"CLSID").c_str());
  if (!server.typeLibrary || !Key(hive.key, L"TypeLib\\" + Spelled(*server.typeLibrary)).IsThere()) {
    return result;
  }
  constexpr SYSKIND kSystem = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;
  const HRESULT removed = hive.unregisterLibrary(*server.typeLibrary, 1, 0, LANG_NEUTRAL, kSystem);
  return FAILED(removed) ? removed : result;
}

}  // namespace

HRESULT InProcServer::GetClassObject(REFCLSID id, REFIID interfaceId, void** result) const noexcept {
  if (!result) return E_POINTER;
  *result = nullptr;
  for (const ServerClass& made : classes) {
    if (made.id != id) continue;
    try {
      return ComRef<IClassFactory>::Taken(new ClassFactory(made))->QueryInterface(interfaceId, result);
    } catch (...) {
      return CurrentFailure({}).number;
    }
  }
  return CLASS_E_CLASSNOTAVAILABLE;
}

HRESULT InProcServer::CanUnloadNow() noexcept { return LiveObjects::Count() == 0 ? S_OK : S_FALSE; }

HRESULT InProcServer::Register() const noexcept {
  // What is left of a former one would come first for this user, or be half of one.
  Unregister();
  HRESULT result = RegisterIn(kMachine, *this);
  if (SUCCEEDED(result)) return result;
  Unregister();
  result = RegisterIn(kUser, *this);
  if (FAILED(result)) Unregister();
  return result;
}

HRESULT InProcServer::Unregister() const noexcept {
  try {
    const HRESULT user = UnregisterFrom(kUser, *this);
    const HRESULT machine = UnregisterFrom(kMachine, *this);
    return FAILED(machine) ? machine : user;
  } catch (...) {
    return CurrentFailure({}).number;
  }
}

ITypeLib& OwnTypeLibrary() {
  return LiveObjects::TypeLibrary([] { return LoadTypeLibrary().Detach(); });
}

}  // namespace ORXKMPrintProp::automation
