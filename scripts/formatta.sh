#!/usr/bin/env bash
# Lays out every C++ file of src/, tests/, bench/ and fuzz/ with clang-format and the .clang-format
# at the root. With --controlla it changes nothing: it lists the files whose layout differs and exits
# non-zero when there is any.
set -euo pipefail
cd "$(dirname "$0")/.."
if ! command -v clang-format >/dev/null 2>&1; then
  echo "formatta: clang-format non disponibile" >&2
  exit 2
fi
mapfile -t file < <(git ls-files -- 'src/*.cpp' 'src/*.h' 'tests/*.cpp' 'tests/*.h' 'bench/*.cpp' 'bench/*.h' \
                                    'fuzz/*.cpp' 'fuzz/*.h')
case "${1:-}" in
  "")
    clang-format -i "${file[@]}"
    ;;
  --controlla)
    diversi=()
    for f in "${file[@]}"; do
      if ! clang-format "$f" | cmp -s - "$f"; then diversi+=("$f"); fi
    done
    if [ ${#diversi[@]} -gt 0 ]; then
      printf '%s\n' "${diversi[@]}"
      echo "formatta: ${#diversi[@]} file da formattare (scripts/formatta.sh)" >&2
      exit 1
    fi
    echo "formatta: ${#file[@]} file in ordine"
    ;;
  *)
    echo "uso: scripts/formatta.sh [--controlla]" >&2
    exit 2
    ;;
esac
