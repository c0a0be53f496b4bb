#!/usr/bin/env bash
# Builds the fuzz targets and runs each for SECONDS, as many at once as there are cores:
#   tests/fuzz/run.sh SECONDS [TARGET...]
# Fails when one finds something; the input is then in build/fuzz/findings. Fails too when one is slow:
# under 150 runs in a second of processor time (NORVANE_FUZZ_RATE=N: under N), since then a minute shows
# little; under 300 it says so. New inputs are kept in build/fuzz/corpus, tests/fuzz/corpus is only read. NORVANE_BUILD=no: they
# are built. NORVANE_FUZZ_SEED=N makes a run choose as another one with the same number did.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

seconds=${1:?usage: tests/fuzz/run.sh SECONDS [TARGET...]}
shift
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    for source in tests/fuzz/fuzz_*.cpp; do
        name=${source##*/fuzz_}
        targets+=("${name%.cpp}")
    done
fi

if [ "${NORVANE_BUILD:-yes}" = yes ]; then
    [ -f build/fuzz/build.ninja ] || cmake --preset fuzz
    cmake --build build/fuzz --target "${targets[@]/#/fuzz_}"
fi
mkdir -p build/fuzz/findings build/fuzz/logs

fuzz_one() {
    local target=$1
    mkdir -p "build/fuzz/corpus/$target"
    # Freed memory is not held back for long, so that the limit is the program's own.
    # Of stacks only the innermost call is kept: through libraries built without frame pointers the rest
    # is guessed, each guess is a new stack, and none is ever given back.
    # Its own choice of inputs by rare features takes half of the time here, hence none.
    ASAN_OPTIONS=quarantine_size_mb=1:thread_local_quarantine_size_kb=64:allocator_may_return_null=1:malloc_context_size=1 \
    UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
        "build/fuzz/bin/fuzz_$target" -max_total_time="$2" -max_len=65536 -timeout=10 -entropic=0 \
        -malloc_limit_mb=64 -rss_limit_mb=96 -print_final_stats=1 -verbosity=1 -seed="${NORVANE_FUZZ_SEED:-0}" \
        -artifact_prefix="build/fuzz/findings/$target-" \
        "build/fuzz/corpus/$target" "tests/fuzz/corpus/$target"
}
run_one() {
    local TIMEFORMAT='%U %S'
    time fuzz_one "$@" >"build/fuzz/logs/$1" 2>&1
}
export -f fuzz_one run_one

printf '%s\n' "${targets[@]}" | xargs -P "$(nproc)" -I{} bash -c \
    'run_one {} '"$seconds"' 2>build/fuzz/logs/{}.time || touch build/fuzz/logs/{}.failed'

failed=0
for target in "${targets[@]}"; do
    if [ -e "build/fuzz/logs/$target.failed" ]; then
        rm "build/fuzz/logs/$target.failed"
        failed=1
        echo "fuzz_$target found something:"
        tail -n 60 "build/fuzz/logs/$target"
    else
        runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "build/fuzz/logs/$target")
        memory=$(sed -n 's/^stat::peak_rss_mb: *//p' "build/fuzz/logs/$target")
        rate=$(awk -v runs="$runs" '{print int(runs / ($1 + $2))}' "build/fuzz/logs/$target.time")
        echo "fuzz_$target: nothing in $seconds s, $runs runs, $rate in a second of processor time, $memory MB"
        [ "$rate" -ge 300 ] || echo "fuzz_$target is slow: 300 are wanted"
        [ "$rate" -ge "${NORVANE_FUZZ_RATE:-150}" ] || failed=1
    fi
done
exit $failed
