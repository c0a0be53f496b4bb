#!/usr/bin/env bash
# Has an independent checker read what we write: a new database, the demo, and a table that four
# stations changed 20,000 times. check-folders.sh BINDIR CHECKER
set -euo pipefail
bin=$1
checker=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

"$bin/norvanectl" new "$folder/new"
"$bin/norvanectl" demo "$folder/demo"
"$bin/engine_stress" 4 20000 "$folder/stress"
python3 "$checker" "$folder/new" "$folder/demo" "$folder/stress"
