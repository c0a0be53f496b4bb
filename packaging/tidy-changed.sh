#!/usr/bin/env bash
# clang-tidy over the C++ sources changed since the last landed state: tidy-changed.sh BUILDDIR [BASE]
# Without a BASE the newest commit older than twelve hours counts as landed; with none, all files do.
# NORVANE_TIDY_MINUTES=N: no file is begun after so long, and those left out are counted. Which files
# come first changes from day to day, so that none is left out for good.
set -euo pipefail
build=$1
base=${2:-$(git rev-list -1 --before='12 hours ago' HEAD)}
if [ -n "$base" ]; then
    mapfile -t files < <(git diff --name-only --diff-filter=d "$base" -- 'src/*.cpp')
else
    mapfile -t files < <(git ls-files 'src/*.cpp')
fi
# Only what this machine compiles (the Windows file layer is not in the database here).
mapfile -t files < <(printf '%s\n' "${files[@]}" | while read -r file; do
    grep -q "\"$PWD/$file\"" "$build/compile_commands.json" && echo "$file"
done || true)
[ ${#files[@]} -gt 0 ] || exit 0

export build
export end=$(($(date +%s) + ${NORVANE_TIDY_MINUTES:-600} * 60)) left_out
left_out=$(mktemp)
trap 'rm -f "$left_out"' EXIT
look() {
    if [ "$(date +%s)" -ge "$end" ]; then
        echo "$1" >>"$left_out"
    else
        clang-tidy --quiet -p "$build" --extra-arg=-Wno-unknown-warning-option "$1"
    fi
}
export -f look
printf '%s\n' "${files[@]}" | shuf --random-source=<(yes "$(date +%F)") |
    xargs -P "$(nproc)" -I{} bash -c 'look {}'
echo "clang-tidy: ${#files[@]} files changed, $(wc -l <"$left_out") left out for the time"
