#include <gtest/gtest.h>

#include "AstPrinter.h"

namespace vbs {
namespace {

using test::ParseErrors;

struct ErrorCase {
  std::string_view source;
  std::string_view errors;
};

void ExpectErrors(std::initializer_list<ErrorCase> cases) {
  for (const auto& c : cases) EXPECT_EQ(ParseErrors(c.source), c.errors) << c.source;
}

TEST(ParserErrorTest, ReportsVBScriptNumbersAtTheOffendingToken) {
  ExpectErrors({
      {"x = 1 ? 2", "error 1032 @1:7"},
      {"x = (1", "error 1006 @1:7"},
      {"x = \"abc", "error 1033 @1:5"},
      {"x = [abc", "error 1007 @1:5"},
      {"x = 1e999", "error 1031 @1:5"},
      {"Dim 1", "error 1010 @1:5"},
      {"x = a.", "error 1010 @1:7"},
      {"Set x 1", "error 1011 @1:7"},
      {"Const a 1", "error 1011 @1:9"},
      {"For i 1 To 2\nNext", "error 1011 @1:7"},
      {"If x Then\ny\nEnd Sub", "error 1012 @3:5"},
      {"For i = 1 Too 3\nNext", "error 1013 @1:11"},
      {"If x Then\ny", "error 1014 @2:2"},
      {"Class C\nPublic x", "error 1014 @2:9"},
      {"Function f\nEnd Sub", "error 1015 @2:5"},
      {"Sub f\nEnd Function", "error 1016 @2:5"},
      {"If x\ny\nEnd If", "error 1017 @1:5"},
      {"If x y", "error 1017 @1:6"},
      {"While x\ny", "error 1018 @2:2"},
      {"Do\ny", "error 1019 @2:2"},
      {"For i = 1 To 2\ny", "error 1020 @2:2"},
      {"For Each x In y\nz", "error 1020 @2:2"},
      {"Select x\nEnd Select", "error 1021 @1:8"},
      {"Select Case x\ny = 1\nEnd Select", "error 1021 @2:1"},
      {"Select Case x\nCase 1\nEnd If", "error 1022 @3:5"},
      {"x = ", "error 1023 @1:5"},
      {"x = 1 +", "error 1023 @1:8"},
      {"f(1, 2 +)", "error 1023 @1:9"},
      {"ReDim a()", "error 1023 @1:8"},
      {"1 = x", "error 1024 @1:1"},
      {"End If", "error 1024 @1:1"},
      {"Wend", "error 1024 @1:1"},
      {"x = 1\nOption Explicit", "error 1024 @2:1"},
      {"Sub s\nOption Explicit\nEnd Sub", "error 1024 @2:1"},
      {"Class C\nx = 1\nEnd Class", "error 1024 @2:1"},
      {"Class C\nConst a = 1\nEnd Class", "error 1024 @2:1"},
      {"x = 1 2", "error 1025 @1:7"},
      {"f() x", "error 1025 @1:5"},
      {"Const a = 1 + 2", "error 1025 @1:13"},
      {"If a Then b Else c Else d", "error 1025 @1:20"},
      {"Dim a(n)", "error 1026 @1:7"},
      {"Dim a(-1)", "error 1026 @1:7"},
      {"Do x\nLoop", "error 1027 @1:4"},
      {"Do\nLoop x", "error 1028 @2:6"},
      {"With x\nEnd Sub", "error 1029 @2:5"},
      {"Me = 1", "error 1037 @1:1"},
      {"Set Me = x", "error 1037 @1:5"},
      {"Me", "error 1037 @1:1"},
      {"Call Me", "error 1037 @1:6"},
      {"Loop", "error 1038 @1:1"},
      {"Exit Do", "error 1039 @1:6"},
      {"Do\nExit For\nLoop", "error 1039 @2:6"},
      {"Sub s\nExit Function\nEnd Sub", "error 1039 @2:6"},
      {"Function f\nExit Sub\nEnd Function", "error 1039 @2:6"},
      {"Exit Sub", "error 1039 @1:6"},
      {"Exit While", "error 1039 @1:6"},
      {"Dim a, a", "error 1041 @1:8"},
      {"Dim a\nConst A = 1", "error 1041 @2:7"},
      {"Sub s(a, A)\nEnd Sub", "error 1041 @1:10"},
      {"Sub s(a)\nDim a\nEnd Sub", "error 1041 @2:5"},
      {"Class C\nDim x\nPublic X\nEnd Class", "error 1041 @3:8"},
      {"f(a, b)", "error 1044 @1:2"},
      {"f (a, b), c", "error 1044 @1:3"},
      {"f(, b)", "error 1044 @1:2"},
      {"Const a = b", "error 1045 @1:11"},
      {"Const a = (1)", "error 1045 @1:11"},
      {"Const a = Nothing", "error 1045 @1:11"},
      {"For Each x y\nNext", "error 1046 @1:12"},
      {"Class C\nSub s\nEnd Sub\nEnd Sub", "error 1047 @4:5"},
      {"Property Get p\nEnd Property", "error 1048 @1:1"},
      {"Public Default Function f\nEnd Function", "error 1048 @1:8"},
      {"Default Sub s\nEnd Sub", "error 1048 @1:1"},
      {"Class C\nProperty p\nEnd Class", "error 1049 @2:10"},
      {"Class C\nProperty Get p\nEnd Sub\nEnd Class", "error 1050 @3:5"},
      {"Class C\nPublic Default Function f: End Function\nPublic Default Sub g: End Sub\nEnd Class", "error 1052 @3:1"},
      {"Class C\nSub Class_Initialize(x): End Sub\nEnd Class", "error 1053 @2:5"},
      {"Class C\nSub class_terminate(x): End Sub\nEnd Class", "error 1053 @2:5"},
      {"Class C\nProperty Let p(): End Property\nEnd Class", "error 1054 @2:14"},
      {"Class C\nProperty Set p: End Property\nEnd Class", "error 1054 @2:14"},
      {"Next", "error 1055 @1:1"},
      {"Class C\nPublic Default Property Let p(v): End Property\nEnd Class", "error 1056 @2:1"},
      {"Class C\nPrivate Default Function f: End Function\nEnd Class", "error 1057 @2:9"},
      {"Class C\nDefault Function f: End Function\nEnd Class", "error 1057 @2:1"},
      {"On Error GoTo label", "error 1002 @1:15"},
      {"On Error Resume", "error 1002 @1:16"},
      {"On x", "error 1002 @1:4"},
      {"Option Base 1", "error 1002 @1:8"},
      {"Sub a\nSub b\nEnd Sub\nEnd Sub", "error 1002 @2:1"},
      {"Sub a\nClass C\nEnd Class\nEnd Sub", "error 1002 @2:1"},
      {"Sub a\nPrivate x\nEnd Sub", "error 1002 @2:1"},
      {"x(1)(2)", "error 1002 @1:1"},
  });
}

TEST(ParserErrorTest, CollectsSeveralErrorsAndResynchronisesAtLineEnds) {
  ExpectErrors({
      {"x = \ny = 1 2\nz = 3\nw = )", "error 1023 @1:5; error 1025 @2:7; error 1023 @4:5"},
      // A broken header keeps its block, so the closing keyword still matches.
      {"For i = 1 Too 3\n  x = \nNext\ny = )", "error 1013 @1:11; error 1023 @2:7; error 1023 @4:5"},
      {"If x y Then\n  z\nEnd If\nq = )", "error 1017 @1:6; error 1023 @4:5"},
      {"If x y = 1\nq = )", "error 1017 @1:6; error 1023 @2:5"},
      // A missing closer is reported once; the enclosing construct still gets its own.
      {"Sub s\n  If a Then\n    b\nEnd Sub\nx = )", "error 1012 @4:5; error 1023 @5:5"},
      {"Sub s\n  Do\n    b\nEnd Sub\nSub t\nEnd Sub", "error 1019 @4:1"},
      {"For i = 1 To 2\n  Do\nNext\nLoop", "error 1019 @3:1; error 1038 @4:1"},
      {"If a Then\nEnd Iff\nx = )", "error 1012 @2:5; error 1023 @3:5"},
      // A procedure where none may stand is still read to its end.
      {"Sub a\nSub b\nx = \nEnd Sub\nEnd Sub", "error 1002 @2:1; error 1023 @3:5"},
      {"Do\nIf a Then\nLoop", "error 1014 @3:1"},
  });
}

TEST(ParserErrorTest, StopsCollectingAfterFiftyErrors) {
  std::string source;
  for (int i = 0; i < 200; ++i) source += "x = )\n";
  SourceTable sources;
  ParseResult result = ParseProgram(sources, sources.Add("many", test::ToU16(source)));
  EXPECT_EQ(result.errors.size(), 50u);
  EXPECT_EQ(result.errors.back().pos.line, 50u);
}

// Hostile nesting must end in an error, never in a stack overflow.
TEST(ParserErrorTest, DeepNestingReportsOutOfStackSpace) {
  const int kDepth = 100000;
  std::string ifs;
  for (int i = 0; i < kDepth; ++i) ifs += "If a Then\n";
  for (int i = 0; i < kDepth; ++i) ifs += "End If\n";
  std::string single_line_ifs;
  for (int i = 0; i < kDepth; ++i) single_line_ifs += "If a Then ";
  std::string nots;
  for (int i = 0; i < kDepth; ++i) nots += "Not ";
  std::string calls;
  for (int i = 0; i < kDepth; ++i) calls += "f(";
  std::string members = "x = a";
  for (int i = 0; i < kDepth; ++i) members += ".b";
  std::string indexes = "a";
  for (int i = 0; i < kDepth; ++i) indexes += "(1)";
  const std::string cases[] = {
      "x = " + std::string(kDepth, '(') + "1" + std::string(kDepth, ')'),
      "x = " + std::string(kDepth, '-') + "1",
      "x = " + nots + "1",
      "x = " + calls,
      "Const c = " + std::string(kDepth, '-') + "1",
      ifs,
      single_line_ifs + "x = 1",
      members,
      indexes + " = 1",
  };
  for (const std::string& source : cases) {
    SourceTable sources;
    ParseResult result = ParseProgram(sources, sources.Add("deep", test::ToU16(source)));
    ASSERT_EQ(result.errors.size(), 1u) << source.substr(0, 40);
    EXPECT_EQ(result.errors[0].number, 28) << source.substr(0, 40);
  }
}

// A chain of operators is long, not deep: it parses whatever its length.
TEST(ParserErrorTest, ModerateNestingIsFine) {
  std::string source = "x = " + std::string(100, '(') + "1" + std::string(100, ')') + "\n";
  source += "y = 1";
  for (int i = 0; i < 100000; ++i) source += i % 2 ? " + 1" : " & a.b(1)";
  source += "\n";
  for (int i = 0; i < 60; ++i) source += "For i = 1 To 2\nIf a Then\n";
  for (int i = 0; i < 60; ++i) source += "End If\nNext\n";
  EXPECT_EQ(ParseErrors(source), "");
}

TEST(ParserErrorTest, EvalTakesExactlyOneExpression) {
  const ErrorCase cases[] = {
      {"a = b", "(a = b)"},         {"1 2", "error 1025 @1:3"}, {"x: y", "error 1025 @1:2"},   {"", "error 1023 @1:1"},
      {"Dim x", "error 1023 @1:1"}, {"(1", "error 1006 @1:3"},  {"\"open", "error 1033 @1:1"},
  };
  for (const auto& c : cases) EXPECT_EQ(test::ParseExprToText(c.source), c.errors) << c.source;
}

}  // namespace
}  // namespace vbs
