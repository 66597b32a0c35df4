#!/usr/bin/env bash
# SPDX-License-Identifier: BSD-3-Clause
# Mutation testing: which tests catch which faults.
#
#   scripts/mutate.sh [options] [ID-PREFIX...]
#
# Applies one fault at a time from the mutant list (default scripts/mutants.txt) to the
# sources, rebuilds incrementally, runs the tests the change can reach, and records which
# tests fail. A mutant is killed when at least one test fails (or times out), survives when
# all pass, and does not count when it does not compile or its snippet is no longer found
# exactly once (stale). At the end it prints the score (killed / compiled), the survivors,
# and per test how many mutants it killed and how many only it killed.
#
# Mutant list: one mutant a line, TAB-separated: ID, FILE, SNIPPET, REPLACEMENT and an
# optional fifth field "equivalent: why" for a mutant that cannot change behaviour (it is
# listed, not run). SNIPPET is literal text found exactly once in FILE; REPLACEMENT may be
# empty. '#' lines are comments.
#
# Options:
#   --list FILE     the mutant list
#   --build DIR     the build directory (default build-mutate; configured on first use)
#   --jobs N        parallel test jobs (default: the number of cores)
#   --timeout S     per-test timeout in seconds (default 120)
#   --resume        keep the results of mutants already run (after an interruption)
#   --quick         stop a mutant's tests at the first failure: the score only, much faster;
#                   the per-test table then counts only the tests that happened to run first
#   --report        only print the report of the results already recorded
# ID-PREFIX...      run only the mutants whose id starts with one of these
#
# Results: DIR/mutants/results.tsv (ID, status, killing tests, seconds, failing QTest functions)
# and DIR/mutants/report.txt, which also lists the kills per test function: what to merge or cut.
# The source tree is restored after every mutant, also when interrupted.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

list=scripts/mutants.txt
build=build-mutate
jobs=$(nproc)
timeout=120
resume=0
quick=()
report_only=0
prefixes=()
while [ $# -gt 0 ]; do
    case "$1" in
        --list) list=$2; shift 2 ;;
        --build) build=$2; shift 2 ;;
        --jobs) jobs=$2; shift 2 ;;
        --timeout) timeout=$2; shift 2 ;;
        --resume) resume=1; shift ;;
        --quick) quick=(--stop-on-failure); shift ;;
        --report) report_only=1; shift ;;
        -h|--help) sed -n '2,/^set -euo/p' "$0" | sed '$d; s/^# \{0,1\}//'; exit 0 ;;
        -*) echo "mutate.sh: unknown option $1" >&2; exit 2 ;;
        *) prefixes+=("$1"); shift ;;
    esac
done

build=$(realpath -m "$build")
out=$build/mutants
results=$out/results.tsv

report() {
    perl -e '
        my ($list, $results) = @ARGV;
        my (%mutant, @order);
        open my $l, "<", $list or die "cannot read $list\n";
        while (<$l>) {
            chomp; next if /^\s*(#|$)/;
            my @f = split /\t/, $_, -1;
            $mutant{$f[0]} = {file => $f[1], snippet => $f[2], replacement => $f[3], note => $f[4] // ""};
        }
        open my $r, "<", $results or die "no results in $results\n";
        my (%status, %killers, %functions);
        while (<$r>) {
            chomp;
            my ($id, $status, $killers, $seconds, $functions) = split /\t/;
            # Marked equivalent after it ran: it no longer counts.
            next if exists $mutant{$id} && $mutant{$id}{note} =~ /^equivalent/;
            push @order, $id unless exists $status{$id};
            $status{$id} = $status;
            $killers{$id} = [grep { length } split /,/, $killers // ""];
            $functions{$id} = [grep { length } split /,/, $functions // ""];
        }
        my %n;
        $n{$status{$_}}++ for @order;
        my $compiled = ($n{killed} // 0) + ($n{survived} // 0);
        printf "mutants run: %d; killed %d, survived %d, did not compile %d, stale %d\n",
            scalar @order, $n{killed} // 0, $n{survived} // 0, $n{nocompile} // 0, $n{stale} // 0;
        printf "score: %d / %d compiled = %.1f %%\n", $n{killed} // 0, $compiled,
            $compiled ? 100 * ($n{killed} // 0) / $compiled : 0;
        my $equivalent = grep { $mutant{$_}{note} =~ /^equivalent/ } keys %mutant;
        printf "listed as equivalent (not run): %d\n", $equivalent if $equivalent;
        for my $kind (qw(survived nocompile stale)) {
            my @ids = grep { $status{$_} eq $kind } @order;
            next unless @ids;
            print "\n$kind:\n";
            for my $id (@ids) {
                my $m = $mutant{$id} // {file => "?", snippet => "?", replacement => "?"};
                print "  $id  $m->{file}: \"$m->{snippet}\" -> \"$m->{replacement}\"\n";
            }
        }
        my $table = sub {
            my ($title, $by) = @_;
            my %tests;
            for my $id (grep { $status{$_} eq "killed" } @order) {
                my @k = @{$by->{$id}};
                $tests{$_}{killed}++ for @k;
                $tests{$k[0]}{only}++ if @k == 1;
            }
            return unless %tests;
            print "\n$title: mutants killed, killed by it alone\n";
            for my $t (sort { $tests{$b}{killed} <=> $tests{$a}{killed} || $a cmp $b } keys %tests) {
                printf "  %-56s %4d %4d\n", $t, $tests{$t}{killed}, $tests{$t}{only} // 0;
            }
        };
        $table->("per test", \%killers);
        # A crash or a time-out names no function: those kills count for the test only.
        $table->("per test function (QTest FAIL lines)", \%functions);
    ' "$list" "$results"
}

if [ "$report_only" -eq 1 ]; then
    report | tee "$out/report.txt"
    exit 0
fi

[ -f "$list" ] || { echo "mutate.sh: no mutant list $list" >&2; exit 2; }
if [ ! -f "$build/build.ninja" ]; then
    linker=()
    command -v ld.lld > /dev/null && linker=(-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld -DCMAKE_SHARED_LINKER_FLAGS=-fuse-ld=lld
                                           -DCMAKE_MODULE_LINKER_FLAGS=-fuse-ld=lld)
    cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "${linker[@]}" > /dev/null
fi
mkdir -p "$out"
[ "$resume" -eq 1 ] || : > "$results"
touch "$results"

run_tests() { # test names... -> names of the failing ones on stdout
    local regex
    regex="^($(IFS='|'; echo "$*"))\$"
    rm -f "$build/Testing/Temporary/LastTestsFailed.log"
    (cd "$build" && QT_QPA_PLATFORM=offscreen ctest -j"$jobs" --timeout "$timeout" ${quick[@]+"${quick[@]}"} -R "$regex" > "$out/ctest.log" 2>&1) || true
    if ! grep -qE '^[0-9]+% tests passed' "$out/ctest.log"; then
        echo "mutate.sh: ctest did not run (see $out/ctest.log)" >&2
        exit 1
    fi
    [ -f "$build/Testing/Temporary/LastTestsFailed.log" ] && sed 's/^[0-9]*://' "$build/Testing/Temporary/LastTestsFailed.log"
    grep -oP '^FAIL!  : \K\w+::\w+' "$build/Testing/Temporary/LastTest.log" | sort -u | paste -sd, - > "$out/functions"
    return 0
}

# Every test with the files it runs: its own program and the ones named in REQUIRED_FILES
# (the console and the simulator it starts, the libraries it loads).
test_files() {
    (cd "$build" && ctest --show-only=json-v1) | perl -MJSON::PP -e '
        my $j = decode_json(join "", <STDIN>);
        for my $t (@{$j->{tests}}) {
            my @files = ($t->{command}[0]);
            for my $p (@{$t->{properties} // []}) {
                push @files, @{$p->{value}} if $p->{name} eq "REQUIRED_FILES";
            }
            print join("\t", $t->{name}, @files), "\n";
        }'
}

echo "Building the unmutated tree in $build ..."
cmake --build "$build" > "$out/build.log" 2>&1 || { echo "mutate.sh: the unmutated tree does not build (see $out/build.log)" >&2; exit 1; }
test_files > "$out/tests.tsv"
mapfile -t all_tests < <(cut -f1 "$out/tests.tsv")
echo "Running the ${#all_tests[@]} tests on the unmutated tree ..."
failing=$(run_tests "${all_tests[@]}")
if [ -n "$failing" ]; then
    echo "mutate.sh: these tests fail without any mutant; fix them first:" $failing >&2
    exit 1
fi

current_file=""
restore() {
    if [ -n "$current_file" ]; then
        # A fresh modification time: the next build must recompile the restored file.
        cat "$out/original" > "$root/$current_file"
        current_file=""
    fi
}
trap 'restore' EXIT
trap 'restore; exit 130' INT TERM

selected() {
    [ ${#prefixes[@]} -eq 0 ] && return 0
    local p
    for p in "${prefixes[@]}"; do [[ "$1" == "$p"* ]] && return 0; done
    return 1
}

total=0
while IFS=$'\t' read -r -u 3 id file snippet replacement note || [ -n "$id" ]; do
    [[ -z "$id" || "$id" == \#* ]] && continue
    [[ "${note:-}" == equivalent* ]] && continue
    selected "$id" || continue
    grep -q "^$id"$'\t' "$results" && continue
    total=$((total + 1))
    started=$(date +%s)
    if [ ! -f "$file" ] || [ "$(SNIPPET=$snippet perl -0777 -ne 'print scalar(() = /\Q$ENV{SNIPPET}\E/g)' "$file")" != 1 ]; then
        printf '%s\tstale\t\t0\n' "$id" >> "$results"
        echo "$id: stale (snippet not found exactly once in $file)"
        continue
    fi
    cp "$file" "$out/original"
    current_file=$file
    SNIPPET=$snippet REPLACEMENT=$replacement perl -0777 -i -pe 's/\Q$ENV{SNIPPET}\E/$ENV{REPLACEMENT}/' "$file"
    touch "$out/stamp"
    sleep 0.01
    if ! cmake --build "$build" > "$out/build.log" 2>&1; then
        restore
        printf '%s\tnocompile\t\t%d\n' "$id" $(($(date +%s) - started)) >> "$results"
        echo "$id: did not compile"
        continue
    fi
    # Only tests whose program or required files were rebuilt can see the mutant.
    affected=()
    while IFS=$'\t' read -r name files; do
        for f in $files; do
            if [ "$f" -nt "$out/stamp" ]; then affected+=("$name"); break; fi
        done
    done < "$out/tests.tsv"
    killers=""
    [ ${#affected[@]} -gt 0 ] && killers=$(run_tests "${affected[@]}" | paste -sd, -)
    restore
    status=survived
    [ -n "$killers" ] && status=killed
    printf '%s\t%s\t%s\t%d\t%s\n' "$id" "$status" "$killers" $(($(date +%s) - started)) "$(cat "$out/functions")" >> "$results"
    echo "$id: $status ${killers:+by $killers} (${#affected[@]} tests ran, $(($(date +%s) - started)) s)"
done 3< "$list"

echo "Rebuilding the unmutated tree ..."
cmake --build "$build" > "$out/build.log" 2>&1 || echo "mutate.sh: the restored tree did not build (see $out/build.log)" >&2
echo
report | tee "$out/report.txt"
