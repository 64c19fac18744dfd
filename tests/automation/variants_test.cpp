// The values of automation, beside what the library makes of them.

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "automation/Variants.h"
#include "automation/foreign_objects.h"
#include "support/table_text.h"
#include "tables/Conversions.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::test {
namespace {

using namespace automation;

std::string MeaningAsItIs(const VARIANT& value) {
  const auto tried = [&](auto convert) -> std::string {
    try {
      return convert(PlainFromVariant(value));
    } catch (const RunTimeError& error) {
      return NameOf(error.Kind());
    }
  };
  return tried([](Variant&& plain) { return "'" + ToAscii(ToText(std::move(plain))) + "'"; }) + " " +
         tried([](Variant&& plain) { return std::to_string(ToInteger(plain)); });
}

/// Text and number that come of it: "'text' number", or the kinds of the errors. A reference to it means the same.
std::string Meaning(VARIANT& value) {
  std::string meaning = MeaningAsItIs(value);
  if (value.vt != VT_EMPTY && value.vt != VT_NULL && value.vt <= VT_UINT) {
    VARIANT reference{};
    reference.vt = static_cast<VARTYPE>(VT_BYREF | value.vt);
    reference.byref = value.vt == VT_DECIMAL ? static_cast<void*>(&value.decVal) : &value.llVal;
    EXPECT_EQ(MeaningAsItIs(reference), meaning) << value.vt;
  }
  return meaning;
}
std::string Meaning(VARIANT&& value) { return Meaning(value); }

template <class Content>
struct Value : OwnedVariant {
  Value(VARTYPE type, Content VARIANT::*member, Content content) {
    vt = type;
    this->*member = content;
  }
};

#define VALUE(type, member, content) \
  Value<decltype(VARIANT::member)>(type, &VARIANT::member, static_cast<decltype(VARIANT::member)>(content))

TEST(Variants, MeanWhatThePlatformConvertsThemTo) {
  EXPECT_EQ(Meaning(OwnedVariant()), "'' type");
  EXPECT_EQ(Meaning(VALUE(VT_NULL, lVal, 0)), "type type");
  EXPECT_EQ(Meaning(VALUE(VT_ERROR, scode, DISP_E_PARAMNOTFOUND)), "type type");
  EXPECT_EQ(Meaning(VALUE(VT_BOOL, boolVal, VARIANT_TRUE)), "'True' -1");
  EXPECT_EQ(Meaning(VALUE(VT_I1, cVal, -7)), "'-7' -7");
  EXPECT_EQ(Meaning(VALUE(VT_UI1, bVal, 200)), "'200' 200");
  EXPECT_EQ(Meaning(VALUE(VT_I2, iVal, -32768)), "'-32768' -32768");
  EXPECT_EQ(Meaning(VALUE(VT_UI2, uiVal, 65535)), "'65535' overflow");
  EXPECT_EQ(Meaning(VALUE(VT_I4, lVal, 12)), "'12' 12");
  EXPECT_EQ(Meaning(VALUE(VT_UI4, ulVal, 4294967295u)), "'4294967295' overflow");
  EXPECT_EQ(Meaning(VALUE(VT_INT, intVal, -1)), "'-1' -1");
  EXPECT_EQ(Meaning(VALUE(VT_UINT, uintVal, 3)), "'3' 3");
  EXPECT_EQ(Meaning(VALUE(VT_I8, llVal, 9007199254740993)), "'9007199254740993' overflow");
  EXPECT_EQ(Meaning(VALUE(VT_I8, llVal, -5)), "'-5' -5");
  EXPECT_EQ(Meaning(VALUE(VT_UI8, ullVal, std::numeric_limits<std::uint64_t>::max())),
            "'18446744073709551615' overflow");
  EXPECT_EQ(Meaning(VALUE(VT_R4, fltVal, 0.1f)), "'0.1' 0");
  EXPECT_EQ(Meaning(VALUE(VT_R8, dblVal, 2.5)), "'2.5' 2");
  OwnedVariant currency;
  currency.vt = VT_CY;
  currency.cyVal.int64 = 35000;
  EXPECT_EQ(Meaning(currency), "'3.5' 4");
  OwnedVariant decimal;
  ASSERT_EQ(::VarDecFromR8(-1.25, &decimal.decVal), S_OK);
  decimal.vt = VT_DECIMAL;
  EXPECT_EQ(Meaning(decimal), "'-1.25' -1");
  EXPECT_EQ(Meaning(VALUE(VT_DATE, date, 2.0)).substr(0, 1), "'") << "as the user's language has it";
  EXPECT_NE(Meaning(VALUE(VT_DATE, date, 2.0)).find(" 2"), std::string::npos);

  OwnedVariant text;
  ToVariant(Text(u" 7\0 x", 5), text);
  EXPECT_EQ(::SysStringLen(text.bstrVal), 5u);
  EXPECT_EQ(FromVariant(text), Variant(Text(u" 7\0 x", 5)));
  OwnedVariant none;
  none.vt = VT_BSTR;
  EXPECT_EQ(Meaning(none), "'' type");
}

TEST(Variants, ThatReferToAnotherMeanThatOne) {
  OwnedVariant inner;
  ToVariant(Text(u"12"), inner);
  OwnedVariant outer;
  outer.vt = VT_BYREF | VT_VARIANT;
  outer.pvarVal = &inner;
  EXPECT_EQ(Meaning(outer), "'12' 12");
}

TEST(Variants, OfNoUseAreRefused) {
  OwnedVariant array;
  array.vt = VT_ARRAY | VT_I2;
  array.parray = ::SafeArrayCreateVector(VT_I2, 0, 2);
  EXPECT_EQ(Meaning(array), "type type");
  EXPECT_EQ(Meaning(VALUE(VT_BYREF | VT_ARRAY | VT_I2, pparray, &array.parray)), "type type");
  EXPECT_EQ(Meaning(VALUE(VT_EMPTY, vt, VT_VECTOR)), "type type");
}

TEST(Variants, OfAnObjectMeanItsDefaultMember) {
  OwnedVariant object;
  object.vt = VT_DISPATCH;
  EXPECT_EQ(Meaning(object), "object object");
  object.pdispVal = MakeHostTable(MemoryTable::Create({})).Detach();
  EXPECT_EQ(Meaning(object), "type type") << "it has none";
}

TEST(Variants, GoAndComeBackTheSame) {
  for (const Variant& value : {Variant(), Variant(true), Variant(false), Variant(std::int16_t{-3}),
                               Variant(std::int32_t{70000}), Variant(0.1), Variant(u""), Variant(u"\x4e2d\xd83d\xde00")}) {
    OwnedVariant there;
    ToVariant(value, there);
    const Variant back = FromVariant(there);
    if (std::holds_alternative<std::int16_t>(value)) {
      EXPECT_EQ(there.vt, VT_I2);
    }
    EXPECT_EQ(ToString(back), ToString(value));
  }
}

}  // namespace
}  // namespace ORXKMPrintProp::test
