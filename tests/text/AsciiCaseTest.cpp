#include <gtest/gtest.h>

#include "text/AsciiCase.h"

namespace text {
namespace {

TEST(AsciiCaseTest, OnlyAsciiLettersChangeAndTheNeighboursOfTheRangesStay) {
  const std::pair<char, char> lower_upper[] = {{'a', 'A'}, {'m', 'M'}, {'z', 'Z'}};
  for (const auto& [lower, upper] : lower_upper) {
    EXPECT_EQ(LowerAscii(upper), lower);
    EXPECT_EQ(UpperAscii(lower), upper);
    EXPECT_EQ(LowerAscii(static_cast<char16_t>(upper)), static_cast<char16_t>(lower));
    EXPECT_EQ(UpperAscii(static_cast<char16_t>(lower)), static_cast<char16_t>(upper));
  }
  for (char c : {'@', '[', '`', '{', '0', '_', '\0', '\x7F', '\xC3', '\xC8', '\xE8', '\xFF'}) {
    EXPECT_EQ(LowerAscii(c), c) << int(c);
    EXPECT_EQ(UpperAscii(c), c) << int(c);
  }
  // A code unit whose low byte is a letter is not one.
  for (char16_t c : {u'À', u'è', char16_t{0x141}, char16_t{0x161}, char16_t{0x17A}, u'Ω'}) {
    EXPECT_EQ(LowerAscii(c), c) << int(c);
    EXPECT_EQ(UpperAscii(c), c) << int(c);
  }
  EXPECT_EQ(LowerAscii("Perché ÈRA 1E+15"), "perché Èra 1e+15");
  EXPECT_EQ(UpperAscii("perché èra 1e+15"), "PERCHé èRA 1E+15");
}

TEST(AsciiCaseTest, EqualityIgnoresOnlyAsciiCase) {
  const struct {
    std::string_view a, b;
    bool equal;
  } cases[] = {
      {"RM", "rm", true},   {"Class_Initialize", "CLASS_initialize", true},
      {"", "", true},       {".TXT", ".txt", true},
      {"ba", "bar", false}, {"bar", "ba", false},
      {"è", "È", false},    {"@", "`", false},
      {"[", "{", false},    {"a\xC3\xA8", "A\xC3\xA8", true},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(EqualsIgnoringAsciiCase(c.a, c.b), c.equal) << c.a << " " << c.b;
    const std::u16string a(c.a.begin(), c.a.end());
    const std::u16string b(c.b.begin(), c.b.end());
    EXPECT_EQ(EqualsIgnoringAsciiCase(a, b), c.equal) << c.a << " " << c.b;
  }
  EXPECT_FALSE(EqualsIgnoringAsciiCase(u"includi", u"ıncludi"));
  EXPECT_TRUE(EqualsIgnoringAsciiCase(u"INCLUDI ", u"includi "));
}

}  // namespace
}  // namespace text
