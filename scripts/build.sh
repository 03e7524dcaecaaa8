#!/usr/bin/env bash
# Configures and builds into build/ (or $1) with warnings as errors.
set -euo pipefail
cd "$(dirname "$0")/.."
dir=${1:-build}
shift || true
cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DFERLAN_WERROR=ON "$@"
cmake --build "$dir" -j"$(nproc)"
