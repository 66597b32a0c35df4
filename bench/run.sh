#!/usr/bin/env bash
# SPDX-License-Identifier: BSD-3-Clause
# The byte-stream benchmark. Generates deterministic corpora with rxsim, drives a real
# module with them (msgview_bench), times gpsd's gpsdecode on the NMEA part of the same
# corpus, and prints one table. Results are also written to bench/results-latest.txt.
#
#   bench/run.sh              # about 100 MB of mixed stream, 200 MB soak
#   bench/run.sh --tiny       # a few seconds: keeps the benchmark working (CI)
#   bench/run.sh --index      # only the recording index: a 2 GB damaged mode-2 recording
#                             # and a day of GGA at 20 Hz (several minutes to record)
#
# BUILD_DIR (default build) must hold a build of the project (./test.sh or
# scripts/setup.sh makes one); gpsdecode comes from Debian's gpsd-clients and is
# skipped with a note when missing.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${BUILD_DIR:-build}
duration=4000      # simulated seconds of mode 2: about 100 MB
soak_mb=200
console_seconds=30
index_seconds=82000 # simulated seconds of damaged mode 2: about 2 GB
if [ "${1:-}" = "--tiny" ]; then
    duration=20
    soak_mb=5
    console_seconds=2
    index_seconds=60
fi
rxsim="$build/tools/rxsim/rxsim"
bench="$build/bench/msgview_bench"
console_bench="$build/bench/console_bench"
index_bench="$build/bench/index_bench"
for tool in "$rxsim" "$bench" "$console_bench" "$index_bench"; do
    [ -x "$tool" ] || { echo "missing $tool: build the project first (./test.sh)" >&2; exit 1; }
done

corpus=$(mktemp -d)
trap 'rm -rf "$corpus"' EXIT

# A recording with every kind of damage, indexed once, then seeks spread over it; and
# a day of GGA at 20 Hz for the size of the index.
index_recordings() {
    "$rxsim" --mode 2 --duration "$index_seconds" --seed 11 --as-fast-as-possible \
        --corrupt 0.01 --truncate 0.01 --drop-crlf 0.01 --garbage 0.01 > "$corpus/session.log"
    echo "recording index, damaged mode 2 ($(stat -c %s "$corpus/session.log") bytes):"
    "$index_bench" "$corpus/session.log" 40
    "$console_bench" --replay "$corpus/session.log" --seeks 20 2>/dev/null
    rm -f "$corpus/session.log"
    local day=$((index_seconds * 86400 / 82000)) gga_only=()
    for name in $("$rxsim" --mode 0 --list-messages | awk 'NR > 1 { print $1 }'); do
        case $name in GGA|RMC) ;; *) gga_only+=(--rate "$name=0") ;; esac
    done
    "$rxsim" --mode 0 --duration "$day" --seed 4 --as-fast-as-possible "${gga_only[@]}" --rate GGA=0.05 > "$corpus/day.log"
    echo "recording index, $day s of GGA at 20 Hz:"
    "$index_bench" "$corpus/day.log" 10
}
if [ "${1:-}" = "--index" ]; then
    index_recordings | tee -a "${BENCH_OUT:-bench/results-latest.txt}"
    exit 0
fi
"$rxsim" --mode 2 --duration "$duration" --seed 1 --as-fast-as-possible > "$corpus/mixed.log"
grep -a '^\$' "$corpus/mixed.log" > "$corpus/nmea.log" || true
# BESTPOS alone at 20 Hz: every other message of the mode switched off.
rates=()
for name in $("$rxsim" --mode 2 --list-messages | awk 'NR > 1 { print $1 }'); do
    [ "$name" = BESTPOS ] || rates+=(--rate "$name=0")
done
"$rxsim" --mode 2 --duration "$duration" --seed 2 --as-fast-as-possible "${rates[@]}" --rate BESTPOS=0.05 \
    > "$corpus/bestpos.log"

gpsdecode_args=()
gpsdecode_note="gpsdecode not installed (apt-get install gpsd-clients): no comparison"
if command -v gpsdecode > /dev/null; then
    bytes=$(stat -c %s "$corpus/nmea.log")
    best=0
    for round in 1 2 3; do
        start=$(date +%s%N)
        gpsdecode < "$corpus/nmea.log" > /dev/null
        end=$(date +%s%N)
        mbps=$(awk -v b="$bytes" -v ns="$((end - start))" 'BEGIN { if (ns <= 0) ns = 1; printf "%.2f", b / (ns / 1e9) / 1e6 }')
        best=$(awk -v a="$best" -v b="$mbps" 'BEGIN { print (b > a) ? b : a }')
    done
    gpsdecode_args=(--gpsdecode-mbps "$best")
    gpsdecode_note="gpsdecode on the NMEA part: best of 3, $best MB/s"
fi

out=${BENCH_OUT:-bench/results-latest.txt}
{
    echo "machine: $(uname -m), $(nproc) cores, $(grep -m1 'model name' /proc/cpuinfo | cut -d: -f2 | sed 's/^ //')"
    echo "corpora: mixed $(stat -c %s "$corpus/mixed.log") bytes, NMEA part $(stat -c %s "$corpus/nmea.log") bytes, BESTPOS $(stat -c %s "$corpus/bestpos.log") bytes"
    echo "$gpsdecode_note"
    echo
    "$bench" --mixed "$corpus/mixed.log" --bestpos "$corpus/bestpos.log" --nmea "$corpus/nmea.log" \
        --soak-mb "$soak_mb" "${gpsdecode_args[@]}" 2>/dev/null
    echo
    echo "the console itself (msgview --headless, mode 2, streaming the mixed corpus from a file):"
    QT_QPA_PLATFORM=offscreen "$build/app/msgview" --headless --mode 2 --replay "$corpus/mixed.log" 2>/dev/null | tail -n 1
    echo
    echo "the console's window (offscreen unless DISPLAY is set; under Xvfb: xvfb-run bench/run.sh):"
    "$console_bench" --replay "$corpus/mixed.log" --rate 1000000 --seconds "$console_seconds" 2>/dev/null
    "$console_bench" --replay "$corpus/mixed.log" --rate 1000000 --seconds "$console_seconds" --hidden-views 2>/dev/null
    echo
    index_recordings
} | tee "$out"
