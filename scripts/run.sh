#!/usr/bin/env bash
# Installs what is missing, builds, and runs lottolab with the given words ("info" by default).
# On first use, when the real draws lie beside the project, the archive is filled from them.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh >/dev/null
lottolab=build/lottolab
archivio="${LOTTOLAB_HOME:-$HOME/.local/share/lottolab}/BaseDati.dat"
if [ ! -s "$archivio" ] && [ -f ../shared/data/lotto.txt ]; then
  mkdir -p "$(dirname "$archivio")"
  "$lottolab" importa ../shared/data/lotto.txt
fi
if [ $# -eq 0 ]; then set -- info; fi
exec "$lottolab" "$@"
