#!/usr/bin/env bash
# SPDX-License-Identifier: BSD-3-Clause
# Builds and runs the whole test suite under the sanitizers:
#   scripts/sanitize.sh address   # ASan + UBSan, in build-asan
#   scripts/sanitize.sh thread    # TSan, in build-tsan
# With no argument, runs both. Qt itself is not instrumented: TSan reports only races
# in this project's code and LSan ignores the offscreen platform's one leak.
set -euo pipefail
cd "$(dirname "$0")/.."
# Options for every process the tests start (the console and the simulator too).
export LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp:print_suppressions=0"
export TSAN_OPTIONS="ignore_noninstrumented_modules=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
kinds=("$@")
[ ${#kinds[@]} -eq 0 ] && kinds=(address thread)
for kind in "${kinds[@]}"; do
    case "$kind" in
        address) dir=build-asan ;;
        thread) dir=build-tsan ;;
        *) echo "unknown sanitizer: $kind (address or thread)" >&2; exit 2 ;;
    esac
    if [ ! -f "$dir/build.ninja" ]; then
        cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DMESSAGEVIEW_SANITIZE="$kind"
    fi
    cmake --build "$dir" -j"$(nproc)"
    (cd "$dir" && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j"$(nproc)")
done
