#!/usr/bin/env bash
# Replays every examples/NAME.jsonl through `ferlan automate` and compares the
# answers with examples/NAME.expected; any difference fails.
#
#   scripts/check_examples.sh [FERLAN]            compare (FERLAN: build/ferlan)
#   scripts/check_examples.sh --update [FERLAN]   write the expected files anew
#
# The comparison replays on the fixed surface, whose numbers do not depend on
# any font, so the answers must match byte for byte. Each example is also
# replayed on the raster surface (when built), in a scratch folder for the
# files it writes; there the numbers follow the font and are not compared,
# but every answer must say "ok" as on the fixed surface, except those to
# `png` requests, which only the raster surface can answer.
set -euo pipefail
cd "$(dirname "$0")/.."

update=0
if [ "${1:-}" = "--update" ]; then
  update=1
  shift
fi
ferlan=$(realpath "${1:-build/ferlan}")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
# Examples name their files from the top of the tree (examples/logo.bmp).
ln -s "$PWD/examples" "$scratch/examples"
failed=0

for script in examples/*.jsonl; do
  name=${script%.jsonl}
  expected=$name.expected
  actual=$scratch/$(basename "$name").fixed
  timeout 120 "$ferlan" automate --surface fixed < "$script" > "$actual"
  if ((update)); then
    cp "$actual" "$expected"
    echo "$expected: written"
    continue
  fi
  if [ ! -f "$expected" ]; then
    echo "$script: no $expected; write it with scripts/check_examples.sh --update" \
         "and check it before committing"
    failed=1
    continue
  fi
  if ! diff -u "$expected" "$actual"; then
    echo "$script: answers differ from $expected"
    failed=1
    continue
  fi
  if "$ferlan" automate --surface raster < /dev/null 2>/dev/null; then
    raster=$scratch/$(basename "$name").raster
    (cd "$scratch" && timeout 120 "$ferlan" automate --surface raster) < "$script" > "$raster"
    # One line per request: its kind, then the fixed and raster "ok" flags.
    mismatch=$(paste -d '\t' <(grep -v '^[[:space:]]*$' "$script" | cut -c1-6) \
                 <(cut -c1-10 "$actual") <(cut -c1-10 "$raster") |
               awk -F '\t' '$1 != "{\"png\"" && $2 != $3 { print NR": "$2" / "$3 }')
    if [ -n "$mismatch" ] || [ "$(wc -l < "$raster")" != "$(wc -l < "$actual")" ]; then
      echo "$script: the raster replay disagrees on success (answer: fixed / raster):"
      echo "$mismatch"
      failed=1
      continue
    fi
  fi
  echo "$script: answers as expected"
done
exit "$failed"
