#!/usr/bin/env bash
# Runs every fuzzer of a sanitizer build, one after the other, until each has
# done at least RUNS runs, and prints for each the runs done, the executions a
# second and the coverage (cov: edges, ft: features) it reached. Not part of
# CI: with the default million runs it takes from minutes to an hour.
#
#   scripts/fuzz_long.sh [BUILD_DIR [RUNS [NAME...]]]  # defaults: build-asan 1000000, all
#
# Each fuzzer starts from the seeds of fuzz/corpus/NAME (less "_fuzzer") if any,
# and keeps what it finds in BUILD_DIR/fuzz-long/corpus/NAME, so that a second
# run goes on from there. A finding stops that fuzzer only: its input is saved
# as BUILD_DIR/fuzz-long/NAME-crash-..., its report as NAME.log, the others
# still run, and the script exits 1 at the end.
set -uo pipefail
cd "$(dirname "$0")/.."
build=${1:-build-asan}
runs=${2:-1000000}
shift 2 2>/dev/null || shift $#
work=$build/fuzz-long
mkdir -p "$work"

shopt -s nullglob
fuzzers=("$build"/fuzz/*_fuzzer)
if (($# > 0)); then
  fuzzers=()
  for name in "$@"; do fuzzers+=("$build/fuzz/$name"); done
fi
if ((${#fuzzers[@]} == 0)); then
  echo "fuzz_long: no fuzzer in $build/fuzz (configure with -DFERLAN_FUZZ=ON)" >&2
  exit 2
fi

# The last value of "NAME: value" in a libFuzzer log.
stat() { sed -n "s/^stat::$2: *//p" "$1" | tail -n 1; }
# A field of libFuzzer's last progress line ("#1000000 DONE cov: 812 ft: 3141 ...").
field() { grep -E '^#[0-9]+' "$1" | tail -n 1 | sed -n "s/.* $2: \([0-9]*\).*/\1/p"; }

status=0
printf '| Fuzzer | Runs | Exec/s | cov | ft | Corpus | Seconds | Result |\n'
printf '|---|---|---|---|---|---|---|---|\n'
for fuzzer in "${fuzzers[@]}"; do
  name=$(basename "$fuzzer")
  corpus=$work/corpus/$name
  log=$work/$name.log
  mkdir -p "$corpus"
  seeds=fuzz/corpus/${name%_fuzzer}
  [ -d "$seeds" ] || seeds=
  start=$(date +%s)
  ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
    "$fuzzer" -runs="$runs" -print_final_stats=1 -artifact_prefix="$work/$name-" \
    "$corpus" ${seeds:+"$seeds"} >"$log" 2>&1
  rc=$?
  seconds=$(($(date +%s) - start))
  result="no finding"
  if ((rc != 0)); then
    result="FINDING (exit $rc, see $log)"
    status=1
  fi
  printf '| `%s` | %s | %s | %s | %s | %s | %s | %s |\n' "$name" \
    "$(stat "$log" number_of_executed_units)" "$(stat "$log" average_exec_per_sec)" \
    "$(field "$log" cov)" "$(field "$log" ft)" "$(field "$log" corp)" \
    "$seconds" "$result"
done
exit "$status"
