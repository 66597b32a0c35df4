#!/usr/bin/env bash
# SPDX-License-Identifier: BSD-3-Clause
# Counts the lines of C++ (tracked *.cpp and *.h files, blank lines and lines holding only
# a // comment left out): the test code under tests/ against all other code, and their ratio.
# The project keeps tests at about a quarter to a third of the other code, 35 % at most.
set -euo pipefail
cd "$(dirname "$0")/.."
count() {
    [ $# -eq 0 ] && { echo 0; return; }
    sed -E 's#^[[:space:]]*//.*$##' "$@" | grep -cvE '^[[:space:]]*$' || true
}
mapfile -t tests < <(git ls-files 'tests/*.cpp' 'tests/*.h')
mapfile -t others < <(git ls-files '*.cpp' '*.h' | grep -v '^tests/')
test_lines=$(count "${tests[@]}")
other_lines=$(count "${others[@]}")
awk -v t="$test_lines" -v o="$other_lines" \
    'BEGIN { printf "test lines %d, other lines %d, tests are %.1f %% of the other code\n", t, o, 100 * t / o }'
