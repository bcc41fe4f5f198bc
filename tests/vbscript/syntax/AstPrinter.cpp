#include "AstPrinter.h"

#include <fmt/format.h>

namespace vbs::test {
namespace {

using namespace ast;

std::string ToUtf8(std::u16string_view text) {
  std::string out;
  for (char16_t c : text) {
    if (c < 0x80) {
      out.push_back(static_cast<char>(c));
    } else if (c < 0x800) {
      out.push_back(static_cast<char>(0xC0 | (c >> 6)));
      out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    } else {
      out.push_back(static_cast<char>(0xE0 | (c >> 12)));
      out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
      out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    }
  }
  return out;
}

std::string_view BinarySymbol(BinaryOp op) {
  switch (op) {
    case BinaryOp::Power: return "^";
    case BinaryOp::Multiply: return "*";
    case BinaryOp::Divide: return "/";
    case BinaryOp::IntDivide: return "\\";
    case BinaryOp::Mod: return "Mod";
    case BinaryOp::Add: return "+";
    case BinaryOp::Subtract: return "-";
    case BinaryOp::Concat: return "&";
    case BinaryOp::Equal: return "=";
    case BinaryOp::NotEqual: return "<>";
    case BinaryOp::Less: return "<";
    case BinaryOp::Greater: return ">";
    case BinaryOp::LessEqual: return "<=";
    case BinaryOp::GreaterEqual: return ">=";
    case BinaryOp::Is: return "Is";
    case BinaryOp::And: return "And";
    case BinaryOp::Or: return "Or";
    case BinaryOp::Xor: return "Xor";
    case BinaryOp::Eqv: return "Eqv";
    case BinaryOp::Imp: return "Imp";
  }
  return "?";
}

std::string PrintLiteral(const LiteralExpr& literal) {
  switch (literal.literal) {
    case LiteralKind::Empty: return "Empty";
    case LiteralKind::Null: return "Null";
    case LiteralKind::Nothing: return "Nothing";
    case LiteralKind::Boolean: return literal.boolean ? "True" : "False";
    case LiteralKind::Integer: return fmt::format("{}%", literal.integer);
    case LiteralKind::Long: return fmt::format("{}&", literal.integer);
    case LiteralKind::Double: return fmt::format("{}#", literal.number);
    case LiteralKind::Date: return fmt::format("date:{}", literal.number);
    case LiteralKind::String: return "\"" + ToUtf8(literal.text) + "\"";
  }
  return "?";
}

std::string PrintArgs(const std::vector<ExprPtr>& args) {
  std::string out;
  for (size_t i = 0; i < args.size(); ++i) {
    if (i > 0) out += ", ";
    out += args[i] ? PrintExpr(*args[i]) : "_";
  }
  return out;
}

std::string_view VisibilityPrefix(Visibility visibility) {
  switch (visibility) {
    case Visibility::Default: return "";
    case Visibility::Public: return "Public ";
    case Visibility::Private: return "Private ";
  }
  return "";
}

std::string PrintBody(const Block& block) { return "{" + PrintBlock(block) + "}"; }

std::string PrintVar(const VarDecl& var) {
  if (!var.is_array) return var.name;
  return var.name + "(" + PrintArgs(var.bounds) + ")";
}

std::string PrintProcedure(const ProcedureStmt& proc) {
  static constexpr std::string_view kKinds[] = {"Sub", "Function", "PropertyGet", "PropertyLet", "PropertySet"};
  std::string out(VisibilityPrefix(proc.visibility));
  if (proc.is_default) out += "Default ";
  out += fmt::format("{} {}(", kKinds[static_cast<int>(proc.proc_kind)], proc.name);
  for (size_t i = 0; i < proc.params.size(); ++i) {
    const Param& param = proc.params[i];
    if (i > 0) out += ", ";
    out += (param.by_val ? "ByVal " : "") + param.name + (param.is_array ? "()" : "");
  }
  return out + ") " + PrintBody(proc.body);
}

std::string PrintStmt(const Stmt& stmt);

std::string PrintIf(const IfStmt& stmt) {
  std::string out;
  for (size_t i = 0; i < stmt.branches.size(); ++i) {
    const IfBranch& branch = stmt.branches[i];
    out += fmt::format("{}{} {}", i == 0 ? "If " : " ElseIf ", PrintExpr(*branch.condition), PrintBody(branch.body));
  }
  if (stmt.has_else) out += " Else " + PrintBody(stmt.else_body);
  return out;
}

std::string PrintSelect(const SelectStmt& stmt) {
  std::string out = "Select " + PrintExpr(*stmt.subject);
  for (const CaseClause& clause : stmt.cases) out += " Case " + PrintArgs(clause.values) + " " + PrintBody(clause.body);
  if (stmt.has_else) out += " Else " + PrintBody(stmt.else_body);
  return out;
}

std::string PrintDo(const DoStmt& stmt) {
  switch (stmt.condition_kind) {
    case LoopCondition::None: return "Do " + PrintBody(stmt.body);
    case LoopCondition::WhileBefore: return "Do While " + PrintExpr(*stmt.condition) + " " + PrintBody(stmt.body);
    case LoopCondition::UntilBefore: return "Do Until " + PrintExpr(*stmt.condition) + " " + PrintBody(stmt.body);
    case LoopCondition::WhileAfter: return "Do " + PrintBody(stmt.body) + " Loop While " + PrintExpr(*stmt.condition);
    case LoopCondition::UntilAfter: return "Do " + PrintBody(stmt.body) + " Loop Until " + PrintExpr(*stmt.condition);
  }
  return "?";
}

std::string PrintClass(const ClassStmt& cls) {
  std::string out = "Class " + cls.name + " {";
  bool first = true;
  for (const auto& field : cls.fields) {
    out += (first ? "" : "; ") + PrintStmt(*field);
    first = false;
  }
  for (const auto& proc : cls.procedures) {
    out += (first ? "" : "; ") + PrintStmt(*proc);
    first = false;
  }
  return out + "}";
}

std::string PrintStmt(const Stmt& stmt) {
  switch (stmt.kind) {
    case StmtKind::Assign: {
      const auto& s = static_cast<const AssignStmt&>(stmt);
      return fmt::format("{}{} = {}", s.is_set ? "Set " : "", PrintExpr(*s.target), PrintExpr(*s.value));
    }
    case StmtKind::Call: {
      const auto& s = static_cast<const CallStmt&>(stmt);
      std::string out = (s.call_keyword ? "Call " : "") + PrintExpr(*s.callee);
      return s.args.empty() ? out : out + " " + PrintArgs(s.args);
    }
    case StmtKind::Dim: {
      const auto& s = static_cast<const DimStmt&>(stmt);
      std::string out = s.visibility == Visibility::Default ? "Dim " : std::string(VisibilityPrefix(s.visibility));
      for (size_t i = 0; i < s.vars.size(); ++i) out += (i > 0 ? ", " : "") + PrintVar(s.vars[i]);
      return out;
    }
    case StmtKind::ReDim: {
      const auto& s = static_cast<const ReDimStmt&>(stmt);
      std::string out = s.preserve ? "ReDim Preserve " : "ReDim ";
      for (size_t i = 0; i < s.items.size(); ++i) {
        out += (i > 0 ? ", " : "") + PrintExpr(*s.items[i].target) + "(" + PrintArgs(s.items[i].bounds) + ")";
      }
      return out;
    }
    case StmtKind::Const: {
      const auto& s = static_cast<const ConstStmt&>(stmt);
      std::string out = std::string(VisibilityPrefix(s.visibility)) + "Const ";
      for (size_t i = 0; i < s.items.size(); ++i) {
        out += (i > 0 ? ", " : "") + s.items[i].name + " = " + PrintExpr(*s.items[i].value);
      }
      return out;
    }
    case StmtKind::Erase: return "Erase " + PrintArgs(static_cast<const EraseStmt&>(stmt).targets);
    case StmtKind::If: return PrintIf(static_cast<const IfStmt&>(stmt));
    case StmtKind::Select: return PrintSelect(static_cast<const SelectStmt&>(stmt));
    case StmtKind::For: {
      const auto& s = static_cast<const ForStmt&>(stmt);
      std::string step = s.step ? " Step " + PrintExpr(*s.step) : "";
      return fmt::format("For {} = {} To {}{} {}", PrintExpr(*s.counter), PrintExpr(*s.from), PrintExpr(*s.to), step,
                         PrintBody(s.body));
    }
    case StmtKind::ForEach: {
      const auto& s = static_cast<const ForEachStmt&>(stmt);
      return fmt::format("ForEach {} In {} {}", PrintExpr(*s.element), PrintExpr(*s.collection), PrintBody(s.body));
    }
    case StmtKind::Do: return PrintDo(static_cast<const DoStmt&>(stmt));
    case StmtKind::While: {
      const auto& s = static_cast<const WhileStmt&>(stmt);
      return "While " + PrintExpr(*s.condition) + " " + PrintBody(s.body);
    }
    case StmtKind::Exit: {
      static constexpr std::string_view kWhat[] = {"Do", "For", "Sub", "Function", "Property"};
      return fmt::format("Exit {}", kWhat[static_cast<int>(static_cast<const ExitStmt&>(stmt).what)]);
    }
    case StmtKind::With: {
      const auto& s = static_cast<const WithStmt&>(stmt);
      return "With " + PrintExpr(*s.object) + " " + PrintBody(s.body);
    }
    case StmtKind::OnError:
      return static_cast<const OnErrorStmt&>(stmt).resume_next ? "OnError ResumeNext" : "OnError GoTo0";
    case StmtKind::OptionExplicit: return "OptionExplicit";
    case StmtKind::Procedure: return PrintProcedure(static_cast<const ProcedureStmt&>(stmt));
    case StmtKind::Class: return PrintClass(static_cast<const ClassStmt&>(stmt));
    case StmtKind::Stop: return "Stop";
  }
  return "?";
}

std::string_view ExprKindName(ExprKind kind) {
  static constexpr std::string_view kNames[] = {"Literal", "Name",  "Member", "Call", "Me",
                                                "New",     "Unary", "Binary", "Paren"};
  return kNames[static_cast<int>(kind)];
}

std::string_view StmtKindName(StmtKind kind) {
  static constexpr std::string_view kNames[] = {
      "Assign", "Call",  "Dim",  "ReDim", "Const",   "Erase",          "If",        "Select", "For", "ForEach",
      "Do",     "While", "Exit", "With",  "OnError", "OptionExplicit", "Procedure", "Class",  "Stop"};
  return kNames[static_cast<int>(kind)];
}

class PositionWalker {
 public:
  std::string out;

  void Add(std::string_view kind, SourcePos pos) {
    if (!out.empty()) out += ' ';
    out += fmt::format("{}@{}:{}", kind, pos.line, pos.column);
  }

  void Expr(const ast::Expr* expr) {
    if (!expr) return;
    Add(ExprKindName(expr->kind), expr->pos);
    switch (expr->kind) {
      case ExprKind::Member: Expr(static_cast<const MemberExpr*>(expr)->object.get()); break;
      case ExprKind::Call: {
        const auto* call = static_cast<const CallExpr*>(expr);
        Expr(call->callee.get());
        for (const auto& arg : call->args) Expr(arg.get());
        break;
      }
      case ExprKind::Unary: Expr(static_cast<const UnaryExpr*>(expr)->operand.get()); break;
      case ExprKind::Binary:
        Expr(static_cast<const BinaryExpr*>(expr)->left.get());
        Expr(static_cast<const BinaryExpr*>(expr)->right.get());
        break;
      case ExprKind::Paren: Expr(static_cast<const ParenExpr*>(expr)->inner.get()); break;
      default: break;
    }
  }

  void Body(const Block& block) {
    for (const auto& stmt : block) Stmt(*stmt);
  }

  void Stmt(const ast::Stmt& stmt) {
    Add(StmtKindName(stmt.kind), stmt.pos);
    switch (stmt.kind) {
      case StmtKind::Assign:
        Expr(static_cast<const AssignStmt&>(stmt).target.get());
        Expr(static_cast<const AssignStmt&>(stmt).value.get());
        break;
      case StmtKind::Call: {
        const auto& s = static_cast<const CallStmt&>(stmt);
        Expr(s.callee.get());
        for (const auto& arg : s.args) Expr(arg.get());
        break;
      }
      case StmtKind::Dim:
        for (const auto& var : static_cast<const DimStmt&>(stmt).vars) Add("Var", var.pos);
        break;
      case StmtKind::If: {
        const auto& s = static_cast<const IfStmt&>(stmt);
        for (const auto& branch : s.branches) {
          Add("Branch", branch.pos);
          Expr(branch.condition.get());
          Body(branch.body);
        }
        Body(s.else_body);
        break;
      }
      case StmtKind::For: {
        const auto& s = static_cast<const ForStmt&>(stmt);
        Expr(s.counter.get());
        Expr(s.from.get());
        Expr(s.to.get());
        Expr(s.step.get());
        Body(s.body);
        break;
      }
      case StmtKind::Procedure: {
        const auto& s = static_cast<const ProcedureStmt&>(stmt);
        for (const auto& param : s.params) Add("Param", param.pos);
        Body(s.body);
        Add("End", s.end_pos);
        break;
      }
      case StmtKind::Class: {
        const auto& s = static_cast<const ClassStmt&>(stmt);
        for (const auto& field : s.fields) Stmt(*field);
        for (const auto& proc : s.procedures) Stmt(*proc);
        break;
      }
      default: break;
    }
  }
};

std::string PrintErrors(const std::vector<ScriptError>& errors) {
  std::string out;
  for (const ScriptError& error : errors) {
    if (!out.empty()) out += "; ";
    out += fmt::format("error {} @{}:{}", error.number, error.pos.line, error.pos.column);
  }
  return out;
}

}  // namespace

std::string PrintExpr(const ast::Expr& expr) {
  switch (expr.kind) {
    case ExprKind::Literal: return PrintLiteral(static_cast<const LiteralExpr&>(expr));
    case ExprKind::Name: return static_cast<const NameExpr&>(expr).name;
    case ExprKind::Member: {
      const auto& member = static_cast<const MemberExpr&>(expr);
      return (member.object ? PrintExpr(*member.object) : "") + "." + member.name;
    }
    case ExprKind::Call: {
      const auto& call = static_cast<const CallExpr&>(expr);
      return PrintExpr(*call.callee) + "(" + PrintArgs(call.args) + ")";
    }
    case ExprKind::Me: return "Me";
    case ExprKind::New: return "New " + static_cast<const NewExpr&>(expr).class_name;
    case ExprKind::Unary: {
      const auto& unary = static_cast<const UnaryExpr&>(expr);
      std::string_view op = unary.op == UnaryOp::Negate ? "-" : unary.op == UnaryOp::Plus ? "+" : "Not ";
      return fmt::format("({}{})", op, PrintExpr(*unary.operand));
    }
    case ExprKind::Binary: {
      const auto& binary = static_cast<const BinaryExpr&>(expr);
      return fmt::format("({} {} {})", PrintExpr(*binary.left), BinarySymbol(binary.op), PrintExpr(*binary.right));
    }
    case ExprKind::Paren: return "{" + PrintExpr(*static_cast<const ParenExpr&>(expr).inner) + "}";
  }
  return "?";
}

std::string PrintBlock(const ast::Block& block) {
  std::string out;
  for (const auto& stmt : block) {
    if (!out.empty()) out += "; ";
    out += PrintStmt(*stmt);
  }
  return out;
}

std::string PrintPositions(const ast::Block& block) {
  PositionWalker walker;
  walker.Body(block);
  return walker.out;
}

std::u16string ToU16(std::string_view utf8) {
  std::u16string out;
  for (size_t i = 0; i < utf8.size();) {
    auto c = static_cast<unsigned char>(utf8[i]);
    char32_t code = c;
    size_t extra = c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : c >= 0xC0 ? 1 : 0;
    if (extra > 0) code = c & (0x3F >> extra);
    for (size_t k = 1; k <= extra && i + k < utf8.size(); ++k) code = (code << 6) | (utf8[i + k] & 0x3F);
    i += extra + 1;
    if (code >= 0x10000) {
      out.push_back(static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10)));
      out.push_back(static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF)));
    } else {
      out.push_back(static_cast<char16_t>(code));
    }
  }
  return out;
}

std::string ParseToText(std::string_view source) {
  SourceTable sources;
  uint32_t id = sources.Add("test", ToU16(source));
  ParseResult result = ParseProgram(sources, id);
  return result.errors.empty() ? PrintBlock(result.program.body) : PrintErrors(result.errors);
}

std::string ParseErrors(std::string_view source) {
  SourceTable sources;
  uint32_t id = sources.Add("test", ToU16(source));
  return PrintErrors(ParseProgram(sources, id).errors);
}

std::string ParseExprToText(std::string_view source) {
  SourceTable sources;
  uint32_t id = sources.Add("test", ToU16(source));
  auto result = ParseExpression(sources, id);
  return result ? PrintExpr(**result) : PrintErrors({result.error()});
}

}  // namespace vbs::test
