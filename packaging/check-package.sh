#!/usr/bin/env bash
# Makes the Debian package from a build that is complete, and looks at it: check-package.sh BUILDDIR
# Fails on any error of lintian, and when something that a desktop needs is not in it.
set -euo pipefail
build=$(realpath "$1")
(cd "$build" && cpack -G DEB >package.log) || { cat "$build/package.log"; exit 1; }
package=$(ls -t "$build"/package/norvane_*.deb | head -n 1)
# In Windows-1252 on purpose: spreadsheets there write it.
lintian --fail-on error --allow-root --suppress-tags national-encoding "$package"
contents=$(dpkg-deb -c "$package")
for wanted in usr/bin/norvane usr/bin/norvanectl usr/share/applications/norvane.desktop \
    usr/share/icons/hicolor/48x48/apps/norvane.png usr/share/icons/hicolor/scalable/apps/norvane.svg \
    usr/share/man/man1/norvane.1.gz usr/share/man/man1/norvanectl.1.gz \
    usr/share/metainfo/example.dalvion.norvane.metainfo.xml usr/share/norvane/nvncust.db_ \
    usr/share/norvane/userman.hlp; do
    grep -q " \./$wanted\$" <<<"$contents" || { echo "$wanted is not in the package" >&2; exit 1; }
done
echo "$package"
