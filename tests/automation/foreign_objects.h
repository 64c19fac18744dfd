#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "automation/ComRef.h"
#include "tables/MemoryTable.h"

namespace ORXKMPrintProp::test {

/// How a host's objects know their members.
enum class Known {
  AsTheyAre,      ///< by names and by the numbers of the contract
  ByNames,        ///< by names, with numbers of their own
  ByNumbers,      ///< by the numbers of the contract, and by name only what has none
  AsScriptsHave,  ///< names are found as scripts' objects do it, the numbers of the contract are those of other members
};

/// How a call on a host's object goes wrong.
enum class Fault { BareCode, Exception, WrongType, NoObject };

/// What is seen of the calls on a host's objects, and which of them goes wrong.
struct HostWatch {
  std::vector<std::string> calls;  ///< "Rows", "Value(POSIT)", "?Value" for a look-up, "Next", ...
  std::size_t failAt = 0;          ///< counted from 1, 0 for none
  Fault fault = Fault::BareCode;
  int alive = 0;               ///< objects that have not ended
  std::function<void()> act;  ///< called inside each call
};

/// The code and the words of `Fault::Exception`, the code of `Fault::BareCode`.
inline constexpr HRESULT kFaultNumber = static_cast<HRESULT>(0x800A1234);
inline constexpr const wchar_t* kFaultSource = L"Foreign";
inline constexpr const wchar_t* kFaultWords = L"It went wrong.";
inline constexpr HRESULT kBareNumber = static_cast<HRESULT>(0x8004004D);

/// The same object, and all that it gives out, under a watch.
automation::ComRef<IDispatch> Foreign(automation::ComRef<IDispatch> object, Known known,
                                      std::shared_ptr<HostWatch> watch);

/// The table as a host's.
automation::ComRef<IDispatch> MakeHostTable(std::shared_ptr<MemoryTable> table);

}  // namespace ORXKMPrintProp::test
