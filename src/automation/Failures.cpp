#include "automation/Failures.h"

#include <array>
#include <charconv>
#include <new>
#include <utility>

#include "automation/ComRef.h"
#include "automation/Variants.h"

namespace ORXKMPrintProp::automation {
namespace {

/// "0x80004005"
Text Hexadecimal(HRESULT number) {
  std::array<char, 8> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<std::uint32_t>(number), 16);
  return Text(u"0x") + Text(digits.data(), end.ptr);
}

/// As script hosts number their errors.
HRESULT NumberOf(ErrorKind kind) {
  static constexpr int kNumbers[] = {13, 6, 9, 457, 5, 91, 440};
  static_assert(std::size(kNumbers) == static_cast<std::size_t>(ErrorKind::Table) + 1);
  return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, kNumbers[static_cast<std::size_t>(kind)]);
}

/// What an object has told, which ends with this.
struct Told {
  explicit Told(EXCEPINFO& exception)
      : source(Bstr::Taken(std::exchange(exception.bstrSource, nullptr))),
        words(Bstr::Taken(std::exchange(exception.bstrDescription, nullptr))),
        help(Bstr::Taken(std::exchange(exception.bstrHelpFile, nullptr))) {}
  Bstr source, words, help;
};

}  // namespace

void Check(HRESULT result) {
  if (result == E_OUTOFMEMORY) throw std::bad_alloc();
  if (FAILED(result)) throw HostFailure(result, {}, u"The system failed with " + Hexadecimal(result) + u".");
}

void CheckConversion(HRESULT result) {
  if (SUCCEEDED(result)) return;
  if (result == E_OUTOFMEMORY) throw std::bad_alloc();
  if (result == DISP_E_OVERFLOW) throw RunTimeError(ErrorKind::Overflow, u"A value is too large.");
  throw RunTimeError(ErrorKind::Type, u"A value has the wrong type.");
}

void CheckCall(HRESULT result, TextView member) {
  EXCEPINFO nothing{};
  CheckCall(result, nothing, member);
}

void CheckCall(HRESULT result, EXCEPINFO& exception, TextView member) {
  const bool tells = result == DISP_E_EXCEPTION;
  if (tells && exception.pfnDeferredFillIn) exception.pfnDeferredFillIn(&exception);
  const Told told(exception);
  if (SUCCEEDED(result)) return;
  HRESULT number = result;
  if (tells && FAILED(exception.scode)) {
    number = exception.scode;
  } else if (tells && exception.wCode != 0) {
    number = MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, exception.wCode);
  }
  Text words = TextOf(told.words.Get());
  if (words.empty()) words = u"The host's object failed at " + Text(member) + u" with " + Hexadecimal(number) + u".";
  throw HostFailure(number, TextOf(told.source.Get()), std::move(words));
}

Failure CurrentFailure(TextView source) noexcept {
  HRESULT number = E_OUTOFMEMORY;
  try {
    try {
      throw;
    } catch (const HostFailure& failure) {
      number = failure.Number();
      return {number, failure.Source(), failure.Message()};
    } catch (const RunTimeError& error) {
      number = NumberOf(error.Kind());
      return {number, Text(source), error.Message()};
    } catch (const std::bad_alloc&) {
      return {number, {}, {}};
    } catch (const std::exception& error) {
      number = E_UNEXPECTED;
      const std::string_view words = error.what();
      return {number, Text(source), Text(words.begin(), words.end())};
    } catch (...) {
      return {E_UNEXPECTED, {}, {}};
    }
  } catch (...) {
    return {number, {}, {}};
  }
}

HRESULT Report(const Failure& failure, const IID& interfaceId) noexcept {
  ::SetErrorInfo(0, nullptr);
  if (failure.words.empty()) return failure.number;
  try {
    ComRef<ICreateErrorInfo> made;
    Check(::CreateErrorInfo(made.Out()));
    made->SetGUID(interfaceId);
    made->SetSource(Bstr(failure.source).Get());
    made->SetDescription(Bstr(failure.words).Get());
    if (const auto told = made.As<IErrorInfo>()) ::SetErrorInfo(0, told.Get());
  } catch (...) {
    // Without memory the number alone goes to the host.
  }
  return failure.number;
}

HRESULT TellFailure(TextView source, EXCEPINFO* exception) noexcept {
  const Failure failure = CurrentFailure(source);
  if (!exception || failure.words.empty()) return failure.number;
  *exception = {};
  exception->scode = failure.number;
  try {
    exception->bstrSource = Bstr(failure.source).Detach();
    exception->bstrDescription = Bstr(failure.words).Detach();
  } catch (...) {
    // Without memory the number alone goes to the host.
  }
  return DISP_E_EXCEPTION;
}

}  // namespace ORXKMPrintProp::automation
