#include "vbscript/compile/Compiler.h"

namespace vbs {

namespace {

BinaryOperator ToOperator(ast::BinaryOp op) {
  switch (op) {
    case ast::BinaryOp::Power: return BinaryOperator::Power;
    case ast::BinaryOp::Multiply: return BinaryOperator::Multiply;
    case ast::BinaryOp::Divide: return BinaryOperator::Divide;
    case ast::BinaryOp::IntDivide: return BinaryOperator::IntDivide;
    case ast::BinaryOp::Mod: return BinaryOperator::Modulo;
    case ast::BinaryOp::Add: return BinaryOperator::Add;
    case ast::BinaryOp::Subtract: return BinaryOperator::Subtract;
    case ast::BinaryOp::Concat: return BinaryOperator::Concat;
    case ast::BinaryOp::Equal: return BinaryOperator::Equal;
    case ast::BinaryOp::NotEqual: return BinaryOperator::NotEqual;
    case ast::BinaryOp::Less: return BinaryOperator::Less;
    case ast::BinaryOp::Greater: return BinaryOperator::Greater;
    case ast::BinaryOp::LessEqual: return BinaryOperator::LessEqual;
    case ast::BinaryOp::GreaterEqual: return BinaryOperator::GreaterEqual;
    case ast::BinaryOp::And: return BinaryOperator::And;
    case ast::BinaryOp::Or: return BinaryOperator::Or;
    case ast::BinaryOp::Xor: return BinaryOperator::Xor;
    case ast::BinaryOp::Eqv: return BinaryOperator::Eqv;
    case ast::BinaryOp::Imp: return BinaryOperator::Imp;
    case ast::BinaryOp::Is: break;
  }
  return BinaryOperator::Equal;
}

// An expression as the source writes it when it is a name or a chain of names, for messages.
std::string NameChainText(const ast::Expr* expression) {
  if (!expression) return {};
  if (expression->kind == ast::ExprKind::Name) return static_cast<const ast::NameExpr&>(*expression).name;
  if (expression->kind == ast::ExprKind::Me) return "Me";
  if (expression->kind != ast::ExprKind::Member) return {};
  const auto& member = static_cast<const ast::MemberExpr&>(*expression);
  std::string object = NameChainText(member.object.get());
  return object.empty() ? std::string() : object + "." + member.name;
}

// Indexing or a default-member call on a value that a node yields.
ExprNodePtr WithArgs(SourcePos pos, ExprNodePtr holder, ExprNodes args) {
  return std::make_unique<IndexNode>(pos, std::move(holder), std::move(args));
}

}  // namespace

Variant LiteralValue(const ast::LiteralExpr& literal) {
  switch (literal.literal) {
    case ast::LiteralKind::Empty: return Variant();
    case ast::LiteralKind::Null: return Variant::Null();
    case ast::LiteralKind::Nothing: return Variant::Nothing();
    case ast::LiteralKind::Boolean: return Variant::Boolean(literal.boolean);
    case ast::LiteralKind::Integer: return Variant::Integer(static_cast<int16_t>(literal.integer));
    // "&h10&" is an Integer all the same: a Long literal that fits 16 bits narrows, as on Windows.
    case ast::LiteralKind::Long:
      if (literal.integer >= INT16_MIN && literal.integer <= INT16_MAX)
        return Variant::Integer(static_cast<int16_t>(literal.integer));
      return Variant::Long(literal.integer);
    case ast::LiteralKind::Double: return Variant::Double(literal.number);
    case ast::LiteralKind::String: return Variant::String(literal.text);
    case ast::LiteralKind::Date: return Variant::Date(literal.number);
  }
  return Variant();
}

Result<ExprNodes> Compiler::CompileArgs(std::vector<ast::ExprPtr>& args, Scope& scope) {
  ExprNodes nodes;
  nodes.reserve(args.size());
  for (ast::ExprPtr& arg : args) {
    if (!arg) {
      nodes.push_back(nullptr);
      continue;
    }
    VBS_TRY_ASSIGN(auto node, CompileExpr(*arg, scope));
    nodes.push_back(std::move(node));
  }
  return nodes;
}

Result<ExprNodePtr> Compiler::CompileName(const std::string& name, SourcePos pos, std::vector<ast::ExprPtr>* args,
                                          Scope& scope, bool as_statement) {
  std::string folded = Interpreter::Fold(name);
  ExprNodes compiled_args;
  if (args) {
    VBS_TRY_ASSIGN(auto compiled, CompileArgs(*args, scope));
    compiled_args = std::move(compiled);
  }
  const bool has_args = args != nullptr && !args->empty();

  // Locals: parameters, Dims, constants, and the function's own name for its return value (a
  // call with arguments of the function's own name recurses instead, from Execute code too).
  auto local = scope.names.find(folded);
  const bool calls_itself = local != scope.names.end() && has_args && local->second.slot == Procedure::kResultSlot &&
                            !local->second.is_constant && (local->second.outer || scope.procedure);
  // A name used undeclared stays late when it is called or indexed: the global of that name may be
  // a procedure or an array that appeared after this code was compiled.
  if (local != scope.names.end() && local->second.implicit && (args || as_statement))
    return LateName(name, pos, local->second.slot, args ? &compiled_args : nullptr, scope);
  if (local != scope.names.end() && !calls_itself) {
    const Name& n = local->second;
    if (n.is_constant) {
      ExprNodePtr constant = std::make_unique<ConstantNode>(pos, n.value);
      return has_args ? WithArgs(pos, std::move(constant), std::move(compiled_args)) : std::move(constant);
    }
    ExprNodePtr variable = n.outer ? ExprNodePtr(std::make_unique<OuterLocalNode>(pos, n.slot))
                                   : ExprNodePtr(std::make_unique<LocalNode>(pos, n.slot));
    return has_args ? WithArgs(pos, std::move(variable), std::move(compiled_args)) : std::move(variable);
  }

  // Members of the class whose code this is.
  if (scope.class_info) {
    auto member = scope.class_info->member_ids.find(folded);
    if (member != scope.class_info->member_ids.end()) {
      const ClassMember& m = scope.class_info->members[member->second - 1];
      if (m.field >= 0) {
        ExprNodePtr field = std::make_unique<FieldNode>(pos, static_cast<uint32_t>(m.field));
        return has_args ? WithArgs(pos, std::move(field), std::move(compiled_args)) : std::move(field);
      }
      return ExprNodePtr(std::make_unique<MeMemberNode>(pos, member->second, std::move(compiled_args)));
    }
  }

  if (const GlobalEntry* global = m_interp.ResolveGlobal(folded)) {
    switch (global->kind) {
      case GlobalEntry::Kind::Variable: {
        ExprNodePtr variable = std::make_unique<GlobalNode>(pos, global->storage);
        return has_args ? WithArgs(pos, std::move(variable), std::move(compiled_args)) : std::move(variable);
      }
      case GlobalEntry::Kind::Constant: {
        ExprNodePtr constant = std::make_unique<ConstantNode>(pos, *global->storage);
        return has_args ? WithArgs(pos, std::move(constant), std::move(compiled_args)) : std::move(constant);
      }
      case GlobalEntry::Kind::Procedure:
        return ExprNodePtr(std::make_unique<ProcedureCallNode>(pos, global->procedure, std::move(compiled_args)));
      case GlobalEntry::Kind::NamedObject: {
        ExprNodePtr object = std::make_unique<NamedObjectNode>(pos, global->object);
        return has_args
                   ? ExprNodePtr(std::make_unique<ValueIndexNode>(pos, std::move(object), std::move(compiled_args)))
                   : std::move(object);
      }
      case GlobalEntry::Kind::HostMember:
        return ExprNodePtr(
            std::make_unique<HostMemberNode>(pos, global->object, global->member, std::move(compiled_args)));
      case GlobalEntry::Kind::Class: break;
    }
  }

  if (auto constant = NamedConstantValue(folded)) {
    ExprNodePtr node = std::make_unique<ConstantNode>(pos, std::move(*constant));
    return has_args ? WithArgs(pos, std::move(node), std::move(compiled_args)) : std::move(node);
  }

  if (const Builtin* builtin = m_interp.FindBuiltin(folded))
    return ExprNodePtr(std::make_unique<BuiltinCallNode>(pos, builtin, std::move(compiled_args)));

  // Unknown for now. In a procedure the name gets a slot that each call binds to the global of
  // that name if there is one by then, and that is otherwise the call's own variable.
  if (scope.procedure && !scope.option_explicit) {
    const uint32_t slot = NewSlot(scope);
    Name implicit{slot, false, false, {}};
    implicit.implicit = true;
    scope.names[folded] = implicit;
    scope.procedure->implicit_names.push_back({folded, slot});
    scope.procedure->slot_names.resize(slot + 1);
    scope.procedure->slot_names[slot] = folded;
    if (args || as_statement) return LateName(name, pos, slot, args ? &compiled_args : nullptr, scope);
    return ExprNodePtr(std::make_unique<LocalNode>(pos, slot));
  }
  // Global code reaches a name it uses undeclared directly, in storage reserved for it now.
  if (!scope.procedure && !m_outer && !scope.option_explicit && !args && !as_statement)
    return ExprNodePtr(std::make_unique<GlobalNode>(pos, m_interp.ReserveGlobal(folded)));
  return LateName(name, pos, -1, args ? &compiled_args : nullptr, scope);
}

ExprNodePtr Compiler::LateName(const std::string& name, SourcePos pos, int32_t slot, ExprNodes* args,
                               const Scope& scope) {
  LateNameNode::Fallback fallback = scope.option_explicit ? LateNameNode::Fallback::Undefined
                                    : slot >= 0           ? LateNameNode::Fallback::Slot
                                    : m_outer             ? LateNameNode::Fallback::CallVariable
                                                          : LateNameNode::Fallback::Global;
  auto late = std::make_unique<LateNameNode>(pos, Interpreter::Fold(name), name, slot, fallback);
  if (args) return ExprNodePtr(std::make_unique<LateCallNode>(pos, std::move(late), std::move(*args)));
  return ExprNodePtr(std::move(late));
}

Result<ExprNodePtr> Compiler::CompileMember(ast::MemberExpr& member, std::vector<ast::ExprPtr>* args, Scope& scope) {
  ExprNodes compiled_args;
  if (args) {
    VBS_TRY_ASSIGN(auto compiled, CompileArgs(*args, scope));
    compiled_args = std::move(compiled);
  }
  ExprNodePtr object;
  if (!member.object) {
    // Windows reports ".x" outside With only when it runs.
    if (scope.with_slots.empty())
      object = std::make_unique<FailingNode>(member.pos, err::kUnqualifiedReference);
    else
      object = std::make_unique<LocalNode>(member.pos, scope.with_slots.back());
  } else if (member.object->kind == ast::ExprKind::Me && scope.class_info) {
    // Me.x inside the class: the member's number is known now, Private members included.
    auto id = scope.class_info->member_ids.find(Interpreter::Fold(member.name));
    if (id != scope.class_info->member_ids.end()) {
      const ClassMember& m = scope.class_info->members[id->second - 1];
      if (m.field >= 0) {
        ExprNodePtr field = std::make_unique<FieldNode>(member.pos, static_cast<uint32_t>(m.field));
        return compiled_args.empty() ? std::move(field)
                                     : WithArgs(member.pos, std::move(field), std::move(compiled_args));
      }
      return ExprNodePtr(std::make_unique<MeMemberNode>(member.pos, id->second, std::move(compiled_args)));
    }
    object = std::make_unique<MeNode>(member.object->pos);
  } else {
    VBS_TRY_ASSIGN(auto compiled, CompileExpr(*member.object, scope));
    object = std::move(compiled);
  }
  return ExprNodePtr(std::make_unique<MemberNode>(member.pos, std::move(object), NameChainText(member.object.get()),
                                                  member.name, std::move(compiled_args)));
}

// Short chains get a node per operator, whose fast paths the arithmetic of loops needs. A long left
// spine (an operand list written out, or generated code) compiles in a loop into one chain node:
// neither the compiler nor the running code then recurses once per operand.
Result<ExprNodePtr> Compiler::CompileBinary(ast::BinaryExpr& binary, Scope& scope) {
  constexpr size_t kLongChain = 16;
  size_t length = 0;
  ast::Expr* leftmost = &binary;
  while (leftmost->kind == ast::ExprKind::Binary) {
    leftmost = static_cast<ast::BinaryExpr&>(*leftmost).left.get();
    ++length;
  }
  if (length <= kLongChain) {
    auto left = CompileExpr(*binary.left, scope);
    if (!left) return left;
    auto right = CompileExpr(*binary.right, scope);
    if (!right) return right;
    if (binary.op == ast::BinaryOp::Is)
      return ExprNodePtr(std::make_unique<IsNode>(binary.pos, std::move(*left), std::move(*right)));
    return MakeBinaryNode(binary.pos, ToOperator(binary.op), std::move(*left), std::move(*right));
  }

  std::vector<ast::BinaryExpr*> spine(length);  // from the innermost operator out
  ast::Expr* node = &binary;
  for (size_t i = length; i-- > 0;) {
    spine[i] = static_cast<ast::BinaryExpr*>(node);
    node = spine[i]->left.get();
  }
  auto first = CompileExpr(*leftmost, scope);
  if (!first) return first;
  std::vector<OperatorChainNode::Step> steps(length);
  for (size_t i = 0; i < length; ++i) {
    auto right = CompileExpr(*spine[i]->right, scope);
    if (!right) return right;
    steps[i].is = spine[i]->op == ast::BinaryOp::Is;
    steps[i].op = ToOperator(spine[i]->op);
    steps[i].operand = std::move(*right);
  }
  return ExprNodePtr(std::make_unique<OperatorChainNode>(binary.pos, std::move(*first), std::move(steps)));
}

Result<ExprNodePtr> Compiler::CompileExpr(ast::Expr& expression, Scope& scope) {
  switch (expression.kind) {
    case ast::ExprKind::Literal:
      return ExprNodePtr(
          std::make_unique<ConstantNode>(expression.pos, LiteralValue(static_cast<ast::LiteralExpr&>(expression))));

    case ast::ExprKind::Name:
      return CompileName(static_cast<ast::NameExpr&>(expression).name, expression.pos, nullptr, scope);

    case ast::ExprKind::Member: return CompileMember(static_cast<ast::MemberExpr&>(expression), nullptr, scope);

    case ast::ExprKind::Call: {
      auto& call = static_cast<ast::CallExpr&>(expression);
      // (f)(x) calls f with x: parentheses around the callee change nothing.
      while (call.callee->kind == ast::ExprKind::Paren)
        call.callee = std::move(static_cast<ast::ParenExpr&>(*call.callee).inner);
      if (call.callee->kind == ast::ExprKind::Name)
        return CompileName(static_cast<ast::NameExpr&>(*call.callee).name, call.callee->pos, &call.args, scope);
      if (call.callee->kind == ast::ExprKind::Member)
        return CompileMember(static_cast<ast::MemberExpr&>(*call.callee), &call.args, scope);
      auto callee = CompileExpr(*call.callee, scope);
      if (!callee) return callee;
      VBS_TRY_ASSIGN(auto args, CompileArgs(call.args, scope));
      return ExprNodePtr(std::make_unique<ValueIndexNode>(expression.pos, std::move(*callee), std::move(args)));
    }

    case ast::ExprKind::Me:
      if (!scope.class_info) return MakeError(err::kInvalidMe, expression.pos);
      return ExprNodePtr(std::make_unique<MeNode>(expression.pos));

    case ast::ExprKind::New:
      return ExprNodePtr(std::make_unique<NewNode>(
          expression.pos, Interpreter::Fold(static_cast<ast::NewExpr&>(expression).class_name)));

    case ast::ExprKind::Unary: {
      auto& unary = static_cast<ast::UnaryExpr&>(expression);
      auto operand = CompileExpr(*unary.operand, scope);
      if (!operand) return operand;
      return ExprNodePtr(std::make_unique<UnaryNode>(expression.pos, unary.op, std::move(*operand)));
    }

    case ast::ExprKind::Binary: return CompileBinary(static_cast<ast::BinaryExpr&>(expression), scope);

    case ast::ExprKind::Paren: {
      auto inner = CompileExpr(*static_cast<ast::ParenExpr&>(expression).inner, scope);
      if (!inner) return inner;
      return ExprNodePtr(std::make_unique<ParenNode>(expression.pos, std::move(*inner)));
    }
  }
  return MakeError(err::kSyntaxError, expression.pos);
}

}  // namespace vbs
