#!/usr/bin/env bash
# SPDX-License-Identifier: BSD-3-Clause
# Sets up, builds and opens the receiver console on the demo session (60 s of a
# simulated mode-2 receiver built into it). Without a display it replays the same
# session headless, prints what each page took and writes a picture of every page
# into ./snapshots.
set -euo pipefail
cd "$(dirname "$0")"
scripts/setup.sh >&2
msgview=build/app/msgview
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$msgview" --mode 2 --demo "$@"
fi
echo "No display: headless replay of the demo session." >&2
"$msgview" --headless --mode 2 --demo "$@"
"$msgview" --snapshot snapshots --mode 2 --demo "$@" | tail -n 1
