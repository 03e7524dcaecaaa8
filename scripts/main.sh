#!/usr/bin/env bash
# The main job: set up, build, and replay the example session through
# `ferlan automate`, printing its answers; then show the example screen: in
# a window (`ferlan run`) when a display and a person at a terminal are
# there, else as a picture written on the raster surface
# (ferlan-example.png); and write the other examples' pictures
# (ferlan-messages.png, an entry screen entered field by field:
# ferlan-entry.png, and a sub-screen over its screen and that screen
# back: ferlan-sub-screen.png, ferlan-screen-back.png).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
bash scripts/build.sh build >/dev/null
echo "== ferlan automate < examples/hello.jsonl"
timeout 120 build/ferlan automate < examples/hello.jsonl
shown=""
if [ -n "${DISPLAY:-}" ] && [ -t 0 ] && [ -z "${CI:-}" ]; then
  echo "== ferlan run examples/screen.jsonl: the screen in a window (close it to end)"
  build/ferlan run examples/screen.jsonl && shown=yes
fi
if [ -z "$shown" ]; then
  echo "== ferlan automate --surface raster < examples/screen.jsonl: no window here, so"
  echo "   the screen is written as a picture, ferlan-example.png"
  timeout 120 build/ferlan automate --surface raster < examples/screen.jsonl
fi
echo "== ferlan automate --surface raster < examples/messages.jsonl"
timeout 120 build/ferlan automate --surface raster < examples/messages.jsonl
echo "== ferlan automate --surface raster < examples/entry_screen.jsonl"
timeout 120 build/ferlan automate --surface raster < examples/entry_screen.jsonl
echo "== ferlan automate --surface raster < examples/sub_screen.jsonl"
timeout 120 build/ferlan automate --surface raster < examples/sub_screen.jsonl
