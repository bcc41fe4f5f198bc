#pragma once

// Turns a syntax tree into executable nodes, resolving every name it can: locals to slots, globals
// to their storage, procedures to their compiled bodies, members of Me and of the host's objects to
// their numbers. Declarations take effect in the interpreter as they are compiled, as they do when
// VBScript loads code: a unit's procedures, classes and global variables exist before its first
// statement runs, wherever they stand in the text.

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "vbscript/runtime/ExprNodes.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/runtime/StmtNodes.h"
#include "vbscript/syntax/Ast.h"

namespace vbs {

// The value a literal of the source stands for.
Variant LiteralValue(const ast::LiteralExpr& literal);

class Compiler {
 public:
  // `scope`: the frame of the procedure in which Execute or Eval runs the code; null for global code.
  Compiler(Interpreter& interp, Frame* scope) : m_interp(interp), m_outer(scope) {}

  Result<std::unique_ptr<CompiledProgram>> CompileProgram(ast::Program& program);
  Result<std::unique_ptr<CompiledProgram>> CompileExpression(ast::Expr& expression);

 private:
  struct Name {
    uint32_t slot = 0;
    bool outer = false;  // a slot of the enclosing procedure's frame (Execute, Eval)
    bool is_constant = false;
    Variant value;
    bool implicit = false;  // used undeclared in a procedure
  };

  // Where names are looked up while one procedure (or one unit of global code) is compiled.
  struct Scope {
    Procedure* procedure = nullptr;  // null for global code
    ClassInfo* class_info = nullptr;
    std::unordered_map<std::string, Name> names;
    uint32_t* slot_count = nullptr;  // where new slots come from
    std::vector<uint32_t> with_slots;
    bool option_explicit = false;
  };

  // CompilerDeclarations.cpp
  Status DeclareGlobals(ast::Program& program, bool option_explicit);
  Status DeclareGlobal(ast::Stmt& statement, Scope& constants,
                       std::vector<std::pair<Procedure*, ast::ProcedureStmt*>>& bodies, bool option_explicit);
  Result<Procedure*> DeclareProcedure(ast::ProcedureStmt& statement, ClassInfo* owner);
  Status DeclareClass(ast::ClassStmt& statement, bool option_explicit);
  Status CompileProcedureBody(Procedure& procedure, ast::ProcedureStmt& statement, bool option_explicit);
  Status CollectLocals(const ast::Block& block, Scope& scope);
  Result<Variant> ConstantValue(const ast::Expr& expression, Scope& scope);
  Result<std::vector<int32_t>> ConstantBounds(const std::vector<ast::ExprPtr>& bounds, Scope& scope);

  // CompilerStatements.cpp
  Result<BlockNode> CompileBlock(ast::Block& block, Scope& scope);
  Result<StmtNodePtr> CompileStatement(ast::Stmt& statement, Scope& scope);
  Result<StmtNodePtr> CompileAssign(ast::AssignStmt& statement, Scope& scope);
  Result<StmtNodePtr> CompileCall(ast::CallStmt& statement, Scope& scope);
  Result<StmtNodePtr> CompileDim(ast::DimStmt& statement, Scope& scope);
  Result<StmtNodePtr> CompileConst(ast::ConstStmt& statement, Scope& scope);
  Result<StmtNodePtr> CompileReDim(ast::ReDimStmt& statement, Scope& scope);
  Result<StmtNodePtr> CompileIf(ast::IfStmt& statement, Scope& scope);
  Result<StmtNodePtr> CompileSelect(ast::SelectStmt& statement, Scope& scope);
  Result<StmtNodePtr> CompileForEach(ast::ForEachStmt& statement, Scope& scope);
  Result<StmtNodePtr> CompileDo(ast::DoStmt& statement, Scope& scope);
  Result<StmtNodePtr> CompileWhile(ast::WhileStmt& statement, Scope& scope);
  Result<StmtNodePtr> CompileWith(ast::WithStmt& statement, Scope& scope);
  Result<StmtNodePtr> CompileFor(ast::ForStmt& statement, Scope& scope);
  Result<StmtNodePtr> CompileGlobalArrays(ast::DimStmt& dim, Scope& scope);

  // CompilerExpressions.cpp
  Result<ExprNodePtr> CompileExpr(ast::Expr& expression, Scope& scope);
  Result<ExprNodePtr> CompileBinary(ast::BinaryExpr& binary, Scope& scope);
  Result<ExprNodes> CompileArgs(std::vector<ast::ExprPtr>& args, Scope& scope);
  // A name, with arguments when it is called or indexed (args null: no parentheses at all);
  // `as_statement` for a name called alone as a statement.
  Result<ExprNodePtr> CompileName(const std::string& name, SourcePos pos, std::vector<ast::ExprPtr>* args, Scope& scope,
                                  bool as_statement = false);
  // A name looked up when it runs; `slot` is the procedure's slot for it, or -1.
  ExprNodePtr LateName(const std::string& name, SourcePos pos, int32_t slot, ExprNodes* args, const Scope& scope);
  Result<ExprNodePtr> CompileMember(ast::MemberExpr& member, std::vector<ast::ExprPtr>* args, Scope& scope);
  uint32_t NewSlot(Scope& scope);

  Interpreter& m_interp;
  Frame* m_outer;
  uint32_t m_program_temps = 0;
};

}  // namespace vbs
