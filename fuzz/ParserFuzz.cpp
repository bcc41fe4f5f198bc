// Feeds arbitrary bytes to the parser, as a whole program and as an Eval expression. Run from the
// build folder: ./fuzz/parser_fuzz -max_total_time=300 ../fuzz/corpus
//
// The bytes are read as UTF-8 where they form it and as Latin-1 where they do not, so the ASCII seed
// scripts mutate into near-miss scripts while any UTF-16 unit, surrogates included, stays reachable.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "vbscript/Parser.h"

namespace {

std::u16string Decode(const uint8_t* data, size_t size) {
  std::u16string text;
  text.reserve(size);
  for (size_t i = 0; i < size;) {
    uint8_t lead = data[i];
    size_t extra = lead >= 0xE0 && lead < 0xF0 ? 2 : lead >= 0xC0 && lead < 0xE0 ? 1 : 0;
    bool valid = extra > 0 && i + extra < size;
    for (size_t k = 1; valid && k <= extra; ++k) valid = (data[i + k] & 0xC0) == 0x80;
    if (!valid) {
      text.push_back(lead);
      ++i;
      continue;
    }
    char16_t code = lead & (extra == 1 ? 0x1F : 0x0F);
    for (size_t k = 1; k <= extra; ++k) code = static_cast<char16_t>((code << 6) | (data[i + k] & 0x3F));
    text.push_back(code);
    i += extra + 1;
  }
  return text;
}

// Every error must point into the text: line and column are 1-based.
void CheckErrorPosition(const vbs::ScriptError& error) {
  if (error.number == 0 || !error.has_pos || error.pos.line == 0 || error.pos.column == 0) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  vbs::SourceTable sources;
  uint32_t id = sources.Add("fuzz", Decode(data, size));
  vbs::ParseResult program = vbs::ParseProgram(sources, id);
  for (const vbs::ScriptError& error : program.errors) CheckErrorPosition(error);
  auto expression = vbs::ParseExpression(sources, id);
  if (!expression) CheckErrorPosition(expression.error());
  return 0;
}
