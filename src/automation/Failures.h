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

/// What a host is told of a failure: the number that script hosts know for each kind of our own, that of the host's
/// object for its own.
struct Failure {
  HRESULT number;
  Text source;
  Text words;
};

/// The exception that is being handled, without words when there is no memory for them.
/// @param source what the host is told for failures of our own.
Failure CurrentFailure(TextView source) noexcept;

/// Hands the exception that is being handled to the thread's error information. @return its number
HRESULT ReportFailure(const IID& interfaceId, TextView source) noexcept;

/// Tells it as the failure of a late-bound call. @param exception may be null. @return what the call gives
HRESULT TellFailure(TextView source, EXCEPINFO* exception) noexcept;

}  // namespace ORXKMPrintProp::automation
