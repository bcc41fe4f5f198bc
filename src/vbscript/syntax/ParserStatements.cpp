// Blocks and the executable statements: assignments, calls, If, Select, the loops, With, Exit,
// On Error and Option Explicit.

#include "vbscript/syntax/Parser.h"

namespace vbs {

using namespace err;

namespace {

bool IsCloserKind(TokenKind kind) {
  switch (kind) {
    case TokenKind::End:
    case TokenKind::Loop:
    case TokenKind::Next:
    case TokenKind::Wend:
    case TokenKind::Else:
    case TokenKind::ElseIf:
    case TokenKind::Case: return true;
    default: return false;
  }
}

bool IsCallee(const ast::Expr& expr) { return expr.kind == ast::ExprKind::Name || expr.kind == ast::ExprKind::Member; }

}  // namespace

ast::Block Parser::ParseBlock() {
  ast::Block body;
  while (true) {
    SkipSeparators();
    TokenKind kind = Kind();
    if (kind == TokenKind::EndOfInput || StopsBlock(kind)) break;
    if (IsCloserKind(kind)) {
      ReportStrayCloser();
      Recover();
      continue;
    }
    ast::StmtPtr stmt = ParseStatement();
    if (m_panic) {
      Recover();
      continue;
    }
    if (m_skip_end_check) {
      m_skip_end_check = false;
    } else if (!AtStatementEnd(stmt.get())) {
      Fail(kExpectedEndOfStatement);
      Recover();
      continue;
    }
    if (stmt) body.push_back(std::move(stmt));
  }
  return body;
}

// The statements of a one-line If's branch: up to the end of the line, an "Else", an "End If", or
// a closing keyword of an enclosing construct.
ast::Block Parser::ParseLine() {
  ast::Block body;
  while (true) {
    while (Accept(TokenKind::Colon)) {
    }
    TokenKind kind = Kind();
    if (kind == TokenKind::Newline || kind == TokenKind::EndOfInput || kind == TokenKind::Else ||
        kind == TokenKind::ElseIf || StopsBlock(kind)) {
      break;
    }
    if (kind == TokenKind::End && Peek(1).kind == TokenKind::If) break;
    if (IsCloserKind(kind)) {
      ReportStrayCloser();
      break;
    }
    ast::StmtPtr stmt = ParseStatement();
    if (m_panic) break;
    if (stmt) body.push_back(std::move(stmt));
    if (m_skip_end_check) {
      m_skip_end_check = false;
      continue;
    }
    kind = Kind();
    bool ends_statement = AtSeparator() || kind == TokenKind::Else || kind == TokenKind::ElseIf || StopsBlock(kind) ||
                          (kind == TokenKind::End && Peek(1).kind == TokenKind::If);
    if (!ends_statement) {
      Fail(kExpectedEndOfStatement);
      break;
    }
  }
  return body;
}

// What may follow a statement: a separator, or "End" of an open construct, which needs none
// ("x = 1 End Sub"). A one-line If may also end at the closing keyword of the loop around it:
// "For ...: If c Then x: Next".
bool Parser::AtStatementEnd(const ast::Stmt* stmt) const {
  if (AtSeparator() || (At(TokenKind::End) && AnyEndOpen())) return true;
  return stmt && stmt->kind == ast::StmtKind::If && StopsBlock(Kind());
}

bool Parser::StopsBlock(TokenKind kind) const {
  switch (kind) {
    case TokenKind::End: return AnyEndOpen();
    case TokenKind::Loop: return IsOpen(Closer::Loop);
    case TokenKind::Next: return IsOpen(Closer::Next);
    case TokenKind::Wend: return IsOpen(Closer::Wend);
    case TokenKind::Else:
    case TokenKind::ElseIf: return IsOpen(Closer::Else);
    case TokenKind::Case: return IsOpen(Closer::Case);
    default: return false;
  }
}

void Parser::ReportStrayCloser() {
  switch (Kind()) {
    case TokenKind::Loop: Fail(kLoopWithoutDo); break;
    case TokenKind::Next: Fail(kUnexpectedNext); break;
    default: Fail(kExpectedStatement); break;
  }
}

// The end of a block construct's first line. A broken header is skipped so that the body is still
// parsed and the closing keyword still matches.
void Parser::EndHeader() {
  if (!m_panic && !AtSeparator()) Fail(kExpectedEndOfStatement);
  if (m_panic) Recover();
}

// "End <word>". A wrong word that closes an enclosing construct is left to that construct.
void Parser::ExpectEnd(TokenKind word, int32_t error) {
  if (At(TokenKind::End)) {
    const Token& next = Peek(1);
    if (next.kind == word) {
      Advance();
      Advance();
      return;
    }
    Report(error, next);
    if (!EndWordIsOpen(next.kind)) {
      Advance();
      if (IsWordToken(next.kind)) Advance();
      return;
    }
  } else {
    Report(kExpectedEnd, Current());
  }
  m_skip_end_check = true;
}

ast::StmtPtr Parser::ParseStatement() {
  DepthGuard guard(*this);
  if (m_aborted) return nullptr;
  bool first = !m_seen_statement;
  m_seen_statement = true;
  SourcePos pos = Pos();
  switch (Kind()) {
    case TokenKind::Call: return ParseCall();
    case TokenKind::Set: return ParseSet();
    case TokenKind::Dim: Advance(); return ParseDim(ast::Visibility::Default, pos);
    case TokenKind::ReDim: return ParseReDim();
    case TokenKind::Const: Advance(); return ParseConst(ast::Visibility::Default, pos);
    case TokenKind::Erase: return ParseErase();
    case TokenKind::Public:
    case TokenKind::Private: return ParseVisibilityStatement(false);
    case TokenKind::Sub:
    case TokenKind::Function: return ParseProcedure(ast::Visibility::Default, false, Current(), false);
    case TokenKind::Class: return ParseClass();
    case TokenKind::If: return ParseIf();
    case TokenKind::Select: return ParseSelect();
    case TokenKind::For: return ParseFor();
    case TokenKind::Do: return ParseDo();
    case TokenKind::While: return ParseWhile();
    case TokenKind::With: return ParseWith();
    case TokenKind::Exit: return ParseExit();
    case TokenKind::On: return ParseOnError();
    case TokenKind::Option: return ParseOption(first);
    case TokenKind::Stop: Advance(); return std::make_unique<ast::StopStmt>(pos);
    case TokenKind::Property: {
      TokenKind next = Peek(1).kind;
      if (next == TokenKind::Get || next == TokenKind::Let || next == TokenKind::Set) {
        return ParseProcedure(ast::Visibility::Default, false, Current(), false);
      }
      return ParseNameStatement();
    }
    case TokenKind::Default: {
      TokenKind next = Peek(1).kind;
      if (next == TokenKind::Sub || next == TokenKind::Function || next == TokenKind::Property) {
        Report(kOutsideClass, Current());
        Advance();
        return ParseStatement();
      }
      return ParseNameStatement();
    }
    default:
      if (IsNameToken(Kind()) || At(TokenKind::Me) || At(TokenKind::Dot)) return ParseNameStatement();
      Fail(kExpectedStatement);
      return nullptr;
  }
}

// A statement that starts with a name: "x = 1", "a(i).b = 2", "f a, b", "f(a)", "obj.m (a), b".
ast::StmtPtr Parser::ParseNameStatement() {
  SourcePos pos = Pos();
  SourcePos paren_pos;
  ast::ExprPtr head = ParseTarget(paren_pos);
  if (!head) return nullptr;
  if (At(TokenKind::Equal)) {
    if (head->kind == ast::ExprKind::Me) {
      Fail(kInvalidMe, head->pos);
      return nullptr;
    }
    Advance();
    auto stmt = std::make_unique<ast::AssignStmt>(pos);
    stmt->target = std::move(head);
    stmt->value = ParseExpr();
    return stmt->value ? std::move(stmt) : nullptr;
  }
  return MakeCallStatement(pos, std::move(head), paren_pos);
}

// A call without "Call". Parentheses around a single argument make it a ParenExpr (passed by
// value) that may go on as an expression: "f (a) + 1, b". Around several they are an error.
ast::StmtPtr Parser::MakeCallStatement(SourcePos pos, ast::ExprPtr head, SourcePos paren_pos) {
  auto stmt = std::make_unique<ast::CallStmt>(pos);
  bool more = At(TokenKind::Comma) || CanStartExpression(Kind());
  bool operator_follows = IsBinaryOperator(Kind());
  if (head->kind == ast::ExprKind::Me) {
    Fail(kInvalidMe, pos);
    return nullptr;
  }
  if (head->kind != ast::ExprKind::Call) {
    if (!IsCallee(*head)) {
      Fail(kSyntaxError, pos);
      return nullptr;
    }
    stmt->callee = std::move(head);
    if (more) stmt->args = ParseBareArguments(nullptr);
    return m_panic ? nullptr : std::move(stmt);
  }
  auto& call = static_cast<ast::CallExpr&>(*head);
  if (!IsCallee(*call.callee)) {
    Report(kSyntaxError, pos);
    return nullptr;
  }
  stmt->callee = std::move(call.callee);
  if (call.args.empty()) {
    if (more) {
      Fail(kExpectedEndOfStatement);
      return nullptr;
    }
    return stmt;
  }
  if (call.args.size() > 1 || !call.args[0]) {
    Fail(kParenthesesOnSubCall, paren_pos);
    return nullptr;
  }
  auto paren = std::make_unique<ast::ParenExpr>(paren_pos);
  paren->inner = std::move(call.args[0]);
  ast::ExprPtr first = std::move(paren);
  if (more || operator_follows) {
    first = ParseBinaryRest(std::move(first), 1);
    if (!first) return nullptr;
    stmt->args = ParseBareArguments(std::move(first));
  } else {
    stmt->args.push_back(std::move(first));
  }
  return m_panic ? nullptr : std::move(stmt);
}

ast::StmtPtr Parser::ParseCall() {
  SourcePos pos = Pos();
  Advance();
  SourcePos paren_pos;
  // After "Call" the callee may be parenthesised: "Call (New C).m", "Call (f) (x)".
  ast::ExprPtr head = At(TokenKind::LParen) ? ParsePostfix(ParsePrimary(), &paren_pos) : ParseTarget(paren_pos);
  if (!head) return nullptr;
  auto stmt = std::make_unique<ast::CallStmt>(pos);
  stmt->call_keyword = true;
  if (head->kind == ast::ExprKind::Call) {
    auto& call = static_cast<ast::CallExpr&>(*head);
    stmt->callee = std::move(call.callee);
    stmt->args = std::move(call.args);
  } else {
    stmt->callee = std::move(head);
  }
  while (stmt->callee->kind == ast::ExprKind::Paren) {
    stmt->callee = std::move(static_cast<ast::ParenExpr&>(*stmt->callee).inner);
  }
  if (!IsCallee(*stmt->callee)) {
    Fail(stmt->callee->kind == ast::ExprKind::Me ? kInvalidMe : kSyntaxError, stmt->callee->pos);
    return nullptr;
  }
  return stmt;
}

ast::StmtPtr Parser::ParseSet() {
  auto stmt = std::make_unique<ast::AssignStmt>(Pos());
  stmt->is_set = true;
  Advance();
  SourcePos paren_pos;
  stmt->target = ParseTarget(paren_pos);
  if (!stmt->target) return nullptr;
  if (stmt->target->kind == ast::ExprKind::Me) {
    Fail(kInvalidMe, stmt->target->pos);
    return nullptr;
  }
  if (!Expect(TokenKind::Equal, kExpectedEqual)) return nullptr;
  stmt->value = ParseExpr();
  return stmt->value ? std::move(stmt) : nullptr;
}

ast::StmtPtr Parser::ParseIf() {
  auto stmt = std::make_unique<ast::IfStmt>(Pos());
  ast::IfBranch branch;
  branch.pos = Pos();
  Advance();
  branch.condition = ParseExpr();
  if (branch.condition) Expect(TokenKind::Then, kExpectedThen);
  stmt->branches.push_back(std::move(branch));
  if (m_panic) {
    // Guess the form from the rest of the line, so that a block's body and "End If" still match.
    bool saw_then = false;
    TokenKind last = TokenKind::If;
    for (size_t i = m_pos; i < m_tokens.size(); ++i) {
      TokenKind kind = m_tokens[i].kind;
      if (kind == TokenKind::Newline || kind == TokenKind::EndOfInput) break;
      saw_then = saw_then || kind == TokenKind::Then;
      last = kind;
    }
    // A block when the line ends with "Then", or ends right where "Then" was expected.
    bool block = last == TokenKind::Then || (!saw_then && (At(TokenKind::Newline) || At(TokenKind::EndOfInput)));
    Recover();
    if (block) ParseIfBlock(*stmt);
    return nullptr;
  }
  if (At(TokenKind::Newline) || At(TokenKind::EndOfInput)) {
    ParseIfBlock(*stmt);
  } else {
    ParseSingleLineIf(*stmt);
  }
  return stmt;
}

void Parser::ParseIfBlock(ast::IfStmt& stmt) {
  ++m_context.block_depth;
  ++Open(Closer::EndIf);
  ++Open(Closer::Else);
  stmt.branches.back().body = ParseBlock();
  while (true) {
    if (At(TokenKind::ElseIf) && !stmt.has_else) {
      ast::IfBranch branch;
      branch.pos = Pos();
      Advance();
      branch.condition = ParseExpr();
      if (branch.condition) Expect(TokenKind::Then, kExpectedThen);
      if (m_panic) Recover();
      branch.body = ParseBlock();
      stmt.branches.push_back(std::move(branch));
    } else if (At(TokenKind::Else) && !stmt.has_else) {
      Advance();
      stmt.has_else = true;
      // Nothing but "End If" may follow the Else branch.
      --Open(Closer::Else);
      stmt.else_body = ParseBlock();
      ++Open(Closer::Else);
    } else {
      break;
    }
  }
  --Open(Closer::Else);
  --Open(Closer::EndIf);
  --m_context.block_depth;
  ExpectEnd(TokenKind::If, kExpectedIf);
}

void Parser::ParseSingleLineIf(ast::IfStmt& stmt) {
  ++m_single_line_if;
  ++Open(Closer::Else);
  stmt.branches.back().body = ParseLine();
  --Open(Closer::Else);
  if (!m_panic && Accept(TokenKind::Else)) {
    stmt.has_else = true;
    stmt.else_body = ParseLine();
  }
  if (!m_panic && At(TokenKind::End) && Peek(1).kind == TokenKind::If) {
    Advance();
    Advance();
  }
  --m_single_line_if;
}

ast::StmtPtr Parser::ParseSelect() {
  auto stmt = std::make_unique<ast::SelectStmt>(Pos());
  Advance();
  if (Expect(TokenKind::Case, kExpectedCase)) stmt->subject = ParseExpr();
  EndHeader();
  ++m_context.block_depth;
  ++Open(Closer::EndSelect);
  ++Open(Closer::Case);
  while (true) {
    SkipSeparators();
    if (!At(TokenKind::Case)) {
      if (At(TokenKind::End) || At(TokenKind::EndOfInput) || StopsBlock(Kind())) break;
      Fail(kExpectedCase);
      Recover();
      continue;
    }
    ast::CaseClause clause;
    clause.pos = Pos();
    Advance();
    bool is_else = Accept(TokenKind::Else);
    // "Case Else" comes last.
    if (stmt->has_else) Report(kExpectedEnd, m_tokens[m_pos - (is_else ? 2 : 1)]);
    while (!is_else) {
      ast::ExprPtr value = ParseExpr();
      if (!value) break;
      clause.values.push_back(std::move(value));
      if (!Accept(TokenKind::Comma)) break;
    }
    // The first statement of the branch may follow on the same line: "Case 1  x = 2".
    if (m_panic) Recover();
    clause.body = ParseBlock();
    if (is_else) {
      stmt->has_else = true;
      stmt->else_body = std::move(clause.body);
    } else {
      stmt->cases.push_back(std::move(clause));
    }
  }
  --Open(Closer::Case);
  --Open(Closer::EndSelect);
  --m_context.block_depth;
  ExpectEnd(TokenKind::Select, kExpectedSelect);
  return stmt;
}

ast::Block Parser::ParseLoopBody(Closer closer, uint32_t Context::*depth) {
  ++m_context.block_depth;
  ++Open(closer);
  if (depth) ++(m_context.*depth);
  ast::Block body = ParseBlock();
  if (depth) --(m_context.*depth);
  --Open(closer);
  --m_context.block_depth;
  return body;
}

ast::StmtPtr Parser::ParseFor() {
  SourcePos pos = Pos();
  Advance();
  ast::StmtPtr result;
  if (Accept(TokenKind::Each)) {
    auto stmt = std::make_unique<ast::ForEachStmt>(pos);
    std::string name;
    SourcePos name_pos;
    if (ExpectName(name, name_pos)) {
      stmt->element = std::make_unique<ast::NameExpr>(name_pos, std::move(name));
      if (Expect(TokenKind::In, kExpectedIn)) stmt->collection = ParseExpr();
    }
    EndHeader();
    stmt->body = ParseLoopBody(Closer::Next, &Context::for_depth);
    result = std::move(stmt);
  } else {
    auto stmt = std::make_unique<ast::ForStmt>(pos);
    std::string name;
    SourcePos name_pos;
    if (ExpectName(name, name_pos)) {
      stmt->counter = std::make_unique<ast::NameExpr>(name_pos, std::move(name));
      if (Expect(TokenKind::Equal, kExpectedEqual)) stmt->from = ParseExpr();
      if (!m_panic && Expect(TokenKind::To, kExpectedTo)) stmt->to = ParseExpr();
      if (!m_panic && Accept(TokenKind::Step)) stmt->step = ParseExpr();
    }
    EndHeader();
    stmt->body = ParseLoopBody(Closer::Next, &Context::for_depth);
    result = std::move(stmt);
  }
  if (At(TokenKind::Next)) {
    Advance();
    if (IsNameToken(Kind())) Advance();
  } else {
    Report(kExpectedNext, Current());
    m_skip_end_check = true;
  }
  return result;
}

ast::StmtPtr Parser::ParseDo() {
  auto stmt = std::make_unique<ast::DoStmt>(Pos());
  Advance();
  if (At(TokenKind::While) || At(TokenKind::Until)) {
    stmt->condition_kind = At(TokenKind::While) ? ast::LoopCondition::WhileBefore : ast::LoopCondition::UntilBefore;
    Advance();
    stmt->condition = ParseExpr();
  } else if (CanStartExpression(Kind())) {
    Fail(kExpectedWhileOrUntil);
  }
  EndHeader();
  stmt->body = ParseLoopBody(Closer::Loop, &Context::do_depth);
  if (!At(TokenKind::Loop)) {
    Report(kExpectedLoop, Current());
    m_skip_end_check = true;
    return stmt;
  }
  Advance();
  if (At(TokenKind::While) || At(TokenKind::Until)) {
    if (stmt->condition) {
      Fail(kExpectedEndOfStatement);
      return nullptr;
    }
    stmt->condition_kind = At(TokenKind::While) ? ast::LoopCondition::WhileAfter : ast::LoopCondition::UntilAfter;
    Advance();
    stmt->condition = ParseExpr();
  } else if (CanStartExpression(Kind())) {
    Fail(kExpectedWhileUntilOrEnd);
  }
  return m_panic ? nullptr : std::move(stmt);
}

ast::StmtPtr Parser::ParseWhile() {
  auto stmt = std::make_unique<ast::WhileStmt>(Pos());
  Advance();
  stmt->condition = ParseExpr();
  EndHeader();
  stmt->body = ParseLoopBody(Closer::Wend, nullptr);
  if (!Accept(TokenKind::Wend)) {
    Report(kExpectedWend, Current());
    m_skip_end_check = true;
  }
  return stmt;
}

ast::StmtPtr Parser::ParseWith() {
  auto stmt = std::make_unique<ast::WithStmt>(Pos());
  Advance();
  stmt->object = ParseExpr();
  EndHeader();
  ++m_context.block_depth;
  ++Open(Closer::EndWith);
  stmt->body = ParseBlock();
  --Open(Closer::EndWith);
  --m_context.block_depth;
  ExpectEnd(TokenKind::With, kExpectedWith);
  return stmt;
}

ast::StmtPtr Parser::ParseExit() {
  auto stmt = std::make_unique<ast::ExitStmt>(Pos());
  Advance();
  bool valid = false;
  switch (Kind()) {
    case TokenKind::Do:
      stmt->what = ast::ExitKind::Do;
      valid = m_context.do_depth > 0;
      break;
    case TokenKind::For:
      stmt->what = ast::ExitKind::For;
      valid = m_context.for_depth > 0;
      break;
    case TokenKind::Sub:
      stmt->what = ast::ExitKind::Sub;
      valid = m_context.procedure == ProcedureScope::Sub;
      break;
    case TokenKind::Function:
      stmt->what = ast::ExitKind::Function;
      valid = m_context.procedure == ProcedureScope::Function;
      break;
    case TokenKind::Property:
      stmt->what = ast::ExitKind::Property;
      valid = m_context.procedure == ProcedureScope::Property;
      break;
    default: break;
  }
  if (!valid) {
    Fail(kInvalidExit);
    return nullptr;
  }
  Advance();
  return stmt;
}

ast::StmtPtr Parser::ParseOnError() {
  auto stmt = std::make_unique<ast::OnErrorStmt>(Pos());
  Advance();
  if (!Expect(TokenKind::Error, kSyntaxError)) return nullptr;
  if (Accept(TokenKind::Resume)) {
    if (!Expect(TokenKind::Next, kSyntaxError)) return nullptr;
    stmt->resume_next = true;
    return stmt;
  }
  if (!Expect(TokenKind::GoTo, kSyntaxError)) return nullptr;
  // Only "GoTo 0": VBScript has no line labels.
  if (!At(TokenKind::IntegerLiteral) || Current().integer != 0) {
    Fail(kSyntaxError);
    return nullptr;
  }
  Advance();
  stmt->resume_next = false;
  return stmt;
}

ast::StmtPtr Parser::ParseOption(bool first) {
  const Token& option = Current();
  auto stmt = std::make_unique<ast::OptionExplicitStmt>(Pos());
  Advance();
  if (!Expect(TokenKind::Explicit, kSyntaxError)) return nullptr;
  bool at_top = DeclarationAllowed() && m_context.block_depth == 0 && m_single_line_if == 0;
  if (!first || !at_top) {
    Fail(kExpectedStatement, option);
    return nullptr;
  }
  return stmt;
}

}  // namespace vbs
