#include "vbscript/compile/Compiler.h"

#include "text/Utf.h"
#include "vbscript/value/SafeArray.h"

namespace vbs {

namespace {

ScriptError CompileError(int32_t number, SourcePos pos) { return MakeError(number, pos); }

}  // namespace

Result<Variant> Compiler::ConstantValue(const ast::Expr& expression, Scope& scope) {
  switch (expression.kind) {
    case ast::ExprKind::Literal: {
      auto& literal = static_cast<const ast::LiteralExpr&>(expression);
      return LiteralValue(literal);
    }
    case ast::ExprKind::Paren: return ConstantValue(*static_cast<const ast::ParenExpr&>(expression).inner, scope);
    case ast::ExprKind::Unary: {
      auto& unary = static_cast<const ast::UnaryExpr&>(expression);
      auto operand = ConstantValue(*unary.operand, scope);
      if (!operand) return operand;
      if (unary.op == ast::UnaryOp::Negate) return Negate(*operand, m_interp.locale());
      if (unary.op == ast::UnaryOp::Not) return Not(*operand, m_interp.locale());
      return operand;
    }
    case ast::ExprKind::Name: {
      std::string folded = Interpreter::Fold(static_cast<const ast::NameExpr&>(expression).name);
      auto local = scope.names.find(folded);
      if (local != scope.names.end() && local->second.is_constant) return local->second.value;
      const GlobalEntry* global = m_interp.FindGlobal(folded);
      if (global && global->kind == GlobalEntry::Kind::Constant) return *global->storage;
      break;
    }
    default: break;
  }
  return CompileError(err::kExpectedLiteral, expression.pos);
}

Result<std::vector<int32_t>> Compiler::ConstantBounds(const std::vector<ast::ExprPtr>& bounds, Scope& scope) {
  std::vector<int32_t> uppers;
  for (const ast::ExprPtr& bound : bounds) {
    VBS_TRY_ASSIGN(auto value, ConstantValue(*bound, scope));
    auto upper = value.to_long(m_interp.locale());
    if (!upper) return MakeError(upper.error().number, bound->pos);
    uppers.push_back(*upper);
  }
  return uppers;
}

Result<Procedure*> Compiler::DeclareProcedure(ast::ProcedureStmt& statement, ClassInfo* owner) {
  auto procedure = std::make_unique<Procedure>();
  procedure->name = statement.name;
  procedure->kind = statement.proc_kind;
  procedure->is_public = statement.visibility != ast::Visibility::Private;
  procedure->pos = statement.pos;
  procedure->owner = owner;
  procedure->param_count = static_cast<uint32_t>(statement.params.size());
  procedure->slot_names.push_back(Interpreter::Fold(statement.name));
  for (const ast::Param& param : statement.params) {
    procedure->param_by_val.push_back(param.by_val);
    procedure->slot_names.push_back(Interpreter::Fold(param.name));
  }
  procedure->slot_count = 1 + procedure->param_count;
  Procedure* raw = procedure.get();
  if (owner) {
    owner->procedures.push_back(std::move(procedure));
  } else {
    m_interp.DeclareProcedure(Interpreter::Fold(statement.name), std::move(procedure));
  }
  return raw;
}

Status Compiler::DeclareClass(ast::ClassStmt& statement, bool option_explicit) {
  auto info = std::make_unique<ClassInfo>();
  info->name = statement.name;
  ClassInfo& cls = *info;
  auto member_named = [&](const std::string& name, bool is_public) -> ClassMember& {
    std::string folded = Interpreter::Fold(name);
    auto it = cls.member_ids.find(folded);
    if (it != cls.member_ids.end()) return cls.members[it->second - 1];
    cls.members.push_back(ClassMember{name, is_public});
    cls.member_ids[folded] = static_cast<int32_t>(cls.members.size());
    return cls.members.back();
  };

  Scope constants;
  for (auto& dim : statement.fields) {
    for (ast::VarDecl& var : dim->vars) {
      if (cls.member_ids.contains(Interpreter::Fold(var.name))) return CompileError(err::kNameRedefined, var.pos);
      ClassField field{var.name, var.is_array, {}};
      if (!var.bounds.empty()) {
        VBS_TRY_ASSIGN(auto bounds, ConstantBounds(var.bounds, constants));
        field.bounds = std::move(bounds);
      }
      cls.fields.push_back(std::move(field));
      ClassMember& member = member_named(var.name, dim->visibility != ast::Visibility::Private);
      member.field = static_cast<int32_t>(cls.fields.size() - 1);
    }
  }

  std::vector<std::pair<Procedure*, ast::ProcedureStmt*>> bodies;
  for (auto& proc : statement.procedures) {
    VBS_TRY_ASSIGN(auto procedure, DeclareProcedure(*proc, &cls));
    bodies.emplace_back(procedure, proc.get());
    std::string folded = Interpreter::Fold(proc->name);
    if (folded == "class_initialize") cls.initialize = procedure;
    if (folded == "class_terminate") cls.terminate = procedure;
    ClassMember& member = member_named(proc->name, proc->visibility != ast::Visibility::Private);
    if (member.field >= 0) return CompileError(err::kNameRedefined, proc->pos);
    switch (proc->proc_kind) {
      case ast::ProcedureKind::Sub:
      case ast::ProcedureKind::Function:
        if (member.method || member.getter) return CompileError(err::kNameRedefined, proc->pos);
        member.method = procedure;
        break;
      case ast::ProcedureKind::PropertyGet: member.getter = procedure; break;
      case ast::ProcedureKind::PropertyLet: member.letter = procedure; break;
      case ast::ProcedureKind::PropertySet: member.setter = procedure; break;
    }
    if (proc->is_default) cls.default_member = cls.member_ids[folded];
  }

  m_interp.DeclareClass(Interpreter::Fold(statement.name), std::move(info));
  for (auto& [procedure, proc] : bodies) VBS_TRY(CompileProcedureBody(*procedure, *proc, option_explicit));
  return Ok();
}

Status Compiler::CollectLocals(const ast::Block& block, Scope& scope) {
  for (const ast::StmtPtr& statement : block) {
    switch (statement->kind) {
      case ast::StmtKind::Dim: {
        auto& dim = static_cast<const ast::DimStmt&>(*statement);
        for (const ast::VarDecl& var : dim.vars) {
          std::string folded = Interpreter::Fold(var.name);
          auto existing = scope.names.find(folded);
          if (existing != scope.names.end() && !existing->second.is_constant) {
            if (existing->second.slot < Procedure::kFirstParamSlot + scope.procedure->param_count &&
                existing->second.slot != Procedure::kResultSlot)
              return CompileError(err::kNameRedefined, var.pos);
            continue;
          }
          uint32_t slot = NewSlot(scope);
          scope.names[folded] = Name{slot, false, false, {}};
          scope.procedure->slot_names.resize(slot + 1);
          scope.procedure->slot_names[slot] = folded;
          if (var.is_array && var.bounds.empty()) {
            scope.procedure->dynamic_arrays.push_back(slot);
          } else if (var.is_array) {
            VBS_TRY_ASSIGN(auto bounds, ConstantBounds(var.bounds, scope));
            scope.procedure->fixed_arrays.emplace_back(slot, std::move(bounds));
          }
        }
        break;
      }
      case ast::StmtKind::If: {
        auto& s = static_cast<const ast::IfStmt&>(*statement);
        for (const ast::IfBranch& branch : s.branches) VBS_TRY(CollectLocals(branch.body, scope));
        VBS_TRY(CollectLocals(s.else_body, scope));
        break;
      }
      case ast::StmtKind::Select: {
        auto& s = static_cast<const ast::SelectStmt&>(*statement);
        for (const ast::CaseClause& clause : s.cases) VBS_TRY(CollectLocals(clause.body, scope));
        VBS_TRY(CollectLocals(s.else_body, scope));
        break;
      }
      case ast::StmtKind::For: VBS_TRY(CollectLocals(static_cast<const ast::ForStmt&>(*statement).body, scope)); break;
      case ast::StmtKind::ForEach:
        VBS_TRY(CollectLocals(static_cast<const ast::ForEachStmt&>(*statement).body, scope));
        break;
      case ast::StmtKind::Do: VBS_TRY(CollectLocals(static_cast<const ast::DoStmt&>(*statement).body, scope)); break;
      case ast::StmtKind::While:
        VBS_TRY(CollectLocals(static_cast<const ast::WhileStmt&>(*statement).body, scope));
        break;
      case ast::StmtKind::With:
        VBS_TRY(CollectLocals(static_cast<const ast::WithStmt&>(*statement).body, scope));
        break;
      default: break;
    }
  }
  return Ok();
}

Status Compiler::CompileProcedureBody(Procedure& procedure, ast::ProcedureStmt& statement, bool option_explicit) {
  Scope scope;
  scope.procedure = &procedure;
  scope.class_info = procedure.owner;
  scope.slot_count = &procedure.slot_count;
  scope.option_explicit = option_explicit;
  if (statement.proc_kind == ast::ProcedureKind::Function || statement.proc_kind == ast::ProcedureKind::PropertyGet)
    scope.names[Interpreter::Fold(statement.name)] = Name{Procedure::kResultSlot, false, false, {}};
  for (size_t i = 0; i < statement.params.size(); ++i) {
    std::string folded = Interpreter::Fold(statement.params[i].name);
    if (scope.names.contains(folded) && scope.names[folded].slot != Procedure::kResultSlot)
      return CompileError(err::kNameRedefined, statement.params[i].pos);
    scope.names[folded] = Name{static_cast<uint32_t>(Procedure::kFirstParamSlot + i), false, false, {}};
  }
  VBS_TRY(CollectLocals(statement.body, scope));
  VBS_TRY_ASSIGN(auto body, CompileBlock(statement.body, scope));
  procedure.body = std::move(body);
  return Ok();
}

namespace {

// Every statement of a block and of the blocks nested in it, in source order: global code may
// declare variables and procedures inside an If or a loop, and they are global all the same.
template <typename Visit>
void ForEachNested(ast::Block& block, Visit&& visit) {
  for (ast::StmtPtr& statement : block) {
    visit(*statement);
    switch (statement->kind) {
      case ast::StmtKind::If: {
        auto& s = static_cast<ast::IfStmt&>(*statement);
        for (ast::IfBranch& branch : s.branches) ForEachNested(branch.body, visit);
        ForEachNested(s.else_body, visit);
        break;
      }
      case ast::StmtKind::Select: {
        auto& s = static_cast<ast::SelectStmt&>(*statement);
        for (ast::CaseClause& clause : s.cases) ForEachNested(clause.body, visit);
        ForEachNested(s.else_body, visit);
        break;
      }
      case ast::StmtKind::For: ForEachNested(static_cast<ast::ForStmt&>(*statement).body, visit); break;
      case ast::StmtKind::ForEach: ForEachNested(static_cast<ast::ForEachStmt&>(*statement).body, visit); break;
      case ast::StmtKind::Do: ForEachNested(static_cast<ast::DoStmt&>(*statement).body, visit); break;
      case ast::StmtKind::While: ForEachNested(static_cast<ast::WhileStmt&>(*statement).body, visit); break;
      case ast::StmtKind::With: ForEachNested(static_cast<ast::WithStmt&>(*statement).body, visit); break;
      default: break;
    }
  }
}

}  // namespace

Status Compiler::DeclareGlobals(ast::Program& program, bool option_explicit) {
  Scope constants;
  std::vector<std::pair<Procedure*, ast::ProcedureStmt*>> bodies;
  Status status = Ok();
  ForEachNested(program.body, [&](ast::Stmt& statement) {
    if (status) status = DeclareGlobal(statement, constants, bodies, option_explicit);
  });
  VBS_TRY(status);
  for (auto& [procedure, proc] : bodies) VBS_TRY(CompileProcedureBody(*procedure, *proc, option_explicit));
  return Ok();
}

Status Compiler::DeclareGlobal(ast::Stmt& statement, Scope& constants,
                               std::vector<std::pair<Procedure*, ast::ProcedureStmt*>>& bodies, bool option_explicit) {
  switch (statement.kind) {
    case ast::StmtKind::Dim: {
      auto& dim = static_cast<ast::DimStmt&>(statement);
      for (ast::VarDecl& var : dim.vars) {
        // The name exists at once; an array comes into being when its Dim runs.
        m_interp.DeclareGlobal(Interpreter::Fold(var.name));
        if (var.is_array && !var.bounds.empty()) {
          VBS_TRY(ConstantBounds(var.bounds, constants));
        }
      }
      break;
    }
    case ast::StmtKind::Const: {
      auto& constant = static_cast<ast::ConstStmt&>(statement);
      for (ast::ConstItem& item : constant.items) {
        VBS_TRY_ASSIGN(auto value, ConstantValue(*item.value, constants));
        *m_interp.DeclareGlobal(Interpreter::Fold(item.name), GlobalEntry::Kind::Constant) = std::move(value);
      }
      break;
    }
    case ast::StmtKind::Procedure: {
      auto& proc = static_cast<ast::ProcedureStmt&>(statement);
      VBS_TRY_ASSIGN(auto procedure, DeclareProcedure(proc, nullptr));
      bodies.emplace_back(procedure, &proc);
      break;
    }
    case ast::StmtKind::Class: return DeclareClass(static_cast<ast::ClassStmt&>(statement), option_explicit);
    default: break;
  }
  return Ok();
}

}  // namespace vbs
