#!/usr/bin/env bash
# Installs the Debian packages the project needs, only those missing.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config
  libgtest-dev libgmock-dev libbenchmark-dev nlohmann-json3-dev
  clang libclang-rt-14-dev
  libcairo2-dev libfreetype-dev libfontconfig-dev fontconfig fonts-dejavu-core
  libncurses-dev  # the peer benchmark only
  locales
  libsdl2-dev libx11-dev xvfb xdotool
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done

if ((${#missing[@]})); then
  echo "setup: installing ${missing[*]}"
  sudo_cmd=()
  [ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
  "${sudo_cmd[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -qq "${missing[@]}"
fi
