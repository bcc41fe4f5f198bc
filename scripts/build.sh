#!/usr/bin/env bash
# Configures and builds into build/ (extra CMake options may follow).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake -S . -B build -G Ninja "$@" >/dev/null
cmake --build build
