#!/usr/bin/env bash
# Compiles the engine and its tests for Windows, without linking: check-windows.sh
# So the file layer of that system does not rot where nobody runs it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
compiler=$(command -v x86_64-w64-mingw32-g++-posix || command -v x86_64-w64-mingw32-g++)

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
ln -s /usr/include/gtest "$scratch/gtest"
printf '#pragma once\n#define NORVANE_SOURCE_DIR "."\n#define NORVANE_BINARY_DIR "."\n' >"$scratch/TestPlaces.h"

# Left out: what plays with processes, signals and system calls in the way of the other systems.
mapfile -t sources < <(
    ls src/db/engine/*.cpp tests/engine/*.cpp |
        grep -v -e FilePosix.cpp -e FailingCalls.cpp -e tests/engine/Station.cpp \
            -e test_fuse.cpp -e test_locks.cpp -e test_system_faults.cpp
)
printf '%s\n' "${sources[@]}" |
    xargs -P "$(nproc)" -n 1 "$compiler" -std=c++20 -Isrc -Itests -isystem "$scratch" \
        -Wall -Wextra -Werror -fsyntax-only
echo "${#sources[@]} files compile for Windows"
