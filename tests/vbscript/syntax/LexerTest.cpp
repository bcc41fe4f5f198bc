#include <gtest/gtest.h>

#include <chrono>

#include "AstPrinter.h"
#include "vbscript/syntax/DateLiteral.h"
#include "vbscript/syntax/Lexer.h"

namespace vbs {
namespace {

using K = TokenKind;

std::vector<Token> Lex(const std::u16string& text) { return Tokenize(text); }

std::vector<TokenKind> Kinds(std::string_view source) {
  std::vector<TokenKind> kinds;
  for (const Token& token : Lex(test::ToU16(source))) kinds.push_back(token.kind);
  return kinds;
}

struct KindCase {
  std::string_view source;
  std::vector<TokenKind> kinds;
};

TEST(LexerTest, SplitsSourceIntoTokens) {
  const KindCase cases[] = {
      {"x = 1", {K::Identifier, K::Equal, K::IntegerLiteral, K::EndOfInput}},
      {"iF a tHEN eLSE", {K::If, K::Identifier, K::Then, K::Else, K::EndOfInput}},
      // After a dot every word is a member name, reserved or not.
      {"obj.End.Rem.Class",
       {K::Identifier, K::Dot, K::Identifier, K::Dot, K::Identifier, K::Dot, K::Identifier, K::EndOfInput}},
      {"x = 1 ' comment\ny", {K::Identifier, K::Equal, K::IntegerLiteral, K::Newline, K::Identifier, K::EndOfInput}},
      // "Rem" comments where a statement may start, and is a misplaced word elsewhere.
      {"Rem comment\nx", {K::Newline, K::Identifier, K::EndOfInput}},
      {"x: REM c", {K::Identifier, K::Colon, K::EndOfInput}},
      {"If a Then Rem c", {K::If, K::Identifier, K::Then, K::EndOfInput}},
      {"x = Rem", {K::Identifier, K::Equal, K::Rem, K::EndOfInput}},
      {"Remark = 1", {K::Identifier, K::Equal, K::IntegerLiteral, K::EndOfInput}},
      // Continuation: " _" then only blanks up to the line break.
      {"a _\n b", {K::Identifier, K::Identifier, K::EndOfInput}},
      {"a _  \r\n b", {K::Identifier, K::Identifier, K::EndOfInput}},
      {"a _ b", {K::Identifier, K::Invalid, K::Identifier, K::EndOfInput}},
      {"a_b _x", {K::Identifier, K::Invalid, K::Identifier, K::EndOfInput}},
      {"a\r\nb\rc\nd",
       {K::Identifier, K::Newline, K::Identifier, K::Newline, K::Identifier, K::Newline, K::Identifier, K::EndOfInput}},
      {"<> <= >= =< => >< < > =",
       {K::NotEqual, K::LessEqual, K::GreaterEqual, K::LessEqual, K::GreaterEqual, K::NotEqual, K::Less, K::Greater,
        K::Equal, K::EndOfInput}},
      {"+-*/\\^&(),.:",
       {K::Plus, K::Minus, K::Star, K::Slash, K::Backslash, K::Caret, K::Ampersand, K::LParen, K::RParen, K::Comma,
        K::Dot, K::Colon, K::EndOfInput}},
      // Hex digits stop at the first letter that is not one.
      {"&h01or&h02", {K::IntegerLiteral, K::Or, K::IntegerLiteral, K::EndOfInput}},
      {"a &b & c", {K::Identifier, K::Ampersand, K::Identifier, K::Ampersand, K::Identifier, K::EndOfInput}},
      // "&" and an octal digit make an octal number, as "&O" does: "s&7" is two operands.
      {"s&7", {K::Identifier, K::IntegerLiteral, K::EndOfInput}},
      {"s&8", {K::Identifier, K::Ampersand, K::IntegerLiteral, K::EndOfInput}},
      {"[a b] [x]", {K::Identifier, K::Identifier, K::EndOfInput}},
      {"Dim Step, Property", {K::Dim, K::Step, K::Comma, K::Property, K::EndOfInput}},
      {"1to 2", {K::IntegerLiteral, K::To, K::IntegerLiteral, K::EndOfInput}},
      {"", {K::EndOfInput}},
  };
  for (const auto& c : cases) EXPECT_EQ(Kinds(c.source), c.kinds) << c.source;
}

struct NumberCase {
  std::string_view source;
  TokenKind kind;
  double value;  // the integer of Integer/Long literals, the number of Doubles, the error of Invalid
};

TEST(LexerTest, ReadsNumbersWithVBScriptTypes) {
  const NumberCase cases[] = {
      {"0", K::IntegerLiteral, 0},
      {"32767", K::IntegerLiteral, 32767},
      {"32768", K::LongLiteral, 32768},
      {"2147483647", K::LongLiteral, 2147483647},
      {"2147483648", K::DoubleLiteral, 2147483648.0},
      {"99999999999999999999", K::DoubleLiteral, 1e20},
      {"010", K::IntegerLiteral, 10},
      {"&HFF", K::IntegerLiteral, 255},
      {"&hffff", K::IntegerLiteral, -1},
      {"&H8000", K::IntegerLiteral, -32768},
      {"&H0000FFFF", K::IntegerLiteral, -1},
      {"&H10000", K::LongLiteral, 65536},
      {"&HFFFF&", K::LongLiteral, 65535},
      {"&H1&", K::LongLiteral, 1},
      {"&HFFFFFFFF", K::LongLiteral, -1},
      {"&H7FFFFFFF", K::LongLiteral, 2147483647},
      {"&H80000000", K::LongLiteral, -2147483648.0},
      {"&O17", K::IntegerLiteral, 15},
      {"&o177777", K::IntegerLiteral, -1},
      {"&17", K::IntegerLiteral, 15},
      {"&O200000", K::LongLiteral, 65536},
      {"&O37777777777", K::LongLiteral, -1},
      {"&H100000000", K::Invalid, 1031},
      {"&O40000000000", K::Invalid, 1031},
      {"1.5", K::DoubleLiteral, 1.5},
      {".5", K::DoubleLiteral, 0.5},
      {"10.", K::DoubleLiteral, 10},
      {"1e3", K::DoubleLiteral, 1000},
      {"34E+5", K::DoubleLiteral, 3400000},
      {"1.5E-3", K::DoubleLiteral, 0.0015},
      {".5e1", K::DoubleLiteral, 5},
      {"1e-94938484", K::DoubleLiteral, 0},
      {"1.79769313486231e308", K::DoubleLiteral, 1.79769313486231e308},
      {"1e309", K::Invalid, 1031},
  };
  for (const auto& c : cases) {
    auto tokens = Lex(test::ToU16(c.source));
    ASSERT_EQ(tokens.size(), 2u) << c.source;
    const Token& token = tokens[0];
    EXPECT_EQ(token.kind, c.kind) << c.source;
    double value = token.kind == K::DoubleLiteral ? token.number : token.integer;
    EXPECT_EQ(value, c.value) << c.source;
  }
}

TEST(LexerTest, ExponentNeedsDigits) {
  EXPECT_EQ(Kinds("1e"), (std::vector<TokenKind>{K::IntegerLiteral, K::Identifier, K::EndOfInput}));
  EXPECT_EQ(Kinds("1else"), (std::vector<TokenKind>{K::IntegerLiteral, K::Else, K::EndOfInput}));
}

TEST(LexerTest, ReadsStringsWithDoubledQuotes) {
  const std::pair<std::u16string, std::u16string> cases[] = {
      {u"\"abc\"", u"abc"},
      {u"\"\"", u""},
      {u"\"a\"\"b\"", u"a\"b"},
      {u"\"\"\"\"", u"\""},
      {u"\"città ' not a comment\"", u"città ' not a comment"},
  };
  for (const auto& [source, value] : cases) {
    auto tokens = Lex(source);
    ASSERT_EQ(tokens[0].kind, K::StringLiteral);
    EXPECT_EQ(StringLiteralValue(source, tokens[0]), value);
    EXPECT_EQ(tokens[1].kind, K::EndOfInput);
  }
}

struct ErrorCase {
  std::string_view source;
  int32_t error;
  uint32_t line;
  uint32_t column;
};

TEST(LexerTest, ReportsLexicalErrorsAsInvalidTokens) {
  const ErrorCase cases[] = {
      {"x = 1 ? 2", 1032, 1, 7},   {"x = \"abc\ny", 1033, 1, 5},     {"x = \"abc", 1033, 1, 5},
      {"\n  [abc", 1007, 2, 3},    {"x = #1/2/2003", 1032, 1, 5},    {"x = #13/13/2003#", 1002, 1, 5},
      {"x = #hello#", 1002, 1, 5}, {"x = a _ 'comment", 1032, 1, 7}, {"x = $", 1032, 1, 5},
  };
  for (const auto& c : cases) {
    bool found = false;
    for (const Token& token : Lex(test::ToU16(c.source))) {
      if (token.kind != K::Invalid) continue;
      EXPECT_EQ(token.integer, c.error) << c.source;
      EXPECT_EQ(token.line, c.line) << c.source;
      EXPECT_EQ(token.column, c.column) << c.source;
      found = true;
      break;
    }
    EXPECT_TRUE(found) << c.source;
  }
}

TEST(LexerTest, LimitsIdentifiersTo255Characters) {
  std::u16string longest(255, u'a');
  EXPECT_EQ(Lex(longest)[0].kind, K::Identifier);
  auto too_long = Lex(longest + u"a");
  EXPECT_EQ(too_long[0].kind, K::Invalid);
  EXPECT_EQ(too_long[0].integer, 1030);
}

TEST(LexerTest, NamesKeepTheirSpellingInUtf8) {
  std::u16string source = u"Qualità [two words] Ärger x.Next";
  auto tokens = Lex(source);
  EXPECT_EQ(TokenName(source, tokens[0]), "Qualità");
  EXPECT_EQ(TokenName(source, tokens[1]), "two words");
  EXPECT_TRUE(tokens[1].bracketed);
  EXPECT_EQ(TokenName(source, tokens[2]), "Ärger");
  EXPECT_EQ(TokenName(source, tokens[5]), "Next");
}

TEST(LexerTest, PositionsCountLinesAndColumns) {
  auto tokens = Lex(u"a = 1\r\n\tbb _\n  + 2\n");
  struct Expected {
    TokenKind kind;
    uint32_t line, column;
  };
  const Expected expected[] = {{K::Identifier, 1, 1},     {K::Equal, 1, 3},      {K::IntegerLiteral, 1, 5},
                               {K::Newline, 1, 6},        {K::Identifier, 2, 2}, {K::Plus, 3, 3},
                               {K::IntegerLiteral, 3, 5}, {K::Newline, 3, 6},    {K::EndOfInput, 4, 1}};
  ASSERT_EQ(tokens.size(), std::size(expected));
  for (size_t i = 0; i < tokens.size(); ++i) {
    EXPECT_EQ(tokens[i].kind, expected[i].kind) << i;
    EXPECT_EQ(tokens[i].line, expected[i].line) << i;
    EXPECT_EQ(tokens[i].column, expected[i].column) << i;
  }
}

TEST(LexerTest, MarksTokensAfterBlanks) {
  auto joined = Lex(u"a.b");
  EXPECT_FALSE(joined[1].after_blank);
  auto spaced = Lex(u"a .b");
  EXPECT_TRUE(spaced[1].after_blank);
  EXPECT_FALSE(spaced[2].after_blank);
  auto continued = Lex(u"a _\n  .b");
  EXPECT_FALSE(continued[1].after_blank);
}

struct DateCase {
  std::u16string_view text;
  double serial;
};

TEST(DateLiteralTest, ReadsMonthBeforeDay) {
  const DateCase cases[] = {
      {u"1/2/2003", 37623},
      {u"01/02/2003", 37623},
      {u"1-2-2003", 37623},
      {u"2003-01-02", 37623},
      {u"2003/1/2", 37623},
      {u"1/2/03", 37623},
      {u"1/2/29", 47120},
      {u"1/2/30", 10960},
      {u"13/1/2003", 37634},  // no 13th month: day first
      {u"January 2, 2003", 37623},
      {u"2 jan 2003", 37623},
      {u"Sept 1 2003", 37865},
      {u"12/30/1899", 0},
      {u"12/31/1899", 1},
      {u"12/29/1899 6:00", -1.25},
      {u"1/1/100", -657434},
      {u"12/31/9999", 2958465},
      {u"2/29/2000", 36585},
      {u"1/2/2003 10:30:00 PM", 37623.9375},
      {u"1/2/2003 10:30", 37623.4375},
      {u"10:30", 0.4375},
      {u"10:30:36", 0.43791666666666668},
      {u"12:00 AM", 0},
      {u"12:00 PM", 0.5},
      {u"10 PM", 22.0 / 24},
      {u" 1/2/2003 ", 37623},
  };
  for (const auto& c : cases) {
    auto serial = ParseDateLiteral(c.text);
    ASSERT_TRUE(serial.has_value()) << std::string(c.text.begin(), c.text.end());
    EXPECT_NEAR(*serial, c.serial, 1e-9) << std::string(c.text.begin(), c.text.end());
  }
}

TEST(DateLiteralTest, RejectsImpossibleDates) {
  const std::u16string_view cases[] = {u"",           u"2/29/1900", u"2/30/2000", u"13/13/2003", u"0/1/2003",
                                       u"1/0/2003",   u"1/1/10000", u"25:00",     u"10:60",      u"13:00 PM",
                                       u"1/2/2003 x", u"hello",     u"1/2/3/4",   u"1:",         u"1/2/2003;"};
  for (auto text : cases) EXPECT_FALSE(ParseDateLiteral(text).has_value()) << std::string(text.begin(), text.end());
}

TEST(DateLiteralTest, DateWithoutYearTakesTheCurrentYear) {
  auto today = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
  int year = static_cast<int>(std::chrono::year_month_day(today).year());
  auto with_year = ParseDateLiteral(test::ToU16("3/4/" + std::to_string(year)));
  auto without = ParseDateLiteral(u"3/4");
  ASSERT_TRUE(with_year && without);
  EXPECT_EQ(*without, *with_year);
}

}  // namespace
}  // namespace vbs
