// The script engine against Lua 5.4 on the same small programs, of the shapes users' scripts take:
// numeric loops (declared and undeclared, at script level and in a Sub), recursion, nested loops over
// arrays, string building, procedure calls, calls of a host function and a Dictionary updated
// through its default property. Each benchmark runs one whole program through the engine and
// reports, as the counter "x_Lua", its time over the best of three runs of the Lua program.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
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

// Users seldom declare: a script-level loop over names that its first assignment creates.
const Program kUndeclaredLoop = {
    "s = 0\nFor i = 1 To 10000000 : s = s + i * 2 : Next",
    "s = 0 for i = 1, 10000000 do s = s + i * 2 end",
};

const Program kLoopInSub = {
    "Sub Conta()\nDim i, s : s = 0\nFor i = 1 To 10000000 : s = s + i * 2 : Next\nEnd Sub\nConta",
    "local function conta() local s = 0 for i = 1, 10000000 do s = s + i * 2 end end conta()",
};

const Program kFibonacci = {
    "Function Fib(n)\nIf n < 2 Then Fib = n Else Fib = Fib(n - 1) + Fib(n - 2)\nEnd Function\nDim r : r = Fib(30)",
    "local function fib(n) if n < 2 then return n end return fib(n - 1) + fib(n - 2) end local r = fib(30)",
};

const Program kDictionaryUpdates = {
    "Dim d, i, k : Set d = CreateObject(\"Scripting.Dictionary\")\n"
    "For i = 1 To 1000000 : k = i Mod 90 : d(k) = d(k) + 1 : Next",
    "local d = {} for i = 1, 1000000 do local k = i % 90 d[k] = (d[k] or 0) + 1 end",
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

double Seconds(std::chrono::steady_clock::duration elapsed) { return std::chrono::duration<double>(elapsed).count(); }

// The Lua program's best time of three, in seconds.
double BestLuaTime(const Program& program) {
  double best = 1e9;
  for (int run = 0; run < 3; ++run) {
    const auto start = std::chrono::steady_clock::now();
    lua_State* lua = luaL_newstate();
    luaL_openlibs(lua);
    lua_register(lua, "Doppio", &LuaDoppio);
    const bool ok = luaL_dostring(lua, program.lua) == 0;
    lua_close(lua);
    if (!ok) return 0;
    best = std::min(best, Seconds(std::chrono::steady_clock::now() - start));
  }
  return best;
}

void Compare(benchmark::State& state, const Program& program) {
  const std::u16string code = text::Utf8ToUtf16(program.vbscript);
  double best = 1e9;
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    vbs::ScriptControl engine;
    (void)engine.SetLanguage("VBScript");
    (void)engine.AddObject("Host", vbs::MakeRef<Host>(engine.interpreter().locale()), true);
    if (!engine.AddCode(code)) state.SkipWithError("script failed");
    best = std::min(best, Seconds(std::chrono::steady_clock::now() - start));
  }
  const double lua = BestLuaTime(program);
  if (lua <= 0) {
    state.SkipWithError("the Lua program failed");
    return;
  }
  state.counters["Lua_ms"] = lua * 1000;
  state.counters["x_Lua"] = best / lua;
}

#define CONFRONTO(nome, programma)                                       \
  void BM_##nome(benchmark::State& state) { Compare(state, programma); } \
  BENCHMARK(BM_##nome)->Unit(benchmark::kMillisecond)->MinTime(0.5)

CONFRONTO(CicloNonDichiarato, kUndeclaredLoop);
CONFRONTO(CicloInUnaSub, kLoopInSub);
CONFRONTO(Fibonacci30, kFibonacci);
CONFRONTO(DictionaryLettaEScritta, kDictionaryUpdates);
CONFRONTO(CicloNumerico, kNumericLoop);
CONFRONTO(CicliAnnidatiSuArray, kNestedArrays);
CONFRONTO(CostruzioneStringa, kStringBuilding);
CONFRONTO(ChiamateProcedura, kProcedureCalls);
CONFRONTO(ChiamateFunzioneHost, kHostCalls);

}  // namespace
