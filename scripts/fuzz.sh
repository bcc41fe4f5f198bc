#!/usr/bin/env bash
# Builds the libFuzzer targets with clang into build-fuzz/ and runs each one in turn over its corpus
# for LOTTOLAB_FUZZ_SECONDI seconds (10 by default). The corpora in fuzz/corpus are only read: the
# inputs a run finds go to build-fuzz/corpus-nuovo/<target>, a failing input and the log to
# build-fuzz/artefatti/<target>/. Exits non-zero when a target fails. Without clang there is
# nothing to build: it says so and exits 0.
set -euo pipefail
cd "$(dirname "$0")/.."
secondi="${LOTTOLAB_FUZZ_SECONDI:-10}"
target=(parser script archivio risultati risultati_zip strutture condizione ini altri_giochi archivi_gioco)

if ! command -v clang++ >/dev/null 2>&1; then
  echo "fuzz: clang++ non disponibile, nessun target eseguito"
  exit 0
fi
bash scripts/install-deps.sh
CC=clang CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DLOTTOLAB_FUZZ=ON -DLOTTOLAB_BENCH=OFF >/dev/null
inizio=$SECONDS
cmake --build build-fuzz --target "${target[@]/%/_fuzz}"
echo "fuzz: compilati ${#target[@]} target in $((SECONDS - inizio)) s"

# Targets that write files (archives saved and read again) run many times faster on a memory disk.
if [ -z "${TMPDIR:-}" ] && [ -d /dev/shm ] && [ -w /dev/shm ]; then export TMPDIR=/dev/shm; fi

falliti=()
for t in "${target[@]}"; do
  nuovo="build-fuzz/corpus-nuovo/$t"
  artefatti="build-fuzz/artefatti/$t"
  mkdir -p "$nuovo" "$artefatti"
  opzioni=(-max_total_time="$secondi" -timeout=10 -rss_limit_mb=2048 -seed=1 -print_final_stats=1
           -artifact_prefix="$artefatti/")
  semi=("fuzz/corpus/$t")
  if [ "$t" = parser ] || [ "$t" = script ]; then opzioni+=(-dict=fuzz/vbscript.dict); fi
  # The script target also runs every program of the parser's seeds.
  if [ "$t" = script ]; then semi+=(fuzz/corpus/parser); fi
  if "build-fuzz/fuzz/${t}_fuzz" "${opzioni[@]}" "$nuovo" "${semi[@]}" >"$artefatti/log.txt" 2>&1; then
    esecuzioni=$(sed -n 's/^stat::number_of_executed_units: *//p' "$artefatti/log.txt")
    echo "fuzz $t: ${esecuzioni:-?} esecuzioni in $secondi s, nessun errore"
  else
    falliti+=("$t")
    echo "fuzz $t: ERRORE (log e input in $artefatti)"
    grep -E '^(==[0-9]+==ERROR|SUMMARY|artifact_prefix|Test unit written)' "$artefatti/log.txt" | head -5 || true
  fi
done
if [ ${#falliti[@]} -gt 0 ]; then
  echo "fuzz: target falliti: ${falliti[*]}"
  exit 1
fi
echo "fuzz: ${#target[@]} target senza errori"
