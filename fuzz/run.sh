#!/usr/bin/env bash
# Builds the fuzz targets (clang, ASan + UBSan) in build-fuzz and runs each for
# SECONDS (default 60), seeded from the corpora in fuzz/corpus/<target>.
# Findings land in build-fuzz/findings/<target>; each becomes a regression test.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
build=${FUZZ_BUILD_DIR:-build-fuzz}
if [ ! -f "$build/build.ninja" ]; then
    CC=clang CXX=clang++ cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
        -DMESSAGEVIEW_FUZZ=ON -DMESSAGEVIEW_BUILD_TESTS=OFF
fi
cmake --build "$build" -j"$(nproc)"
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=0}
for target in "$build"/fuzz/fuzz_*; do
    [ -f "$target" ] && [ -x "$target" ] || continue
    name=$(basename "$target")
    corpus="$build/corpus/$name"
    mkdir -p "$corpus" "$build/findings/$name"
    seeds=()
    [ -d "fuzz/corpus/$name" ] && seeds+=("fuzz/corpus/$name")
    echo "== $name for ${seconds}s"
    "$target" -max_total_time="$seconds" -print_final_stats=1 -max_len=65536 -timeout=10 -rss_limit_mb=4096 \
        -artifact_prefix="$build/findings/$name/" "$corpus" "${seeds[@]}" 2>&1 \
        | grep -E '^(stat::number_of_executed_units|stat::peak_rss_mb|==|SUMMARY|#[0-9]+ +DONE)' || true
    echo "findings: $(ls "$build/findings/$name" | wc -l)"
done
