#include "vbscript/compile/Compiler.h"

#include <algorithm>

#include <optional>

namespace vbs {

namespace {

bool IsName(const ast::Expr* expr, const std::string& folded) {
  return expr && expr->kind == ast::ExprKind::Name &&
         Interpreter::Fold(static_cast<const ast::NameExpr*>(expr)->name) == folded;
}

std::optional<BinaryOperator> UpdateOperator(ast::BinaryOp op) {
  switch (op) {
    case ast::BinaryOp::Add: return BinaryOperator::Add;
    case ast::BinaryOp::Subtract: return BinaryOperator::Subtract;
    case ast::BinaryOp::Multiply: return BinaryOperator::Multiply;
    default: return std::nullopt;
  }
}

}  // namespace

uint32_t Compiler::NewSlot(Scope& scope) { return (*scope.slot_count)++; }

Result<BlockNode> Compiler::CompileBlock(ast::Block& block, Scope& scope) {
  BlockNode node;
  for (ast::StmtPtr& statement : block) {
    VBS_TRY_ASSIGN(auto compiled, CompileStatement(*statement, scope));
    if (compiled) node.statements.push_back(std::move(compiled));
  }
  return node;
}

Result<StmtNodePtr> Compiler::CompileAssign(ast::AssignStmt& statement, Scope& scope) {
  // `s = s & x` on a plain variable appends in place.
  if (!statement.is_set && statement.target->kind == ast::ExprKind::Name &&
      statement.value->kind == ast::ExprKind::Binary) {
    auto& binary = static_cast<ast::BinaryExpr&>(*statement.value);
    std::string folded = Interpreter::Fold(static_cast<ast::NameExpr&>(*statement.target).name);
    if (binary.op == ast::BinaryOp::Concat && IsName(binary.left.get(), folded)) {
      VBS_TRY_ASSIGN(auto target, CompileName(static_cast<ast::NameExpr&>(*statement.target).name,
                                              statement.target->pos, nullptr, scope));
      if (auto* variable = dynamic_cast<VariableNode*>(target.get())) {
        VBS_TRY_ASSIGN(auto value, CompileExpr(*binary.right, scope));
        target.release();
        return StmtNodePtr(
            std::make_unique<AppendNode>(statement.pos, std::unique_ptr<VariableNode>(variable), std::move(value)));
      }
    }
    // `n = n + 1` and its kin on a plain variable update it in place.
    if (auto op = UpdateOperator(binary.op); op && IsName(binary.left.get(), folded)) {
      VBS_TRY_ASSIGN(auto target, CompileName(static_cast<ast::NameExpr&>(*statement.target).name,
                                              statement.target->pos, nullptr, scope));
      if (DirectOperand(target.get()).IsVariable()) {
        VBS_TRY_ASSIGN(auto value, CompileExpr(*binary.right, scope));
        return MakeUpdateNode(statement.pos, *op, std::move(target), std::move(value));
      }
    }
  }
  VBS_TRY_ASSIGN(auto target, CompileExpr(*statement.target, scope));
  if (dynamic_cast<ConstantNode*>(target.get()))
    return StmtNodePtr(std::make_unique<FailNode>(statement.pos, err::kIllegalAssignment));
  VBS_TRY_ASSIGN(auto value, CompileExpr(*statement.value, scope));
  GlobalEntry* creates = nullptr;
  if (!scope.procedure && !m_outer && statement.target->kind == ast::ExprKind::Name)
    creates = m_interp.ReservedGlobal(Interpreter::Fold(static_cast<ast::NameExpr&>(*statement.target).name));
  return StmtNodePtr(
      std::make_unique<AssignNode>(statement.pos, std::move(target), std::move(value), statement.is_set, creates));
}

Result<StmtNodePtr> Compiler::CompileFor(ast::ForStmt& statement, Scope& scope) {
  VBS_TRY_ASSIGN(auto counter, CompileExpr(*statement.counter, scope));
  VBS_TRY_ASSIGN(auto from, CompileExpr(*statement.from, scope));
  VBS_TRY_ASSIGN(auto to, CompileExpr(*statement.to, scope));
  ExprNodePtr step;
  if (statement.step) {
    VBS_TRY_ASSIGN(auto compiled, CompileExpr(*statement.step, scope));
    step = std::move(compiled);
  }
  uint32_t temp = NewSlot(scope);
  NewSlot(scope);
  VBS_TRY_ASSIGN(auto body, CompileBlock(statement.body, scope));
  return StmtNodePtr(std::make_unique<ForNode>(statement.pos, std::move(counter), std::move(from), std::move(to),
                                               std::move(step), temp, std::move(body)));
}

Result<StmtNodePtr> Compiler::CompileGlobalArrays(ast::DimStmt& dim, Scope& scope) {
  std::vector<DimArrayNode::Item> items;
  for (ast::VarDecl& var : dim.vars) {
    if (!var.is_array) continue;
    const GlobalEntry* entry = m_interp.FindGlobal(Interpreter::Fold(var.name));
    VBS_TRY_ASSIGN(auto uppers, ConstantBounds(var.bounds, scope));
    items.push_back(DimArrayNode::Item{entry->storage, std::move(uppers), !var.bounds.empty()});
  }
  if (items.empty()) return StmtNodePtr();
  return StmtNodePtr(std::make_unique<DimArrayNode>(dim.pos, std::move(items)));
}

Result<StmtNodePtr> Compiler::CompileStatement(ast::Stmt& statement, Scope& scope) {
  switch (statement.kind) {
    case ast::StmtKind::Assign: return CompileAssign(static_cast<ast::AssignStmt&>(statement), scope);

    case ast::StmtKind::Call: return CompileCall(static_cast<ast::CallStmt&>(statement), scope);

    case ast::StmtKind::Dim: return CompileDim(static_cast<ast::DimStmt&>(statement), scope);

    case ast::StmtKind::Const: return CompileConst(static_cast<ast::ConstStmt&>(statement), scope);

    case ast::StmtKind::ReDim: return CompileReDim(static_cast<ast::ReDimStmt&>(statement), scope);

    case ast::StmtKind::Erase: {
      VBS_TRY_ASSIGN(auto targets, CompileArgs(static_cast<ast::EraseStmt&>(statement).targets, scope));
      return StmtNodePtr(std::make_unique<EraseNode>(statement.pos, std::move(targets)));
    }

    case ast::StmtKind::If: return CompileIf(static_cast<ast::IfStmt&>(statement), scope);

    case ast::StmtKind::Select: return CompileSelect(static_cast<ast::SelectStmt&>(statement), scope);

    case ast::StmtKind::For: return CompileFor(static_cast<ast::ForStmt&>(statement), scope);

    case ast::StmtKind::ForEach: return CompileForEach(static_cast<ast::ForEachStmt&>(statement), scope);

    case ast::StmtKind::Do: return CompileDo(static_cast<ast::DoStmt&>(statement), scope);

    case ast::StmtKind::While: return CompileWhile(static_cast<ast::WhileStmt&>(statement), scope);

    case ast::StmtKind::Exit: {
      auto& s = static_cast<ast::ExitStmt&>(statement);
      Flow flow = s.what == ast::ExitKind::Do    ? Flow::ExitDo
                  : s.what == ast::ExitKind::For ? Flow::ExitFor
                                                 : Flow::ExitProcedure;
      return StmtNodePtr(std::make_unique<ExitNode>(statement.pos, flow));
    }

    case ast::StmtKind::With: return CompileWith(static_cast<ast::WithStmt&>(statement), scope);

    case ast::StmtKind::OnError:
      return StmtNodePtr(
          std::make_unique<OnErrorNode>(statement.pos, static_cast<ast::OnErrorStmt&>(statement).resume_next));

    case ast::StmtKind::OptionExplicit:
    case ast::StmtKind::Procedure:
    case ast::StmtKind::Class:
    case ast::StmtKind::Stop: return StmtNodePtr();
  }
  return StmtNodePtr();
}

Result<StmtNodePtr> Compiler::CompileCall(ast::CallStmt& call, Scope& scope) {
  while (call.callee->kind == ast::ExprKind::Paren)
    call.callee = std::move(static_cast<ast::ParenExpr&>(*call.callee).inner);
  Result<ExprNodePtr> expr = ExprNodePtr();
  bool has_args = call.call_keyword || !call.args.empty();
  if (call.callee->kind == ast::ExprKind::Name) {
    expr = CompileName(static_cast<ast::NameExpr&>(*call.callee).name, call.callee->pos,
                       has_args ? &call.args : nullptr, scope, !has_args);
  } else if (call.callee->kind == ast::ExprKind::Member) {
    expr = CompileMember(static_cast<ast::MemberExpr&>(*call.callee), has_args ? &call.args : nullptr, scope);
  } else {
    expr = CompileExpr(*call.callee, scope);
    if (expr && !call.args.empty()) {
      VBS_TRY_ASSIGN(auto args, CompileArgs(call.args, scope));
      expr = ExprNodePtr(std::make_unique<ValueIndexNode>(call.pos, std::move(*expr), std::move(args)));
    }
  }
  if (!expr) return std::move(expr).error();
  return StmtNodePtr(std::make_unique<ExprStmtNode>(call.pos, std::move(*expr)));
}

Result<StmtNodePtr> Compiler::CompileDim(ast::DimStmt& dim, Scope& scope) {
  // Inside procedures, Dims were gathered beforehand; in global code they are globals already.
  if (!scope.procedure && !m_outer) return CompileGlobalArrays(dim, scope);
  if (scope.procedure) return StmtNodePtr();
  // Code that Execute runs inside a procedure: a Dim makes a variable of that call, even where
  // the procedure used the name undeclared and so meant a global by it.
  const auto& implicit = m_outer->procedure->implicit_names;
  std::vector<DimInCallNode::Item> items;
  for (ast::VarDecl& var : dim.vars) {
    std::string folded = Interpreter::Fold(var.name);
    int32_t slot = -1;
    if (auto known = scope.names.find(folded); known != scope.names.end()) {
      auto used_undeclared = std::find_if(implicit.begin(), implicit.end(),
                                          [&](const Procedure::ImplicitName& name) { return name.folded == folded; });
      if (!known->second.outer || used_undeclared == implicit.end()) continue;
      slot = static_cast<int32_t>(used_undeclared->slot);
    }
    VBS_TRY_ASSIGN(auto uppers, ConstantBounds(var.bounds, scope));
    items.push_back(DimInCallNode::Item{std::move(folded), slot, std::move(uppers), var.is_array});
  }
  if (items.empty()) return StmtNodePtr();
  return StmtNodePtr(std::make_unique<DimInCallNode>(dim.pos, std::move(items)));
}

Result<StmtNodePtr> Compiler::CompileConst(ast::ConstStmt& constant, Scope& scope) {
  if (!scope.procedure && !m_outer) return StmtNodePtr();
  for (ast::ConstItem& item : constant.items) {
    VBS_TRY_ASSIGN(auto value, ConstantValue(*item.value, scope));
    scope.names[Interpreter::Fold(item.name)] = Name{0, false, true, std::move(value)};
  }
  return StmtNodePtr();
}

Result<StmtNodePtr> Compiler::CompileReDim(ast::ReDimStmt& redim, Scope& scope) {
  std::vector<RedimTarget> targets;
  for (ast::ReDimItem& item : redim.items) {
    // ReDim also declares: in global code a name not known yet becomes a global; in a procedure
    // it is a name used undeclared (a global of that name if one exists by then), and under
    // Option Explicit a variable of the procedure.
    if (item.target->kind == ast::ExprKind::Name) {
      std::string folded = Interpreter::Fold(static_cast<ast::NameExpr&>(*item.target).name);
      if (!scope.names.contains(folded) && !m_interp.ResolveGlobal(folded) &&
          !(scope.class_info && scope.class_info->member_ids.contains(folded))) {
        if (!scope.procedure && !m_outer)
          m_interp.DeclareGlobal(folded);
        else if (scope.procedure && scope.option_explicit)
          scope.names[folded] = Name{NewSlot(scope), false, false, {}};
      }
    }
    VBS_TRY_ASSIGN(auto target, CompileExpr(*item.target, scope));
    VBS_TRY_ASSIGN(auto bounds, CompileArgs(item.bounds, scope));
    targets.push_back(RedimTarget{std::move(target), std::move(bounds)});
  }
  return StmtNodePtr(std::make_unique<RedimNode>(redim.pos, redim.preserve, std::move(targets)));
}

Result<StmtNodePtr> Compiler::CompileIf(ast::IfStmt& statement, Scope& scope) {
  std::vector<ConditionalBlock> branches;
  for (ast::IfBranch& branch : statement.branches) {
    VBS_TRY_ASSIGN(auto condition, CompileExpr(*branch.condition, scope));
    VBS_TRY_ASSIGN(auto body, CompileBlock(branch.body, scope));
    branches.push_back(ConditionalBlock{std::move(condition), std::move(body)});
  }
  VBS_TRY_ASSIGN(auto otherwise, CompileBlock(statement.else_body, scope));
  return StmtNodePtr(std::make_unique<IfNode>(statement.pos, std::move(branches), std::move(otherwise)));
}

Result<StmtNodePtr> Compiler::CompileSelect(ast::SelectStmt& statement, Scope& scope) {
  VBS_TRY_ASSIGN(auto subject, CompileExpr(*statement.subject, scope));
  std::vector<CaseBlock> cases;
  for (ast::CaseClause& clause : statement.cases) {
    VBS_TRY_ASSIGN(auto values, CompileArgs(clause.values, scope));
    VBS_TRY_ASSIGN(auto body, CompileBlock(clause.body, scope));
    cases.push_back(CaseBlock{std::move(values), std::move(body)});
  }
  VBS_TRY_ASSIGN(auto otherwise, CompileBlock(statement.else_body, scope));
  return StmtNodePtr(
      std::make_unique<SelectNode>(statement.pos, std::move(subject), std::move(cases), std::move(otherwise)));
}

Result<StmtNodePtr> Compiler::CompileForEach(ast::ForEachStmt& statement, Scope& scope) {
  VBS_TRY_ASSIGN(auto element, CompileExpr(*statement.element, scope));
  VBS_TRY_ASSIGN(auto collection, CompileExpr(*statement.collection, scope));
  VBS_TRY_ASSIGN(auto body, CompileBlock(statement.body, scope));
  return StmtNodePtr(
      std::make_unique<ForEachNode>(statement.pos, std::move(element), std::move(collection), std::move(body)));
}

Result<StmtNodePtr> Compiler::CompileDo(ast::DoStmt& statement, Scope& scope) {
  ExprNodePtr condition;
  if (statement.condition) {
    VBS_TRY_ASSIGN(auto compiled, CompileExpr(*statement.condition, scope));
    condition = std::move(compiled);
  }
  VBS_TRY_ASSIGN(auto body, CompileBlock(statement.body, scope));
  return StmtNodePtr(std::make_unique<LoopNode>(statement.pos, statement.condition_kind, std::move(condition),
                                                std::move(body), false));
}

Result<StmtNodePtr> Compiler::CompileWhile(ast::WhileStmt& statement, Scope& scope) {
  VBS_TRY_ASSIGN(auto condition, CompileExpr(*statement.condition, scope));
  VBS_TRY_ASSIGN(auto body, CompileBlock(statement.body, scope));
  return StmtNodePtr(std::make_unique<LoopNode>(statement.pos, ast::LoopCondition::WhileBefore, std::move(condition),
                                                std::move(body), true));
}

Result<StmtNodePtr> Compiler::CompileWith(ast::WithStmt& statement, Scope& scope) {
  VBS_TRY_ASSIGN(auto object, CompileExpr(*statement.object, scope));
  uint32_t slot = NewSlot(scope);
  scope.with_slots.push_back(slot);
  auto body = CompileBlock(statement.body, scope);
  scope.with_slots.pop_back();
  if (!body) return std::move(body).error();
  return StmtNodePtr(std::make_unique<WithNode>(statement.pos, std::move(object), slot, std::move(*body)));
}

Result<std::unique_ptr<CompiledProgram>> Compiler::CompileProgram(ast::Program& program) {
  bool option_explicit = false;
  for (ast::StmtPtr& statement : program.body)
    if (statement->kind == ast::StmtKind::OptionExplicit) option_explicit = true;

  auto compiled = std::make_unique<CompiledProgram>();
  Scope scope;
  scope.slot_count = &compiled->temp_count;
  scope.option_explicit = option_explicit;
  if (m_outer && m_outer->procedure) {
    scope.class_info = m_outer->procedure->owner;
    const auto& names = m_outer->procedure->slot_names;
    for (uint32_t slot = 0; slot < names.size(); ++slot)
      if (!names[slot].empty()) scope.names[names[slot]] = Name{slot, true, false, {}};
  }
  if (m_outer) {
    // Execute's code sees the procedure's variables; its procedures and classes are global.
    ast::Program declarations;
    for (ast::StmtPtr& statement : program.body)
      if (statement->kind == ast::StmtKind::Procedure || statement->kind == ast::StmtKind::Class)
        declarations.body.push_back(std::move(statement));
    VBS_TRY(DeclareGlobals(declarations, option_explicit));
    std::vector<ast::StmtPtr> rest;
    for (ast::StmtPtr& statement : program.body)
      if (statement) rest.push_back(std::move(statement));
    program.body = std::move(rest);
    VBS_TRY_ASSIGN(auto body, CompileBlock(program.body, scope));
    compiled->body = std::move(body);
    return compiled;
  }
  VBS_TRY(DeclareGlobals(program, option_explicit));
  VBS_TRY_ASSIGN(auto body, CompileBlock(program.body, scope));
  compiled->body = std::move(body);
  return compiled;
}

Result<std::unique_ptr<CompiledProgram>> Compiler::CompileExpression(ast::Expr& expression) {
  auto compiled = std::make_unique<CompiledProgram>();
  Scope scope;
  scope.slot_count = &compiled->temp_count;
  if (m_outer && m_outer->procedure) {
    scope.class_info = m_outer->procedure->owner;
    const auto& names = m_outer->procedure->slot_names;
    for (uint32_t slot = 0; slot < names.size(); ++slot)
      if (!names[slot].empty()) scope.names[names[slot]] = Name{slot, true, false, {}};
  }
  VBS_TRY_ASSIGN(auto expr, CompileExpr(expression, scope));
  compiled->expression = std::move(expr);
  return compiled;
}

}  // namespace vbs
