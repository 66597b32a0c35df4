#!/usr/bin/env bash
# SPDX-License-Identifier: BSD-3-Clause
# A large no-loss soak: rxsim sends about SIZE_MB (default 1000) of a mode-2 receiver
# through a noisy link (corrupted checksums, truncations, lost line ends, garbage,
# small pieces) straight into the headless console, which accounts for every line. The
# console's per-page counts and its lines cut, taken and refused must equal what rxsim,
# knowing every fault it made, says; the console's peak RSS is reported. Needs a build
# (./test.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
build=${BUILD_DIR:-build}
size_mb=${1:-1000}
# Mode 2 at the default rates sends about 25 kB per simulated second.
duration=$((size_mb * 1000 / 25))
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$build/tools/rxsim/rxsim" --mode 2 --duration "$duration" --seed 42 --as-fast-as-possible \
    --corrupt 0.02 --truncate 0.01 --drop-crlf 0.005 --garbage 0.005 --split 4096 --summary 2> "$work/sent.txt" \
    | QT_QPA_PLATFORM=offscreen "$build/app/msgview" --headless --mode 2 --replay - > "$work/taken.txt" 2> /dev/null
# The page table ends where the totals begin; then the lines cut, taken and refused.
awk 'NR == FNR { if (NF == 3 && $2 ~ /^[0-9]+$/) expected[$1] = $3
                 if ($0 ~ /^the console cuts/) { gsub(/[^0-9 ]/, ""); split($0, c, " "); cuts = c[1] " " c[2] " " c[3] }
                 next }
     /^total lines:/ { table_done = 1; line = $0; gsub(/[^0-9 ]/, "", line); split(line, t, " ")
                       if (t[1] " " t[2] " " t[3] != cuts) { bad++; print "mismatch: the console cut, took and refused " t[1] " " t[2] " " t[3] ", expected " cuts } }
     !table_done && NF == 2 && $2 ~ /^[0-9]+$/ { pages++; if (expected[$1] != $2) { bad++; print "mismatch: " $1 " took " $2 ", expected " expected[$1] } }
     END { printf "%d pages and the totals compared, %d mismatches\n", pages, bad; exit bad > 0 }' "$work/sent.txt" "$work/taken.txt"
grep -E '^rxsim:|^lines sent' "$work/sent.txt"
grep -E '^(total lines|kinds without a page|damaged lines|bytes):' "$work/taken.txt"
