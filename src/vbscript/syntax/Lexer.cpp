#include "vbscript/syntax/Lexer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include "text/AsciiCase.h"
#include "vbscript/syntax/DateLiteral.h"

namespace vbs {

using namespace err;

namespace {

constexpr size_t kMaxIdentifierLength = 255;

struct Keyword {
  std::string_view word;
  TokenKind kind;
};

// Sorted by word, for a binary search.
constexpr std::array<Keyword, 61> kKeywords = {{
    {"and", TokenKind::And},
    {"byref", TokenKind::ByRef},
    {"byval", TokenKind::ByVal},
    {"call", TokenKind::Call},
    {"case", TokenKind::Case},
    {"class", TokenKind::Class},
    {"const", TokenKind::Const},
    {"default", TokenKind::Default},
    {"dim", TokenKind::Dim},
    {"do", TokenKind::Do},
    {"each", TokenKind::Each},
    {"else", TokenKind::Else},
    {"elseif", TokenKind::ElseIf},
    {"empty", TokenKind::Empty},
    {"end", TokenKind::End},
    {"eqv", TokenKind::Eqv},
    {"erase", TokenKind::Erase},
    {"error", TokenKind::Error},
    {"exit", TokenKind::Exit},
    {"explicit", TokenKind::Explicit},
    {"false", TokenKind::False},
    {"for", TokenKind::For},
    {"function", TokenKind::Function},
    {"get", TokenKind::Get},
    {"goto", TokenKind::GoTo},
    {"if", TokenKind::If},
    {"imp", TokenKind::Imp},
    {"in", TokenKind::In},
    {"is", TokenKind::Is},
    {"let", TokenKind::Let},
    {"loop", TokenKind::Loop},
    {"me", TokenKind::Me},
    {"mod", TokenKind::Mod},
    {"new", TokenKind::New},
    {"next", TokenKind::Next},
    {"not", TokenKind::Not},
    {"nothing", TokenKind::Nothing},
    {"null", TokenKind::Null},
    {"on", TokenKind::On},
    {"option", TokenKind::Option},
    {"or", TokenKind::Or},
    {"preserve", TokenKind::Preserve},
    {"private", TokenKind::Private},
    {"property", TokenKind::Property},
    {"public", TokenKind::Public},
    {"redim", TokenKind::ReDim},
    {"rem", TokenKind::Rem},
    {"resume", TokenKind::Resume},
    {"select", TokenKind::Select},
    {"set", TokenKind::Set},
    {"step", TokenKind::Step},
    {"stop", TokenKind::Stop},
    {"sub", TokenKind::Sub},
    {"then", TokenKind::Then},
    {"to", TokenKind::To},
    {"true", TokenKind::True},
    {"until", TokenKind::Until},
    {"wend", TokenKind::Wend},
    {"while", TokenKind::While},
    {"with", TokenKind::With},
    {"xor", TokenKind::Xor},
}};

static_assert(std::is_sorted(kKeywords.begin(), kKeywords.end(),
                             [](const Keyword& a, const Keyword& b) { return a.word < b.word; }));

bool IsAsciiLetter(char16_t c) { return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'); }
bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }
bool IsHexDigit(char16_t c) { return IsDigit(c) || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F'); }
bool IsOctalDigit(char16_t c) { return c >= u'0' && c <= u'7'; }
bool IsLineBreak(char16_t c) { return c == u'\r' || c == u'\n'; }
bool IsBlank(char16_t c) { return c == u' ' || c == u'\t' || c == u'\v' || c == u'\f' || c == u'\uFEFF'; }

// Letters beyond ASCII, so that names such as "Qualità" work: the Latin-1 letters and everything
// above them except the general punctuation block.
bool IsLetter(char16_t c) {
  if (IsAsciiLetter(c)) return true;
  if (c < 0xC0) return c == 0xAA || c == 0xB5 || c == 0xBA;
  if (c == 0xD7 || c == 0xF7 || c == 0xFEFF) return false;
  return c < 0x2000 || c > 0x206F;
}

bool IsWordChar(char16_t c) { return IsLetter(c) || IsDigit(c) || c == u'_'; }

int32_t HexValue(char16_t c) {
  if (IsDigit(c)) return c - u'0';
  return text::LowerAscii(c) - u'a' + 10;
}

TokenKind KeywordKind(std::u16string_view word) {
  constexpr size_t kLongest = 8;
  if (word.size() > kLongest) return TokenKind::Identifier;
  char lower[kLongest];
  for (size_t i = 0; i < word.size(); ++i) {
    if (!IsAsciiLetter(word[i])) return TokenKind::Identifier;
    lower[i] = static_cast<char>(text::LowerAscii(word[i]));
  }
  std::string_view key(lower, word.size());
  auto it = std::lower_bound(kKeywords.begin(), kKeywords.end(), key,
                             [](const Keyword& k, std::string_view w) { return k.word < w; });
  return (it != kKeywords.end() && it->word == key) ? it->kind : TokenKind::Identifier;
}

class Lexer {
 public:
  explicit Lexer(std::u16string_view text) : m_text(text) {}

  std::vector<Token> Run() {
    // Scripts average well over four characters a token; reserving avoids most regrowth.
    m_tokens.reserve(m_text.size() / 4 + 16);
    while (true) {
      size_t before = m_pos;
      SkipBlanks();
      m_after_blank = m_after_blank || m_pos != before;
      if (m_pos >= m_text.size()) break;
      size_t count = m_tokens.size();
      LexOne();
      if (m_tokens.size() != count) {
        m_after_blank = false;
        m_continued = false;
      }
    }
    Token end = Begin(TokenKind::EndOfInput);
    m_tokens.push_back(end);
    return std::move(m_tokens);
  }

 private:
  char16_t Peek(size_t ahead = 0) const { return m_pos + ahead < m_text.size() ? m_text[m_pos + ahead] : u'\0'; }

  Token Begin(TokenKind kind) const {
    Token token;
    token.kind = kind;
    token.offset = static_cast<uint32_t>(m_pos);
    token.line = m_line;
    token.column = static_cast<uint32_t>(m_pos - m_line_start + 1);
    // A member chain may go on across a continuation: "obj _" then ".Method" on the next line.
    token.after_blank = m_after_blank && !m_continued;
    return token;
  }

  void Finish(Token token) {
    token.length = static_cast<uint32_t>(m_pos - token.offset);
    m_tokens.push_back(token);
  }

  void FinishInvalid(Token token, int32_t error) {
    token.kind = TokenKind::Invalid;
    token.integer = error;
    Finish(token);
  }

  TokenKind PreviousKind() const { return m_tokens.empty() ? TokenKind::Newline : m_tokens.back().kind; }

  // "Rem" is a comment where a statement may begin; elsewhere it is a reserved word out of place.
  bool AtStatementStart() const {
    TokenKind prev = PreviousKind();
    return prev == TokenKind::Newline || prev == TokenKind::Colon || prev == TokenKind::Then || prev == TokenKind::Else;
  }

  void SkipBlanks() {
    while (m_pos < m_text.size() && IsBlank(m_text[m_pos])) ++m_pos;
  }

  void SkipToLineEnd() {
    while (m_pos < m_text.size() && !IsLineBreak(m_text[m_pos])) ++m_pos;
  }

  void ConsumeLineBreak() {
    if (Peek() == u'\r' && Peek(1) == u'\n') ++m_pos;
    ++m_pos;
    ++m_line;
    m_line_start = m_pos;
  }

  void LexOne() {
    char16_t c = Peek();
    if (IsLineBreak(c)) {
      Token token = Begin(TokenKind::Newline);
      ConsumeLineBreak();
      token.length = 1;
      m_tokens.push_back(token);
    } else if (c == u'\'') {
      SkipToLineEnd();
    } else if (IsLetter(c)) {
      LexWord();
    } else if (IsDigit(c) || (c == u'.' && IsDigit(Peek(1)))) {
      LexDecimal();
    } else if (c == u'"') {
      LexString();
    } else if (c == u'[') {
      LexBracketedName();
    } else if (c == u'#') {
      LexDate();
    } else if (c == u'&') {
      LexAmpersand();
    } else if (c == u'_') {
      LexUnderscore();
    } else {
      LexOperator(c);
    }
  }

  void LexWord() {
    Token token = Begin(TokenKind::Identifier);
    while (m_pos < m_text.size() && IsWordChar(m_text[m_pos])) ++m_pos;
    std::u16string_view word = m_text.substr(token.offset, m_pos - token.offset);
    if (word.size() > kMaxIdentifierLength) return FinishInvalid(token, kIdentifierTooLong);
    // After a dot every word is a member name, so "obj.End" or "x.Rem" stay names.
    if (PreviousKind() != TokenKind::Dot) token.kind = KeywordKind(word);
    if (token.kind == TokenKind::Rem) {
      if (AtStatementStart()) return SkipToLineEnd();
    }
    Finish(token);
  }

  void LexDecimal() {
    Token token = Begin(TokenKind::IntegerLiteral);
    bool is_double = false;
    bool negative_exponent = false;
    while (IsDigit(Peek())) ++m_pos;
    if (Peek() == u'.') {
      is_double = true;
      ++m_pos;
      while (IsDigit(Peek())) ++m_pos;
    }
    char16_t e = Peek();
    if (e == u'e' || e == u'E') {
      size_t sign = (Peek(1) == u'+' || Peek(1) == u'-') ? 1 : 0;
      if (IsDigit(Peek(1 + sign))) {
        is_double = true;
        negative_exponent = Peek(1) == u'-';
        m_pos += 1 + sign;
        while (IsDigit(Peek())) ++m_pos;
      }
    }
    std::string ascii(m_text.begin() + token.offset, m_text.begin() + static_cast<ptrdiff_t>(m_pos));
    if (!is_double) {
      uint64_t value = 0;
      auto [end, ec] = std::from_chars(ascii.data(), ascii.data() + ascii.size(), value);
      if (ec == std::errc() && value <= 0x7FFFFFFF) {
        token.kind = value <= 0x7FFF ? TokenKind::IntegerLiteral : TokenKind::LongLiteral;
        token.integer = static_cast<int32_t>(value);
        return Finish(token);
      }
    }
    // Integers too big for a Long become Doubles, as in VBScript.
    token.kind = TokenKind::DoubleLiteral;
    double value = 0;
    auto [end, ec] = std::from_chars(ascii.data(), ascii.data() + ascii.size(), value);
    if (ec == std::errc::result_out_of_range) {
      bool all_zero_before_point = ascii.find_first_not_of("0.") >= ascii.find_first_of("eE");
      if (!negative_exponent && !all_zero_before_point) return FinishInvalid(token, kInvalidNumber);
      value = 0;
    }
    token.number = value;
    Finish(token);
  }

  void LexString() {
    Token token = Begin(TokenKind::StringLiteral);
    ++m_pos;
    while (true) {
      if (m_pos >= m_text.size() || IsLineBreak(m_text[m_pos])) return FinishInvalid(token, kUnterminatedString);
      if (m_text[m_pos] == u'"') {
        if (Peek(1) != u'"') break;
        ++m_pos;
      }
      ++m_pos;
    }
    ++m_pos;
    Finish(token);
  }

  void LexBracketedName() {
    Token token = Begin(TokenKind::Identifier);
    ++m_pos;
    while (m_pos < m_text.size() && m_text[m_pos] != u']' && !IsLineBreak(m_text[m_pos])) ++m_pos;
    if (Peek() != u']') return FinishInvalid(token, kExpectedRBracket);
    token.bracketed = true;
    token.offset += 1;
    token.length = static_cast<uint32_t>(m_pos - token.offset);
    ++m_pos;
    if (token.length > kMaxIdentifierLength) return FinishInvalid(token, kIdentifierTooLong);
    m_tokens.push_back(token);
  }

  void LexDate() {
    Token token = Begin(TokenKind::DateLiteral);
    ++m_pos;
    size_t start = m_pos;
    while (m_pos < m_text.size() && m_text[m_pos] != u'#' && !IsLineBreak(m_text[m_pos])) ++m_pos;
    if (Peek() != u'#') {
      m_pos = start;
      return FinishInvalid(token, kInvalidCharacter);
    }
    auto value = ParseDateLiteral(m_text.substr(start, m_pos - start));
    ++m_pos;
    if (!value) return FinishInvalid(token, kSyntaxError);
    token.number = *value;
    Finish(token);
  }

  // "&H1F", "&O17" and "&17" are numbers; any other "&" concatenates.
  void LexAmpersand() {
    Token token = Begin(TokenKind::Ampersand);
    char16_t next = Peek(1);
    int32_t base = 0;
    size_t digits_at = m_pos + 2;
    if ((next == u'h' || next == u'H') && IsHexDigit(Peek(2))) {
      base = 16;
    } else if ((next == u'o' || next == u'O') && IsOctalDigit(Peek(2))) {
      base = 8;
    } else if (IsOctalDigit(next)) {
      base = 8;
      digits_at = m_pos + 1;
    }
    if (base == 0) {
      ++m_pos;
      return Finish(token);
    }
    m_pos = digits_at;
    uint64_t value = 0;
    bool overflow = false;
    auto is_digit = base == 16 ? IsHexDigit : IsOctalDigit;
    while (m_pos < m_text.size() && is_digit(m_text[m_pos])) {
      value = value * static_cast<uint64_t>(base) + static_cast<uint64_t>(HexValue(m_text[m_pos]));
      overflow = overflow || value > 0xFFFFFFFF;
      ++m_pos;
    }
    bool force_long = Peek() == u'&';
    if (force_long) ++m_pos;
    if (overflow) return FinishInvalid(token, kInvalidNumber);
    // Up to 16 bits an unsuffixed literal is an Integer, so &HFFFF is -1; wider ones are Longs.
    if (!force_long && value <= 0xFFFF) {
      token.kind = TokenKind::IntegerLiteral;
      token.integer = static_cast<int16_t>(static_cast<uint16_t>(value));
    } else {
      token.kind = TokenKind::LongLiteral;
      token.integer = static_cast<int32_t>(static_cast<uint32_t>(value));
    }
    Finish(token);
  }

  // " _" at the end of a line joins the next line to this one; anywhere else "_" is invalid.
  void LexUnderscore() {
    Token token = Begin(TokenKind::Invalid);
    size_t after = m_pos + 1;
    while (after < m_text.size() && IsBlank(m_text[after])) ++after;
    if (after >= m_text.size()) {
      m_pos = after;
      return;
    }
    if (IsLineBreak(m_text[after])) {
      m_pos = after;
      ConsumeLineBreak();
      m_continued = true;
      return;
    }
    ++m_pos;
    FinishInvalid(token, kInvalidCharacter);
  }

  void LexOperator(char16_t c) {
    Token token = Begin(TokenKind::Invalid);
    char16_t next = Peek(1);
    size_t length = 1;
    switch (c) {
      case u'(': token.kind = TokenKind::LParen; break;
      case u')': token.kind = TokenKind::RParen; break;
      case u',': token.kind = TokenKind::Comma; break;
      case u'.': token.kind = TokenKind::Dot; break;
      case u':': token.kind = TokenKind::Colon; break;
      case u'+': token.kind = TokenKind::Plus; break;
      case u'-': token.kind = TokenKind::Minus; break;
      case u'*': token.kind = TokenKind::Star; break;
      case u'/': token.kind = TokenKind::Slash; break;
      case u'\\': token.kind = TokenKind::Backslash; break;
      case u'^': token.kind = TokenKind::Caret; break;
      // "=<", "=>" and "><" are old spellings that VBScript still accepts.
      case u'=':
        token.kind = next == u'<' ? TokenKind::LessEqual : next == u'>' ? TokenKind::GreaterEqual : TokenKind::Equal;
        length = token.kind == TokenKind::Equal ? 1 : 2;
        break;
      case u'<':
        token.kind = next == u'>' ? TokenKind::NotEqual : next == u'=' ? TokenKind::LessEqual : TokenKind::Less;
        length = token.kind == TokenKind::Less ? 1 : 2;
        break;
      case u'>':
        token.kind = next == u'=' ? TokenKind::GreaterEqual : next == u'<' ? TokenKind::NotEqual : TokenKind::Greater;
        length = token.kind == TokenKind::Greater ? 1 : 2;
        break;
      default:
        // A character outside the language; a surrogate pair counts as one.
        if (c >= 0xD800 && c <= 0xDBFF && next >= 0xDC00 && next <= 0xDFFF) length = 2;
        m_pos += length;
        return FinishInvalid(token, kInvalidCharacter);
    }
    m_pos += length;
    Finish(token);
  }

  std::u16string_view m_text;
  std::vector<Token> m_tokens;
  size_t m_pos = 0;
  uint32_t m_line = 1;
  size_t m_line_start = 0;
  bool m_after_blank = false;
  bool m_continued = false;
};

void AppendUtf8(std::string& out, char32_t code) {
  if (code < 0x80) {
    out.push_back(static_cast<char>(code));
  } else if (code < 0x800) {
    out.push_back(static_cast<char>(0xC0 | (code >> 6)));
    out.push_back(static_cast<char>(0x80 | (code & 0x3F)));
  } else if (code < 0x10000) {
    out.push_back(static_cast<char>(0xE0 | (code >> 12)));
    out.push_back(static_cast<char>(0x80 | ((code >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (code & 0x3F)));
  } else {
    out.push_back(static_cast<char>(0xF0 | (code >> 18)));
    out.push_back(static_cast<char>(0x80 | ((code >> 12) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | ((code >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (code & 0x3F)));
  }
}

}  // namespace

std::vector<Token> Tokenize(std::u16string_view text) { return Lexer(text).Run(); }

std::string TokenName(std::u16string_view text, const Token& token) {
  std::u16string_view name = text.substr(token.offset, token.length);
  std::string out;
  out.reserve(name.size());
  for (size_t i = 0; i < name.size(); ++i) {
    char32_t code = name[i];
    if (code >= 0xD800 && code <= 0xDBFF && i + 1 < name.size() && name[i + 1] >= 0xDC00 && name[i + 1] <= 0xDFFF) {
      code = 0x10000 + ((code - 0xD800) << 10) + (name[i + 1] - 0xDC00);
      ++i;
    } else if (code >= 0xD800 && code <= 0xDFFF) {
      code = 0xFFFD;  // a lone surrogate has no UTF-8 form
    }
    AppendUtf8(out, code);
  }
  return out;
}

std::u16string StringLiteralValue(std::u16string_view text, const Token& token) {
  std::u16string_view body = text.substr(token.offset + 1, token.length - 2);
  std::u16string out;
  out.reserve(body.size());
  for (size_t i = 0; i < body.size(); ++i) {
    out.push_back(body[i]);
    if (body[i] == u'"') ++i;
  }
  return out;
}

}  // namespace vbs
