#!/usr/bin/env bash
# The long lengths of the tests, for a night before a release: one line of result for each part.
#
#   tests/long.sh [--only PART[,PART]] [--minutes N]
#
# Parts: fuzz power matrix processes soak network. --minutes bounds what runs by time (without it an hour for each
# fuzz target, ten minutes for the processes, two hours for the soak) and shortens the rest. Logs are in
# build/long. The exit status is 1 when a part failed. NORVANE_BUILD=no: everything is built.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
parts=(fuzz power matrix processes soak network)
minutes=

usage() { sed -n '2,9s/^# \{0,1\}//p' "$0" >&2; exit 2; }
while [ $# -gt 0 ]; do
    case $1 in
    --only) IFS=, read -r -a parts <<<"${2:?}"; shift 2 ;;
    --minutes) minutes=${2:?}; shift 2; [[ $minutes =~ ^[1-9][0-9]*$ ]] || usage ;;
    *) usage ;;
    esac
done
for part in "${parts[@]}"; do
    case $part in fuzz | power | matrix | processes | soak | network) ;; *) usage ;; esac
done

source packaging/setup.sh
if [ "${NORVANE_BUILD:-yes}" = yes ]; then
    install_packages "${norvane_build_packages[@]}" "${norvane_test_packages[@]}" "${norvane_long_packages[@]}"
    build_preset dev
fi
bin=build/dev/bin
mkdir -p build/long
export QT_QPA_PLATFORM=offscreen TZ=UTC LC_ALL=C.UTF-8

# seconds USUAL: of a part that runs for so many minutes unless told otherwise
seconds() { echo $((${minutes:-$1} * 60)); }
# at_most FULL EACH: FULL of something, or EACH for every minute given
at_most() {
    local some=$((${minutes:-0} * $2))
    echo $((some > 0 && some < $1 ? some : $1))
}

# Each part says its figures on standard output and keeps the rest in its log.
run_fuzz() {
    nice tests/fuzz/run.sh "$(seconds 60)" >"$log" 2>&1
    local code=$?
    sed -n 's/^fuzz_\([a-z_]*\): nothing in [0-9]* s, \(.* MB\)$/\1: \2/p' "$log" | paste -sd';'
    grep -h 'found something\|is slow' "$log" || true
    return $code
}
run_power() {
    local states
    states=$(at_most 100000 5000)
    NORVANE_POWER_STATES=$states nice $bin/test_engine --gtest_filter='JournalPower.*' >"$log" 2>&1
    local code=$?
    echo "$states states after a power cut: $(tests_in "$log")"
    return $code
}
run_matrix() {
    local code=0
    export NORVANE_MATRIX=long
    [ -z "$minutes" ] || NORVANE_MATRIX=short
    : >"$log"
    nice $bin/test_engine >>"$log" 2>&1 || code=1
    [ ! -x $bin/test_engine_memory ] || nice $bin/test_engine_memory >>"$log" 2>&1 || code=1
    nice $bin/test_db >>"$log" 2>&1 || code=1
    [ ! -x tests/strace_kills.sh ] || nice tests/strace_kills.sh $bin >>"$log" 2>&1 || code=1
    echo "$(tests_in "$log"); $(tail -n 1 "$log")"
    return $code
}
run_processes() {
    local code=0
    nice $bin/engine_stress 8 8000 >"$log" 2>&1 || code=1
    nice $bin/engine_soak 8 "$(seconds 10)" 0 >>"$log" 2>&1 || code=1
    echo "8 stations: $(tail -n 1 "$log")"
    return $code
}
run_soak() {
    nice $bin/engine_soak 8 "$(seconds 120)" 200 >"$log" 2>&1
    local code=$?
    tail -n 1 "$log"
    return $code
}
run_network() {
    tests/long/network.sh $bin "$(at_most 5000 200)" >"$log" 2>&1
    local code=$?
    paste -sd'|' "$log" | sed 's/|/ | /g'
    return $code
}
tests_in() {
    grep -hc '^\[       OK \]' "$1" | awk '{n += $1} END {printf "%d tests passed", n}'
    grep -h '^matrix: ' "$1" | sed 's/^matrix: /, /' | tr -d '\n'
    grep -h '^\[  FAILED  \] .*[a-z]$' "$1" | sort -u | paste -sd' ' | sed 's/^/ /;/^ $/d'
}

failed=0
for part in "${parts[@]}"; do
    begun=$SECONDS
    log=build/long/$part.log
    if figures=$(set +e; "run_$part"); then result=ok; else result=FAILED failed=1; fi
    echo "$part: $result in $(((SECONDS - begun + 59) / 60)) min: $figures"
done
exit $failed
