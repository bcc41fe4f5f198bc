#pragma once

// The syntax tree that the parser builds and the compiler turns into executable code. It is a plain
// description of the source: names are kept as written (case-insensitive lookup happens in the
// compiler), nothing is resolved, and every node knows where it stands in its source text.
//
// Nodes are structs with a kind tag, owned through unique_ptr; consumers switch on the tag and
// static_cast, which keeps the tree free of visitor boilerplate.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "vbscript/value/Source.h"

namespace vbs::ast {

// ---- Expressions -------------------------------------------------------------------------------

enum class ExprKind {
  Literal,  // 12, "x", #1/2/2003#, True, Empty, Null, Nothing
  Name,     // x
  Member,   // obj.name, or .name inside With (object is null)
  Call,     // f(a, b), arr(i), obj.m(a): what it is depends on what the callee turns out to be
  Me,       // Me
  New,      // New ClassName
  Unary,    // -x, Not x
  Binary,   // a + b, a And b, a Is b, ...
  Paren,    // (x): kept because a parenthesised argument is passed by value
};

struct Expr {
  explicit Expr(ExprKind k, SourcePos p) : kind(k), pos(p) {}
  virtual ~Expr() = default;
  ExprKind kind;
  SourcePos pos;
};
using ExprPtr = std::unique_ptr<Expr>;

enum class LiteralKind { Empty, Null, Nothing, Boolean, Integer, Long, Double, String, Date };

struct LiteralExpr : Expr {
  explicit LiteralExpr(SourcePos p) : Expr(ExprKind::Literal, p) {}
  LiteralKind literal = LiteralKind::Empty;
  bool boolean = false;
  int32_t integer = 0;  // Integer (fits 16 bits) and Long
  double number = 0;    // Double; Date as the OLE date serial (days since 30/12/1899)
  std::u16string text;  // String
};

struct NameExpr : Expr {
  NameExpr(SourcePos p, std::string n) : Expr(ExprKind::Name, p), name(std::move(n)) {}
  std::string name;  // as written, without brackets for [bracketed names]
};

struct MemberExpr : Expr {
  explicit MemberExpr(SourcePos p) : Expr(ExprKind::Member, p) {}
  ExprPtr object;  // null for ".name" inside a With block
  std::string name;
};

struct CallExpr : Expr {
  explicit CallExpr(SourcePos p) : Expr(ExprKind::Call, p) {}
  ExprPtr callee;
  std::vector<ExprPtr> args;  // a null element is an omitted argument: f(a, , c)
};

struct MeExpr : Expr {
  explicit MeExpr(SourcePos p) : Expr(ExprKind::Me, p) {}
};

struct NewExpr : Expr {
  explicit NewExpr(SourcePos p) : Expr(ExprKind::New, p) {}
  std::string class_name;
};

enum class UnaryOp { Negate, Plus, Not };

struct UnaryExpr : Expr {
  explicit UnaryExpr(SourcePos p) : Expr(ExprKind::Unary, p) {}
  UnaryOp op = UnaryOp::Negate;
  ExprPtr operand;
};

enum class BinaryOp {
  Power,
  Multiply,
  Divide,
  IntDivide,
  Mod,
  Add,
  Subtract,
  Concat,
  Equal,
  NotEqual,
  Less,
  Greater,
  LessEqual,
  GreaterEqual,
  Is,
  And,
  Or,
  Xor,
  Eqv,
  Imp,
};

// Operators are left-associative, so a long chain (1 + 1 + 1 ...) is a tree as deep as it is long:
// its destructor takes the left spine apart in a loop rather than one nested call per operand.
struct BinaryExpr : Expr {
  explicit BinaryExpr(SourcePos p) : Expr(ExprKind::Binary, p) {}
  ~BinaryExpr() override;
  BinaryOp op = BinaryOp::Add;
  ExprPtr left;
  ExprPtr right;
};

struct ParenExpr : Expr {
  explicit ParenExpr(SourcePos p) : Expr(ExprKind::Paren, p) {}
  ExprPtr inner;
};

// ---- Statements --------------------------------------------------------------------------------

enum class StmtKind {
  Assign,
  Call,
  Dim,
  ReDim,
  Const,
  Erase,
  If,
  Select,
  For,
  ForEach,
  Do,
  While,
  Exit,
  With,
  OnError,
  OptionExplicit,
  Procedure,
  Class,
  Stop,
};

struct Stmt {
  explicit Stmt(StmtKind k, SourcePos p) : kind(k), pos(p) {}
  virtual ~Stmt() = default;
  StmtKind kind;
  SourcePos pos;  // the first token of the statement
};
using StmtPtr = std::unique_ptr<Stmt>;
using Block = std::vector<StmtPtr>;

// x = e, Set x = e, a(i) = e, obj.p = e, obj.p(i) = e
struct AssignStmt : Stmt {
  explicit AssignStmt(SourcePos p) : Stmt(StmtKind::Assign, p) {}
  bool is_set = false;
  ExprPtr target;  // Name, Member or Call
  ExprPtr value;
};

// "Call f(a)", "f a, b", "obj.m a", "f (a)" (the argument is then a ParenExpr, passed by value).
struct CallStmt : Stmt {
  explicit CallStmt(SourcePos p) : Stmt(StmtKind::Call, p) {}
  bool call_keyword = false;
  ExprPtr callee;  // Name or Member
  std::vector<ExprPtr> args;
};

enum class Visibility { Default, Public, Private };

struct VarDecl {
  SourcePos pos;
  std::string name;
  bool is_array = false;        // "Dim a()" (dynamic) or "Dim a(3, 4)"
  std::vector<ExprPtr> bounds;  // upper bounds; empty for a dynamic array
};

// Dim, Public and Private variable declarations (also the fields of a class).
struct DimStmt : Stmt {
  explicit DimStmt(SourcePos p) : Stmt(StmtKind::Dim, p) {}
  Visibility visibility = Visibility::Default;
  std::vector<VarDecl> vars;
};

struct ReDimItem {
  SourcePos pos;
  ExprPtr target;  // usually a Name; "ReDim obj.arr(3)" gives a Member
  std::vector<ExprPtr> bounds;
};

struct ReDimStmt : Stmt {
  explicit ReDimStmt(SourcePos p) : Stmt(StmtKind::ReDim, p) {}
  bool preserve = false;
  std::vector<ReDimItem> items;
};

struct ConstItem {
  SourcePos pos;
  std::string name;
  ExprPtr value;
};

struct ConstStmt : Stmt {
  explicit ConstStmt(SourcePos p) : Stmt(StmtKind::Const, p) {}
  Visibility visibility = Visibility::Default;
  std::vector<ConstItem> items;
};

struct EraseStmt : Stmt {
  explicit EraseStmt(SourcePos p) : Stmt(StmtKind::Erase, p) {}
  std::vector<ExprPtr> targets;
};

struct IfBranch {
  SourcePos pos;
  ExprPtr condition;
  Block body;
};

// Block and single-line If alike: branches in order (If, then each ElseIf), then Else.
struct IfStmt : Stmt {
  explicit IfStmt(SourcePos p) : Stmt(StmtKind::If, p) {}
  std::vector<IfBranch> branches;
  bool has_else = false;
  Block else_body;
};

struct CaseClause {
  SourcePos pos;
  std::vector<ExprPtr> values;
  Block body;
};

struct SelectStmt : Stmt {
  explicit SelectStmt(SourcePos p) : Stmt(StmtKind::Select, p) {}
  ExprPtr subject;
  std::vector<CaseClause> cases;
  bool has_else = false;
  Block else_body;
};

struct ForStmt : Stmt {
  explicit ForStmt(SourcePos p) : Stmt(StmtKind::For, p) {}
  ExprPtr counter;  // a Name
  ExprPtr from;
  ExprPtr to;
  ExprPtr step;  // null: 1
  Block body;
};

struct ForEachStmt : Stmt {
  explicit ForEachStmt(SourcePos p) : Stmt(StmtKind::ForEach, p) {}
  ExprPtr element;  // a Name
  ExprPtr collection;
  Block body;
};

enum class LoopCondition { None, WhileBefore, UntilBefore, WhileAfter, UntilAfter };

struct DoStmt : Stmt {
  explicit DoStmt(SourcePos p) : Stmt(StmtKind::Do, p) {}
  LoopCondition condition_kind = LoopCondition::None;
  ExprPtr condition;
  Block body;
};

struct WhileStmt : Stmt {
  explicit WhileStmt(SourcePos p) : Stmt(StmtKind::While, p) {}
  ExprPtr condition;
  Block body;
};

enum class ExitKind { Do, For, Sub, Function, Property };

struct ExitStmt : Stmt {
  explicit ExitStmt(SourcePos p) : Stmt(StmtKind::Exit, p) {}
  ExitKind what = ExitKind::Do;
};

struct WithStmt : Stmt {
  explicit WithStmt(SourcePos p) : Stmt(StmtKind::With, p) {}
  ExprPtr object;
  Block body;
};

struct OnErrorStmt : Stmt {
  explicit OnErrorStmt(SourcePos p) : Stmt(StmtKind::OnError, p) {}
  bool resume_next = true;  // false: On Error GoTo 0
};

struct OptionExplicitStmt : Stmt {
  explicit OptionExplicitStmt(SourcePos p) : Stmt(StmtKind::OptionExplicit, p) {}
};

struct StopStmt : Stmt {
  explicit StopStmt(SourcePos p) : Stmt(StmtKind::Stop, p) {}
};

enum class ProcedureKind { Sub, Function, PropertyGet, PropertyLet, PropertySet };

struct Param {
  SourcePos pos;
  std::string name;
  bool by_val = false;    // ByRef is the default
  bool is_array = false;  // "a()"
};

struct ProcedureStmt : Stmt {
  explicit ProcedureStmt(SourcePos p) : Stmt(StmtKind::Procedure, p) {}
  ProcedureKind proc_kind = ProcedureKind::Sub;
  Visibility visibility = Visibility::Default;
  bool is_default = false;  // "Public Default Function ..." inside a class
  std::string name;
  std::vector<Param> params;
  Block body;
  SourcePos end_pos;  // the "End Sub"/"End Function"/"End Property" line
};

struct ClassStmt : Stmt {
  explicit ClassStmt(SourcePos p) : Stmt(StmtKind::Class, p) {}
  std::string name;
  std::vector<std::unique_ptr<DimStmt>> fields;
  std::vector<std::unique_ptr<ProcedureStmt>> procedures;
};

// A unit of code handed to the engine at once (AddCode, ExecuteGlobal, Execute): its statements in
// source order, procedures and classes included where they stand.
struct Program {
  uint32_t source = 0;
  Block body;
};

}  // namespace vbs::ast
