// The script engine against Lua 5.4 on the same small programs: numeric loops, nested loops over
// arrays, string building, procedure calls and calls of a host function. Each benchmark runs one
// whole program; the ratio of the two times is what the engine is measured by.

#include <benchmark/benchmark.h>

#include <lua.hpp>
#include <string>

#include "text/Utf.h"
#include "vbscript/HostObject.h"
#include "vbscript/ScriptControl.h"

namespace {

struct Program {
  const char* vbscript;
  const char* lua;
};

const Program kNumericLoop = {
    "Dim i, s : s = 0\nFor i = 1 To 3000000 : s = s + i * 2 : Next",
    "local s = 0 for i = 1, 3000000 do s = s + i * 2 end",
};

const Program kNestedArrays = {
    "Dim a(299, 299), i, j, s\n"
    "For i = 0 To 299 : For j = 0 To 299 : a(i, j) = i + j : Next : Next\n"
    "s = 0\nFor i = 0 To 299 : For j = 0 To 299 : s = s + a(i, j) : Next : Next",
    "local a = {} for i = 0, 299 do local r = {} a[i] = r for j = 0, 299 do r[j] = i + j end end "
    "local s = 0 for i = 0, 299 do local r = a[i] for j = 0, 299 do s = s + r[j] end end",
};

const Program kStringBuilding = {
    "Dim s, i : s = \"\"\nFor i = 1 To 200000 : s = s & \"ab\" : Next",
    "local t = {} for i = 1, 200000 do t[#t + 1] = \"ab\" end local s = table.concat(t)",
};

const Program kProcedureCalls = {
    "Function Somma(a, b) : Somma = a + b : End Function\n"
    "Dim i, s : s = 0\nFor i = 1 To 1000000 : s = Somma(s, i) : Next",
    "local function somma(a, b) return a + b end local s = 0 for i = 1, 1000000 do s = somma(s, i) end",
};

const Program kHostCalls = {
    "Dim i, s : s = 0\nFor i = 1 To 1000000 : s = s + Doppio(i) : Next",
    "local s = 0 for i = 1, 1000000 do s = s + Doppio(i) end",
};

class Host final : public vbs::HostObject<Host> {
 public:
  explicit Host(const vbs::Locale& locale) : HostObject(locale) {}
  static std::span<const Member> Members() {
    static const Member kMembers[] = {{"Doppio", 1, 1, &Host::Doppio, nullptr, "N: twice N"}};
    return kMembers;
  }
  std::u16string ClassName() const override { return u"Host"; }

 private:
  vbs::Result<vbs::Variant> Doppio(vbs::CallArgs& args) {
    auto n = args.Long(0);
    if (!n) return std::move(n).error();
    return vbs::Variant::Long(*n * 2);
  }
};

int LuaDoppio(lua_State* lua) {
  lua_pushinteger(lua, luaL_checkinteger(lua, 1) * 2);
  return 1;
}

void RunVbscript(benchmark::State& state, const Program& program) {
  std::u16string code = text::Utf8ToUtf16(program.vbscript);
  for (auto _ : state) {
    vbs::ScriptControl engine;
    (void)engine.SetLanguage("VBScript");
    (void)engine.AddObject("Host", vbs::MakeRef<Host>(engine.interpreter().locale()), true);
    if (!engine.AddCode(code)) state.SkipWithError("script failed");
  }
}

void RunLua(benchmark::State& state, const Program& program) {
  for (auto _ : state) {
    lua_State* lua = luaL_newstate();
    luaL_openlibs(lua);
    lua_register(lua, "Doppio", &LuaDoppio);
    if (luaL_dostring(lua, program.lua) != 0) state.SkipWithError(lua_tostring(lua, -1));
    lua_close(lua);
  }
}

#define CONFRONTO(nome, programma)                                                      \
  void BM_##nome##_VBScript(benchmark::State& state) { RunVbscript(state, programma); } \
  void BM_##nome##_Lua(benchmark::State& state) { RunLua(state, programma); }           \
  BENCHMARK(BM_##nome##_VBScript)->Unit(benchmark::kMillisecond);                       \
  BENCHMARK(BM_##nome##_Lua)->Unit(benchmark::kMillisecond)

CONFRONTO(CicloNumerico, kNumericLoop);
CONFRONTO(CicliAnnidatiSuArray, kNestedArrays);
CONFRONTO(CostruzioneStringa, kStringBuilding);
CONFRONTO(ChiamateProcedura, kProcedureCalls);
CONFRONTO(ChiamateFunzioneHost, kHostCalls);

}  // namespace
