#pragma once

// The parser: recursive descent over the token vector, one class whose members are split by grammar
// area (ParserStatements.cpp, ParserExpressions.cpp, ParserDeclarations.cpp; the shared machinery
// in Parser.cpp).
//
// Errors do not stop it. The first error of a statement is recorded and the parser skips to the
// next line, so one run reports several independent mistakes; a block construct whose header is
// broken still parses its body, so that its closing keyword does not turn into a second error.
// Blocks end at any closing keyword that some open construct accepts ("Loop" closes a Do even from
// inside an unclosed If), which keeps one missing "End If" from derailing the rest of the file.
// Nesting is bounded, so hostile input reports "Out of stack space" instead of overflowing the
// C++ stack.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "vbscript/syntax/Ast.h"
#include "vbscript/syntax/Token.h"
#include "vbscript/value/Result.h"
#include "vbscript/value/Source.h"

namespace vbs {

struct ParseResult {
  ast::Program program;
  std::vector<ScriptError> errors;  // empty: success
};

// The statements of a whole source text (AddCode, ExecuteGlobal, Execute); in a statement "a = b"
// assigns. Syntax errors carry VBScript's compile error numbers and the position of the offending
// token; the program is then incomplete and must not run.
ParseResult ParseProgram(const SourceTable& sources, uint32_t source_id);

// One expression (Eval): here "a = b" compares. Anything after the expression is an error.
Result<ast::ExprPtr> ParseExpression(const SourceTable& sources, uint32_t source_id);

// The machinery behind ParseProgram and ParseExpression; an instance parses one text once.
class Parser {
 public:
  Parser(const SourceTable& sources, uint32_t source_id);

  ParseResult ParseWholeProgram();
  Result<ast::ExprPtr> ParseWholeExpression();

 private:
  // Keywords that end a block; a block stops at one only when an open construct accepts it.
  enum class Closer : uint8_t {
    Loop,
    Next,
    Wend,
    Else,
    Case,
    EndIf,
    EndSelect,
    EndWith,
    EndSub,
    EndFunction,
    EndProperty,
    EndClass,
    Count
  };

  enum class ProcedureScope : uint8_t { None, Sub, Function, Property };

  // What a procedure body must not inherit from the code around it.
  struct Context {
    std::array<uint16_t, static_cast<size_t>(Closer::Count)> open{};
    ProcedureScope procedure = ProcedureScope::None;
    uint32_t do_depth = 0;
    uint32_t for_depth = 0;
    uint32_t block_depth = 0;
  };

  // Counts the nesting of the parse functions that recurse; past the limit the parse aborts.
  class DepthGuard {
   public:
    explicit DepthGuard(Parser& parser);
    ~DepthGuard() { --m_parser.m_depth; }
    DepthGuard(const DepthGuard&) = delete;
    DepthGuard& operator=(const DepthGuard&) = delete;

   private:
    Parser& m_parser;
  };

  // Parser.cpp: tokens, errors, recovery.
  const Token& Current() const { return m_tokens[m_pos]; }
  const Token& Peek(size_t ahead) const;
  TokenKind Kind() const { return m_tokens[m_pos].kind; }
  bool At(TokenKind kind) const { return Kind() == kind; }
  const Token& Advance();
  bool Accept(TokenKind kind);
  bool Expect(TokenKind kind, int32_t error);
  bool AtSeparator() const;
  void SkipSeparators();
  SourcePos PosOf(const Token& token) const { return SourcePos{m_source_id, token.line, token.column}; }
  SourcePos Pos() const { return PosOf(Current()); }
  std::string NameOf(const Token& token) const;
  bool ExpectName(std::string& name, SourcePos& pos);
  void Report(int32_t error, const Token& token);
  void Report(int32_t error, SourcePos pos);
  void Fail(int32_t error, const Token& token);
  void Fail(int32_t error, SourcePos pos);
  void Fail(int32_t error) { Fail(error, Current()); }
  void Recover();
  void Abort(int32_t error);
  // One level deeper; past the limit the parse aborts with "Out of stack space".
  void Deepen();
  uint16_t& Open(Closer closer) { return m_context.open[static_cast<size_t>(closer)]; }
  bool IsOpen(Closer closer) const { return m_context.open[static_cast<size_t>(closer)] > 0; }
  bool AnyEndOpen() const;
  bool EndWordIsOpen(TokenKind word) const;
  void Declare(std::string_view name, const Token& token);

  // ParserStatements.cpp: blocks and executable statements.
  ast::Block ParseBlock();
  ast::Block ParseLine();
  bool AtStatementEnd(const ast::Stmt* stmt) const;
  bool StopsBlock(TokenKind kind) const;
  void ReportStrayCloser();
  void EndHeader();
  void ExpectEnd(TokenKind word, int32_t error);
  ast::StmtPtr ParseStatement();
  ast::StmtPtr ParseNameStatement();
  ast::StmtPtr MakeCallStatement(SourcePos pos, ast::ExprPtr head, SourcePos paren_pos);
  ast::StmtPtr ParseCall();
  ast::StmtPtr ParseSet();
  ast::StmtPtr ParseIf();
  void ParseIfBlock(ast::IfStmt& stmt);
  void ParseSingleLineIf(ast::IfStmt& stmt);
  ast::StmtPtr ParseSelect();
  ast::StmtPtr ParseFor();
  ast::StmtPtr ParseDo();
  ast::StmtPtr ParseWhile();
  ast::StmtPtr ParseWith();
  ast::StmtPtr ParseExit();
  ast::StmtPtr ParseOnError();
  ast::StmtPtr ParseOption(bool first);
  ast::Block ParseLoopBody(Closer closer, uint32_t Context::*depth);

  // ParserExpressions.cpp.
  ast::ExprPtr ParseExpr();
  ast::ExprPtr ParseBinary(int min_precedence);
  ast::ExprPtr ParseBinaryRest(ast::ExprPtr left, int min_precedence);
  ast::ExprPtr ParseOperand();
  ast::ExprPtr ParsePostfix(ast::ExprPtr expr, SourcePos* last_paren);
  ast::ExprPtr ParsePrimary();
  ast::ExprPtr ParseLiteral();
  ast::ExprPtr ParseTarget(SourcePos& paren_pos);
  bool ParseArguments(std::vector<ast::ExprPtr>& args);
  std::vector<ast::ExprPtr> ParseBareArguments(ast::ExprPtr first);
  bool CanStartExpression(TokenKind kind) const;
  bool IsBinaryOperator(TokenKind kind) const;

  // ParserDeclarations.cpp.
  bool DeclarationAllowed() const;
  ast::StmtPtr ParseDim(ast::Visibility visibility, SourcePos pos);
  bool ParseVarDecl(ast::VarDecl& decl);
  ast::StmtPtr ParseReDim();
  ast::StmtPtr ParseConst(ast::Visibility visibility, SourcePos pos);
  ast::ExprPtr ParseConstValue();
  ast::StmtPtr ParseErase();
  ast::StmtPtr ParseVisibilityStatement(bool in_class);
  ast::StmtPtr ParseProcedure(ast::Visibility visibility, bool is_default, const Token& first, bool in_class);
  bool ParseParams(std::vector<ast::Param>& params);
  void CheckProcedure(const ast::ProcedureStmt& proc, const Token& name_token, bool in_class);
  ast::ExprPtr ParseReDimTarget(std::vector<ast::ExprPtr>& bounds);
  ast::StmtPtr ParseClass();
  bool ParseClassMember(ast::ClassStmt& cls);
  void AddClassMember(ast::ClassStmt& cls, ast::StmtPtr member);

  const SourceTable& m_sources;
  uint32_t m_source_id;
  std::u16string_view m_text;
  std::vector<Token> m_tokens;
  size_t m_pos = 0;
  std::vector<ScriptError> m_errors;
  bool m_panic = false;           // an error was reported in the current statement
  bool m_aborted = false;         // too many errors or too deep: the rest of the input is ignored
  bool m_skip_end_check = false;  // a construct reported its missing closer and left the token
  bool m_seen_statement = false;  // "Option Explicit" must come first
  uint32_t m_depth = 0;
  const char* m_stack_limit;
  uint32_t m_single_line_if = 0;
  Context m_context;
  std::vector<std::unordered_set<std::string>> m_scopes;  // declared names, case-folded
};

}  // namespace vbs
