#!/usr/bin/env bash
# Sets up, builds and opens the receiver console on the demo stream. Without a
# display it replays the same stream headless and prints what each page took.
set -euo pipefail
cd "$(dirname "$0")"
scripts/setup.sh >&2
msgview=build/app/msgview
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$msgview" --mode 2 --replay app/demo/sample.log "$@"
fi
echo "No display: headless replay of the demo stream." >&2
exec "$msgview" --headless --mode 2 --replay app/demo/sample.log "$@"
