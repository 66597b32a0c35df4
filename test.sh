#!/usr/bin/env bash
# SPDX-License-Identifier: BSD-3-Clause
# Sets up, builds and runs the whole test suite (offscreen, no display needed).
set -euo pipefail
cd "$(dirname "$0")"
scripts/setup.sh
cd "${BUILD_DIR:-build}"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j"$(nproc)"
