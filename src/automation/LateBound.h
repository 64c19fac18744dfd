#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <span>

#include "automation/Variants.h"

namespace ORXKMPrintProp::automation {

/// The members of a table and its parts, as the control calls them.
enum class Member : std::size_t { RowCount, Rows, Columns, Add, RemoveAll, Item, Count, Value, RowNumber, KeyColumn, Index };
inline constexpr std::size_t kMemberCount = static_cast<std::size_t>(Member::Index) + 1;

/// What has been found out about the members of a host's objects: under which number each is called, and how.
struct FoundMember {
  DISPID id = DISPID_UNKNOWN;
  WORD flags = 0;
};
using FoundMembers = std::array<FoundMember, kMemberCount>;

/// An object of the host, called late-bound: each member by its name, and by the number that it has in the contract of
/// tables where the object does not know the name. What was found holds for all objects that share the same
/// `FoundMembers`; but an object that is made by a script may have numbers of its own, and gets its own.
class LateBound {
 public:
  /// @throws RunTimeError (Object) for no object.
  LateBound(ComRef<IDispatch> object, const std::shared_ptr<FoundMembers>& shared);

  /// Reads a property or calls a method. @param arguments as the platform has them, the last one first; they stay the
  /// caller's.
  /// @throws HostFailure when the object fails.
  void Call(Member member, std::span<VARIANT> arguments, VARIANT& result) const;
  /// Sets a property. @param arguments the value, ahead of the property's own.
  void Put(Member member, std::span<VARIANT> arguments) const;

  /// The list's standard enumerator, none when it has none. @throws HostFailure when the object fails.
  ComRef<IEnumVARIANT> Enumerator() const;

 private:
  FoundMember& Find(Member member) const;
  HRESULT Invoke(Member member, DISPID id, WORD flags, DISPPARAMS& parameters, VARIANT* result) const;

  ComRef<IDispatch> object_;
  std::shared_ptr<FoundMembers> found_;
};

}  // namespace ORXKMPrintProp::automation
