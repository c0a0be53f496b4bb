#!/usr/bin/env bash
# The manual pages have no fault in their markup, and tell of every option and command that the
# programs say they have: check-manuals.sh BINDIR
set -euo pipefail
bin=$(realpath "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/linux"

failed=0
# page WORDS...: every word stands in the page.
tells() {
    local page=$1 word text faults
    shift
    faults=$(man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
    [ -z "$faults" ] || { echo "$page: $faults"; failed=1; }
    text=$(MANWIDTH=200 man -E UTF-8 -l "$page" | col -b)
    for word in "$@"; do
        grep -qF -- "$word" <<<"$text" || { echo "$page does not tell of $word"; failed=1; }
    done
}
options() { grep -oE '^ +--[a-z-]+' <<<"$1" | tr -d ' ' | sort -u; }

mapfile -t words < <(options "$("$bin/norvane" --help)")
[ ${#words[@]} -ge 3 ]
tells norvane.1 "${words[@]}"

mapfile -t commands < <("$bin/norvanectl" --help | sed -n '/^Commands:/,/^$/s/^  \([a-z]\+\) .*/\1/p')
[ ${#commands[@]} -ge 9 ]
words=("${commands[@]/%/ DIR}")
for command in "${commands[@]}"; do
    mapfile -t -O ${#words[@]} words < <(options "$("$bin/norvanectl" "$command" --help)")
done
tells norvanectl.1 "${words[@]}"
exit $failed
