#!/usr/bin/env bash
# Sets up, builds and runs the whole test suite (offscreen, no display needed).
set -euo pipefail
cd "$(dirname "$0")"
scripts/setup.sh
cd "${BUILD_DIR:-build}"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j"$(nproc)"
