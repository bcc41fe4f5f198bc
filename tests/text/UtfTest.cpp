#include <gtest/gtest.h>

#include "text/Utf.h"

namespace vbs {
namespace {

TEST(UtfTest, Utf8DecodesValidSequencesIncludingSurrogatePairs) {
  EXPECT_EQ(text::Utf8ToUtf16("abc"), u"abc");
  EXPECT_EQ(text::Utf8ToUtf16("\xC3\xA8"), u"è");
  EXPECT_EQ(text::Utf8ToUtf16("\xE2\x82\xAC"), u"€");
  EXPECT_EQ(text::Utf8ToUtf16("\xF0\x9F\x98\x80"), u"\U0001F600");
  EXPECT_EQ(text::Utf8ToUtf16("\xF4\x8F\xBF\xBF"), u"\U0010FFFF");
}

TEST(UtfTest, InvalidUtf8BytesReadAsWindows1252) {
  const std::pair<std::string, std::u16string> cases[] = {
      {"perch\xE8", u"perchè"},       // a lone Latin-1 byte
      {"\x80 \x9F", u"€ Ÿ"},          // 1252's own range
      {"\x81", u"\u0081"},            // unassigned in 1252
      {"\xC3", u"Ã"},                 // truncated sequence
      {"\xC0\xAF", u"À¯"},            // overlong
      {"\xE2\x82", u"â‚"},            // truncated three-byte
      {"\xF5\x80\x80\x80", u"õ€€€"},  // beyond U+10FFFF
      {"\xF0\x9F\x98", u"ðŸ˜"},       // truncated four-byte
      {"a\xE8"
       "b\xC3\xA8",
       u"aèbè"},  // mixed valid and invalid
  };
  for (const auto& [bytes, text] : cases) EXPECT_EQ(text::Utf8ToUtf16(bytes), text) << bytes;
}

TEST(UtfTest, Utf16RoundTripsThroughUtf8EvenWithLoneSurrogates) {
  const std::u16string cases[] = {
      u"plain",
      u"àèìòù€",
      u"\U0001F600x",
      std::u16string(1, char16_t(0xD800)),
      std::u16string{u'a', char16_t(0xDC00), u'b'},
      std::u16string{char16_t(0xDBFF), char16_t(0xD800)},
      std::u16string(1, u'\0'),
  };
  for (const auto& text : cases) EXPECT_EQ(text::Utf8ToUtf16(text::Utf16ToUtf8(text)), text);
  EXPECT_EQ(text::Utf16ToUtf8(u"\U0001F600"), "\xF0\x9F\x98\x80");
  EXPECT_EQ(text::Utf16ToUtf8(u"è"), "\xC3\xA8");
}

TEST(UtfTest, Windows1252BothWays) {
  EXPECT_EQ(text::Windows1252ToUtf16("\xE8\x80\x92\xFF"), u"è€’ÿ");
  EXPECT_EQ(text::Utf16ToWindows1252(u"è€’ÿ"), "\xE8\x80\x92\xFF");
  EXPECT_EQ(text::Utf16ToWindows1252(u"a\u4E2Db"), "a?b");
  EXPECT_EQ(text::Utf16ToWindows1252(u"\U0001F600", '_'), "__");
}

TEST(UtfTest, ScriptFilesAreDetectedByBomOrValidity) {
  const struct {
    std::string bytes;
    text::TextEncoding encoding;
    std::u16string text;
  } cases[] = {
      {"\xEF\xBB\xBFx = \"\xC3\xA8\"", text::TextEncoding::Utf8Bom, u"x = \"è\""},
      {std::string("\xFF\xFEx\0\xE8\0", 6), text::TextEncoding::Utf16LeBom, u"xè"},
      {std::string("\xFE\xFF\0x\0\xE8", 6), text::TextEncoding::Utf16BeBom, u"xè"},
      {"x = \"\xC3\xA8\"", text::TextEncoding::Utf8, u"x = \"è\""},
      {"x = \"\xE8\"", text::TextEncoding::Windows1252, u"x = \"è\""},
      {"' perch\xE8 \xC3\xA8", text::TextEncoding::Windows1252, u"' perchè Ã¨"},
      {"", text::TextEncoding::Utf8, u""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(text::DetectEncoding(c.bytes), c.encoding) << c.bytes;
    EXPECT_EQ(text::DecodeScriptFile(c.bytes), c.text) << c.bytes;
  }
}

TEST(UtfTest, UpperAndLowerCaseAreInversesExceptFinalSigma) {
  for (int c = 0; c < 0x500; ++c) {
    const auto unit = static_cast<char16_t>(c);
    if (const char16_t lower = text::LowerCase(unit); lower != unit) {
      EXPECT_EQ(text::UpperCase(lower), unit) << std::hex << c;
    }
    if (const char16_t upper = text::UpperCase(unit); upper != unit && unit != 0x3C2) {
      EXPECT_EQ(text::LowerCase(upper), unit) << std::hex << c;
    }
  }
  const std::pair<char16_t, char16_t> pairs[] = {
      {u'A', u'a'},   {u'Z', u'z'},   {u'À', u'à'}, {u'Þ', u'þ'}, {0x178, u'ÿ'}, {0x100, 0x101},
      {0x139, 0x13A}, {0x17D, 0x17E}, {u'Α', u'α'}, {u'Ω', u'ω'}, {u'А', u'а'},  {u'Ё', u'ё'},
  };
  for (const auto& [upper, lower] : pairs) {
    EXPECT_EQ(text::LowerCase(upper), lower) << std::hex << int(upper);
    EXPECT_EQ(text::UpperCase(lower), upper) << std::hex << int(lower);
  }
  const char16_t caseless[] = {u'×', u'÷', u'ß', 0x130, 0x131, 0x138, 0x149, 0x17F, u'@', u'[', u'`', u'{'};
  for (char16_t c : caseless) {
    EXPECT_EQ(text::UpperCase(c), c) << std::hex << int(c);
    EXPECT_EQ(text::LowerCase(c), c) << std::hex << int(c);
  }
  EXPECT_EQ(text::UpperCase(0x3C2), 0x3A3);  // final sigma
}

}  // namespace
}  // namespace vbs
