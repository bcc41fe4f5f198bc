#include "vbscript/syntax/Ast.h"

namespace vbs::ast {

BinaryExpr::~BinaryExpr() {
  ExprPtr spine = std::move(left);
  while (spine && spine->kind == ExprKind::Binary) {
    // Detached first, the node below dies with an empty left side: no nested destructor.
    ExprPtr below = std::move(static_cast<BinaryExpr&>(*spine).left);
    spine = std::move(below);
  }
}

}  // namespace vbs::ast
