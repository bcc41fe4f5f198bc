#include <gtest/gtest.h>

#include <cmath>

#include "ValueTestSupport.h"
#include "vbscript/value/Coercion.h"
#include "vbscript/value/Locale.h"
#include "vbscript/value/SafeArray.h"

namespace vbs {
namespace {

using testing::Cur;
using testing::DateOf;
using testing::Describe;
using testing::MakeObject;
using testing::Str;

const Locale& It = ItalianLocale();
const Locale& En = EnglishLocale();

struct ConversionCase {
  Variant input;
  Subtype target;
  const Locale* locale;
  const char* expected;
};

void CheckConversions(const std::vector<ConversionCase>& cases) {
  for (size_t i = 0; i < cases.size(); ++i) {
    const ConversionCase& c = cases[i];
    EXPECT_EQ(Describe(ConvertTo(c.input, c.target, *c.locale)), c.expected)
        << "row " << i << ": " << Describe(c.input);
  }
}

TEST(CoercionTest, IntegerConversionsRoundHalfToEvenThenCheckTheRange) {
  CheckConversions({
      {Variant::Double(2.5), Subtype::Integer, &En, "Integer 2"},
      {Variant::Double(3.5), Subtype::Integer, &En, "Integer 4"},
      {Variant::Double(-36.75), Subtype::Integer, &En, "Integer -37"},
      {Variant::Double(-36.5), Subtype::Integer, &En, "Integer -36"},
      {Variant::Double(0.5), Subtype::Integer, &En, "Integer 0"},
      {Variant::Double(1.5), Subtype::Integer, &En, "Integer 2"},
      {Variant::Double(32767.49), Subtype::Integer, &En, "Integer 32767"},
      {Variant::Double(32767.5), Subtype::Integer, &En, "error 6"},
      {Variant::Double(-32768.5), Subtype::Integer, &En, "Integer -32768"},
      {Variant::Double(-32768.51), Subtype::Integer, &En, "error 6"},
      {Variant::Long(32768), Subtype::Integer, &En, "error 6"},
      {Variant::Boolean(true), Subtype::Integer, &En, "Integer -1"},
      {Variant(), Subtype::Integer, &En, "Integer 0"},
      {Variant::Null(), Subtype::Integer, &En, "error 94"},
      {Cur(2.5), Subtype::Integer, &En, "Integer 2"},
      {Cur(-3.5), Subtype::Integer, &En, "Integer -4"},
      {Cur(1.0001), Subtype::Integer, &En, "Integer 1"},
      {Variant::Single(2.5f), Subtype::Long, &En, "Long 2"},
      {Variant::Double(0.51), Subtype::Long, &En, "Long 1"},
      {Variant::Double(2147483647.4), Subtype::Long, &En, "Long 2147483647"},
      {Variant::Double(2147483647.5), Subtype::Long, &En, "error 6"},
      {Variant::Double(-2147483648.5), Subtype::Long, &En, "Long -2147483648"},
      {Variant::Double(1e300), Subtype::Long, &En, "error 6"},
      {DateOf(2000, 1, 1), Subtype::Long, &En, "Long 36526"},
      {Variant::Double(255.49), Subtype::Byte, &En, "Byte 255"},
      {Variant::Double(255.5), Subtype::Byte, &En, "error 6"},
      {Variant::Double(-0.5), Subtype::Byte, &En, "Byte 0"},
      {Variant::Integer(-1), Subtype::Byte, &En, "error 6"},
      {Variant::Boolean(true), Subtype::Byte, &En, "Byte 255"},
      {Variant::Boolean(false), Subtype::Byte, &En, "Byte 0"},
  });
}

TEST(CoercionTest, StringsReadAsNumbersWithTheLocaleSeparators) {
  CheckConversions({
      {Str(u"1,5"), Subtype::Double, &It, "Double 1.5"},
      {Str(u"1.5"), Subtype::Double, &It, "Double 15"},
      {Str(u"1.000,25"), Subtype::Double, &It, "Double 1000.25"},
      {Str(u"1.5"), Subtype::Double, &En, "Double 1.5"},
      {Str(u"1,000.25"), Subtype::Double, &En, "Double 1000.25"},
      {Str(u"1,5"), Subtype::Double, &En, "Double 15"},
      {Str(u",5"), Subtype::Double, &It, "Double 0.5"},
      {Str(u".5"), Subtype::Double, &It, "error 13"},
      {Str(u"5,"), Subtype::Double, &It, "Double 5"},
      {Str(u"  -12  "), Subtype::Double, &En, "Double -12"},
      {Str(u"+7"), Subtype::Double, &En, "Double 7"},
      {Str(u"7-"), Subtype::Double, &En, "Double -7"},
      {Str(u"(7)"), Subtype::Double, &En, "Double -7"},
      {Str(u"(7"), Subtype::Double, &En, "error 13"},
      {Str(u"$5"), Subtype::Double, &En, "Double 5"},
      {Str(u"5 €"), Subtype::Double, &It, "Double 5"},
      {Str(u"€ -5"), Subtype::Double, &It, "Double -5"},
      {Str(u"€ €5"), Subtype::Double, &It, "error 13"},
      {Str(u"-€ 5"), Subtype::Double, &It, "Double -5"},
      {Str(u"1e3"), Subtype::Double, &En, "Double 1000"},
      {Str(u"1,5E-2"), Subtype::Double, &It, "Double 0.015"},
      {Str(u"1e"), Subtype::Double, &En, "error 13"},
      {Str(u"1e400"), Subtype::Double, &En, "error 6"},
      {Str(u"&H10"), Subtype::Double, &En, "Double 16"},
      {Str(u"&hff"), Subtype::Long, &En, "Long 255"},
      {Str(u"&HFFFFFFFF"), Subtype::Long, &En, "Long -1"},
      {Str(u"&O17"), Subtype::Long, &En, "Long 15"},
      {Str(u"&17"), Subtype::Long, &En, "Long 15"},
      {Str(u"&H"), Subtype::Long, &En, "error 13"},
      {Str(u"&HG"), Subtype::Long, &En, "error 13"},
      {Str(u"&H100000000"), Subtype::Long, &En, "error 13"},
      {Str(u""), Subtype::Double, &En, "error 13"},
      {Str(u"   "), Subtype::Long, &En, "error 13"},
      {Str(u"abc"), Subtype::Integer, &En, "error 13"},
      {Str(u"1 2"), Subtype::Integer, &En, "error 13"},
      {Str(u",5"), Subtype::Double, &En, "error 13"},
      {Str(u"TRUE"), Subtype::Long, &En, "error 13"},
      {Str(u"#FALSE#"), Subtype::Double, &En, "error 13"},
      {Str(u"-1"), Subtype::Integer, &En, "Integer -1"},
      {Str(u"-0.5"), Subtype::Long, &En, "Long 0"},
      {Str(u"2,5"), Subtype::Integer, &It, "Integer 2"},
      {Str(u"-0,5"), Subtype::Byte, &It, "Byte 0"},
      {Str(u"258"), Subtype::Byte, &En, "error 6"},
      {Str(u"-1"), Subtype::Byte, &En, "error 6"},
      {Str(u"40000"), Subtype::Integer, &En, "error 6"},
  });
}

TEST(CoercionTest, BooleansFromNumbersStringsAndWords) {
  CheckConversions({
      {Variant::Integer(5), Subtype::Boolean, &En, "Boolean True"},
      {Variant::Integer(0), Subtype::Boolean, &En, "Boolean False"},
      {Variant::Double(-0.56), Subtype::Boolean, &En, "Boolean True"},
      {Cur(0.0001), Subtype::Boolean, &En, "Boolean True"},
      {Variant(), Subtype::Boolean, &En, "Boolean False"},
      {Variant::Null(), Subtype::Boolean, &En, "error 94"},
      {Str(u""), Subtype::Boolean, &En, "error 13"},
      {Str(u"0"), Subtype::Boolean, &En, "Boolean False"},
      {Str(u"0.1"), Subtype::Boolean, &En, "Boolean True"},
      {Str(u"0,1"), Subtype::Boolean, &It, "Boolean True"},
      {Str(u"true"), Subtype::Boolean, &It, "Boolean True"},
      {Str(u"FALSE"), Subtype::Boolean, &En, "Boolean False"},
      {Str(u"#TRUE#"), Subtype::Boolean, &En, "Boolean True"},
      {Str(u"#fAlSe#"), Subtype::Boolean, &En, "Boolean False"},
      {Str(u"Vero"), Subtype::Boolean, &It, "Boolean True"},
      {Str(u"falso"), Subtype::Boolean, &It, "Boolean False"},
      {Str(u"Vero"), Subtype::Boolean, &En, "error 13"},
      {Str(u"yes"), Subtype::Boolean, &En, "error 13"},
  });
}

TEST(CoercionTest, RealAndCurrencyConversions) {
  CheckConversions({
      {Variant(), Subtype::Double, &En, "Double 0"},
      {Variant::Boolean(true), Subtype::Double, &En, "Double -1"},
      {Cur(1.2345), Subtype::Double, &En, "Double 1.2345"},
      {DateOf(1899, 12, 31), Subtype::Double, &En, "Double 1"},
      {Variant::Single(0.5f), Subtype::Double, &En, "Double 0.5"},
      {Variant::Double(1e39), Subtype::Single, &En, "error 6"},
      {Variant::Double(0.1), Subtype::Single, &En, "Single 0.1"},
      {Str(u"-1"), Subtype::Single, &En, "Single -1"},
      {Variant::Double(0.000149), Subtype::Currency, &En, "Currency 0.0001"},
      {Variant::Double(0.00025), Subtype::Currency, &En, "Currency 0.0002"},
      {Variant::Double(2147483647.99), Subtype::Currency, &En, "Currency 2147483647.99"},
      {Variant::Integer(-32768), Subtype::Currency, &En, "Currency -32768"},
      {Variant::Boolean(true), Subtype::Currency, &En, "Currency -1"},
      {Str(u"-0,5"), Subtype::Currency, &It, "Currency -0.5"},
      {Variant::Double(1e15), Subtype::Currency, &En, "error 6"},
      {Variant::Double(9e14), Subtype::Currency, &En, "Currency 900000000000000"},
      {Variant::Null(), Subtype::Currency, &En, "error 94"},
      {Str(u"x"), Subtype::Currency, &En, "error 13"},
  });
}

TEST(CoercionTest, DatesFromNumbersAndText) {
  CheckConversions({
      {Variant(), Subtype::Date, &En, "Date 12:00:00 AM"},
      {Variant::Integer(1), Subtype::Date, &En, "Date 12/31/1899"},
      {Variant::Integer(-1), Subtype::Date, &En, "Date 12/29/1899"},
      {Variant::Long(100000), Subtype::Date, &En, "Date 10/14/2173"},
      {Variant::Double(1.5), Subtype::Date, &En, "Date 12/31/1899 12:00:00 PM"},
      {Str(u"1"), Subtype::Date, &En, "Date 12/31/1899"},
      {Str(u"1/2/2000"), Subtype::Date, &En, "Date 1/2/2000"},
      {Str(u"1/2/2000"), Subtype::Date, &It, "Date 2/1/2000"},
      {Str(u"31/12/2000"), Subtype::Date, &En, "Date 12/31/2000"},
      {Str(u"12/31/2000"), Subtype::Date, &It, "Date 12/31/2000"},
      {Str(u"2000-03-04"), Subtype::Date, &It, "Date 3/4/2000"},
      {Str(u"4 marzo 2000"), Subtype::Date, &It, "Date 3/4/2000"},
      {Str(u"March 4, 2000"), Subtype::Date, &It, "Date 3/4/2000"},
      {Str(u"lunedì 6 marzo 2000"), Subtype::Date, &It, "Date 3/6/2000"},
      {Str(u"1/1/29"), Subtype::Date, &En, "Date 1/1/2029"},
      {Str(u"1/1/30"), Subtype::Date, &En, "Date 1/1/1930"},
      {Str(u"25/12/2000 15:30:10"), Subtype::Date, &It, "Date 12/25/2000 3:30:10 PM"},
      {Str(u"3:04 PM"), Subtype::Date, &En, "Date 3:04:00 PM"},
      {Str(u"12:00 AM"), Subtype::Date, &En, "Date 12:00:00 AM"},
      {Str(u"13:00 PM"), Subtype::Date, &En, "error 13"},
      {Str(u"25:00"), Subtype::Date, &En, "error 13"},
      {Str(u"31/2/2000"), Subtype::Date, &It, "error 13"},
      {Str(u"x"), Subtype::Date, &En, "error 13"},
      {Str(u""), Subtype::Date, &En, "error 13"},
      {Variant::Null(), Subtype::Date, &En, "error 94"},
      {Variant::Double(3e6), Subtype::Date, &En, "error 6"},
      {Variant::Double(-657435), Subtype::Date, &En, "error 6"},
      {Variant::Boolean(true), Subtype::Date, &En, "Date 12/29/1899"},
  });
}

TEST(CoercionTest, NumbersPrintAsTheLocaleWritesThem) {
  CheckConversions({
      {Variant::Double(0.1), Subtype::String, &It, "String \"0,1\""},
      {Variant::Double(0.1), Subtype::String, &En, "String \"0.1\""},
      {Variant::Double(3.5), Subtype::String, &En, "String \"3.5\""},
      {Variant::Double(-2.25), Subtype::String, &It, "String \"-2,25\""},
      {Variant::Double(1.0 / 3.0), Subtype::String, &En, "String \"0.333333333333333\""},
      {Variant::Double(2.0 / 3.0), Subtype::String, &En, "String \"0.666666666666667\""},
      {Variant::Double(123456789012345.0), Subtype::String, &En, "String \"123456789012345\""},
      {Variant::Double(1e15), Subtype::String, &En, "String \"1E+15\""},
      {Variant::Double(1e20), Subtype::String, &It, "String \"1E+20\""},
      {Variant::Double(1.5e-7), Subtype::String, &It, "String \"1,5E-07\""},
      {Variant::Double(0.0001), Subtype::String, &En, "String \"0.0001\""},
      {Variant::Double(0.00001), Subtype::String, &En, "String \"1E-05\""},
      {Variant::Double(1e100), Subtype::String, &En, "String \"1E+100\""},
      {Variant::Double(-0.0), Subtype::String, &En, "String \"0\""},
      {Variant::Double(0.1 + 0.2), Subtype::String, &En, "String \"0.3\""},
      {Variant::Single(0.1f), Subtype::String, &En, "String \"0.1\""},
      {Variant::Single(1234567.0f), Subtype::String, &En, "String \"1234567\""},
      {Variant::Single(12345678.0f), Subtype::String, &It, "String \"1,234568E+07\""},
      {Cur(1.5), Subtype::String, &It, "String \"1,5\""},
      {Cur(-0.0001), Subtype::String, &En, "String \"-0.0001\""},
      {Cur(32768), Subtype::String, &En, "String \"32768\""},
      {Variant::Currency(INT64_MIN), Subtype::String, &En, "String \"-922337203685477.5808\""},
      {Variant::Integer(-32768), Subtype::String, &It, "String \"-32768\""},
      {Variant::Long(100000), Subtype::String, &It, "String \"100000\""},
      {Variant::Byte(255), Subtype::String, &It, "String \"255\""},
      {Variant::Boolean(true), Subtype::String, &En, "String \"True\""},
      {Variant::Boolean(false), Subtype::String, &En, "String \"False\""},
      {Variant::Boolean(true), Subtype::String, &It, "String \"Vero\""},
      {Variant::Boolean(false), Subtype::String, &It, "String \"Falso\""},
      {Variant(), Subtype::String, &It, "String \"\""},
      {Variant::Null(), Subtype::String, &It, "error 94"},
      {Variant::Error(5), Subtype::String, &En, "error 13"},
  });
}

TEST(CoercionTest, DatesPrintAsShortDateAndLongTime) {
  const double christmas = *SerialFromDate(2000, 12, 25);
  const double afternoon = *SerialFromTime(15, 4, 5);
  CheckConversions({
      {Variant::Date(christmas), Subtype::String, &It, "String \"25/12/2000\""},
      {Variant::Date(christmas), Subtype::String, &En, "String \"12/25/2000\""},
      {DateOf(2001, 2, 3), Subtype::String, &It, "String \"03/02/2001\""},
      {DateOf(2001, 2, 3), Subtype::String, &En, "String \"2/3/2001\""},
      {Variant::Date(christmas + afternoon), Subtype::String, &It, "String \"25/12/2000 15:04:05\""},
      {Variant::Date(christmas + afternoon), Subtype::String, &En, "String \"12/25/2000 3:04:05 PM\""},
      {Variant::Date(afternoon), Subtype::String, &It, "String \"15:04:05\""},
      {Variant::Date(0), Subtype::String, &It, "String \"00:00:00\""},
      {Variant::Date(0), Subtype::String, &En, "String \"12:00:00 AM\""},
      {Variant::Date(-1.25), Subtype::String, &It, "String \"29/12/1899 06:00:00\""},
      {Variant::Date(christmas + 0.9999999), Subtype::String, &It, "String \"26/12/2000\""},
  });
}

TEST(CoercionTest, ObjectsConvertThroughTheirDefaultMember) {
  CheckConversions({
      {MakeObject(Variant::Double(2.5)), Subtype::Integer, &En, "Integer 2"},
      {MakeObject(Variant::Double(1.5)), Subtype::Integer, &En, "Integer 2"},
      {MakeObject(Variant::Integer(1)), Subtype::Byte, &En, "Byte 1"},
      {MakeObject(Variant::Double(0.1)), Subtype::Currency, &En, "Currency 0.1"},
      {MakeObject(Variant::Double(0.1)), Subtype::String, &It, "String \"0,1\""},
      {MakeObject(Variant()), Subtype::Boolean, &En, "Boolean False"},
      {MakeObject(MakeObject(Variant::Long(7))), Subtype::Long, &En, "Long 7"},
      {MakeObject(Variant::Null()), Subtype::Long, &En, "error 94"},
      {MakeObject(Variant(), false), Subtype::Long, &En, "error 438"},
      {Variant::Nothing(), Subtype::Long, &En, "error 91"},
  });
}

TEST(CoercionTest, ArraysAndErrorValuesDoNotConvert) {
  auto array = SafeArray::Create(std::vector<ArrayBound>{{0, 1}});
  ASSERT_TRUE(array);
  for (Subtype target : {Subtype::Boolean, Subtype::Byte, Subtype::Integer, Subtype::Long, Subtype::Single,
                         Subtype::Double, Subtype::Currency, Subtype::Date, Subtype::String}) {
    EXPECT_EQ(Describe(ConvertTo(Variant::Array(*array), target, En)), "error 13");
    EXPECT_EQ(Describe(ConvertTo(Variant::Error(5), target, En)), "error 13");
  }
}

TEST(CoercionTest, ConversionsSeeThroughReferences) {
  Variant target = Str(u"2,5");
  const Variant reference = Variant::Reference(&target);
  EXPECT_EQ(Describe(ConvertTo(reference, Subtype::Double, It)), "Double 2.5");
  EXPECT_EQ(reference.VarType(), kVbString);
}

TEST(CoercionTest, NumbersSurviveTheRoundTripThroughText) {
  for (const Locale* locale : {&It, &En}) {
    for (double value : {0.1, -2.5, 1.0 / 3.0, 123456.789, 1e20, 1.5e-7, 9.87654321e-100, 2147483648.0}) {
      auto text = Variant::Double(value).to_string(*locale);
      ASSERT_TRUE(text);
      auto back = Variant::String(*text).to_double(*locale);
      ASSERT_TRUE(back) << text::Utf16ToUtf8(text->view());
      EXPECT_NEAR(*back, value, std::fabs(value) * 1e-14) << text::Utf16ToUtf8(text->view());
    }
  }
}

TEST(CoercionTest, RoundHalfEvenOnTiesOnly) {
  const std::pair<double, double> cases[] = {{0.5, 0},   {1.5, 2},    {2.5, 2},    {-0.5, -0},  {-1.5, -2},
                                             {-2.5, -2}, {2.4999, 2}, {2.5001, 3}, {1e16, 1e16}};
  for (const auto& [in, out] : cases) EXPECT_EQ(RoundHalfEven(in), out) << in;
}

}  // namespace
}  // namespace vbs
