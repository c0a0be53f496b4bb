#!/usr/bin/env bash
# Has readers that are not ours look at what we write: a new database, the demo, a table that four
# stations changed 20,000 times, and the demo after each kind of damage and its repair. CHECKER
# reads whole folders; libdbd-xbase-perl and gdal-bin count rows where they are installed.
# check-folders.sh BINDIR CHECKER
set -euo pipefail
bin=$1
checker=$2
here=$(dirname "${BASH_SOURCE[0]}")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

"$bin/norvanectl" new "$folder/new"
"$bin/norvanectl" demo "$folder/demo"
"$bin/engine_stress" 4 20000 "$folder/stress"
python3 "$checker" "$folder/new" "$folder/demo" "$folder/stress"

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

# A reader that is not installed is told once and left out.
has() {
    case $1 in
    xbase) perl -MXBase -e 1 2>/dev/null ;;
    ogr) command -v ogrinfo >/dev/null ;;
    esac
}
has xbase || echo "libdbd-xbase-perl is not installed: tables are not walked by it."
has ogr || echo "gdal-bin is not installed: rows are not counted by it."

rows=$(od -An -tu4 -j4 -N4 "$folder/demo/nvncust.dbf" | tr -d ' ')
for damage in "index cut" "index removed" "index of another table" "index overwritten" "a byte of a leaf" \
    "rows counted that are not there" "rows not counted" "memo header lost" "memo file cut"; do
    rm -rf "$folder/hurt" "$folder/report"
    cp -r "$folder/demo" "$folder/hurt"
    table=$folder/hurt/nvncust
    make_damage "$table"
    ! python3 "$checker" "$folder/hurt" >/dev/null 2>&1 || fail "it was no damage"
    # What was cut off a memo file nobody can bring back: both have to name it, and nothing else.
    expected=0
    [ "$damage" != "memo file cut" ] || expected=1
    status=0
    "$bin/norvanectl" repair --user SYSOP "$folder/hurt" <<<SYSOP >"$folder/report" 2>&1 || status=$?
    [ "$status" = "$expected" ] || fail "norvanectl ended with $status"
    status=0
    python3 "$checker" "$folder/hurt" >"$folder/report" 2>&1 || status=$?
    [ "$status" = "$expected" ] || fail "the checker ended with $status"
    [ "$(grep -v 'nvncust.fpt' "$folder/report" | grep -c 'violation')" = 0 ] ||
        fail "the checker finds more than the memo file"
    if has xbase; then
        perl "$here/walk_tables.pl" "$table.dbf" >"$folder/report" 2>&1 || fail "the order of the index is wrong"
        grep -q ": $rows rows, $rows live, $rows by" "$folder/report" || fail "there were $rows rows"
    fi
    if has ogr; then
        found=$(ogrinfo -ro -al "$table.dbf" | grep -c '^OGRFeature')
        [ "$found" = "$rows" ] || fail "ogrinfo finds $found of $rows rows"
    fi
done
echo "The demo was repaired after 9 kinds of damage, and all readers agree."
