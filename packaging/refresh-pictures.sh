#!/bin/sh
# Writes the pictures of README, package description and manual anew, from the guided tour of a
# built program: packaging/refresh-pictures.sh [BUILD FOLDER]. Needs ImageMagick.
set -eu
cd "$(dirname "$0")/.."
build=${1:-build/app}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME=$work/config "$build/bin/norvane" --tour "$work/tour" >"$work/log" 2>&1 || {
    cat "$work/log"
    exit 1
}

# take NAME FILE [SIZE]: the tour's picture of that name, whatever its number
take() {
    set -- "$(echo "$work"/tour/[0-9][0-9]-"$1".png)" "$2" "${3:-100%}"
    convert "$1" -resize "$3" +dither -colors 128 -strip -define png:compression-level=9 "$2"
}

take found-by-address docs/pictures/customers.png
take issue-actions docs/pictures/issue.png
take report docs/pictures/report.png
mkdir -p data/help/pictures
for name in found-by-address lookup-name customer subscription-saved new-issue issue-actions my-issues \
    report-definition report import-rows user-rights; do
    take $name data/help/pictures/$name.png 600x
done
