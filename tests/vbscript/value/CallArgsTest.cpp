// The argument reader shared by built-ins and host objects: what each getter reads, and how a failed
// conversion is described under each naming.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "text/Utf.h"
#include "vbscript/value/CallArgs.h"
#include "vbscript/value/ErrorCodes.h"

namespace vbs {
namespace {

// The error of a Result as "number: description", or "ok".
template <typename T>
std::string Failed(const Result<T>& result) {
  if (result) return "ok";
  return std::to_string(result.error().number) + ": " + text::Utf16ToUtf8(result.error().description);
}

TEST(CallArgsTest, ReadsThroughReferencesConvertsAndFillsInMissingArguments) {
  Variant caller = Variant::String(u"12");
  std::vector<Variant> values{Variant::Reference(&caller), Variant::Double(2.5), Variant::Error(err::kParamNotFound),
                              Variant::Long(1), Variant::Long(7)};
  CallArgs args(values, EnglishLocale());

  EXPECT_EQ(*args.Long(0), 12);
  EXPECT_EQ(*args.Long(1), 2);  // rounded half to even
  EXPECT_EQ(*args.Double(0), 12.0);
  EXPECT_EQ(*args.Double(4), 7.0);
  EXPECT_EQ(*args.Integer(4), 7);
  EXPECT_EQ(args.Text(1)->view(), u"2.5");
  EXPECT_EQ(*args.String(4), u"7");

  EXPECT_FALSE(args.Has(2));
  EXPECT_FALSE(args.Has(5));
  EXPECT_EQ(*args.Long(2, -1), -1);
  EXPECT_EQ(*args.Long(5, 3), 3);
  EXPECT_EQ(*args.Boolean(2, true), true);
  EXPECT_EQ(*args.String(2, u"dflt"), u"dflt");

  EXPECT_EQ(*args.Compare(2), CompareMode::Binary);
  EXPECT_EQ(*args.Compare(3), CompareMode::Text);
  EXPECT_EQ(*args.Compare(5), CompareMode::Binary);

  args.Out(0) = Variant::Long(99);
  EXPECT_TRUE(caller.is_long());
}

struct BadArgument {
  const char* what;
  ArgumentNaming naming;
  bool italian;
  std::string expected;
};

class CallArgsFailureTest : public ::testing::TestWithParam<BadArgument> {};

// Argument 1 is "abc", argument 2 is 40000, argument 3 is 2: each getter fails on one of them.
TEST_P(CallArgsFailureTest, DescribesTheFailureAsTheNamingAsks) {
  const BadArgument& row = GetParam();
  std::vector<Variant> values{Variant::String(u"abc"), Variant::Long(40000), Variant::Long(2)};
  CallArgs args(values, row.italian ? ItalianLocale() : EnglishLocale(), row.naming);
  const std::string what = row.what;
  std::string got;
  if (what == "Long") got = Failed(args.Long(0));
  if (what == "Double") got = Failed(args.Double(0));
  if (what == "Boolean") got = Failed(args.Boolean(0));
  if (what == "Integer") got = Failed(args.Integer(1));
  if (what == "Compare") got = Failed(args.Compare(2));
  if (what == "Compare text") got = Failed(args.Compare(0));
  EXPECT_EQ(got, row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    EachGetter, CallArgsFailureTest,
    ::testing::Values(
        BadArgument{"Long", ArgumentNaming::ByPosition, false, "13: Type mismatch (argument 1)"},
        BadArgument{"Long", ArgumentNaming::ByPosition, true, "13: Tipo non corrispondente (argomento 1)"},
        BadArgument{"Double", ArgumentNaming::ByPosition, false, "13: Type mismatch (argument 1)"},
        BadArgument{"Boolean", ArgumentNaming::ByPosition, false, "13: Type mismatch (argument 1)"},
        BadArgument{"Integer", ArgumentNaming::ByPosition, false, "6: Overflow (argument 2)"},
        BadArgument{"Compare", ArgumentNaming::ByPosition, false, "5: Invalid procedure call or argument (argument 3)"},
        // A built-in's error keeps the table's text: the description stays empty.
        BadArgument{"Long", ArgumentNaming::Plain, false, "13: "},
        BadArgument{"Double", ArgumentNaming::Plain, true, "13: "},
        BadArgument{"Boolean", ArgumentNaming::Plain, false, "13: "},
        BadArgument{"Integer", ArgumentNaming::Plain, false, "6: "},
        BadArgument{"Compare", ArgumentNaming::Plain, false, "5: "},
        BadArgument{"Compare text", ArgumentNaming::Plain, false, "13: "}));

}  // namespace
}  // namespace vbs
