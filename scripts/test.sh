#!/usr/bin/env bash
# Every test: set up, build with warnings as errors, run the suites; build
# again with clang under AddressSanitizer and UndefinedBehaviorSanitizer and
# run them again; build the fuzzers and give each a short run; replay the
# examples through `ferlan automate`.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh

echo "== build (g++, warnings as errors)"
bash scripts/build.sh build
ctest --test-dir build --output-on-failure -j"$(nproc)"

echo "== build (clang, ASan + UBSan, fuzzers)"
CC=clang CXX=clang++ bash scripts/build.sh build-asan -DFERLAN_SANITIZE=ON \
  -DFERLAN_FUZZ=ON -DFERLAN_BENCH=OFF -DCMAKE_BUILD_TYPE=Debug
# The window tests start their own Xvfb; leaks that SDL's system libraries
# (X11, its input methods) keep for the process's life are suppressed there,
# and only those: see the file.
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
  LSAN_OPTIONS=suppressions=$PWD/tests/platform/window/third_party_leaks.supp \
  ctest --test-dir build-asan --output-on-failure -j"$(nproc)"

echo "== fuzzers, 15 s each"
for f in build-asan/fuzz/*_fuzzer; do
  [ -x "$f" ] || continue
  # Seeds, where a target has them, are copied: the run adds to its corpus.
  corpus=()
  seeds="fuzz/corpus/$(basename "$f" _fuzzer)"
  if [ -d "$seeds" ]; then corpus=("$(mktemp -d)"); cp "$seeds"/* "${corpus[0]}"/; fi
  "$f" "${corpus[@]}" -max_total_time=15 -print_final_stats=0 >/dev/null 2>"$f.log" || {
    cat "$f.log"; exit 1; }
  echo "$(basename "$f"): no finding"
done

echo "== examples through ferlan automate, against their expected answers"
bash scripts/check_examples.sh build/ferlan
