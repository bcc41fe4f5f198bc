#pragma once

// The lexer turns a whole source text into tokens at once: the parser then looks ahead freely, and
// comments, line continuations and the places where "Rem" starts a comment are settled here, so the
// grammar never sees them.

#include <string>
#include <string_view>
#include <vector>

#include "vbscript/syntax/Token.h"

namespace vbs {

// The tokens of `text`, always ending with EndOfInput. A lexical error (invalid character,
// unterminated string, malformed number or date) becomes an Invalid token carrying its VBScript
// error number, so that the parser reports it in order with its own errors.
std::vector<Token> Tokenize(std::u16string_view text);

// The UTF-8 spelling of a name token, without brackets.
std::string TokenName(std::u16string_view text, const Token& token);

// The value of a string literal token, its doubled quotes made single.
std::u16string StringLiteralValue(std::u16string_view text, const Token& token);

}  // namespace vbs
