#include <gtest/gtest.h>

#include "text/Utf.h"
#include "text/Wildcard.h"

namespace text {
namespace {

TEST(WildcardTest, StarsQuestionMarksAndCase) {
  const struct {
    std::u16string_view pattern, name;
    bool matches;
  } cases[] = {
      {u"*", u"", true},
      {u"*", u"a.txt", true},
      {u"", u"", true},
      {u"", u"a", false},
      {u"?", u"", false},
      {u"?", u"é", true},
      {u"*.TXT", u"estrazioni.txt", true},
      {u"*.txt", u"estrazioni.txt.bak", false},
      {u"a*b*c", u"aXbYbZc", true},  // the first b is not the one that fits
      {u"a*b*c", u"aXbYcZ", false},
      {u"*ab", u"aab", true},  // the star must give back what it took
      {u"?.txt", u"ab.txt", false},
      {u"PERCHÈ.*", u"perchè.ls", true},  // Latin letters fold like the script language's
      {u"**?", u"x", true},
      {u"x*", u"yx", false},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(MatchesWildcard(c.pattern, c.name), c.matches)
        << text::Utf16ToUtf8(c.pattern) << " " << text::Utf16ToUtf8(c.name);
  }
}

}  // namespace
}  // namespace text
