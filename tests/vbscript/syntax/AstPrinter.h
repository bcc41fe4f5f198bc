#pragma once

// Test-only: prints a syntax tree in a compact canonical form, so that parser tests compare one
// line of text instead of walking nodes by hand.
//
//   expressions  (a + b)  (-x)  (Not x)  f(a, _, c)  obj.m  .m  {x} for a ParenExpr  New C
//   literals     5% Integer, 5& Long, 1.5# Double, "s", date:37623.5, True, Empty, Null, Nothing
//   statements   separated by "; ", bodies in { }, e.g. If c {x = 1} Else {f {a}, b}

#include <string>
#include <string_view>

#include "vbscript/syntax/Ast.h"
#include "vbscript/syntax/Parser.h"

namespace vbs::test {

std::string PrintExpr(const ast::Expr& expr);
std::string PrintBlock(const ast::Block& block);

// Every statement and expression in pre-order as "Kind@line:col", separated by spaces.
std::string PrintPositions(const ast::Block& block);

std::u16string ToU16(std::string_view utf8);

// Parses `source` as a program: the printed tree when it parses, otherwise its errors as
// "error 1025 @2:7" separated by "; ".
std::string ParseToText(std::string_view source);

// The errors of `source` only ("" when it parses).
std::string ParseErrors(std::string_view source);

// Parses `source` as one expression (Eval): the printed expression or "error N @l:c".
std::string ParseExprToText(std::string_view source);

}  // namespace vbs::test
