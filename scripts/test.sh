#!/usr/bin/env bash
# Installs what is missing, builds with warnings as errors and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh -DLOTTOLAB_WERROR=ON
ctest --test-dir build --output-on-failure -j "$(nproc)"
