#!/usr/bin/env bash
# Kills norvanectl at its calls that open, write, sync, lock, rename, unlink or cut files or change
# their rights, one call after the other, and looks at the folder each time: what was reported as done is there, the row under
# way is whole or absent, and the next program needs no repair. Shows that nothing of the program
# goes past the file layer that the engine's own tests stand on. Needs strace that may trace.
#
#   strace_kills.sh BINDIR      NORVANE_MATRIX=short|long: more points, or each one
set -euo pipefail
bin=$1
case "${NORVANE_MATRIX:-}" in short) step=3 ;; long) step=1 ;; *) step=5 ;; esac
# Those of other machines and libraries too; what is not called costs one run.
calls='openat open creat write writev pwrite64 pwritev pwritev2 copy_file_range sendfile sendfile64
    ftruncate truncate fallocate fdatasync fsync sync_file_range msync syncfs fcntl flock
    rename renameat renameat2 link linkat symlinkat unlink unlinkat mkdir mkdirat rmdir
    chmod fchmod fchmodat chown fchown fchownat utimensat'
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export NORVANE_PASSWORD=sysop HOME=$work QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
unset XDG_CONFIG_HOME

if ! strace -qq -o "$work/probe" -e inject=getppid:signal=SIGKILL:when=999 true 2>/dev/null; then
    echo "strace may not trace here: skipped"
    exit 0
fi

fail() {
    echo "FAILED: $*" >&2
    exit 1
}
rows() { "$bin/norvanectl" dump "$1" customers | wc -l; }
points=0

# broken CALL WHAT COMMAND...: true when the command failed, false when it went through. Tracing is
# quiet, and so is the shell about those killed.
broken() {
    local call=$1 what=$2 status=0
    shift 2
    # "?": a call that this machine's processor does not have is none
    { strace -f -qq -o /dev/null -e trace="?$call" -e inject="?$call:$what" \
        "$@" >"$work/out" 2>"$work/err" || status=$?; } 2>/dev/null
    [ "$status" != 0 ]
}

printf 'LASTNAME,COMPANY,NOTES\nDoe,Acme,%0500d\n' 1 >"$work/one.csv"
"$bin/norvanectl" new "$work/start" >/dev/null
"$bin/norvanectl" import "$work/start" customers "$work/one.csv" >/dev/null
before=$(rows "$work/start")

# A row and its counter. kill_import CALL N: false when there is no such call
kill_import() {
    local where="import, $1 $2" reported now
    rm -rf "$work/data"
    cp -r "$work/start" "$work/data"
    broken "$1" "signal=SIGKILL:when=$2" \
        "$bin/norvanectl" import "$work/data" customers "$work/one.csv" --verbose || return 1
    rm -f "$work"/data/*.nvs # the dead station's place there would be waited for
    reported=$(grep -c '^[0-9]' "$work/out" || true)
    now=$(rows "$work/data") || fail "$where: the folder cannot be read"
    [ "$now" = "$before" ] || [ "$now" = $((before + 1)) ] || fail "$where: $now rows"
    [ "$now" -ge $((before + reported)) ] || fail "$where: a row told as saved is lost"
    "$bin/norvanectl" import "$work/data" customers "$work/one.csv" >/dev/null ||
        fail "$where: the next import"
    "$bin/norvanectl" check "$work/data" >"$work/check" || fail "$where: $(cat "$work/check")"
}

# All tags anew: every row is still found, and the index is whole.
kill_reindex() {
    local where="reindex, $1 $2"
    rm -rf "$work/data"
    cp -r "$work/start" "$work/data"
    broken "$1" "signal=SIGKILL:when=$2" "$bin/norvanectl" reindex "$work/data" || return 1
    rm -f "$work"/data/*.nvs
    [ "$(rows "$work/data")" = "$before" ] || fail "$where: $(rows "$work/data") rows"
    "$bin/norvanectl" import "$work/data" customers "$work/one.csv" >/dev/null ||
        fail "$where: the next import"
    "$bin/norvanectl" check "$work/data" >"$work/check" || fail "$where: $(cat "$work/check")"
}

# A new database: all of it, or whole files that nothing takes for one.
kill_new() {
    local where="new, $1 $2" file
    rm -rf "$work/data"
    broken "$1" "signal=SIGKILL:when=$2" "$bin/norvanectl" new "$work/data" || return 1
    for file in "$work"/data/nvn*.*; do
        [ ! -e "$file" ] || cmp -s "$file" "$work/new/$(basename "$file")" ||
            fail "$where: half of $file"
    done
    if [ -d "$work/data" ] && "$bin/norvanectl" check "$work/data" >"$work/check" 2>&1; then
        "$bin/norvanectl" import "$work/data" customers "$work/one.csv" >/dev/null ||
            fail "$where: taken for a database and is none"
    fi
}

"$bin/norvanectl" new "$work/new" >/dev/null
for command in kill_import kill_reindex kill_new; do
    begun=$points
    for call in $calls; do
        for ((at = 1; ; at += step)); do
            "$command" "$call" "$at" || break
            points=$((points + 1))
        done
    done
    echo "$command: $((points - begun)) points"
done
[ "$points" -gt 20 ] || fail "only $points points"

# A disk that is full at its n-th write: nothing half stays behind, and nothing is in the way of the
# next attempt.
for ((at = 1; ; at += step)); do
    rm -rf "$work/data"
    broken write "error=ENOSPC:when=$at+" "$bin/norvanectl" new "$work/data" || break
    points=$((points + 1))
    left=$(find "$work/data" -type f 2>/dev/null | wc -l)
    [ "$left" = 0 ] || [ "$left" = "$(ls "$work/new" | wc -l)" ] ||
        fail "new, full at write $at: $left files stay behind"
done

echo "$points points, all sound"
