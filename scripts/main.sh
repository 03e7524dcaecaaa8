#!/usr/bin/env bash
# The main job: set up, build, and replay the example session through
# `ferlan automate`, printing its answers; then write a picture of the
# example screen on the raster surface.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
bash scripts/build.sh build >/dev/null
echo "== ferlan automate < examples/hello.jsonl"
timeout 120 build/ferlan automate < examples/hello.jsonl
echo "== ferlan automate --surface raster < examples/screen.jsonl"
timeout 120 build/ferlan automate --surface raster < examples/screen.jsonl
