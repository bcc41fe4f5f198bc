#include "vbscript/syntax/Parser.h"

#include "text/AsciiCase.h"
#include "vbscript/syntax/Lexer.h"
#include "vbscript/value/StackLimit.h"

namespace vbs {

using namespace err;

namespace {

// Deep enough for any script a person writes, shallow enough that the recursion stays within a
// fraction of a worker thread's stack even in a sanitizer build.
constexpr uint32_t kMaxDepth = 400;
// VBScript stops at its first error; past this many, later ones are mostly echoes of earlier ones.
constexpr size_t kMaxErrors = 50;

// Case folding for names: ASCII and the Latin-1 letters, which covers the names people write.
std::string FoldName(std::string_view name) {
  std::string folded(name);
  for (size_t i = 0; i < folded.size(); ++i) {
    char& c = folded[i];
    if (static_cast<unsigned char>(c) == 0xC3 && i + 1 < folded.size()) {
      auto next = static_cast<unsigned char>(folded[i + 1]);
      if (next >= 0x80 && next <= 0x9E && next != 0x97) folded[i + 1] = static_cast<char>(next + 0x20);
      ++i;
    } else {
      c = text::LowerAscii(c);
    }
  }
  return folded;
}

}  // namespace

Parser::DepthGuard::DepthGuard(Parser& parser) : m_parser(parser) { m_parser.Deepen(); }

// The stack is looked at too: Eval may parse from deep inside a recursion of the script's own.
void Parser::Deepen() {
  if (++m_depth > kMaxDepth || StackBelow(m_stack_limit)) Abort(kOutOfStack);
}

Parser::Parser(const SourceTable& sources, uint32_t source_id)
    : m_sources(sources), m_source_id(source_id), m_text(sources[source_id].text), m_stack_limit(StackLimit()) {
  m_tokens = Tokenize(m_text);
}

ParseResult Parser::ParseWholeProgram() {
  ParseResult result;
  result.program.source = m_source_id;
  m_scopes.emplace_back();
  result.program.body = ParseBlock();
  result.errors = std::move(m_errors);
  return result;
}

Result<ast::ExprPtr> Parser::ParseWholeExpression() {
  while (At(TokenKind::Newline)) Advance();
  ast::ExprPtr expr = ParseExpr();
  while (At(TokenKind::Newline)) Advance();
  if (!m_panic && !At(TokenKind::EndOfInput)) Fail(kExpectedEndOfStatement);
  if (!m_errors.empty()) return m_errors.front();
  return expr;
}

const Token& Parser::Peek(size_t ahead) const {
  size_t index = m_pos + ahead;
  return index < m_tokens.size() ? m_tokens[index] : m_tokens.back();
}

const Token& Parser::Advance() {
  const Token& token = m_tokens[m_pos];
  if (m_pos + 1 < m_tokens.size()) ++m_pos;
  return token;
}

bool Parser::Accept(TokenKind kind) {
  if (!At(kind)) return false;
  Advance();
  return true;
}

bool Parser::Expect(TokenKind kind, int32_t error) {
  if (Accept(kind)) return true;
  Fail(error);
  return false;
}

bool Parser::AtSeparator() const {
  TokenKind kind = Kind();
  return kind == TokenKind::Newline || kind == TokenKind::Colon || kind == TokenKind::EndOfInput;
}

void Parser::SkipSeparators() {
  while (At(TokenKind::Newline) || At(TokenKind::Colon)) Advance();
}

std::string Parser::NameOf(const Token& token) const { return TokenName(m_text, token); }

bool Parser::ExpectName(std::string& name, SourcePos& pos) {
  if (!IsNameToken(Kind())) {
    Fail(kExpectedIdentifier);
    return false;
  }
  pos = Pos();
  name = NameOf(Advance());
  return true;
}

void Parser::Report(int32_t error, const Token& token) {
  // A lexical error explains the failure better than whatever the grammar expected in its place.
  Report(token.kind == TokenKind::Invalid ? token.integer : error, PosOf(token));
}

void Parser::Report(int32_t error, SourcePos pos) {
  if (m_aborted) return;
  // Constructs left open at the end of the text would all complain at the same place.
  if (!m_errors.empty() && m_errors.back().pos.line == pos.line && m_errors.back().pos.column == pos.column) return;
  m_errors.push_back(MakeError(error, pos));
  if (m_errors.size() >= kMaxErrors) {
    m_aborted = true;
    m_panic = true;
    m_pos = m_tokens.size() - 1;
  }
}

void Parser::Fail(int32_t error, const Token& token) {
  if (m_panic) return;
  Report(error, token);
  m_panic = true;
}

void Parser::Fail(int32_t error, SourcePos pos) {
  if (m_panic) return;
  Report(error, pos);
  m_panic = true;
}

void Parser::Recover() {
  while (!At(TokenKind::Newline) && !At(TokenKind::EndOfInput)) Advance();
  m_panic = m_aborted;
  m_skip_end_check = false;
}

void Parser::Abort(int32_t error) {
  if (m_aborted) return;
  m_errors.push_back(MakeError(error, Pos()));
  m_aborted = true;
  m_panic = true;
  m_pos = m_tokens.size() - 1;
}

bool Parser::AnyEndOpen() const {
  for (auto closer : {Closer::EndIf, Closer::EndSelect, Closer::EndWith, Closer::EndSub, Closer::EndFunction,
                      Closer::EndProperty, Closer::EndClass}) {
    if (IsOpen(closer)) return true;
  }
  return false;
}

bool Parser::EndWordIsOpen(TokenKind word) const {
  switch (word) {
    case TokenKind::If: return IsOpen(Closer::EndIf);
    case TokenKind::Select: return IsOpen(Closer::EndSelect);
    case TokenKind::With: return IsOpen(Closer::EndWith);
    case TokenKind::Sub: return IsOpen(Closer::EndSub);
    case TokenKind::Function: return IsOpen(Closer::EndFunction);
    case TokenKind::Property: return IsOpen(Closer::EndProperty);
    case TokenKind::Class: return IsOpen(Closer::EndClass);
    default: return false;
  }
}

void Parser::Declare(std::string_view name, const Token& token) {
  if (m_scopes.empty()) return;
  if (!m_scopes.back().insert(FoldName(name)).second) Report(kNameRedefined, token);
}

ParseResult ParseProgram(const SourceTable& sources, uint32_t source_id) {
  return Parser(sources, source_id).ParseWholeProgram();
}

Result<ast::ExprPtr> ParseExpression(const SourceTable& sources, uint32_t source_id) {
  return Parser(sources, source_id).ParseWholeExpression();
}

}  // namespace vbs
