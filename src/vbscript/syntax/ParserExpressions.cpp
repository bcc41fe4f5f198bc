// Expressions: precedence climbing over the binary operators, with the unary operators, calls,
// member access and primaries below.

#include <optional>

#include "vbscript/syntax/Lexer.h"
#include "vbscript/syntax/Parser.h"

namespace vbs {

using namespace err;

namespace {

struct BinaryInfo {
  ast::BinaryOp op;
  int precedence;
};

// "Not" stands between the logical operators and the comparisons: "Not a = b" is Not (a = b),
// "Not a And b" is (Not a) And b.
constexpr int kComparisonPrecedence = 7;

std::optional<BinaryInfo> BinaryOf(TokenKind kind) {
  using ast::BinaryOp;
  switch (kind) {
    case TokenKind::Imp: return BinaryInfo{BinaryOp::Imp, 1};
    case TokenKind::Eqv: return BinaryInfo{BinaryOp::Eqv, 2};
    case TokenKind::Xor: return BinaryInfo{BinaryOp::Xor, 3};
    case TokenKind::Or: return BinaryInfo{BinaryOp::Or, 4};
    case TokenKind::And: return BinaryInfo{BinaryOp::And, 5};
    case TokenKind::Equal: return BinaryInfo{BinaryOp::Equal, kComparisonPrecedence};
    case TokenKind::NotEqual: return BinaryInfo{BinaryOp::NotEqual, kComparisonPrecedence};
    case TokenKind::Less: return BinaryInfo{BinaryOp::Less, kComparisonPrecedence};
    case TokenKind::Greater: return BinaryInfo{BinaryOp::Greater, kComparisonPrecedence};
    case TokenKind::LessEqual: return BinaryInfo{BinaryOp::LessEqual, kComparisonPrecedence};
    case TokenKind::GreaterEqual: return BinaryInfo{BinaryOp::GreaterEqual, kComparisonPrecedence};
    case TokenKind::Is: return BinaryInfo{BinaryOp::Is, kComparisonPrecedence};
    case TokenKind::Ampersand: return BinaryInfo{BinaryOp::Concat, 8};
    case TokenKind::Plus: return BinaryInfo{BinaryOp::Add, 9};
    case TokenKind::Minus: return BinaryInfo{BinaryOp::Subtract, 9};
    case TokenKind::Mod: return BinaryInfo{BinaryOp::Mod, 10};
    case TokenKind::Backslash: return BinaryInfo{BinaryOp::IntDivide, 11};
    case TokenKind::Star: return BinaryInfo{BinaryOp::Multiply, 12};
    case TokenKind::Slash: return BinaryInfo{BinaryOp::Divide, 12};
    case TokenKind::Caret: return BinaryInfo{BinaryOp::Power, 13};
    default: return std::nullopt;
  }
}

ast::ExprPtr MakeUnary(SourcePos pos, ast::UnaryOp op, ast::ExprPtr operand) {
  auto node = std::make_unique<ast::UnaryExpr>(pos);
  node->op = op;
  node->operand = std::move(operand);
  return node;
}

}  // namespace

ast::ExprPtr Parser::ParseExpr() { return ParseBinary(1); }

ast::ExprPtr Parser::ParseBinary(int min_precedence) {
  ast::ExprPtr left = ParseOperand();
  if (!left) return nullptr;
  return ParseBinaryRest(std::move(left), min_precedence);
}

// Left-associative throughout, "^" included: 2^3^2 is 64.
ast::ExprPtr Parser::ParseBinaryRest(ast::ExprPtr left, int min_precedence) {
  while (true) {
    auto info = BinaryOf(Kind());
    if (!info || info->precedence < min_precedence) return left;
    Advance();
    ast::ExprPtr right = ParseBinary(info->precedence + 1);
    if (!right) return nullptr;
    auto node = std::make_unique<ast::BinaryExpr>(left->pos);
    node->op = info->op;
    node->left = std::move(left);
    node->right = std::move(right);
    left = std::move(node);
  }
}

// A sign binds tighter than "^" in VBScript: -3^2 is 9, and 2^-1 is legal.
ast::ExprPtr Parser::ParseOperand() {
  DepthGuard guard(*this);
  if (m_aborted) return nullptr;
  SourcePos pos = Pos();
  switch (Kind()) {
    case TokenKind::Not: {
      Advance();
      ast::ExprPtr operand = ParseBinary(kComparisonPrecedence);
      return operand ? MakeUnary(pos, ast::UnaryOp::Not, std::move(operand)) : nullptr;
    }
    case TokenKind::Minus:
    case TokenKind::Plus: {
      auto op = Kind() == TokenKind::Minus ? ast::UnaryOp::Negate : ast::UnaryOp::Plus;
      Advance();
      ast::ExprPtr operand = ParseOperand();
      return operand ? MakeUnary(pos, op, std::move(operand)) : nullptr;
    }
    case TokenKind::New: {
      Advance();
      auto node = std::make_unique<ast::NewExpr>(pos);
      SourcePos name_pos;
      if (!ExpectName(node->class_name, name_pos)) return nullptr;
      return node;
    }
    default: {
      ast::ExprPtr primary = ParsePrimary();
      return primary ? ParsePostfix(std::move(primary), nullptr) : nullptr;
    }
  }
}

// A "." after a blank starts a With member instead: "f .x" passes .x to f. Each link nests the
// tree one level deeper (a(1)(2) indexes what a(1) gives), so links count against the nesting limit.
ast::ExprPtr Parser::ParsePostfix(ast::ExprPtr expr, SourcePos* last_paren) {
  struct RestoreDepth {
    uint32_t& depth;
    uint32_t saved;
    ~RestoreDepth() { depth = saved; }
  } restore{m_depth, m_depth};
  while (expr && !m_aborted) {
    if (At(TokenKind::LParen) || (At(TokenKind::Dot) && !Current().after_blank)) Deepen();
    if (m_aborted) break;
    if (At(TokenKind::LParen)) {
      if (last_paren) *last_paren = Pos();
      Advance();
      auto call = std::make_unique<ast::CallExpr>(expr->pos);
      call->callee = std::move(expr);
      if (!ParseArguments(call->args)) return nullptr;
      expr = std::move(call);
    } else if (At(TokenKind::Dot) && !Current().after_blank) {
      Advance();
      if (!IsWordToken(Kind())) {
        Fail(kExpectedIdentifier);
        return nullptr;
      }
      auto member = std::make_unique<ast::MemberExpr>(expr->pos);
      member->object = std::move(expr);
      member->name = NameOf(Advance());
      expr = std::move(member);
    } else {
      break;
    }
  }
  return expr;
}

ast::ExprPtr Parser::ParsePrimary() {
  SourcePos pos = Pos();
  TokenKind kind = Kind();
  if (IsNameToken(kind)) return std::make_unique<ast::NameExpr>(pos, NameOf(Advance()));
  switch (kind) {
    case TokenKind::Me: Advance(); return std::make_unique<ast::MeExpr>(pos);
    case TokenKind::LParen: {
      Advance();
      auto paren = std::make_unique<ast::ParenExpr>(pos);
      paren->inner = ParseExpr();
      if (!paren->inner || !Expect(TokenKind::RParen, kExpectedRParen)) return nullptr;
      return paren;
    }
    case TokenKind::Dot: {
      // ".name" inside a With block.
      Advance();
      if (!IsWordToken(Kind())) {
        Fail(kExpectedIdentifier);
        return nullptr;
      }
      auto member = std::make_unique<ast::MemberExpr>(pos);
      member->name = NameOf(Advance());
      return member;
    }
    default: return ParseLiteral();
  }
}

ast::ExprPtr Parser::ParseLiteral() {
  auto literal = std::make_unique<ast::LiteralExpr>(Pos());
  const Token& token = Current();
  switch (token.kind) {
    case TokenKind::IntegerLiteral:
      literal->literal = ast::LiteralKind::Integer;
      literal->integer = token.integer;
      break;
    case TokenKind::LongLiteral:
      literal->literal = ast::LiteralKind::Long;
      literal->integer = token.integer;
      break;
    case TokenKind::DoubleLiteral:
      literal->literal = ast::LiteralKind::Double;
      literal->number = token.number;
      break;
    case TokenKind::DateLiteral:
      literal->literal = ast::LiteralKind::Date;
      literal->number = token.number;
      break;
    case TokenKind::StringLiteral:
      literal->literal = ast::LiteralKind::String;
      literal->text = StringLiteralValue(m_text, token);
      break;
    case TokenKind::True:
    case TokenKind::False:
      literal->literal = ast::LiteralKind::Boolean;
      literal->boolean = token.kind == TokenKind::True;
      break;
    case TokenKind::Empty: literal->literal = ast::LiteralKind::Empty; break;
    case TokenKind::Null: literal->literal = ast::LiteralKind::Null; break;
    case TokenKind::Nothing: literal->literal = ast::LiteralKind::Nothing; break;
    default: Fail(kExpectedExpression); return nullptr;
  }
  Advance();
  return literal;
}

// The start of a statement that assigns or calls: a name, "Me" or ".name", then any calls and
// member accesses. `paren_pos` receives the position of the last "(" for the call rules.
ast::ExprPtr Parser::ParseTarget(SourcePos& paren_pos) {
  TokenKind kind = Kind();
  if (!IsNameToken(kind) && kind != TokenKind::Me && kind != TokenKind::Dot) {
    Fail(kExpectedIdentifier);
    return nullptr;
  }
  ast::ExprPtr head = ParsePrimary();
  return head ? ParsePostfix(std::move(head), &paren_pos) : nullptr;
}

// After "(": arguments up to ")", an empty place standing for an omitted argument: f(a, , c).
bool Parser::ParseArguments(std::vector<ast::ExprPtr>& args) {
  if (Accept(TokenKind::RParen)) return true;
  while (true) {
    if (At(TokenKind::Comma) || At(TokenKind::RParen)) {
      args.push_back(nullptr);
    } else {
      ast::ExprPtr arg = ParseExpr();
      if (!arg) return false;
      args.push_back(std::move(arg));
    }
    if (!Accept(TokenKind::Comma)) return Expect(TokenKind::RParen, kExpectedRParen);
  }
}

// The arguments of a call written without parentheses ("f a, , c"), `first` already parsed.
std::vector<ast::ExprPtr> Parser::ParseBareArguments(ast::ExprPtr first) {
  std::vector<ast::ExprPtr> args;
  if (first) {
    args.push_back(std::move(first));
    if (!Accept(TokenKind::Comma)) return args;
  }
  while (true) {
    if (At(TokenKind::Comma) || !CanStartExpression(Kind())) {
      args.push_back(nullptr);
    } else {
      ast::ExprPtr arg = ParseExpr();
      if (!arg) return args;
      args.push_back(std::move(arg));
    }
    if (!Accept(TokenKind::Comma)) return args;
  }
}

bool Parser::IsBinaryOperator(TokenKind kind) const { return BinaryOf(kind).has_value(); }

bool Parser::CanStartExpression(TokenKind kind) const {
  if (IsNameToken(kind)) return true;
  switch (kind) {
    case TokenKind::IntegerLiteral:
    case TokenKind::LongLiteral:
    case TokenKind::DoubleLiteral:
    case TokenKind::StringLiteral:
    case TokenKind::DateLiteral:
    case TokenKind::True:
    case TokenKind::False:
    case TokenKind::Empty:
    case TokenKind::Null:
    case TokenKind::Nothing:
    case TokenKind::LParen:
    case TokenKind::Minus:
    case TokenKind::Plus:
    case TokenKind::Not:
    case TokenKind::Me:
    case TokenKind::New:
    case TokenKind::Dot:
    case TokenKind::Invalid: return true;
    default: return false;
  }
}

}  // namespace vbs
