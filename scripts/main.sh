#!/usr/bin/env bash
# The main job: set up, build, and replay the example session through
# `ferlan automate`, printing its answers; then write pictures of the
# example screens on the raster surface (ferlan-example.png,
# ferlan-messages.png, an entry screen entered field by field: ferlan-entry.png,
# and a sub-screen over its screen and that screen back: ferlan-sub-screen.png,
# ferlan-screen-back.png).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
bash scripts/build.sh build >/dev/null
echo "== ferlan automate < examples/hello.jsonl"
timeout 120 build/ferlan automate < examples/hello.jsonl
echo "== ferlan automate --surface raster < examples/screen.jsonl"
timeout 120 build/ferlan automate --surface raster < examples/screen.jsonl
echo "== ferlan automate --surface raster < examples/messages.jsonl"
timeout 120 build/ferlan automate --surface raster < examples/messages.jsonl
echo "== ferlan automate --surface raster < examples/entry_screen.jsonl"
timeout 120 build/ferlan automate --surface raster < examples/entry_screen.jsonl
echo "== ferlan automate --surface raster < examples/sub_screen.jsonl"
timeout 120 build/ferlan automate --surface raster < examples/sub_screen.jsonl
