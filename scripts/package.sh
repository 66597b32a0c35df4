#!/usr/bin/env bash
# SPDX-License-Identifier: BSD-3-Clause
# Builds the Debian packages (libmessageview1, libmessageview-dev, msgview, rxsim) into
# dist/, from a build of their own in build-package (installed to /usr, no RPATH, no
# tests), so that the tree's own build stays as it is.
set -euo pipefail
cd "$(dirname "$0")/.."

build_dir=${PACKAGE_BUILD_DIR:-build-package}
jobs=${JOBS:-1}
# The changelog's date and the archives' times come from the last commit: the same
# tree gives the same packages.
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2>/dev/null || date +%s)
export SOURCE_DATE_EPOCH
umask 022
# Relocations read-only and bound at start, as Debian links its own packages; the
# compiler flags stay those of the tree's build.
relocation_hardening="-Wl,-z,relro -Wl,-z,now"

cmake -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_INSTALL_PREFIX=/usr \
    -DMESSAGEVIEW_BUILD_TESTS=OFF -DMESSAGEVIEW_PACKAGING=ON \
    -DCMAKE_SKIP_INSTALL_ALL_DEPENDENCY=ON \
    "-DCMAKE_EXE_LINKER_FLAGS=$relocation_hardening" "-DCMAKE_SHARED_LINKER_FLAGS=$relocation_hardening"
cmake --build "$build_dir" -j"$jobs" --target messageview msgview rxsim message_config man_msgview.1 man_rxsim.1
(cd "$build_dir" && cpack -G DEB)

mkdir -p dist
rm -f dist/*.deb
cp "$build_dir"/cpack/*.deb dist/
ls -1 dist/*.deb
