#!/usr/bin/env bash
# SPDX-License-Identifier: BSD-3-Clause
# Installs what a fresh Debian 12 machine lacks (only when missing), then configures
# and builds the project in ./build. Safe to run again: a second run only rebuilds
# what changed.
set -euo pipefail
cd "$(dirname "$0")/.."

packages=(cmake ninja-build g++ ccache pkg-config qtbase5-dev qttools5-dev qttools5-dev-tools
          libqt5serialport5-dev libqwt-qt5-dev libgeographiclib-dev socat fonts-dejavu-core
          rtklib gpsd gpsd-clients python3
          dpkg-dev lintian desktop-file-utils)
missing=()
for pkg in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed" || missing+=("$pkg")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    sudo_cmd=()
    [ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
    "${sudo_cmd[@]}" apt-get update -qq
    DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -qq "${missing[@]}" >/dev/null
fi

build_dir=${BUILD_DIR:-build}
if [ ! -f "$build_dir/build.ninja" ]; then
    cmake -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@"
fi
cmake --build "$build_dir" -j"$(nproc)"
