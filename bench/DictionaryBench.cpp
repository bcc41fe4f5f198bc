// How long Scripting.Dictionary takes to build a million keys: through the script engine, as a
// script's loop does it, and directly, which is the dictionary alone. The goal is well under a
// second through the engine.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <charconv>
#include <string>

#include "vbscript/ScriptControl.h"
#include "vbscript/objects/Dictionary.h"

namespace {

constexpr int kKeys = 1000000;

void RunScript(benchmark::State& state, const char16_t* loop) {
  for (auto _ : state) {
    vbs::ScriptControl engine;
    (void)engine.SetLanguage("VBScript");
    const std::u16string code = u"Dim d, i\nSet d = CreateObject(\"Scripting.Dictionary\")\n" + std::u16string(loop);
    if (!engine.AddCode(code)) {
      state.SkipWithError("the script failed");
      return;
    }
    auto count = engine.Eval(u"d.Count");
    if (!count || count->as_long() != kKeys) state.SkipWithError("wrong count");
  }
  state.SetItemsProcessed(state.iterations() * kKeys);
}

void BM_ScriptNumberKeys(benchmark::State& state) { RunScript(state, u"For i = 1 To 1000000 : d.Add i, i : Next"); }
BENCHMARK(BM_ScriptNumberKeys)->Unit(benchmark::kMillisecond);

void BM_ScriptStringKeys(benchmark::State& state) {
  RunScript(state, u"For i = 1 To 1000000 : d(\"k\" & i) = i : Next");
}
BENCHMARK(BM_ScriptStringKeys)->Unit(benchmark::kMillisecond);

void BM_ScriptBuildAndLookUp(benchmark::State& state) {
  RunScript(
      state,
      u"For i = 1 To 1000000 : d.Add i, i : Next\nFor i = 1 To 1000000 : If Not d.Exists(i) Then d.Add 0, 0\nNext");
}
BENCHMARK(BM_ScriptBuildAndLookUp)->Unit(benchmark::kMillisecond);

void BM_DirectNumberKeys(benchmark::State& state) {
  for (auto _ : state) {
    auto dictionary = vbs::MakeRef<vbs::Dictionary>(vbs::ItalianLocale());
    for (int32_t i = 1; i <= kKeys; ++i) (void)dictionary->Add(vbs::Variant::Long(i), vbs::Variant::Long(i));
    benchmark::DoNotOptimize(dictionary->size());
  }
  state.SetItemsProcessed(state.iterations() * kKeys);
}
BENCHMARK(BM_DirectNumberKeys)->Unit(benchmark::kMillisecond);

void BM_DirectStringKeys(benchmark::State& state) {
  for (auto _ : state) {
    auto dictionary = vbs::MakeRef<vbs::Dictionary>(vbs::ItalianLocale());
    for (int32_t i = 1; i <= kKeys; ++i) {
      char digits[16];
      const char* end = std::to_chars(digits, digits + sizeof digits, i).ptr;
      char16_t key[17] = {u'k'};
      std::copy(static_cast<const char*>(digits), end, key + 1);
      const auto length = static_cast<size_t>(end - digits) + 1;
      (void)dictionary->Add(vbs::Variant::String(std::u16string_view(key, length)), vbs::Variant::Long(i));
    }
    benchmark::DoNotOptimize(dictionary->size());
  }
  state.SetItemsProcessed(state.iterations() * kKeys);
}
BENCHMARK(BM_DirectStringKeys)->Unit(benchmark::kMillisecond);

}  // namespace
