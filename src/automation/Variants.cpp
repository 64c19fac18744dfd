#include "automation/Variants.h"

#include <array>
#include <charconv>
#include <memory>
#include <new>
#include <type_traits>

#include "automation/Failures.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::automation {
namespace {

/// The number that a person would write for it: 0.1 stays 0.1.
double Widened(float number) {
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  double widened = number;
  std::from_chars(digits.data(), end, widened);
  return widened;
}

/// The platform's functions take also what they only read as if they were to change it.
VARIANT* Read(const VARIANT& value) { return const_cast<VARIANT*>(&value); }

template <class Number>
Variant WholeNumber(Number number, const VARIANT& value) {
  if (std::in_range<std::int32_t>(number)) return static_cast<std::int32_t>(number);
  return std::make_shared<HostValue>(value);
}

}  // namespace

Bstr::Bstr(TextView text)
    : text_(::SysAllocStringLen(reinterpret_cast<const OLECHAR*>(text.data()), static_cast<UINT>(text.size()))) {
  if (!text_) throw std::bad_alloc();
}

Text TextOf(BSTR text) { return Text(ViewOf(text)); }

TextView ViewOf(BSTR text) {
  return text ? TextView(reinterpret_cast<const char16_t*>(text), ::SysStringLen(text)) : TextView();
}

HostValue::HostValue(const VARIANT& value) { Check(::VariantCopy(&value_, Read(value))); }

Variant HostValue::PlainValue(Wanted wanted) const {
  switch (value_.vt) {
    case VT_NULL:
    case VT_ERROR:
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return Object::PlainValue(wanted);
    default:
      break;
  }
  OwnedVariant plain;
  const LCID language = value_.vt == VT_DATE ? LOCALE_USER_DEFAULT : LOCALE_INVARIANT;
  const VARTYPE type = wanted == Wanted::Text ? VT_BSTR : VT_R8;
  CheckConversion(::VariantChangeTypeEx(&plain, Read(value_), language, 0, type));
  return FromVariant(plain);
}

Variant FromVariant(const VARIANT& value) {
  switch (value.vt) {
    case VT_EMPTY:
      return {};
    case VT_BOOL:
      return value.boolVal != VARIANT_FALSE;
    case VT_I1:
      return static_cast<std::int16_t>(static_cast<signed char>(value.cVal));
    case VT_UI1:
      return std::int16_t{value.bVal};
    case VT_I2:
      return static_cast<std::int16_t>(value.iVal);
    case VT_UI2:
      return std::int32_t{value.uiVal};
    case VT_I4:
    case VT_INT:
      return static_cast<std::int32_t>(value.lVal);
    case VT_UI4:
    case VT_UINT:
      return WholeNumber(value.ulVal, value);
    case VT_I8:
      return WholeNumber(value.llVal, value);
    case VT_UI8:
      return WholeNumber(value.ullVal, value);
    case VT_R4:
      return Widened(value.fltVal);
    case VT_R8:
      return value.dblVal;
    case VT_BSTR:
      return TextOf(value.bstrVal);
    case VT_CY:
    case VT_DECIMAL:
    case VT_DATE:
    case VT_NULL:
    case VT_ERROR:
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return std::make_shared<HostValue>(value);
    default:
      break;
  }
  if ((value.vt & VT_BYREF) && !(value.vt & VT_ARRAY)) {
    OwnedVariant referred;
    CheckConversion(::VariantCopyInd(&referred, Read(value)));
    return FromVariant(referred);
  }
  throw RunTimeError(ErrorKind::Type, u"An array, or a value of an unknown type, cannot be used.");
}

Variant PlainFromVariant(const VARIANT& value) {
  Variant plain = FromVariant(value);
  const ObjectRef* const object = std::get_if<ObjectRef>(&plain);
  const HostValue* const held = object ? dynamic_cast<const HostValue*>(object->get()) : nullptr;
  if (!held || (held->Get().vt != VT_DISPATCH && held->Get().vt != VT_UNKNOWN)) return plain;

  const ComRef<IDispatch> called = ObjectOf(held->Get());
  if (!called) throw RunTimeError(ErrorKind::Object, u"There is no object where one is needed.");
  DISPPARAMS none{};
  OwnedVariant result;
  EXCEPINFO exception{};
  const auto get = [&](WORD flags) {
    return called->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, flags, &none, &result, &exception, nullptr);
  };
  HRESULT got = get(DISPATCH_PROPERTYGET);
  if (got == DISP_E_MEMBERNOTFOUND) got = get(DISPATCH_PROPERTYGET | DISPATCH_METHOD);
  if (got == DISP_E_MEMBERNOTFOUND) throw RunTimeError(ErrorKind::Type, u"An object has no value of its own.");
  CheckCall(got, exception, u"the default member");
  return FromVariant(result);
}

void ToVariant(const Variant& value, VARIANT& result) {
  const auto set = [&result](VARTYPE type, auto VARIANT::*member, auto content) {
    result.vt = type;
    result.*member = content;
  };
  std::visit(
      [&](const auto& content) {
        using Content = std::decay_t<decltype(content)>;
        if constexpr (std::is_same_v<Content, bool>) {
          set(VT_BOOL, &VARIANT::boolVal, content ? VARIANT_TRUE : VARIANT_FALSE);
        } else if constexpr (std::is_same_v<Content, std::int16_t>) {
          set(VT_I2, &VARIANT::iVal, content);
        } else if constexpr (std::is_same_v<Content, std::int32_t>) {
          set(VT_I4, &VARIANT::lVal, content);
        } else if constexpr (std::is_same_v<Content, double>) {
          set(VT_R8, &VARIANT::dblVal, content);
        } else if constexpr (std::is_same_v<Content, Text>) {
          set(VT_BSTR, &VARIANT::bstrVal, Bstr(content).Detach());
        } else if constexpr (std::is_same_v<Content, ObjectRef>) {
          const auto* const held = dynamic_cast<const HostValue*>(content.get());
          if (!held) throw RunTimeError(ErrorKind::Type, u"The object is not one of a host.");
          Check(::VariantCopy(&result, Read(held->Get())));
        }
      },
      static_cast<const PlainVariant&>(value));
}

ComRef<IDispatch> ObjectOf(const VARIANT& value) {
  OwnedVariant copy;
  CheckConversion(::VariantCopyInd(&copy, Read(value)));
  if (copy.vt == VT_EMPTY || copy.vt == VT_NULL) return nullptr;
  if (copy.vt == VT_DISPATCH) return ComRef<IDispatch>(copy.pdispVal);
  if (copy.vt == VT_UNKNOWN) {
    if (!copy.punkVal) return nullptr;
    if (auto object = ComRef<IUnknown>(copy.punkVal).As<IDispatch>()) return object;
  }
  throw RunTimeError(ErrorKind::Type, u"A value stands where an object is needed.");
}

}  // namespace ORXKMPrintProp::automation
