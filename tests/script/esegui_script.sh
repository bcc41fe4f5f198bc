#!/bin/bash
# Runs one user script through `lottolab esegui` in a fresh base folder and compares what it printed
# with the expectations kept beside it (NAME.atteso): standard output, then the line "--- stderr"
# and standard error, then "--- uscita N" with the exit status.
#
# The script's first lines may ask for:
#   ' opzioni: ARGS         more arguments for `lottolab esegui`
#   ' archivio: reale       the real Lotto archive, imported from ../shared/data/lotto.txt
# NAME.risposte, when present beside the script, goes with it, for `--risposte NAME.risposte`.
# Include files come from the folders Funzioni/ (Script/Funzioni/ of the base folder) and DatiApp/
# (the base folder itself, which is what GetDirectoryAppData names on the command line).
#
# usage: esegui_script.sh LOTTOLAB SHARED_DIR SCRIPT.ls
set -u
lottolab=$1
shared=$2
script=$3
cartella=$(dirname "$script")
nome=$(basename "$script" .ls)

base=$(mktemp -d)
trap 'rm -rf "$base"' EXIT
mkdir -p "$base/Script/Funzioni"
cp "$cartella"/Funzioni/* "$base/Script/Funzioni/" 2>/dev/null
cp "$cartella"/DatiApp/* "$base/" 2>/dev/null
export LOTTOLAB_HOME=$base

if grep -q "^' archivio: reale" "$script"; then
  if [ ! -f "$shared/data/lotto.txt" ]; then
    echo "saltato: $shared/data/lotto.txt non c'e' (serve la cartella shared accanto al progetto)"
    exit 77
  fi
  "$lottolab" importa "$shared/data/lotto.txt" > /dev/null || exit 1
fi
opzioni=$(sed -n "s/^' opzioni: //p" "$script")

cp "$script" "$base/$nome.ls"
cp "$cartella/$nome.risposte" "$base/" 2>/dev/null
cd "$base"
# shellcheck disable=SC2086
"$lottolab" esegui "$nome.ls" $opzioni > stdout.txt 2> stderr.txt
uscita=$?
{ cat stdout.txt; echo "--- stderr"; cat stderr.txt; echo "--- uscita $uscita"; } | sed "s#$base#BASE#g" > ottenuto.txt
if ! diff -u "$cartella/$nome.atteso" ottenuto.txt; then
  echo "FALLITO: $nome"
  exit 1
fi
