#!/usr/bin/env bash
# Has readers that are not ours look at every table we write: a new database, the demo, a table that
# four stations changed 20,000 times, and the demo after each kind of damage and its repair, which must
# read as it did before. libdbd-xbase-perl walks rows, texts and a tag, gdal-bin the rows; CHECKER, when
# there is one, looks at a folder as a whole. Without one of the readers it fails.
# check-folders.sh BINDIR [CHECKER]
set -euo pipefail
bin=$1
checker=${2:-}
here=$(dirname "${BASH_SOURCE[0]}")
perl -MXBase -e 1 2>/dev/null || { echo "A reader is missing: libdbd-xbase-perl" >&2; exit 1; }
command -v ogrinfo >/dev/null || { echo "A reader is missing: ogrinfo (gdal-bin)" >&2; exit 1; }
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

"$bin/norvanectl" new "$folder/new"
"$bin/norvanectl" demo "$folder/demo"
"$bin/engine_stress" 4 20000 "$folder/stress"
[ -z "$checker" ] || python3 "$checker" "$folder/new" "$folder/demo" "$folder/stress"

fail() {
    printf 'After the damage "%s" and its repair: %s\n' "$damage" "$1" >&2
    [ ! -f "$folder/report" ] || cat "$folder/report" >&2
    exit 1
}

# Bytes at an offset of a file; the bytes as printf has them.
put() { printf "$3" | dd of="$1" bs=1 seek="$2" conv=notrunc status=none; }
# The number of rows in the header, raised by so many.
miscount() {
    local rows
    rows=$(($(od -An -tu4 -j4 -N4 "$1") + $2))
    put "$1" 4 "$(printf '\\x%02x\\x%02x' $((rows & 255)) $((rows >> 8)))"
}
# One byte of the entries of the index's last leaf that has any.
flip_leaf() {
    python3 - "$1" <<'END'
import sys
data = bytearray(open(sys.argv[1], 'rb').read())
leaf = max(at for at in range(0, len(data), 512)
           if data[at] in (2, 3) and data[at + 1] == 0 and 5 < data[at + 2] and data[at + 23] in range(3, 9))
data[leaf + 25] ^= 0x10
open(sys.argv[1], 'wb').write(data)
END
}

make_damage() {
    case $damage in
    "index cut") truncate -s 5000 "$1.cdx" ;;
    "index removed") rm "$1.cdx" ;;
    "index of another table") cp "$(dirname "$1")/nvncat.cdx" "$1.cdx" ;;
    "index overwritten") head -c 9000 /dev/zero | tr '\0' Z >"$1.cdx" ;;
    "a byte of a leaf") flip_leaf "$1.cdx" ;;
    "rows counted that are not there") miscount "$1.dbf" 3 ;;
    "rows not counted") miscount "$1.dbf" -2 ;;
    "memo header lost") put "$1.fpt" 0 '\xff\xff\xff\xff' ;;
    "memo file cut") truncate -s 8000 "$1.fpt" ;;
    esac
}

# What both readers find in all tables of a folder: a line a table and reader.
read_folder() {
    local table sum
    perl "$here/walk_tables.pl" "$1"/*.dbf || return 1
    for table in "$1"/*.dbf; do
        sum=$(ogrinfo -ro -al "$table" | sed -n '/^OGRFeature/,$p' | md5sum) || return 1
        echo "$(basename "$table"): ogr $sum"
    done
}
for sound in new stress demo; do
    read_folder "$folder/$sound" >"$folder/before" || { cat "$folder/before" >&2; exit 1; }
done
[ "$(grep -c ': ogr ' "$folder/before")" -gt 5 ]

for damage in "index cut" "index removed" "index of another table" "index overwritten" "a byte of a leaf" \
    "rows counted that are not there" "rows not counted" "memo header lost" "memo file cut"; do
    rm -rf "$folder/hurt" "$folder/report"
    cp -r "$folder/demo" "$folder/hurt"
    table=$folder/hurt/nvncust
    make_damage "$table"
    ! "$bin/norvanectl" check --user SYSOP "$folder/hurt" <<<SYSOP >/dev/null 2>&1 || fail "it was no damage"
    # What was cut off a memo file nobody can bring back: both have to name it, and nothing else.
    expected=0
    [ "$damage" != "memo file cut" ] || expected=1
    status=0
    "$bin/norvanectl" repair --user SYSOP "$folder/hurt" <<<SYSOP >"$folder/report" 2>&1 || status=$?
    [ "$status" = "$expected" ] || fail "norvanectl ended with $status"
    if [ -n "$checker" ]; then
        status=0
        python3 "$checker" "$folder/hurt" >"$folder/report" 2>&1 || status=$?
        [ "$status" = "$expected" ] || fail "the checker ended with $status"
        [ "$(grep -v 'nvncust.fpt' "$folder/report" | grep -c 'violation')" = 0 ] ||
            fail "the checker finds more than the memo file"
    fi
    read_folder "$folder/hurt" >"$folder/after" 2>"$folder/report" || fail "a reader stumbles"
    lost=
    [ "$damage" != "memo file cut" ] || lost='/^nvncust.dbf/s/, texts .*//'
    diff <(sed "$lost" "$folder/before") <(sed "$lost" "$folder/after") >"$folder/report" ||
        fail "the tables read otherwise than before"
done
echo "The demo was repaired after 9 kinds of damage, and all readers agree."
