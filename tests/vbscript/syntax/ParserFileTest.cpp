#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include <fmt/format.h>

#include "AstPrinter.h"

namespace vbs {
namespace {

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

std::string DescribeErrors(const ParseResult& result) {
  std::string out;
  for (const ScriptError& error : result.errors) {
    out += fmt::format(" {}@{}:{}", error.number, error.pos.line, error.pos.column);
  }
  return out;
}

// Independent test scripts of the language, written to pass on Windows: every construct in them
// must parse. error.vbs holds its deliberate syntax errors inside strings given to Execute.
TEST(ParserFileTest, ConformanceScriptsParseWithoutErrors) {
  const std::filesystem::path folder = LOTTOLAB_SHARED_DIR "/conformance/wine";
  if (!std::filesystem::exists(folder)) GTEST_SKIP() << "no conformance scripts in " << folder;
  for (const char* name : {"lang.vbs", "api.vbs", "regexp.vbs", "error.vbs"}) {
    SourceTable sources;
    uint32_t id = sources.Add(name, test::ToU16(ReadFile(folder / name)));
    ParseResult result = ParseProgram(sources, id);
    EXPECT_TRUE(result.errors.empty()) << name << ":" << DescribeErrors(result);
    EXPECT_GT(result.program.body.size(), 100u) << name;
  }
}

TEST(ParserFileTest, ParsesAMegabyteScript) {
  std::string source;
  for (int n = 0; source.size() < (1 << 20); ++n) {
    source += fmt::format(
        "Function F{0}(a, b)\n  Dim i, s\n  For i = 1 To 10\n"
        "    If a(i) > b Then s = s & \"x\" Else s = s + Mid(\"abc\", i, 1)\n  Next\n  F{0} = s\nEnd Function\n"
        "x = F{0}(Array(1, 2, 3), 2) : Call obj.Method(1, \"two\", #1/2/2003#)\n",
        n);
  }
  SourceTable sources;
  ParseResult result = ParseProgram(sources, sources.Add("big", test::ToU16(source)));
  EXPECT_TRUE(result.errors.empty()) << DescribeErrors(result);
  EXPECT_GT(result.program.body.size(), 10000u);
}

}  // namespace
}  // namespace vbs
