#!/usr/bin/env bash
# Installs the Debian package in a clean root, runs both programs there as an ordinary user, and
# removes it again: try-package.sh PACKAGE.deb [ROOT]
# As root; wants debootstrap and a mirror. A ROOT that is there already is used as it is.
set -euo pipefail
package=$(realpath "$1")
root=${2:-$(mktemp -d)/root}
release=$(. /etc/os-release && echo "$VERSION_CODENAME")

[ -d "$root/usr" ] || debootstrap --variant=minbase "$release" "$root" >/dev/null
cp "$package" "$root/tmp/norvane.deb"
cp /etc/resolv.conf "$root/etc/resolv.conf" 2>/dev/null || true
for folder in proc dev; do mount --bind "/$folder" "$root/$folder"; done
trap 'umount "$root/proc" "$root/dev"' EXIT

inside() { chroot "$root" env -i PATH=/usr/bin:/bin:/usr/sbin:/sbin DEBIAN_FRONTEND=noninteractive HOME=/root "$@"; }
person() { inside su visitor -c "LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen $*"; }

inside apt-get -q update >/dev/null
inside apt-get -q -y --no-install-recommends install /tmp/norvane.deb >/dev/null
inside id visitor >/dev/null 2>&1 || inside useradd -m visitor
person norvane --version
person norvanectl demo /home/visitor/demo
person norvanectl check /home/visitor/demo
person norvane --tour /home/visitor/pictures | tail -n 1
pictures=$(find "$root/home/visitor/pictures" -name '*.png' | wc -l)
[ "$pictures" -ge 40 ] || { echo "only $pictures pictures of the tour" >&2; exit 1; }

inside apt-get -q -y purge norvane >/dev/null
left=$(find "$root/usr" "$root/etc" -iname '*norvane*')
[ -z "$left" ] || { echo "left behind: $left" >&2; exit 1; }
echo "installed, run and removed; $pictures pictures"
