#include <gtest/gtest.h>

#include <type_traits>

#include "ValueTestSupport.h"
#include "vbscript/value/SafeArray.h"
#include "vbscript/value/Variant.h"
#include "vbscript/value/VbString.h"

namespace vbs {
namespace {

using testing::Describe;
using testing::MakeObject;
using testing::Str;

Variant MakeArray(std::vector<ArrayBound> bounds) {
  auto array = SafeArray::Create(bounds);
  EXPECT_TRUE(array);
  return Variant::Array(*array);
}

int32_t ErrorOf(const Status& status) { return status ? 0 : status.error().number; }

TEST(VariantTest, VarTypeAndTypeNameOfEverySubtype) {
  struct Case {
    Variant value;
    int32_t var_type;
    const char16_t* type_name;
  };
  const Case cases[] = {
      {Variant(), kVbEmpty, u"Empty"},
      {Variant::Null(), kVbNull, u"Null"},
      {Variant::Integer(1), kVbInteger, u"Integer"},
      {Variant::Long(1), kVbLong, u"Long"},
      {Variant::Single(1), kVbSingle, u"Single"},
      {Variant::Double(1), kVbDouble, u"Double"},
      {Variant::Currency(1), kVbCurrency, u"Currency"},
      {Variant::Date(1), kVbDate, u"Date"},
      {Str(u"x"), kVbString, u"String"},
      {Str(u""), kVbString, u"String"},
      {Variant::Nothing(), kVbObject, u"Nothing"},
      {MakeObject(Variant()), kVbObject, u"ValueObject"},
      {Variant::Error(5), kVbError, u"Error"},
      {Variant::Boolean(true), kVbBoolean, u"Boolean"},
      {Variant::Byte(1), kVbByte, u"Byte"},
      {MakeArray({{0, 2}}), 8204, u"Variant()"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(c.value.VarType(), c.var_type) << Describe(c.value);
    EXPECT_EQ(c.value.TypeName(), c.type_name) << Describe(c.value);
  }
}

TEST(VariantTest, NumbersAreSixteenBytesAndTriviallyCopied) {
  static_assert(sizeof(Variant) == 16);
  static_assert(std::is_nothrow_copy_constructible_v<Variant>);
  const Variant a = Variant::Double(2.5);
  Variant b = a;
  b = Variant::Integer(3);
  EXPECT_EQ(a.as_double(), 2.5);
  EXPECT_EQ(b.as_integer(), 3);
}

TEST(VariantTest, HeapPayloadsAreCountedAndReleased) {
  auto object = MakeRef<testing::ValueObject>(Variant());
  {
    Variant a = Variant::Object(object);
    Variant b = a;
    EXPECT_EQ(object->RefCount(), 3u);
    b = Variant::Integer(1);
    EXPECT_EQ(object->RefCount(), 2u);
    const Variant c = std::move(a);
    EXPECT_EQ(object->RefCount(), 2u);
    EXPECT_TRUE(a.is_empty());
  }
  EXPECT_EQ(object->RefCount(), 1u);

  VbString text(u"shared");
  {
    const Variant s = Variant::String(text);
    const Variant t = s;
    EXPECT_FALSE(text.IsUnique());
  }
  EXPECT_TRUE(text.IsUnique());
}

TEST(VariantTest, SelfAssignmentKeepsTheValue) {
  Variant s = Str(u"keep");
  const Variant& alias = s;
  s = alias;
  EXPECT_EQ(Describe(s), "String \"keep\"");
  s = std::move(s);
  EXPECT_EQ(Describe(s), "String \"keep\"");
}

TEST(VariantTest, AssigningAnElementToTheVariableHoldingItsArray) {
  Variant a = MakeArray({{0, 0}});
  ASSERT_TRUE(WriteElement(a, std::vector<int32_t>{0}, Str(u"inner")));
  a = a.as_array()->elements()[0];
  EXPECT_EQ(Describe(a), "String \"inner\"");
  Variant b = MakeArray({{0, 0}});
  ASSERT_TRUE(WriteElement(b, std::vector<int32_t>{0}, Str(u"moved")));
  b = std::move(b.as_array()->elements()[0]);
  EXPECT_EQ(Describe(b), "String \"moved\"");
}

TEST(VariantTest, ReferencesPointAtTheVariableAndCollapse) {
  Variant x = Variant::Integer(1);
  Variant r1 = Variant::Reference(&x);
  Variant r2 = Variant::Reference(&r1);
  EXPECT_TRUE(r2.IsRef());
  EXPECT_EQ(&r2.Deref(), &x);
  r2.Deref() = Str(u"changed");
  EXPECT_EQ(Describe(x), "String \"changed\"");
  EXPECT_EQ(r1.VarType(), kVbString);
  EXPECT_EQ(r1.TypeName(), u"String");
}

TEST(VbStringTest, AppendGrowsGeometricallyAndKeepsItsBlockWhileThereIsRoom) {
  VbString s(u"abc");
  ASSERT_TRUE(s.Reserve(100));
  const char16_t* block = s.data();
  for (int i = 0; i < 97; ++i) ASSERT_TRUE(s.Append(u"x"));
  EXPECT_EQ(s.data(), block);
  EXPECT_EQ(s.size(), 100u);
  ASSERT_TRUE(s.Append(u"y"));
  EXPECT_NE(s.data(), block);
  EXPECT_GE(s.capacity(), 200u);
}

TEST(VbStringTest, SharedStringsCopyBeforeWriting) {
  VbString a(u"abc");
  VbString b = a;
  EXPECT_EQ(a.data(), b.data());
  ASSERT_TRUE(b.Append(u"d"));
  EXPECT_EQ(a, u"abc");
  EXPECT_EQ(b, u"abcd");
  VbString c = a;
  c.MutableData()[0] = u'X';
  EXPECT_EQ(a, u"abc");
  EXPECT_EQ(c, u"Xbc");
}

TEST(VbStringTest, LengthsBeyondTheLimitAreOutOfMemory) {
  EXPECT_EQ(VbString::TryCreate(VbString::kMaxLength + 1, u' ').error()->number, 7);
  VbString s(u"a");
  EXPECT_EQ(s.Reserve(VbString::kMaxLength + 1).error()->number, 7);
  auto filled = VbString::TryCreate(3, u'z');
  ASSERT_TRUE(filled);
  EXPECT_EQ(*filled, u"zzz");
  EXPECT_TRUE(VbString::TryCreate(0, u'z')->empty());
}

TEST(VbStringTest, CountsUtf16CodeUnits) {
  const VbString s(u"a\U0001F600è");
  EXPECT_EQ(s.size(), 4u);
}

TEST(SafeArrayTest, BoundsAndColumnMajorOffsets) {
  Variant a = MakeArray({{1, 3}, {-1, 0}});
  const SafeArray& array = *a.as_array();
  EXPECT_EQ(array.size(), 6u);
  EXPECT_EQ(*array.LBound(1), 1);
  EXPECT_EQ(*array.UBound(1), 3);
  EXPECT_EQ(*array.LBound(2), -1);
  EXPECT_EQ(*array.UBound(2), 0);
  EXPECT_EQ(array.LBound(3).error()->number, 9);
  EXPECT_EQ(array.UBound(0).error()->number, 9);
  const struct {
    std::vector<int32_t> indices;
    int64_t offset;
  } cases[] = {
      {{1, -1}, 0}, {{2, -1}, 1}, {{3, -1}, 2}, {{1, 0}, 3}, {{3, 0}, 5},
      {{0, 0}, -9}, {{4, 0}, -9}, {{1, 1}, -9}, {{1}, -9},   {{1, 0, 0}, -9},
  };
  for (const auto& c : cases) {
    auto offset = array.Offset(c.indices);
    EXPECT_EQ(offset ? static_cast<int64_t>(*offset) : -offset.error().number, c.offset);
  }
}

TEST(SafeArrayTest, CreationRejectsBadAndHugeBounds) {
  EXPECT_EQ(SafeArray::Create(std::vector<ArrayBound>{{0, -2}}).error()->number, 9);
  EXPECT_EQ(SafeArray::Create(std::vector<ArrayBound>{{0, 2000000000}}).error()->number, 7);
  EXPECT_EQ(SafeArray::Create(std::vector<ArrayBound>{{0, 99999}, {0, 99999}}).error()->number, 7);
  auto empty = SafeArray::Create(std::vector<ArrayBound>{{0, -1}});
  ASSERT_TRUE(empty);
  EXPECT_EQ((*empty)->size(), 0u);
  EXPECT_EQ(*(*empty)->UBound(1), -1);
}

TEST(SafeArrayTest, AssignmentCopiesOnWrite) {
  Variant a = MakeArray({{0, 2}});
  const std::vector<int32_t> at1 = {1};
  ASSERT_TRUE(WriteElement(a, at1, Variant::Integer(10)));
  Variant b = a;
  EXPECT_EQ(a.as_array(), b.as_array());
  ASSERT_TRUE(WriteElement(b, at1, Variant::Integer(20)));
  EXPECT_NE(a.as_array(), b.as_array());
  EXPECT_EQ(Describe(ReadElement(a, at1)), "Integer 10");
  EXPECT_EQ(Describe(ReadElement(b, at1)), "Integer 20");
  const std::vector<int32_t> at5 = {5};
  EXPECT_EQ(ErrorOf(WriteElement(b, at5, Variant())), 9);
  EXPECT_EQ(Describe(ReadElement(a, at5)), "error 9");
  EXPECT_EQ(Describe(ReadElement(Variant::Integer(1), at1)), "error 13");
}

TEST(SafeArrayTest, ByRefPassingSharesTheVariable) {
  Variant a = MakeArray({{0, 2}});
  Variant ref = Variant::Reference(&a);
  const std::vector<int32_t> at0 = {0};
  ASSERT_TRUE(WriteElement(ref, at0, Str(u"via ref")));
  EXPECT_EQ(Describe(ReadElement(a, at0)), "String \"via ref\"");
  const std::vector<ArrayBound> bigger = {{0, 5}};
  ASSERT_TRUE(Redim(ref, bigger, RedimMode::Preserve));
  EXPECT_EQ(*a.as_array()->UBound(1), 5);
  EXPECT_EQ(Describe(ReadElement(a, at0)), "String \"via ref\"");
}

TEST(SafeArrayTest, RedimPreserveChangesOnlyTheLastUpperBound) {
  Variant a = MakeArray({{0, 1}, {0, 2}});
  for (int32_t j = 0; j <= 2; ++j) {
    for (int32_t i = 0; i <= 1; ++i) {
      const std::vector<int32_t> at = {i, j};
      ASSERT_TRUE(WriteElement(a, at, Variant::Integer(static_cast<int16_t>(10 * i + j))));
    }
  }
  const struct {
    std::vector<ArrayBound> bounds;
    int32_t error;
  } cases[] = {
      {{{0, 1}, {0, 4}}, 0}, {{{0, 1}, {0, 1}}, 0}, {{{0, 2}, {0, 1}}, 9},         {{{1, 2}, {0, 1}}, 9},
      {{{0, 1}, {1, 1}}, 9}, {{{0, 1}}, 9},         {{{0, 1}, {0, 1}, {0, 1}}, 9},
  };
  for (const auto& c : cases) EXPECT_EQ(ErrorOf(Redim(a, c.bounds, RedimMode::Preserve)), c.error);
  // The last successful ReDim Preserve kept columns 0 and 1.
  EXPECT_EQ(*a.as_array()->UBound(2), 1);
  const std::vector<int32_t> at = {1, 1};
  EXPECT_EQ(Describe(ReadElement(a, at)), "Integer 11");

  ASSERT_TRUE(Redim(a, std::vector<ArrayBound>{{0, 3}}, RedimMode::Discard));
  EXPECT_EQ(a.as_array()->DimensionCount(), 1u);
  EXPECT_EQ(Describe(ReadElement(a, std::vector<int32_t>{0})), "Empty");
}

TEST(SafeArrayTest, RedimPreserveOfASharedArrayLeavesTheCopyAlone) {
  Variant a = MakeArray({{0, 1}});
  ASSERT_TRUE(WriteElement(a, std::vector<int32_t>{0}, Str(u"kept")));
  const Variant copy = a;
  ASSERT_TRUE(Redim(a, std::vector<ArrayBound>{{0, 3}}, RedimMode::Preserve));
  EXPECT_EQ(Describe(ReadElement(a, std::vector<int32_t>{0})), "String \"kept\"");
  EXPECT_EQ(Describe(ReadElement(copy, std::vector<int32_t>{0})), "String \"kept\"");
  EXPECT_EQ(*copy.as_array()->UBound(1), 1);
}

TEST(SafeArrayTest, FixedArraysRefuseRedimAndEraseOnlyClears) {
  Variant fixed = MakeArray({{0, 3}});
  fixed.MarkFixedArray();
  ASSERT_TRUE(WriteElement(fixed, std::vector<int32_t>{2}, Variant::Integer(5)));
  EXPECT_EQ(ErrorOf(Redim(fixed, std::vector<ArrayBound>{{0, 5}}, RedimMode::Discard)), 10);
  EXPECT_EQ(ErrorOf(Redim(fixed, std::vector<ArrayBound>{{0, 5}}, RedimMode::Preserve)), 10);
  ASSERT_TRUE(Erase(fixed));
  EXPECT_TRUE(fixed.IsFixedArray());
  EXPECT_EQ(*fixed.as_array()->UBound(1), 3);
  EXPECT_EQ(Describe(ReadElement(fixed, std::vector<int32_t>{2})), "Empty");

  // A copy of a fixed array is an ordinary, dynamic one.
  Variant copy = fixed;
  EXPECT_FALSE(copy.IsFixedArray());
  EXPECT_TRUE(Redim(copy, std::vector<ArrayBound>{{0, 5}}, RedimMode::Discard));
}

TEST(SafeArrayTest, EraseFreesADynamicArray) {
  Variant a = MakeArray({{0, 3}});
  ASSERT_TRUE(Erase(a));
  EXPECT_TRUE(a.is_array());
  EXPECT_EQ(a.as_array()->DimensionCount(), 0u);
  EXPECT_EQ(a.as_array()->UBound(1).error()->number, 9);
  Variant number = Variant::Integer(1);
  EXPECT_EQ(ErrorOf(Erase(number)), 13);
  // ReDim Preserve of an erased array starts afresh.
  ASSERT_TRUE(Redim(a, std::vector<ArrayBound>{{0, 1}}, RedimMode::Preserve));
  EXPECT_EQ(a.as_array()->size(), 2u);
}

TEST(SafeArrayTest, LockedArraysCannotBeResizedOrErased) {
  Variant a = MakeArray({{0, 3}});
  a.as_array()->Lock();
  EXPECT_EQ(ErrorOf(Redim(a, std::vector<ArrayBound>{{0, 5}}, RedimMode::Discard)), 10);
  EXPECT_EQ(ErrorOf(Erase(a)), 10);
  a.as_array()->Unlock();
  EXPECT_EQ(ErrorOf(Erase(a)), 0);
}

TEST(SafeArrayTest, HugeRedimIsOutOfMemoryAndLeavesTheVariable) {
  Variant a = MakeArray({{0, 3}});
  EXPECT_EQ(ErrorOf(Redim(a, std::vector<ArrayBound>{{0, 2000000000}}, RedimMode::Discard)), 7);
  EXPECT_EQ(ErrorOf(Redim(a, std::vector<ArrayBound>{{0, 2000000000}}, RedimMode::Preserve)), 7);
  EXPECT_EQ(*a.as_array()->UBound(1), 3);
  Variant fresh;
  EXPECT_EQ(ErrorOf(Redim(fresh, std::vector<ArrayBound>{{0, 70000}, {0, 70000}}, RedimMode::Discard)), 7);
  EXPECT_TRUE(fresh.is_empty());
}

TEST(SafeArrayTest, RedimOfAPlainVariableCreatesAnArray) {
  Variant v = Variant::Integer(3);
  ASSERT_TRUE(Redim(v, std::vector<ArrayBound>{{0, 2}}, RedimMode::Preserve));
  EXPECT_EQ(v.VarType(), 8204);
  EXPECT_EQ(v.as_array()->size(), 3u);
}

TEST(SafeArrayTest, ArrayFunctionValuesAreZeroBasedCopies) {
  Variant x = Variant::Integer(2);
  const Variant values[] = {Str(u"a1"), Variant::Reference(&x), Str(u"a3")};
  auto array = SafeArray::FromValues(values);
  ASSERT_TRUE(array);
  EXPECT_EQ(*(*array)->LBound(1), 0);
  EXPECT_EQ(*(*array)->UBound(1), 2);
  EXPECT_EQ(Describe((*array)->elements()[1]), "Integer 2");
  EXPECT_FALSE((*array)->elements()[1].IsRef());
  auto none = SafeArray::FromValues({});
  ASSERT_TRUE(none);
  EXPECT_EQ(*(*none)->UBound(1), -1);
}

TEST(SafeArrayTest, NestedArraysAreValuesToo) {
  Variant inner = MakeArray({{0, 0}});
  Variant outer = MakeArray({{0, 0}});
  ASSERT_TRUE(WriteElement(outer, std::vector<int32_t>{0}, inner));
  ASSERT_TRUE(WriteElement(inner, std::vector<int32_t>{0}, Variant::Integer(1)));
  auto stored = ReadElement(outer, std::vector<int32_t>{0});
  ASSERT_TRUE(stored);
  EXPECT_EQ(Describe(ReadElement(*stored, std::vector<int32_t>{0})), "Empty");
}

}  // namespace
}  // namespace vbs
