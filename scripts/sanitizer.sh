#!/usr/bin/env bash
# Builds the tests of every library but the desktop with clang under AddressSanitizer and UBSan, in
# build-fuzz/ (the fuzz targets' build: one clang build serves both, so scripts/fuzz.sh after this
# compiles only its own programs), and runs them. Any sanitizer report fails the test that triggered it. Without clang it says so and
# exits 0.
set -euo pipefail
cd "$(dirname "$0")/.."
if ! command -v clang++ >/dev/null 2>&1; then
  echo "sanitizer: clang++ non disponibile, test non eseguiti"
  exit 0
fi
bash scripts/install-deps.sh
# Qt keeps some allocations until exit: those leaks are suppressed, every other one fails the test.
export ASAN_OPTIONS="strict_string_checks=1:check_initialization_order=1"
export LSAN_OPTIONS="suppressions=$PWD/scripts/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
# The desktop's tests run in the everyday build; leaving them out here keeps the whole check inside
# the time a run of the checks may take on two cores.
CC=clang CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DLOTTOLAB_FUZZ=ON -DLOTTOLAB_BENCH=OFF -DLOTTOLAB_GUI=OFF >/dev/null
inizio=$SECONDS
cmake --build build-fuzz
echo "sanitizer: compilato in $((SECONDS - inizio)) s"
inizio=$SECONDS
ctest --test-dir build-fuzz --output-on-failure -j "$(nproc)"
echo "sanitizer: test eseguiti in $((SECONDS - inizio)) s"
