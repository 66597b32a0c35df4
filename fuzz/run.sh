#!/usr/bin/env bash
# SPDX-License-Identifier: BSD-3-Clause
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

# Seeds from the simulated receiver: lines for the checksum, stretches of each mode's
# stream (behind the three choice bytes) for the module and the decoder.
rxsim="$build/tools/rxsim/rxsim"
seeds="$build/seeds"
if [ -x "$rxsim" ] && [ ! -d "$seeds" ]; then
    mkdir -p "$seeds"/{fuzz_linechecksum,fuzz_module,fuzz_nmeadecoder,fuzz_descriptionfile}
    for mode in 0 2 7 4; do
        UBSAN_OPTIONS=halt_on_error=0 "$rxsim" --mode "$mode" --duration 40 --seed 7 --as-fast-as-possible \
            > "$seeds/stream$mode" 2> /dev/null || true
    done
    i=0
    while IFS= read -r line && [ $i -lt 400 ]; do
        printf '%s\n' "$line" > "$seeds/fuzz_linechecksum/line$i"
        i=$((i + 1))
    done < <(awk 'NR % 7 == 0' "$seeds/stream2")
    # The module target's first bytes choose the mode (indices 0 to 3: modes 0, 1, 2, 7),
    # the visible page and the chunk size.
    for choice in 0:0 1:2 2:2 3:7; do
        index=${choice%%:*} mode=${choice##*:}
        for part in 0 1 2 3 4 5; do
            { printf "\\x0$index\\x$((part * 7 + 3))\\x40"; dd if="$seeds/stream$mode" bs=4096 skip="$part" count=1 status=none; } \
                > "$seeds/fuzz_module/choice${index}_mode${mode}_$part"
        done
    done
    for part in 0 1 2 3 4 5 6 7; do
        { printf '\x10'; dd if="$seeds/stream4" bs=4096 skip="$part" count=1 status=none; } > "$seeds/fuzz_nmeadecoder/part$part"
    done
    cp MessageConfig/*.txt "$seeds/fuzz_descriptionfile/"
fi
for target in "$build"/fuzz/fuzz_*; do
    [ -f "$target" ] && [ -x "$target" ] || continue
    name=$(basename "$target")
    corpus="$build/corpus/$name"
    mkdir -p "$corpus" "$build/findings/$name"
    seed_dirs=()
    [ -d "fuzz/corpus/$name" ] && seed_dirs+=("fuzz/corpus/$name")
    [ -d "$seeds/$name" ] && seed_dirs+=("$seeds/$name")
    echo "== $name for ${seconds}s"
    "$target" -max_total_time="$seconds" -print_final_stats=1 -max_len=65536 -timeout=10 -rss_limit_mb=4096 \
        -artifact_prefix="$build/findings/$name/" "$corpus" "${seed_dirs[@]}" 2>&1 \
        | grep -E '^(stat::number_of_executed_units|stat::peak_rss_mb|==|SUMMARY|#[0-9]+ +DONE)' || true
    echo "findings: $(ls "$build/findings/$name" | wc -l)"
done
