// Feeds arbitrary bytes to the parser, as a whole program and as an Eval expression. Run from the
// build folder: ./fuzz/parser_fuzz -dict=../fuzz/vbscript.dict ../fuzz/corpus/parser

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "TestoFuzz.h"
#include "vbscript/syntax/Parser.h"

namespace {

// Every error must point into the text: line and column are 1-based.
void CheckErrorPosition(const vbs::ScriptError& error) {
  if (error.number == 0 || !error.has_pos || error.pos.line == 0 || error.pos.column == 0) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  vbs::SourceTable sources;
  uint32_t id = sources.Add("fuzz", lottolab::fuzz::DecodificaMista(data, size));
  vbs::ParseResult program = vbs::ParseProgram(sources, id);
  for (const vbs::ScriptError& error : program.errors) CheckErrorPosition(error);
  auto expression = vbs::ParseExpression(sources, id);
  if (!expression) CheckErrorPosition(expression.error());
  return 0;
}
