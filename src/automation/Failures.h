#pragma once

#include <ole2.h>

#include "tables/RunTimeError.h"

// Failures both ways: what a host's object tells becomes an exception of ours, and whatever is thrown becomes what a
// host is told.

namespace ORXKMPrintProp::automation {

/// A call on a host's object that failed: it goes back to the host as it came.
class HostFailure : public RunTimeError {
 public:
  HostFailure(HRESULT number, Text source, Text words)
      : RunTimeError(ErrorKind::Table, std::move(words)), number_(number), source_(std::move(source)) {}
  HRESULT Number() const { return number_; }
  const Text& Source() const { return source_; }

 private:
  HRESULT number_;
  Text source_;
};

/// For functions of the platform. @throws std::bad_alloc, HostFailure
void Check(HRESULT result);
/// For its conversions. @throws std::bad_alloc, RunTimeError (Overflow), (Type)
void CheckConversion(HRESULT result);
/// For a call on a host's object. @param exception what the object has told, which is released. @param member how a
/// message calls the member, for an object that tells nothing. @throws HostFailure
void CheckCall(HRESULT result, EXCEPINFO& exception, TextView member);
/// The same where an object can tell nothing but the result.
void CheckCall(HRESULT result, TextView member);

/// What a host is told of a failure: the number that script hosts know for each kind of our own, that of the host's
/// object for its own.
struct Failure {
  HRESULT number = S_OK;
  Text source;
  Text words;
};

/// The exception that is being handled, without words when there is no memory for them.
/// @param source what the host is told for failures of our own.
Failure CurrentFailure(TextView source) noexcept;

/// Hands a failure to the thread's error information. @return its number
HRESULT Report(const Failure& failure, const IID& interfaceId) noexcept;

/// Tells the exception that is being handled as the failure of a late-bound call. @param exception may be null. @return what the call gives
HRESULT TellFailure(TextView source, EXCEPINFO* exception) noexcept;

}  // namespace ORXKMPrintProp::automation
