#!/usr/bin/env bash
# Runs clang-tidy with the .clang-tidy at the root over the sources of src/ (or over the files
# given), using the compile commands of build/. Prints every finding once and exits non-zero when
# there is any.
set -euo pipefail
cd "$(dirname "$0")/.."
if ! command -v run-clang-tidy >/dev/null 2>&1; then
  echo "tidy: clang-tidy non disponibile" >&2
  exit 2
fi
if [ ! -f build/compile_commands.json ]; then
  cmake -S . -B build -G Ninja >/dev/null
fi
if [ $# -gt 0 ]; then file=("$@"); else mapfile -t file < <(git ls-files 'src/*.cpp'); fi
# run-clang-tidy takes patterns: each file is anchored so that it names that file only.
modelli=()
for f in "${file[@]}"; do modelli+=("$(realpath "$f" | sed 's/[.+]/\\&/g')\$"); done
rapporto=$(mktemp)
trap 'rm -f "$rapporto"' EXIT
# The compile commands are gcc's: a pragma for a gcc-only warning is no finding.
run-clang-tidy -p build -quiet -j "$(nproc)" -extra-arg=-Wno-unknown-warning-option "${modelli[@]}" >"$rapporto" 2>&1 || true
# A header's finding is reported by every file that includes it: each is printed once.
mapfile -t rilievi < <(sed 's/\x1b\[[0-9;]*m//g' "$rapporto" | grep -E '^/.*: (warning|error): ' | sort -u)
if [ ${#rilievi[@]} -gt 0 ]; then
  printf '%s\n' "${rilievi[@]}"
  echo "tidy: ${#rilievi[@]} rilievi in ${#file[@]} file" >&2
  exit 1
fi
echo "tidy: ${#file[@]} file senza rilievi"
