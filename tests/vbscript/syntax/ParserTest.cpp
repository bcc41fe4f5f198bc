#include <gtest/gtest.h>

#include "AstPrinter.h"

namespace vbs {
namespace {

using test::ParseExprToText;
using test::ParseToText;

struct Case {
  std::string_view source;
  std::string_view printed;
};

void ExpectExpressions(std::initializer_list<Case> cases) {
  for (const auto& c : cases) EXPECT_EQ(ParseExprToText(c.source), c.printed) << c.source;
}

void ExpectPrograms(std::initializer_list<Case> cases) {
  for (const auto& c : cases) EXPECT_EQ(ParseToText(c.source), c.printed) << c.source;
}

TEST(ParserTest, OperatorPrecedenceAndAssociativity) {
  ExpectExpressions({
      // A sign binds tighter than "^" in VBScript: -3^2 is 9.
      {"-3^2", "((-3%) ^ 2%)"},
      {"2^-1", "(2% ^ (-1%))"},
      {"2^3^2", "((2% ^ 3%) ^ 2%)"},
      {"2*3^2", "(2% * (3% ^ 2%))"},
      {"-a*b", "((-a) * b)"},
      {"--1", "(-(-1%))"},
      {"+a", "(+a)"},
      {"1 + 2 * 3", "(1% + (2% * 3%))"},
      {"12/3\\2", "((12% / 3%) \\ 2%)"},
      {"5\\4/2", "(5% \\ (4% / 2%))"},
      {"7 Mod 4+2", "((7% Mod 4%) + 2%)"},
      {"2+3\\4", "(2% + (3% \\ 4%))"},
      {"a Mod b \\ c", "(a Mod (b \\ c))"},
      {"a - b - c", "((a - b) - c)"},
      {"a & b + c", "(a & (b + c))"},
      {"a & b = c", "((a & b) = c)"},
      {"a = b = c", "((a = b) = c)"},
      {"a < b <> c", "((a < b) <> c)"},
      {"a Is Nothing = False", "((a Is Nothing) = False)"},
      {"Not a = b", "(Not (a = b))"},
      {"Not a And b", "((Not a) And b)"},
      {"Not Not a", "(Not (Not a))"},
      {"a And Not b Or c", "((a And (Not b)) Or c)"},
      {"a Or b And c", "(a Or (b And c))"},
      {"a Xor b Or c", "(a Xor (b Or c))"},
      {"a Eqv b Xor c", "(a Eqv (b Xor c))"},
      {"a Imp b Eqv c", "(a Imp (b Eqv c))"},
      {"a Imp b Imp c", "((a Imp b) Imp c)"},
      {"(a + b) * c", "({(a + b)} * c)"},
      {"1 =< 2", "(1% <= 2%)"},
      {"1 => 2", "(1% >= 2%)"},
      {"1 >< 2", "(1% <> 2%)"},
      {"(&h01or&h02)", "{(1% Or 2%)}"},
  });
}

TEST(ParserTest, PrimariesCallsAndMembers) {
  ExpectExpressions({
      {"f(a, , c).d(1)", "f(a, _, c).d(1%)"},
      {"f()", "f()"},
      {"f(,)", "f(_, _)"},
      {"f(a,)", "f(a, _)"},
      {"a(1)(2)", "a(1%)(2%)"},
      {"f (1)", "f(1%)"},
      {"x.Class.Property.Step.End", "x.Class.Property.Step.End"},
      {"Me.x", "Me.x"},
      {"Me", "Me"},
      {".a.b", ".a.b"},
      {"New Foo", "New Foo"},
      {"New [My Class]", "New My Class"},
      {"[a b].c", "a b.c"},
      {"Step + Property + Default + Error + Explicit", "((((Step + Property) + Default) + Error) + Explicit)"},
      {"Get + Let + Preserve + Resume + GoTo", "((((Get + Let) + Preserve) + Resume) + GoTo)"},
      {"Execute + Eval(x) + GetRef(\"f\")", "((Execute + Eval(x)) + GetRef(\"f\"))"},
      {"\n1 + 2\n", "(1% + 2%)"},
  });
}

TEST(ParserTest, Literals) {
  ExpectExpressions({
      {"32767", "32767%"},
      {"32768", "32768&"},
      {"-32768", "(-32768&)"},
      {"2147483648", "2147483648#"},
      {"&HFFFF", "-1%"},
      {"&HFFFF&", "65535&"},
      {"&HFFFFFFFF", "-1&"},
      {"&O17", "15%"},
      {"&17", "15%"},
      {"1.5E-3", "0.0015#"},
      {".5", "0.5#"},
      {"10.", "10#"},
      {"\"a\"\"b\"", "\"a\"b\""},
      {"\"\"", "\"\""},
      {"#1/2/2003 10:30:00 PM#", "date:37623.9375"},
      {"#2003-01-02#", "date:37623"},
      {"#10:30#", "date:0.4375"},
      {"True", "True"},
      {"FALSE", "False"},
      {"Empty", "Empty"},
      {"Null", "Null"},
      {"Nothing", "Nothing"},
  });
}

TEST(ParserTest, StatementForms) {
  ExpectPrograms({
      {"x = 1", "x = 1%"},
      {"a(1).b = 2", "a(1%).b = 2%"},
      {"a(1, 2) = b = c", "a(1%, 2%) = (b = c)"},
      {"Set x = New C", "Set x = New C"},
      {"Set a.b(1) = Nothing", "Set a.b(1%) = Nothing"},
      {"Dim a, b(3), c(), d(2, &H10)", "Dim a, b(3%), c(), d(2%, 16%)"},
      {"Public x: Private y(1)", "Public x; Private y(1%)"},
      {"ReDim a(n), b(1, 2)", "ReDim a(n), b(1%, 2%)"},
      {"ReDim Preserve a(UBound(a) + 1)", "ReDim Preserve a((UBound(a) + 1%))"},
      {"ReDim Preserve(3)", "ReDim Preserve(3%)"},
      {"ReDim obj.arr(3)", "ReDim obj.arr(3%)"},
      {"Const a = 1, b = -2, c = \"s\", d = #1/1/2000#, e = True",
       "Const a = 1%, b = (-2%), c = \"s\", d = date:36526, e = True"},
      {"Private Const x = 1.5", "Private Const x = 1.5#"},
      {"Erase a, b", "Erase a, b"},
      {"Stop", "Stop"},
      {"On Error Resume Next: on error goto 0", "OnError ResumeNext; OnError GoTo0"},
      {"Option Explicit\nDim x", "OptionExplicit; Dim x"},
      {"' comment\n\nOPTION EXPLICIT : : DIM W", "OptionExplicit; Dim W"},
      {"With obj\n.a = 1\n.b .c, 2\nx = .d(1).e\nEnd With", "With obj {.a = 1%; .b .c, 2%; x = .d(1%).e}"},
      {"While a < 3: a = a + 1: Wend", "While (a < 3%) {a = (a + 1%)}"},
      {"Do While a\nLoop", "Do While a {}"},
      {"Do Until a: x: Loop", "Do Until a {x}"},
      {"Do\nx\nLoop While a", "Do {x} Loop While a"},
      {"Do: Loop Until a", "Do {} Loop Until a"},
      {"Do\nExit Do\nLoop", "Do {Exit Do}"},
      {"For i = 1 To 10 Step -2\nExit For\nNext", "For i = 1% To 10% Step (-2%) {Exit For}"},
      {"For i = a To b: Next i", "For i = a To b {}"},
      {"For Each x In y\nz x\nNext", "ForEach x In y {z x}"},
      {"for property = 1 to 2\nnext", "For property = 1% To 2% {}"},
      {"Dim step: step = 1: For i = step To step Step step: Next",
       "Dim step; step = 1%; For i = step To step Step step {}"},
  });
}

TEST(ParserTest, SelectCase) {
  ExpectPrograms({
      {"Select Case x\nCase 1, 2\na\nCase \"s\"\nCase Else\nb\nEnd Select",
       "Select x Case 1%, 2% {a} Case \"s\" {} Else {b}"},
      {"select case 0 : case 1 : case else : end select", "Select 0% Case 1% {} Else {}"},
      // The first statement of a branch may follow the values without a separator.
      {"Select Case x\ncase 1  y = 2\ncase else y = 3\nEnd Select", "Select x Case 1% {y = 2%} Else {y = 3%}"},
      {"Select Case x\n' comment\n\nCase a + 1: Select Case y: Case 2: End Select\nEnd Select",
       "Select x Case (a + 1%) {Select y Case 2% {}}"},
  });
}

TEST(ParserTest, CallForms) {
  ExpectPrograms({
      {"f", "f"},
      {"f()", "f"},
      {"f a, b", "f a, b"},
      // One parenthesised argument is a ParenExpr: it is passed by value.
      {"f(a)", "f {a}"},
      {"f (a)", "f {a}"},
      {"f (a), b", "f {a}, b"},
      {"f (a) + 1, b", "f ({a} + 1%), b"},
      {"f (a) * (b)", "f ({a} * {b})"},
      {"f -1", "f (-1%)"},
      {"f , b", "f _, b"},
      {"f a, , c", "f a, _, c"},
      {"Call f", "Call f"},
      {"Call f()", "Call f"},
      {"Call f(a, b)", "Call f a, b"},
      {"Call f((a))", "Call f {a}"},
      {"Call f(a, , c)", "Call f a, _, c"},
      {"Call (New C).m()", "Call {New C}.m"},
      {"call (((g))) ((x))", "Call g {x}"},
      {"obj.m a", "obj.m a"},
      {"obj.m(a)", "obj.m {a}"},
      {"obj.m (a), b", "obj.m {a}, b"},
      {"a.b(1).c 2", "a.b(1%).c 2%"},
      {"Me.f 1", "Me.f 1%"},
      {"f .x", "f .x"},
      {"Set w = GetObject(\"x\") _\n    .Items(1)", "Set w = GetObject(\"x\").Items(1%)"},
      {"ok .prop = 1, \"a\"&.prop", "ok (.prop = 1%), (\"a\" & .prop)"},
      {"Error.Clear", "Error.Clear"},
      {"Randomize: Execute \"x\": ExecuteGlobal s", "Randomize; Execute \"x\"; ExecuteGlobal s"},
  });
}

TEST(ParserTest, SingleLineIf) {
  ExpectPrograms({
      {"If a Then b", "If a {b}"},
      {"If a Then b: c Else d", "If a {b; c} Else {d}"},
      {"If a Then b Else c: d", "If a {b} Else {c; d}"},
      {"If a Then Else c", "If a {} Else {c}"},
      {"If a Then :", "If a {}"},
      {"If a Then b = 1 End If", "If a {b = 1%}"},
      {"If a Then b = 1 Else b = 2 End If", "If a {b = 1%} Else {b = 2%}"},
      // An Else belongs to the innermost If.
      {"If a Then If b Then c Else d", "If a {If b {c} Else {d}}"},
      {"If a Then If b Then c Else d Else e", "If a {If b {c} Else {d}} Else {e}"},
      {"If a Then b Else If c Then d Else e", "If a {b} Else {If c {d} Else {e}}"},
      {"If a Then f (1), 2 Else g", "If a {f {1%}, 2%} Else {g}"},
      {"If a Then Rem comment\nb\nEnd If", "If a {b}"},
      {"If a Then ' comment\nb\nEnd If", "If a {b}"},
      {"Do: If a Then Exit Do: Loop", "Do {If a {Exit Do}}"},
      {"For i = 1 To 2: If a Then b: Next", "For i = 1% To 2% {If a {b}}"},
      {"If a Then x = 1: y = 2\nz = 3", "If a {x = 1%; y = 2%}; z = 3%"},
  });
}

TEST(ParserTest, BlockIf) {
  ExpectPrograms({
      {"If a Then\nb\nEnd If", "If a {b}"},
      {"If a Then\nb\nElseIf c Then\nd\nElseIf e Then f\nElse\ng\nEnd If",
       "If a {b} ElseIf c {d} ElseIf e {f} Else {g}"},
      {"If a Then\nElse x = 1\nEnd If", "If a {} Else {x = 1%}"},
      {"If a Then\n  If b Then\n  c\n  End If\nEnd If", "If a {If b {c}}"},
      {"if false then\nSub s\nx = 1\nEnd Sub\nend if", "If False {Sub s() {x = 1%}}"},
  });
}

TEST(ParserTest, LinesCommentsAndContinuations) {
  ExpectPrograms({
      {"x = 1 ' comment\nRem another\ny = 2: Rem third", "x = 1%; y = 2%"},
      {"x = 1 + _\n  2", "x = (1% + 2%)"},
      {"x _\n  = 3", "x = 3%"},
      {"f a, _\r\n  b", "f a, b"},
      {"\r\n\r\n::x=1::\r\n", "x = 1%"},
      {"a = 1\rb = 2", "a = 1%; b = 2%"},
      {"x = \"it's ' here\" ' and a comment", "x = \"it's ' here\""},
      {"[Dim] = [my var] + [x]", "Dim = (my var + x)"},
  });
}

TEST(ParserTest, ProceduresAndClasses) {
  ExpectPrograms({
      {"Sub s\nEnd Sub", "Sub s() {}"},
      {"Sub s(): Exit Sub: End Sub", "Sub s() {Exit Sub}"},
      {"Public Function f(ByVal a, ByRef b, c())\nf = a\nExit Function\nEnd Function",
       "Public Function f(ByVal a, b, c()) {f = a; Exit Function}"},
      {"Private Sub p(ByVal x())\nEnd Sub", "Private Sub p(ByVal x()) {}"},
      {"Function f: f = 1: End Function", "Function f() {f = 1%}"},
      {"Sub s\nx = 1 End Sub", "Sub s() {x = 1%}"},
      {"Sub Property(par)\nEnd Sub", "Sub Property(par) {}"},
      {"Class C\nEnd Class", "Class C {}"},
      {"Class C\nPublic x, y(2)\nPrivate z\nDim w\n"
       "Public Default Property Get P(i)\nP = z\nExit Property\nEnd Property\n"
       "Property Let P(i, v): z = v: End Property\n"
       "Public Property Set O(v)\nEnd Property\n"
       "Private Sub Class_Initialize: z = 1\nEnd Sub\nEnd Class",
       "Class C {Public x, y(2%); Private z; Dim w; Public Default PropertyGet P(i) {P = z; Exit Property}; "
       "PropertyLet P(i, v) {z = v}; Public PropertySet O(v) {}; Private Sub Class_Initialize() {z = 1%}}"},
      {"Class SeparatorTest : : Dim varTest1\n:\nPrivate Sub Class_Initialize : varTest1 = 1\nEnd Sub ::\nEnd Class",
       "Class SeparatorTest {Dim varTest1; Private Sub Class_Initialize() {varTest1 = 1%}}"},
      {"Class Property\nPublic Sub Property()\nEnd Sub\nFunction Error(par)\nEnd Function\nEnd Class",
       "Class Property {Public Sub Property() {}; Function Error(par) {}}"},
      {"Class C\nPublic Default Sub S\nEnd Sub\nEnd Class", "Class C {Public Default Sub S() {}}"},
      {"Class C\nDim x End Class", "Class C {Dim x}"},
      {"Class C\nFunction f(ByVal x)\nx = 0 End Function End Class", "Class C {Function f(ByVal x) {x = 0%}}"},
      {"Class C\nPublic default\nEnd Class", "Class C {Public default}"},
      {"Class C\nSub s\nMe.x = 1: Set o = Me: Me.f Me\nEnd Sub\nEnd Class",
       "Class C {Sub s() {Me.x = 1%; Set o = Me; Me.f Me}}"},
  });
}

TEST(ParserTest, NamesMayBeDeclaredInSeparateScopes) {
  ExpectPrograms({
      {"Dim x\nSub s(x)\nDim y\nEnd Sub\nSub t\nDim y\nEnd Sub", "Dim x; Sub s(x) {Dim y}; Sub t() {Dim y}"},
      {"Class A\nDim x\nEnd Class\nClass B\nDim x\nEnd Class\nDim x", "Class A {Dim x}; Class B {Dim x}; Dim x"},
  });
}

TEST(ParserTest, EveryNodeRecordsItsFirstToken) {
  const Case cases[] = {
      {"x = a + b", "Assign@1:1 Name@1:1 Binary@1:5 Name@1:5 Name@1:9"},
      {"  f (a), b", "Call@1:3 Name@1:3 Paren@1:5 Name@1:6 Name@1:10"},
      {"Call o.m(1)", "Call@1:1 Member@1:6 Name@1:6 Literal@1:10"},
      {"If a Then\n  b\nElseIf c Then d\nEnd If",
       "If@1:1 Branch@1:1 Name@1:4 Call@2:3 Name@2:3 Branch@3:1 Name@3:8 Call@3:15 Name@3:15"},
      {"x = _\n  -f(1)", "Assign@1:1 Name@1:1 Unary@2:3 Call@2:4 Name@2:4 Literal@2:6"},
      {"Dim a,\tb", "Dim@1:1 Var@1:5 Var@1:8"},
      {"Public Sub s(ByVal a, b)\n  Stop\nEnd Sub", "Procedure@1:1 Param@1:20 Param@1:23 Stop@2:3 End@3:1"},
      {"For i = 1 To 2: Next", "For@1:1 Name@1:5 Literal@1:9 Literal@1:14"},
      {"Class C\n  Public x\nEnd Class", "Class@1:1 Dim@2:3 Var@2:10"},
  };
  for (const auto& c : cases) {
    SourceTable sources;
    uint32_t id = sources.Add("test", test::ToU16(c.source));
    ParseResult result = ParseProgram(sources, id);
    ASSERT_TRUE(result.errors.empty()) << c.source;
    EXPECT_EQ(test::PrintPositions(result.program.body), c.printed) << c.source;
  }
}

TEST(ParserTest, NodesCarryTheirSourceId) {
  SourceTable sources;
  sources.Add("first", u"x = 1");
  uint32_t id = sources.Add("second", u"\n y = 2");
  ParseResult result = ParseProgram(sources, id);
  ASSERT_TRUE(result.errors.empty());
  EXPECT_EQ(result.program.source, id);
  ASSERT_EQ(result.program.body.size(), 1u);
  EXPECT_EQ(result.program.body[0]->pos.source, id);
  EXPECT_EQ(result.program.body[0]->pos.line, 2u);
  EXPECT_EQ(result.program.body[0]->pos.column, 2u);
}

}  // namespace
}  // namespace vbs
