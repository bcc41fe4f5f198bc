#!/usr/bin/env bash
# Installs what is missing, builds, and runs lottolab with the given words. Without words it prints
# `lottolab info` and opens the desktop, lottolab-gui, when there is a display to open it on.
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
if [ $# -gt 0 ]; then exec "$lottolab" "$@"; fi
# Without an archive `info` fails, but the desktop still opens and says how to fill it.
stato=0
"$lottolab" info || stato=$?
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
  exec build/lottolab-gui
fi
echo "Nessun display: per aprire il desktop avvia build/lottolab-gui in una sessione grafica."
exit "$stato"
