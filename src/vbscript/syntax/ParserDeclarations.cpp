// Declarations: Dim, ReDim, Const, Erase, Public/Private, procedures and classes.

#include "text/AsciiCase.h"
#include "vbscript/syntax/Parser.h"

namespace vbs {

using namespace err;

namespace {

bool IsPropertyWord(TokenKind kind) {
  return kind == TokenKind::Get || kind == TokenKind::Let || kind == TokenKind::Set;
}

}  // namespace

// Procedures, classes and script-level variables belong to the script, not to a procedure. They
// may stand inside a block of script-level code ("If False Then Sub f ... End Sub ... End If"
// still defines f), because procedures are hoisted when the script is compiled.
bool Parser::DeclarationAllowed() const { return m_context.procedure == ProcedureScope::None; }

ast::StmtPtr Parser::ParseDim(ast::Visibility visibility, SourcePos pos) {
  auto stmt = std::make_unique<ast::DimStmt>(pos);
  stmt->visibility = visibility;
  do {
    ast::VarDecl decl;
    if (!ParseVarDecl(decl)) return nullptr;
    stmt->vars.push_back(std::move(decl));
  } while (Accept(TokenKind::Comma));
  return stmt;
}

// "name", "name()" or "name(3, 4)": the bounds of a fixed array are integer literals.
bool Parser::ParseVarDecl(ast::VarDecl& decl) {
  const Token& name_token = Current();
  if (!ExpectName(decl.name, decl.pos)) return false;
  Declare(decl.name, name_token);
  if (!Accept(TokenKind::LParen)) return true;
  decl.is_array = true;
  if (Accept(TokenKind::RParen)) return true;
  do {
    if (!At(TokenKind::IntegerLiteral) && !At(TokenKind::LongLiteral)) {
      Fail(kExpectedInteger);
      return false;
    }
    decl.bounds.push_back(ParseLiteral());
  } while (Accept(TokenKind::Comma));
  return Expect(TokenKind::RParen, kExpectedRParen);
}

ast::StmtPtr Parser::ParseReDim() {
  auto stmt = std::make_unique<ast::ReDimStmt>(Pos());
  Advance();
  // "Preserve" is the keyword only when a name follows it: "ReDim Preserve(3)" sizes an array.
  if (At(TokenKind::Preserve) && IsNameToken(Peek(1).kind)) {
    Advance();
    stmt->preserve = true;
  }
  do {
    ast::ReDimItem item;
    item.pos = Pos();
    item.target = ParseReDimTarget(item.bounds);
    if (!item.target) return nullptr;
    stmt->items.push_back(std::move(item));
  } while (Accept(TokenKind::Comma));
  return stmt;
}

ast::ExprPtr Parser::ParseReDimTarget(std::vector<ast::ExprPtr>& bounds) {
  SourcePos paren_pos;
  ast::ExprPtr target = ParseTarget(paren_pos);
  if (!target) return nullptr;
  if (target->kind != ast::ExprKind::Call) {
    Fail(kExpectedLParen);
    return nullptr;
  }
  auto& call = static_cast<ast::CallExpr&>(*target);
  if (call.callee->kind != ast::ExprKind::Name && call.callee->kind != ast::ExprKind::Member) {
    Fail(kSyntaxError, call.pos);
    return nullptr;
  }
  if (call.args.empty()) {
    Fail(kExpectedExpression, paren_pos);
    return nullptr;
  }
  for (const auto& arg : call.args) {
    if (!arg) {
      Fail(kExpectedExpression, paren_pos);
      return nullptr;
    }
  }
  bounds = std::move(call.args);
  return std::move(call.callee);
}

ast::StmtPtr Parser::ParseConst(ast::Visibility visibility, SourcePos pos) {
  auto stmt = std::make_unique<ast::ConstStmt>(pos);
  stmt->visibility = visibility;
  do {
    ast::ConstItem item;
    const Token& name_token = Current();
    if (!ExpectName(item.name, item.pos)) return nullptr;
    Declare(item.name, name_token);
    if (!Expect(TokenKind::Equal, kExpectedEqual)) return nullptr;
    item.value = ParseConstValue();
    if (!item.value) return nullptr;
    stmt->items.push_back(std::move(item));
  } while (Accept(TokenKind::Comma));
  return stmt;
}

// A constant's value is a literal, possibly signed: VBScript evaluates no expression here.
ast::ExprPtr Parser::ParseConstValue() {
  DepthGuard guard(*this);
  if (m_aborted) return nullptr;
  SourcePos pos = Pos();
  if (At(TokenKind::Minus) || At(TokenKind::Plus)) {
    auto unary = std::make_unique<ast::UnaryExpr>(pos);
    unary->op = At(TokenKind::Minus) ? ast::UnaryOp::Negate : ast::UnaryOp::Plus;
    Advance();
    unary->operand = ParseConstValue();
    return unary->operand ? std::move(unary) : nullptr;
  }
  switch (Kind()) {
    case TokenKind::IntegerLiteral:
    case TokenKind::LongLiteral:
    case TokenKind::DoubleLiteral:
    case TokenKind::StringLiteral:
    case TokenKind::DateLiteral:
    case TokenKind::True:
    case TokenKind::False:
    case TokenKind::Empty:
    case TokenKind::Null: return ParseLiteral();
    default: Fail(kExpectedLiteral); return nullptr;
  }
}

ast::StmtPtr Parser::ParseErase() {
  auto stmt = std::make_unique<ast::EraseStmt>(Pos());
  Advance();
  do {
    SourcePos paren_pos;
    ast::ExprPtr target = ParseTarget(paren_pos);
    if (!target) return nullptr;
    stmt->targets.push_back(std::move(target));
  } while (Accept(TokenKind::Comma));
  return stmt;
}

// "Public"/"Private" before variables, constants or a procedure; "Public Default" before the
// default member of a class.
ast::StmtPtr Parser::ParseVisibilityStatement(bool in_class) {
  const Token& first = Current();
  SourcePos pos = Pos();
  auto visibility = At(TokenKind::Public) ? ast::Visibility::Public : ast::Visibility::Private;
  Advance();
  bool is_default = false;
  if (At(TokenKind::Default)) {
    TokenKind next = Peek(1).kind;
    if (next == TokenKind::Sub || next == TokenKind::Function || next == TokenKind::Property) {
      // A misplaced "Default" is reported and the procedure read as if it were not there.
      if (!in_class) {
        Report(kOutsideClass, Current());
      } else if (visibility != ast::Visibility::Public) {
        Report(kDefaultWithoutPublic, Current());
      } else {
        is_default = true;
      }
      Advance();
    }
  }
  TokenKind kind = Kind();
  if (kind == TokenKind::Sub || kind == TokenKind::Function ||
      (kind == TokenKind::Property && IsPropertyWord(Peek(1).kind))) {
    return ParseProcedure(visibility, is_default, first, in_class);
  }
  if (!in_class && !DeclarationAllowed()) {
    Fail(kSyntaxError, first);
    return nullptr;
  }
  if (kind == TokenKind::Const) {
    if (in_class) {
      Fail(kExpectedStatement);
      return nullptr;
    }
    Advance();
    return ParseConst(visibility, pos);
  }
  return ParseDim(visibility, pos);
}

ast::StmtPtr Parser::ParseProcedure(ast::Visibility visibility, bool is_default, const Token& first, bool in_class) {
  bool allowed = in_class || DeclarationAllowed();
  // A procedure where none may stand is still parsed, so that its "End" does not close the
  // enclosing block; it is then dropped.
  if (!allowed) Report(kSyntaxError, first);
  auto proc = std::make_unique<ast::ProcedureStmt>(PosOf(first));
  proc->visibility = visibility;
  proc->is_default = is_default;
  TokenKind word = Kind();
  ProcedureScope scope = ProcedureScope::Sub;
  Closer closer = Closer::EndSub;
  int32_t end_error = kExpectedSub;
  if (word == TokenKind::Property) {
    if (allowed && !in_class) Report(kOutsideClass, first);
    Advance();
    TokenKind accessor = Kind();
    proc->proc_kind = accessor == TokenKind::Get   ? ast::ProcedureKind::PropertyGet
                      : accessor == TokenKind::Let ? ast::ProcedureKind::PropertyLet
                                                   : ast::ProcedureKind::PropertySet;
    scope = ProcedureScope::Property;
    closer = Closer::EndProperty;
    end_error = kExpectedProperty;
  } else if (word == TokenKind::Function) {
    proc->proc_kind = ast::ProcedureKind::Function;
    scope = ProcedureScope::Function;
    closer = Closer::EndFunction;
    end_error = kExpectedFunction;
  }
  Advance();
  const Token& name_token = Current();
  SourcePos name_pos;
  m_scopes.emplace_back();
  if (ExpectName(proc->name, name_pos) && Accept(TokenKind::LParen)) ParseParams(proc->params);
  EndHeader();

  Context saved = m_context;
  m_context = Context{};
  m_context.procedure = scope;
  ++Open(closer);
  proc->body = ParseBlock();
  m_context = saved;
  m_scopes.pop_back();
  proc->end_pos = Pos();
  ExpectEnd(word, end_error);
  CheckProcedure(*proc, name_token, in_class);
  return allowed ? std::move(proc) : nullptr;
}

// After "(": "[ByVal|ByRef] name[()]", separated by commas, up to ")".
bool Parser::ParseParams(std::vector<ast::Param>& params) {
  if (Accept(TokenKind::RParen)) return true;
  do {
    ast::Param param;
    if (Accept(TokenKind::ByVal)) {
      param.by_val = true;
    } else {
      Accept(TokenKind::ByRef);
    }
    const Token& name_token = Current();
    if (!ExpectName(param.name, param.pos)) return false;
    Declare(param.name, name_token);
    if (Accept(TokenKind::LParen)) {
      if (!Expect(TokenKind::RParen, kExpectedRParen)) return false;
      param.is_array = true;
    }
    params.push_back(std::move(param));
  } while (Accept(TokenKind::Comma));
  return Expect(TokenKind::RParen, kExpectedRParen);
}

void Parser::CheckProcedure(const ast::ProcedureStmt& proc, const Token& name_token, bool in_class) {
  bool is_let_or_set =
      proc.proc_kind == ast::ProcedureKind::PropertyLet || proc.proc_kind == ast::ProcedureKind::PropertySet;
  if (is_let_or_set && proc.params.empty()) Report(kPropertyWithoutArgument, name_token);
  if (is_let_or_set && proc.is_default) Report(kDefaultMisplaced, proc.pos);
  bool is_event = text::EqualsIgnoringAsciiCase(proc.name, "Class_Initialize") ||
                  text::EqualsIgnoringAsciiCase(proc.name, "Class_Terminate");
  if (in_class && is_event && proc.proc_kind == ast::ProcedureKind::Sub && !proc.params.empty()) {
    Report(kInitializeWithArguments, name_token);
  }
}

ast::StmtPtr Parser::ParseClass() {
  const Token& class_token = Current();
  bool allowed = DeclarationAllowed();
  if (!allowed) Report(kSyntaxError, class_token);
  auto cls = std::make_unique<ast::ClassStmt>(Pos());
  Advance();
  SourcePos name_pos;
  ExpectName(cls->name, name_pos);
  EndHeader();

  Context saved = m_context;
  m_context = Context{};
  ++Open(Closer::EndClass);
  m_scopes.emplace_back();
  while (true) {
    SkipSeparators();
    if (At(TokenKind::End) || At(TokenKind::EndOfInput)) break;
    if (!ParseClassMember(*cls) || m_panic) {
      Recover();
      continue;
    }
    if (m_skip_end_check) {
      m_skip_end_check = false;
    } else if (!AtStatementEnd(nullptr)) {
      Fail(kExpectedEndOfStatement);
      Recover();
    }
  }
  m_scopes.pop_back();
  m_context = saved;
  ExpectEnd(TokenKind::Class, kExpectedClass);
  return allowed ? std::move(cls) : nullptr;
}

// One member of a class body: fields, procedures and properties; nothing executable.
bool Parser::ParseClassMember(ast::ClassStmt& cls) {
  SourcePos pos = Pos();
  switch (Kind()) {
    case TokenKind::Dim:
      Advance();
      AddClassMember(cls, ParseDim(ast::Visibility::Default, pos));
      return true;
    case TokenKind::Public:
    case TokenKind::Private: AddClassMember(cls, ParseVisibilityStatement(true)); return true;
    case TokenKind::Sub:
    case TokenKind::Function:
      AddClassMember(cls, ParseProcedure(ast::Visibility::Default, false, Current(), true));
      return true;
    case TokenKind::Property:
      if (!IsPropertyWord(Peek(1).kind)) {
        Fail(kExpectedLetSetGet, Peek(1));
        return false;
      }
      AddClassMember(cls, ParseProcedure(ast::Visibility::Default, false, Current(), true));
      return true;
    case TokenKind::Default: {
      TokenKind next = Peek(1).kind;
      if (next != TokenKind::Sub && next != TokenKind::Function && next != TokenKind::Property) {
        Fail(kExpectedStatement);
        return false;
      }
      Report(kDefaultWithoutPublic, Current());
      Advance();
      return ParseClassMember(cls);
    }
    case TokenKind::Loop:
    case TokenKind::Next: ReportStrayCloser(); return false;
    default: Fail(kExpectedStatement); return false;
  }
}

void Parser::AddClassMember(ast::ClassStmt& cls, ast::StmtPtr member) {
  if (!member) return;
  if (member->kind == ast::StmtKind::Dim) {
    cls.fields.emplace_back(static_cast<ast::DimStmt*>(member.release()));
    return;
  }
  if (member->kind != ast::StmtKind::Procedure) return;
  auto* proc = static_cast<ast::ProcedureStmt*>(member.release());
  cls.procedures.emplace_back(proc);
  if (!proc->is_default) return;
  size_t defaults = 0;
  for (const auto& other : cls.procedures) defaults += other->is_default ? 1 : 0;
  if (defaults > 1) Report(kMultipleDefaults, proc->pos);
}

}  // namespace vbs
