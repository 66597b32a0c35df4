#!/usr/bin/env bash
# SPDX-License-Identifier: BSD-3-Clause
# After scripts/package.sh: installs the packages of dist/, runs the installed console
# and simulator, builds examples/host against the installed SDK (CMake and pkg-config),
# runs lintian on every package (an error fails the check), then removes the packages
# again (purged: the library leaves no trace), whatever happened.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

shopt -s nullglob
debs=("$root"/dist/*.deb)
if [ ${#debs[@]} -eq 0 ]; then
    echo "check-packages: no packages in dist/ (run scripts/package.sh first)" >&2
    exit 1
fi
sudo_cmd=()
[ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
packages=()
for deb in "${debs[@]}"; do
    packages+=("$(dpkg-deb --field "$deb" Package)")
done

work=$(mktemp -d)
cleanup() {
    DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get remove --purge -y -qq "${packages[@]}" >/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

step() { echo "== $*"; }

step "installing ${packages[*]}"
DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -qq "${debs[@]}" >/dev/null

export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$work/runtime"
mkdir -m 0700 "$XDG_RUNTIME_DIR"
step "desktop entry"
desktop-file-validate /usr/share/applications/msgview.desktop
step "msgview --headless --demo"
/usr/bin/msgview --headless --demo >"$work/demo.txt"
step "rxsim | msgview --headless --replay -"
/usr/bin/rxsim --duration 5 --as-fast-as-possible | /usr/bin/msgview --headless --replay - >"$work/replay.txt"

step "examples/host with CMake"
cmake -S "$root/examples/host" -B "$work/host-cmake" -G Ninja >/dev/null
cmake --build "$work/host-cmake" -j1 >/dev/null
step "examples/host with pkg-config"
# shellcheck disable=SC2046 # the flags are words
g++ -std=c++17 -fPIC "$root/examples/host/main.cpp" -o "$work/host-pkgconfig" $(pkg-config --cflags --libs messageview)
for host in "$work/host-cmake/messageview-host" "$work/host-pkgconfig"; do
    # The host links the installed library, not one of a build tree.
    ldd "$host" >"$work/ldd.txt"
    grep -Eq "libmessageview.so.1 => /(usr/)?lib/" "$work/ldd.txt" || { echo "$host: not linked to the installed library" >&2; exit 1; }
done

step "examples/host on a recording"
/usr/bin/rxsim --duration 20 --as-fast-as-possible --output "$work/session.log"
for host in "$work/host-cmake/messageview-host" "$work/host-pkgconfig"; do
    # It shows the recording until closed: still running after a few seconds is right.
    status=0
    timeout 5 "$host" "$work/session.log" || status=$?
    [ "$status" -eq 124 ] || { echo "$host: ended with status $status while showing a recording" >&2; exit 1; }
done

step "lintian"
lintian_failed=0
for deb in "${debs[@]}"; do
    # lintian's status is 1 for errors in the package, 2 when lintian itself fails.
    status=0
    report=$(lintian --tag-display-limit 0 "$deb" 2>"$work/lintian.err") || status=$?
    if [ "$status" -gt 1 ]; then
        cat "$work/lintian.err" >&2
        exit 1
    fi
    [ -n "$report" ] && echo "$report"
    if grep -q '^E:' <<<"$report"; then
        lintian_failed=1
    fi
done
if [ "$lintian_failed" -ne 0 ]; then
    echo "check-packages: lintian reports errors" >&2
    exit 1
fi
step "packages fine"
