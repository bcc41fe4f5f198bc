#pragma once

// The lexer's output. A token keeps only where its text lies in the source and, for literals, the
// value already worked out; the parser reads names and strings back from the source text when it
// needs them, which keeps a token small enough that a megabyte of script lexes into one flat vector.

#include <cstdint>

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

  LParen, RParen, Comma, Dot,
  Plus, Minus, Star, Slash, Backslash, Caret, Ampersand,
  Equal, NotEqual, Less, Greater, LessEqual, GreaterEqual,

  // Reserved words.
  And, ByRef, ByVal, Call, Case, Class, Const, Dim, Do, Each, Else, ElseIf, Empty, End, Eqv, Erase,
  Exit, False, For, Function, If, Imp, In, Is, Loop, Me, Mod, New, Next, Not, Nothing, Null, On,
  Option, Or, Private, Public, ReDim, Rem, Select, Set, Stop, Sub, Then, To, True, Until, Wend,
  While, With, Xor,

  // Words with a meaning in one place only, and otherwise ordinary names ("Dim Step" is legal).
  Default, Error, Explicit, Get, GoTo, Let, Preserve, Property, Resume, Step,
};

struct Token {
  TokenKind kind = TokenKind::EndOfInput;
  bool bracketed = false;  // [name]: offset/length cover the name without the brackets
  bool after_blank = false;  // blanks precede it on its line: "f .x" passes a With member
  uint32_t offset = 0;     // into the source text, in UTF-16 units
  uint32_t length = 0;
  uint32_t line = 1;
  uint32_t column = 1;
  int32_t integer = 0;  // Integer and Long literals; the error number of an Invalid token
  double number = 0;    // Double literals; a Date literal's serial
};

// True for tokens that may stand where a name is expected: identifiers and the words that are
// keywords only in one position.
constexpr bool IsNameToken(TokenKind kind) {
  return kind == TokenKind::Identifier || kind >= TokenKind::Default;
}

// True for every word, reserved or not: after a "." any word names a member.
constexpr bool IsWordToken(TokenKind kind) {
  return kind == TokenKind::Identifier || kind >= TokenKind::And;
}

// VBScript's compile error numbers, as the lexer and the parser report them.
namespace syntax {
constexpr int32_t kOutOfStack = 28;
constexpr int32_t kSyntaxError = 1002;
constexpr int32_t kExpectedLParen = 1005;
constexpr int32_t kExpectedRParen = 1006;
constexpr int32_t kExpectedRBracket = 1007;
constexpr int32_t kExpectedIdentifier = 1010;
constexpr int32_t kExpectedEqual = 1011;
constexpr int32_t kExpectedIf = 1012;
constexpr int32_t kExpectedTo = 1013;
constexpr int32_t kExpectedEnd = 1014;
constexpr int32_t kExpectedFunction = 1015;
constexpr int32_t kExpectedSub = 1016;
constexpr int32_t kExpectedThen = 1017;
constexpr int32_t kExpectedWend = 1018;
constexpr int32_t kExpectedLoop = 1019;
constexpr int32_t kExpectedNext = 1020;
constexpr int32_t kExpectedCase = 1021;
constexpr int32_t kExpectedSelect = 1022;
constexpr int32_t kExpectedExpression = 1023;
constexpr int32_t kExpectedStatement = 1024;
constexpr int32_t kExpectedEndOfStatement = 1025;
constexpr int32_t kExpectedInteger = 1026;
constexpr int32_t kExpectedWhile = 1027;
constexpr int32_t kExpectedUntil = 1028;
constexpr int32_t kExpectedWith = 1029;
constexpr int32_t kIdentifierTooLong = 1030;
constexpr int32_t kInvalidNumber = 1031;
constexpr int32_t kInvalidCharacter = 1032;
constexpr int32_t kUnterminatedString = 1033;
constexpr int32_t kInvalidMe = 1037;
constexpr int32_t kLoopWithoutDo = 1038;
constexpr int32_t kInvalidExit = 1039;
constexpr int32_t kNameRedefined = 1041;
constexpr int32_t kParenthesesOnSubCall = 1044;
constexpr int32_t kExpectedLiteral = 1045;
constexpr int32_t kExpectedIn = 1046;
constexpr int32_t kExpectedClass = 1047;
constexpr int32_t kOutsideClass = 1048;
constexpr int32_t kExpectedLetSetGet = 1049;
constexpr int32_t kExpectedProperty = 1050;
constexpr int32_t kMultipleDefaults = 1052;
constexpr int32_t kInitializeWithArguments = 1053;
constexpr int32_t kPropertyWithoutArgument = 1054;
constexpr int32_t kUnexpectedNext = 1055;
constexpr int32_t kDefaultNotOnGet = 1056;
constexpr int32_t kDefaultWithoutPublic = 1057;
}  // namespace syntax

}  // namespace vbs
