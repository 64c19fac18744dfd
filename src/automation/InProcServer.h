#pragma once

#include <ole2.h>

#include <span>

namespace ORXKMPrintProp::automation {

/// One key more below that of a class, with its value.
struct ClassEntry {
  const wchar_t* key;
  const wchar_t* value;
  bool behindPath = false;  ///< the value has the path of the library's file ahead of it
};

/// A class that programs create by its number, or by its name.
struct ServerClass {
  CLSID id;
  const wchar_t* programId;  ///< "Library.Class"; with ".1" behind it the name of this version
  const wchar_t* name;       ///< for people
  /// Makes an object, with one reference.
  IUnknown* (*create)();
  std::span<const ClassEntry> entries = {};
};

/// What a library with classes tells the system; its exported entry points call these.
struct InProcServer {
  std::span<const ServerClass> classes;
  const GUID* typeLibrary = nullptr;  ///< which then is a resource of the library's file

  HRESULT GetClassObject(REFCLSID id, REFIID interfaceId, void** result) const noexcept;
  /// S_OK when no object lives and no host holds a lock.
  static HRESULT CanUnloadNow() noexcept;
  /// For all users of the machine, or for this one alone where the machine refuses.
  HRESULT Register() const noexcept;
  /// Leaves no entry behind, wherever it was registered.
  HRESULT Unregister() const noexcept;
};

/// The type library that the file of this code has as a resource, for objects, which share it: it stays as long as one
/// of them lives, on whatever thread. @throws HostFailure, std::bad_alloc
ITypeLib& OwnTypeLibrary();

}  // namespace ORXKMPrintProp::automation
