#!/usr/bin/env bash
# Runs the reference VBScript suite beside the project through `lottolab vbs` and fails when any
# file passes fewer assertions than its floor in conformance-floors.txt. Skips (77) without the suite.
set -u
lottolab=$1
suite=$2
floors=$(dirname "$0")/conformance-floors.txt
if [ ! -x "$suite/run.sh" ]; then
  echo "conformance suite not found in $suite (the shared folder beside the project): skipped"
  exit 77
fi
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
report=$(CONF_OUT=$out CONF_TIMEOUT=120 "$suite/run.sh" "$lottolab vbs --locale en-US" 2>&1)
echo "$report"
status=0
while read -r name floor; do
  [ -z "$name" ] && continue
  passed=$(echo "$report" | sed -n "s/^wine\/$name\.vbs: \([0-9]*\) passed.*/\1/p")
  passed=${passed:-0}
  if [ "$passed" -lt "$floor" ]; then
    echo "FAIL: $name.vbs passes $passed assertions, fewer than its floor of $floor"
    status=1
  else
    echo "$name.vbs: $passed assertions pass (floor $floor)"
  fi
done < "$floors"
exit $status
