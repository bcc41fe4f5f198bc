#include <gtest/gtest.h>

#include "ValueTestSupport.h"
#include "vbscript/value/Operators.h"
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

using Op = BinaryOperator;

struct BinaryCase {
  Op op;
  Variant a;
  Variant b;
  const char* expected;
};

void CheckBinary(const std::vector<BinaryCase>& cases, const Locale& locale = En,
                 CompareMode mode = CompareMode::Binary) {
  for (size_t i = 0; i < cases.size(); ++i) {
    const BinaryCase& c = cases[i];
    EXPECT_EQ(Describe(ApplyBinary(c.op, c.a, c.b, mode, locale)), c.expected)
        << "row " << i << ": " << Describe(c.a) << " op " << static_cast<int>(c.op) << " " << Describe(c.b);
  }
}

Variant I(int16_t v) { return Variant::Integer(v); }
Variant L(int32_t v) { return Variant::Long(v); }
Variant B(uint8_t v) { return Variant::Byte(v); }
Variant D(double v) { return Variant::Double(v); }
Variant S(float v) { return Variant::Single(v); }
Variant Bool(bool v) { return Variant::Boolean(v); }
const Variant kEmpty;
const Variant kNull = Variant::Null();

TEST(OperatorTest, AdditionKeepsTheWiderTypeAndWidensOnOverflow) {
  CheckBinary({
      {Op::Add, I(2), I(2), "Integer 4"},
      {Op::Add, I(32767), I(1), "Long 32768"},
      {Op::Add, I(-32768), I(-1), "Long -32769"},
      {Op::Add, L(2147483647), I(1), "Double 2147483648"},
      {Op::Add, L(-2147483647), L(-2), "Double -2147483649"},
      {Op::Add, B(255), B(1), "Integer 256"},
      {Op::Add, B(200), B(55), "Byte 255"},
      {Op::Add, B(1), I(1), "Integer 2"},
      {Op::Add, Bool(true), Bool(true), "Integer -2"},
      {Op::Add, Bool(false), B(6), "Integer 6"},
      {Op::Add, I(1), L(1), "Long 2"},
      {Op::Add, S(1.5f), I(1), "Single 2.5"},
      {Op::Add, S(1.5f), L(1), "Double 2.5"},
      {Op::Add, S(3e38f), S(3e38f), "Double 6.0000000109955115e+38"},
      {Op::Add, D(1.5), S(1), "Double 2.5"},
      {Op::Add, D(1e308), D(1e308), "error 6"},
      {Op::Add, Cur(1.5), D(0.25), "Currency 1.75"},
      {Op::Add, Cur(1.5), I(1), "Currency 2.5"},
      {Op::Add, Variant::Currency(INT64_MAX), Cur(0.0001), "error 6"},
      {Op::Add, DateOf(2000, 1, 1), I(1), "Date 1/2/2000"},
      {Op::Add, D(0.5), DateOf(2000, 1, 1), "Date 1/1/2000 12:00:00 PM"},
      {Op::Add, DateOf(2000, 1, 1), Cur(1), "Date 1/2/2000"},
      {Op::Add, DateOf(9999, 12, 31), I(1), "error 6"},
      {Op::Add, Str(u"ab"), Str(u"cd"), "String \"abcd\""},
      {Op::Add, Str(u"1"), I(1), "Double 2"},
      {Op::Add, I(1), Str(u"2.5"), "Double 3.5"},
      {Op::Add, I(1), Str(u"x"), "error 13"},
      {Op::Add, kEmpty, kEmpty, "Integer 0"},
      {Op::Add, I(2), kEmpty, "Integer 2"},
      {Op::Add, kEmpty, B(2), "Byte 2"},
      {Op::Add, kEmpty, Bool(true), "Integer -1"},
      {Op::Add, kEmpty, Str(u"a"), "String \"a\""},
      {Op::Add, I(2), kNull, "Null"},
      {Op::Add, kNull, Str(u"a"), "Null"},
      {Op::Add, Bool(false), I(6), "Integer 6"},
      {Op::Add, MakeObject(I(3)), I(4), "Integer 7"},
  });
}

TEST(OperatorTest, SubtractionAndMultiplication) {
  CheckBinary(
      {
          {Op::Subtract, I(5), I(1), "Integer 4"},
          {Op::Subtract, I(-32768), I(1), "Long -32769"},
          {Op::Subtract, B(0), B(1), "Integer -1"},
          {Op::Subtract, I(8), Bool(true), "Integer 9"},
          {Op::Subtract, I(2), kEmpty, "Integer 2"},
          {Op::Subtract, kEmpty, I(2), "Integer -2"},
          {Op::Subtract, DateOf(2000, 1, 2), DateOf(2000, 1, 1), "Double 1"},
          {Op::Subtract, DateOf(2000, 1, 2), I(1), "Date 1/1/2000"},
          {Op::Subtract, Str(u"a"), Str(u"b"), "error 13"},
          {Op::Subtract, Str(u"5"), Str(u"2"), "Double 3"},
          {Op::Subtract, kNull, I(1), "Null"},
          {Op::Multiply, I(2), I(3), "Integer 6"},
          {Op::Multiply, I(200), I(200), "Long 40000"},
          {Op::Multiply, B(16), B(16), "Integer 256"},
          {Op::Multiply, B(255), B(255), "Long 65025"},
          {Op::Multiply, L(65536), L(65536), "Double 4294967296"},
          {Op::Multiply, S(2), S(0.5f), "Single 1"},
          {Op::Multiply, Cur(1.5), Cur(1.5), "Currency 2.25"},
          {Op::Multiply, Cur(0.0001), Cur(0.5), "Currency 0"},
          {Op::Multiply, Cur(0.0003), Cur(0.5), "Currency 0.0002"},
          {Op::Multiply, Cur(2), I(3), "Currency 6"},
          {Op::Multiply, Cur(2), D(0.5), "Double 1"},
          {Op::Multiply, DateOf(1900, 1, 1), I(2), "Double 4"},
          {Op::Multiply, Str(u"2,5"), I(2), "Double 5"},
      },
      It);
}

TEST(OperatorTest, DivisionPowerAndIntegerDivision) {
  CheckBinary({
      {Op::Divide, I(3), I(2), "Double 1.5"},
      {Op::Divide, I(4), I(2), "Double 2"},
      {Op::Divide, I(5), L(1000000), "Double 5e-06"},
      {Op::Divide, I(1), I(0), "error 11"},
      {Op::Divide, I(0), I(0), "error 6"},
      {Op::Divide, I(1), kEmpty, "error 11"},
      {Op::Divide, kNull, I(0), "Null"},
      {Op::Divide, D(1e308), D(1e-308), "error 6"},
      {Op::IntDivide, I(5), I(2), "Integer 2"},
      {Op::IntDivide, D(4.6), D(1.5), "Long 2"},
      {Op::IntDivide, D(4.6), D(1.49), "Long 5"},
      {Op::IntDivide, D(2.5), I(1), "Long 2"},
      {Op::IntDivide, D(3.5), I(1), "Long 4"},
      {Op::IntDivide, I(-7), I(2), "Integer -3"},
      {Op::IntDivide, B(9), B(2), "Byte 4"},
      {Op::IntDivide, I(-32768), I(-1), "Long 32768"},
      {Op::IntDivide, L(-2147483647 - 1), I(-1), "Double 2147483648"},
      {Op::IntDivide, I(1), I(0), "error 11"},
      {Op::IntDivide, I(1), D(0.4), "error 11"},
      {Op::IntDivide, kEmpty, I(3), "Integer 0"},
      {Op::IntDivide, kEmpty, kEmpty, "error 11"},
      {Op::IntDivide, D(1e10), I(1), "error 6"},
      {Op::IntDivide, Str(u"9"), I(2), "Long 4"},
      {Op::IntDivide, I(9), kNull, "Null"},
      {Op::Modulo, I(9), I(6), "Integer 3"},
      {Op::Modulo, D(11.6), D(5.5), "Long 0"},
      {Op::Modulo, I(-7), I(3), "Integer -1"},
      {Op::Modulo, I(7), I(-3), "Integer 1"},
      {Op::Modulo, B(7), B(4), "Byte 3"},
      {Op::Modulo, I(7), I(0), "error 11"},
      {Op::Modulo, kNull, I(2), "Null"},
      {Op::Modulo, I(2), kNull, "Null"},
      {Op::Power, I(2), I(3), "Double 8"},
      {Op::Power, I(2), D(-1), "Double 0.5"},
      {Op::Power, I(-8), D(1.0 / 3.0), "error 5"},
      {Op::Power, I(0), I(-1), "error 11"},
      {Op::Power, I(10), I(400), "error 6"},
      {Op::Power, I(0), I(0), "Double 1"},
      {Op::Power, kNull, I(2), "Null"},
  });
}

TEST(OperatorTest, UnaryMinusWidensAtTheLowerBound) {
  const std::pair<Variant, const char*> cases[] = {
      {I(5), "Integer -5"},
      {I(-32768), "Long 32768"},
      {L(-2147483647 - 1), "Double 2147483648"},
      {B(5), "Integer -5"},
      {Bool(true), "Integer 1"},
      {kEmpty, "Integer 0"},
      {kNull, "Null"},
      {S(1.5f), "Single -1.5"},
      {D(2), "Double -2"},
      {Cur(1.5), "Currency -1.5"},
      {Variant::Currency(INT64_MIN), "error 6"},
      {DateOf(2000, 1, 1), "Date 12/28/1799"},
      {Str(u"3"), "Double -3"},
      {Str(u"x"), "error 13"},
  };
  for (const auto& [in, expected] : cases) EXPECT_EQ(Describe(Negate(in, En)), expected) << Describe(in);
}

TEST(OperatorTest, ConcatenationTreatsNullAsEmptyText) {
  CheckBinary(
      {
          {Op::Concat, Str(u"ab"), Str(u"cd"), "String \"abcd\""},
          {Op::Concat, Str(u"ab "), kNull, "String \"ab \""},
          {Op::Concat, kNull, Str(u"a"), "String \"a\""},
          {Op::Concat, kNull, kNull, "Null"},
          {Op::Concat, kEmpty, kEmpty, "String \"\""},
          {Op::Concat, kNull, kEmpty, "String \"\""},
          {Op::Concat, I(1), L(100000), "String \"1100000\""},
          {Op::Concat, Bool(true), Bool(false), "String \"VeroFalso\""},
          {Op::Concat, D(0.5), Str(u"!"), "String \"0,5!\""},
          {Op::Concat, MakeObject(Str(u"x")), I(1), "String \"x1\""},
          {Op::Concat, Variant::Nothing(), I(1), "error 91"},
      },
      It);
}

TEST(OperatorTest, ComparisonsByValueStringsAfterNumbers) {
  CheckBinary({
      {Op::GreaterEqual, I(2), I(1), "Boolean True"},
      {Op::GreaterEqual, I(2), I(2), "Boolean True"},
      {Op::GreaterEqual, Bool(true), I(2), "Boolean False"},
      {Op::Greater, Bool(false), Bool(true), "Boolean True"},
      {Op::Greater, I(0), Bool(true), "Boolean True"},
      {Op::Equal, Bool(true), I(-1), "Boolean True"},
      {Op::Equal, I(1), D(1.0), "Boolean True"},
      {Op::Equal, S(0.1f), D(0.1), "Boolean True"},  // compared in single precision, as Windows does
      {Op::Equal, Cur(0.1), D(0.1), "Boolean True"},
      {Op::Less, Cur(1.5), I(2), "Boolean True"},
      {Op::Equal, Variant::Currency(INT64_MAX), Variant::Currency(INT64_MAX - 1), "Boolean False"},
      {Op::Less, L(2147483647), D(2147483647.5), "Boolean True"},
      {Op::Equal, DateOf(2000, 1, 1), L(36526), "Boolean True"},
      {Op::NotEqual, I(2), I(1), "Boolean True"},
      {Op::LessEqual, I(2), I(2), "Boolean True"},
      {Op::Equal, Str(u"abc"), Str(u"abc"), "Boolean True"},
      {Op::Less, Str(u"ABC"), Str(u"abc"), "Boolean True"},
      {Op::Less, Str(u"ab"), Str(u"abc"), "Boolean True"},
      {Op::Less, Str(u"Z"), Str(u"a"), "Boolean True"},
      {Op::Equal, Str(u"1"), I(1), "Boolean False"},
      {Op::Less, I(1000), Str(u"1"), "Boolean True"},
      {Op::Greater, Str(u""), I(0), "Boolean True"},
      {Op::Equal, kEmpty, I(0), "Boolean True"},
      {Op::Less, kEmpty, I(1), "Boolean True"},
      {Op::Equal, kEmpty, Str(u""), "Boolean True"},
      {Op::Less, kEmpty, Str(u"a"), "Boolean True"},
      {Op::Greater, Str(u"a"), kEmpty, "Boolean True"},
      {Op::Equal, kEmpty, kEmpty, "Boolean True"},
      {Op::Equal, kEmpty, Bool(false), "Boolean True"},
      {Op::Equal, I(0), kNull, "Null"},
      {Op::Greater, kNull, I(1), "Null"},
      {Op::NotEqual, kNull, kNull, "Null"},
      {Op::Equal, MakeObject(I(3)), I(3), "Boolean True"},
      {Op::Equal, Variant::Error(5), I(5), "error 13"},
  });
}

TEST(OperatorTest, TextComparisonIgnoresCase) {
  CheckBinary(
      {
          {Op::Equal, Str(u"ABC"), Str(u"abc"), "Boolean True"},
          {Op::Equal, Str(u"ÈÀ"), Str(u"èà"), "Boolean True"},
          {Op::Equal, Str(u"Ŝ"), Str(u"ŝ"), "Boolean True"},
          {Op::Equal, Str(u"Ł"), Str(u"ł"), "Boolean True"},
          {Op::Equal, Str(u"Ÿ"), Str(u"ÿ"), "Boolean True"},
          {Op::Equal, Str(u"Ž"), Str(u"ž"), "Boolean True"},
          {Op::Equal, Str(u"ß"), Str(u"ss"), "Boolean False"},
          {Op::Less, Str(u"a"), Str(u"B"), "Boolean True"},
          {Op::Less, Str(u"Z"), Str(u"a"), "Boolean False"},
      },
      En, CompareMode::Text);
}

TEST(OperatorTest, LogicalOperatorsAreBitwiseAndKeepBooleans) {
  CheckBinary({
      {Op::And, Bool(true), Bool(true), "Boolean True"},
      {Op::And, Bool(true), Bool(false), "Boolean False"},
      {Op::Or, Bool(false), Bool(true), "Boolean True"},
      {Op::Xor, Bool(true), Bool(false), "Boolean True"},
      {Op::Xor, Bool(false), Bool(false), "Boolean False"},
      {Op::Eqv, Bool(false), Bool(false), "Boolean True"},
      {Op::Eqv, Bool(false), Bool(true), "Boolean False"},
      {Op::Imp, Bool(true), Bool(true), "Boolean True"},
      {Op::Imp, Bool(false), Bool(false), "Boolean True"},
      {Op::Imp, Bool(true), Bool(false), "Boolean False"},
      {Op::And, I(12), I(10), "Integer 8"},
      {Op::Or, I(12), I(10), "Integer 14"},
      {Op::Xor, I(12), I(10), "Integer 6"},
      {Op::Eqv, I(12), I(10), "Integer -7"},
      {Op::Imp, I(12), I(10), "Integer -5"},
      {Op::And, B(12), B(10), "Byte 8"},
      {Op::Eqv, B(12), B(10), "Byte 249"},
      {Op::And, Bool(true), I(6), "Integer 6"},
      {Op::And, B(6), I(3), "Integer 2"},
      {Op::Or, L(65536), I(1), "Long 65537"},
      {Op::And, D(7.5), I(3), "Long 0"},
      {Op::And, Str(u"7"), I(3), "Long 3"},
      {Op::And, Str(u"True"), Bool(true), "Boolean True"},
      {Op::And, Str(u"x"), Bool(true), "error 13"},
      {Op::Or, kEmpty, kEmpty, "Integer 0"},
      {Op::And, D(1e10), I(1), "error 6"},
      {Op::And, kNull, Bool(true), "Null"},
      {Op::And, kNull, Bool(false), "Boolean False"},
      {Op::And, Bool(false), kNull, "Boolean False"},
      {Op::And, kNull, I(0), "Integer 0"},
      {Op::And, kNull, I(5), "Null"},
      {Op::Or, kNull, Bool(true), "Boolean True"},
      {Op::Or, Bool(true), kNull, "Boolean True"},
      {Op::Or, kNull, Bool(false), "Null"},
      {Op::Or, kNull, I(-1), "Integer -1"},
      {Op::Or, kNull, B(255), "Byte 255"},
      {Op::Xor, kNull, Bool(true), "Null"},
      {Op::Eqv, Bool(false), kNull, "Null"},
      {Op::Imp, Bool(false), kNull, "Boolean True"},
      {Op::Imp, Bool(true), kNull, "Null"},
      {Op::Imp, kNull, Bool(true), "Boolean True"},
      {Op::Imp, kNull, Bool(false), "Null"},
      {Op::And, kNull, kNull, "Null"},
  });
}

TEST(OperatorTest, NotInvertsEveryBit) {
  const std::pair<Variant, const char*> cases[] = {
      {Bool(true), "Boolean False"},
      {Bool(false), "Boolean True"},
      {I(0), "Integer -1"},
      {I(5), "Integer -6"},
      {B(0), "Byte 255"},
      {L(0), "Long -1"},
      {kEmpty, "Integer -1"},
      {kNull, "Null"},
      {D(2.5), "Long -3"},
      {Str(u"x"), "error 13"},
  };
  for (const auto& [in, expected] : cases) EXPECT_EQ(Describe(Not(in, En)), expected) << Describe(in);
}

TEST(OperatorTest, ConditionsTreatNullAsFalse) {
  const std::pair<Variant, const char*> cases[] = {
      {Bool(true), "true"},
      {Bool(false), "false"},
      {kNull, "false"},
      {kEmpty, "false"},
      {I(2), "true"},
      {D(0), "false"},
      {Str(u"True"), "true"},
      {Str(u"0"), "false"},
      {Str(u"abc"), "error 13"},
      {MakeObject(Bool(true)), "true"},
      {Variant::Nothing(), "error 91"},
  };
  for (const auto& [in, expected] : cases) {
    auto result = IsTrue(in, En);
    const std::string actual = result ? (*result ? "true" : "false") : "error " + std::to_string(result.error().number);
    EXPECT_EQ(actual, expected) << Describe(in);
  }
}

TEST(OperatorTest, IsComparesObjectIdentity) {
  const Variant a = MakeObject(I(1));
  const Variant same = a;
  const Variant b = MakeObject(I(1));
  EXPECT_TRUE(*Is(a, same));
  EXPECT_FALSE(*Is(a, b));
  EXPECT_TRUE(*Is(Variant::Nothing(), Variant::Nothing()));
  EXPECT_FALSE(*Is(a, Variant::Nothing()));
  EXPECT_EQ(Is(a, I(1)).error()->number, 424);
  EXPECT_EQ(Is(kEmpty, Variant::Nothing()).error()->number, 424);
}

TEST(OperatorTest, ConcatAssignAppendsInPlaceWhenTheStringIsOwnedAlone) {
  Variant s = Str(u"ab");
  ASSERT_TRUE(ConcatAssign(s, Str(u"c"), En));
  const char16_t* block = s.as_string_view().data();
  ASSERT_GT(s.as_string().capacity(), 3u);
  for (int i = 0; i < 5; ++i) ASSERT_TRUE(ConcatAssign(s, I(static_cast<int16_t>(i)), En));
  EXPECT_EQ(s.as_string_view().data(), block);
  EXPECT_EQ(Describe(s), "String \"abc01234\"");

  // A second owner keeps its text: the append moves to a new block.
  const Variant copy = s;
  ASSERT_TRUE(ConcatAssign(s, Str(u"!"), En));
  EXPECT_NE(s.as_string_view().data(), copy.as_string_view().data());
  EXPECT_EQ(Describe(copy), "String \"abc01234\"");
  EXPECT_EQ(Describe(s), "String \"abc01234!\"");

  // s = s & s reads the text it grows.
  ASSERT_TRUE(ConcatAssign(s, s, En));
  EXPECT_EQ(Describe(s), "String \"abc01234!abc01234!\"");

  ASSERT_TRUE(ConcatAssign(s, kNull, En));
  EXPECT_EQ(Describe(s), "String \"abc01234!abc01234!\"");

  Variant n = kNull;
  ASSERT_TRUE(ConcatAssign(n, kNull, En));
  EXPECT_TRUE(n.is_null());
  Variant e;
  ASSERT_TRUE(ConcatAssign(e, D(1.5), It));
  EXPECT_EQ(Describe(e), "String \"1,5\"");
}

TEST(OperatorTest, RepeatedAppendsReallocateLogarithmically) {
  Variant s = Str(u"");
  int blocks = 0;
  const char16_t* last = nullptr;
  for (int i = 0; i < 100000; ++i) {
    ASSERT_TRUE(ConcatAssign(s, Str(u"x"), En));
    if (s.as_string_view().data() != last) {
      ++blocks;
      last = s.as_string_view().data();
    }
  }
  EXPECT_EQ(s.as_string_view().size(), 100000u);
  EXPECT_LE(blocks, 20);
}

TEST(OperatorTest, ArraysAreNotOperands) {
  auto array = SafeArray::Create(std::vector<ArrayBound>{{0, 0}});
  ASSERT_TRUE(array);
  const Variant a = Variant::Array(*array);
  for (Op op : {Op::Add, Op::Multiply, Op::Divide, Op::IntDivide, Op::Concat, Op::Equal, Op::And}) {
    EXPECT_EQ(Describe(ApplyBinary(op, a, I(1), CompareMode::Binary, En)), "error 13") << static_cast<int>(op);
  }
  EXPECT_EQ(Describe(Add(a, kNull, En)), "Null");
}

TEST(OperatorTest, OperandsSeeThroughReferences) {
  Variant x = I(32767);
  const Variant ref = Variant::Reference(&x);
  EXPECT_EQ(Describe(Add(ref, I(1), En)), "Long 32768");
  EXPECT_EQ(Describe(Compare(Op::Equal, ref, I(32767), CompareMode::Binary, En)), "Boolean True");
  Variant s = Str(u"a");
  Variant s_ref = Variant::Reference(&s);
  ASSERT_TRUE(ConcatAssign(s_ref, Str(u"b"), En));
  EXPECT_EQ(Describe(s), "String \"ab\"");
}

}  // namespace
}  // namespace vbs
