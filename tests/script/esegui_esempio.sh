#!/bin/bash
# Runs one of the example scripts the program installs, as a user runs it on the real archives: a
# fresh base folder, the Lotto, SuperEnalotto and 10eLotto results imported from ../shared/data (the
# first command also installs the examples), then `lottolab esegui` on the installed copy, which must
# be the file of esempi/ byte for byte. What it printed is compared with ATTESI/NAME.atteso: standard
# output, the line "--- stderr" and standard error, then "--- uscita N" with the exit status.
#
# usage: esegui_esempio.sh LOTTOLAB SHARED_DIR ESEMPIO.ls ATTESI
set -u
lottolab=$1
shared=$2
esempio=$3
attesi=$(cd "$4" && pwd)
nome=$(basename "$esempio" .ls)

for dati in lotto.txt superenalotto.txt 10elotto.txt; do
  if [ ! -f "$shared/data/$dati" ]; then
    echo "saltato: $shared/data/$dati non c'e' (serve la cartella shared accanto al progetto)"
    exit 77
  fi
done

base=$(mktemp -d)
trap 'rm -rf "$base"' EXIT
export LOTTOLAB_HOME=$base
"$lottolab" importa "$shared/data/lotto.txt" > /dev/null || exit 1
"$lottolab" --gioco SE importa "$shared/data/superenalotto.txt" > /dev/null || exit 1
"$lottolab" --gioco DL importa "$shared/data/10elotto.txt" > /dev/null 2>&1 || exit 1

installato="$base/Script/Esempi/$nome.ls"
if ! cmp "$esempio" "$installato"; then
  echo "FALLITO: $installato non e' la copia di $esempio"
  exit 1
fi
cd "$base"
"$lottolab" esegui "$installato" --html pagina.htm > stdout.txt 2> stderr.txt
uscita=$?
{ cat stdout.txt; echo "--- stderr"; cat stderr.txt; echo "--- uscita $uscita"; } | sed "s#$base#BASE#g" > ottenuto.txt
if ! diff -u "$attesi/$nome.atteso" ottenuto.txt; then
  echo "FALLITO: $nome"
  exit 1
fi
