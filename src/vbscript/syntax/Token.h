#pragma once

// The lexer's output. A token keeps only where its text lies in the source and, for literals, the
// value already worked out; the parser reads names and strings back from the source text when it
// needs them, which keeps a token small enough that a megabyte of script lexes into one flat vector.

#include <cstdint>

#include "vbscript/value/ErrorCodes.h"  // the lexer and the parser report err:: numbers

namespace vbs {

enum class TokenKind : uint8_t {
  EndOfInput,
  Newline,
  Colon,
  Invalid,  // a lexical error; `error` holds its number

  Identifier,  // a plain or [bracketed] name
  IntegerLiteral,
  LongLiteral,
  DoubleLiteral,
  StringLiteral,
  DateLiteral,

  LParen,
  RParen,
  Comma,
  Dot,
  Plus,
  Minus,
  Star,
  Slash,
  Backslash,
  Caret,
  Ampersand,
  Equal,
  NotEqual,
  Less,
  Greater,
  LessEqual,
  GreaterEqual,

  // Reserved words.
  And,
  ByRef,
  ByVal,
  Call,
  Case,
  Class,
  Const,
  Dim,
  Do,
  Each,
  Else,
  ElseIf,
  Empty,
  End,
  Eqv,
  Erase,
  Exit,
  False,
  For,
  Function,
  If,
  Imp,
  In,
  Is,
  Loop,
  Me,
  Mod,
  New,
  Next,
  Not,
  Nothing,
  Null,
  On,
  Option,
  Or,
  Private,
  Public,
  ReDim,
  Rem,
  Select,
  Set,
  Stop,
  Sub,
  Then,
  To,
  True,
  Until,
  Wend,
  While,
  With,
  Xor,

  // Words with a meaning in one place only, and otherwise ordinary names ("Dim Step" is legal).
  Default,
  Error,
  Explicit,
  Get,
  GoTo,
  Let,
  Preserve,
  Property,
  Resume,
  Step,
};

struct Token {
  TokenKind kind = TokenKind::EndOfInput;
  bool bracketed = false;    // [name]: offset/length cover the name without the brackets
  bool after_blank = false;  // blanks precede it on its line: "f .x" passes a With member
  uint32_t offset = 0;       // into the source text, in UTF-16 units
  uint32_t length = 0;
  uint32_t line = 1;
  uint32_t column = 1;
  int32_t integer = 0;  // Integer and Long literals; the error number of an Invalid token
  double number = 0;    // Double literals; a Date literal's serial
};

// True for tokens that may stand where a name is expected: identifiers and the words that are
// keywords only in one position.
constexpr bool IsNameToken(TokenKind kind) { return kind == TokenKind::Identifier || kind >= TokenKind::Default; }

// True for every word, reserved or not: after a "." any word names a member.
constexpr bool IsWordToken(TokenKind kind) { return kind == TokenKind::Identifier || kind >= TokenKind::And; }

}  // namespace vbs
