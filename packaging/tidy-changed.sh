#!/usr/bin/env bash
# clang-tidy over the C++ sources changed since the last landed state: tidy-changed.sh BUILDDIR [BASE]
# Without a BASE the newest commit older than twelve hours counts as landed; with none, all files do.
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
printf '%s\n' "${files[@]}" | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p "$build" --extra-arg=-Wno-unknown-warning-option
