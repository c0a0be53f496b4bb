#!/usr/bin/env bash
# Two hosts on one shared folder, inside one ordinary process: a user-mode kernel with this machine's
# files as its read-only root, a kernel NFS server and smbd in it, and two hosts with a network, a name
# and a start mark of their own. Packages are unpacked, none is installed. Needs root and Debian's apt.
#
#   tests/long/network.sh BINDIR ROUNDS [TEST...]    tests: nfs smb smb-one nfs-full
#       smb-full nfs-link smb-link nobrl
#
# Prints a line for each test; the exit status is 1 when one did not hold.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
bin=$(cd "$1" && pwd)
rounds=$2
shift 2
tests=${*:-nfs smb smb-one nfs-full smb-full nfs-link smb-link nobrl}
lab=$here/../../build/network
mkdir -p "$lab"
lab=$(cd "$lab" && pwd)

if [ ! -e "$lab/unpacked" ]; then
    mkdir -p "$lab/deb" "$lab/root"
    wanted=$(apt-get install -s --no-install-recommends user-mode-linux nfs-kernel-server samba cifs-utils kmod iproute2 |
        awk '/^Inst/ {print $2}')
    (cd "$lab/deb" && apt-get -q download $wanted >"$lab/download.log" 2>&1) || { cat "$lab/download.log"; exit 1; }
    for package in "$lab"/deb/*.deb; do dpkg-deb -x "$package" "$lab/root"; done
    mkdir -p "$lab/modules/lib"
    ln -sfn "$lab/root/usr/lib/uml/modules" "$lab/modules/lib/modules"
    touch "$lab/unpacked"
fi

cat >"$lab/init" <<INIT
#!/bin/bash
export LAB='$lab' BIN='$bin' ROUNDS='$rounds' TESTS='$tests'
exec '$here/network_guest.sh'
INIT
# The kernel's own way to load modules; it has the usual places only.
printf '#!/bin/bash\nexec "%s" -d "%s" "$@"\n' "$lab/modprobe" "$lab/modules" >"$lab/modprobe.sh"
ln -sfn "$(command -v kmod || echo "$lab/root/bin/kmod")" "$lab/modprobe"
chmod +x "$lab/init" "$lab/modprobe.sh" "$here/network_guest.sh"

# Memory of the kernel is a file; the run ends by itself, and is ended when it hangs.
log=$lab/log
TMPDIR=$lab timeout -k 10 "${NORVANE_NETWORK_LIMIT:-7200}" "$lab/root/usr/bin/linux.uml" mem=768M \
    root=/dev/root rootfstype=hostfs rootflags=/ ro quiet con=null con0=null,fd:1 ssl=null \
    init="$lab/init" uml_dir="$lab/" </dev/null 2>/dev/null | sed -u 's,\r,,' | tee "$log" | grep --line-buffered '^| ' |
    sed -u 's/^| //' || true
grep -q '^| all held$' "$log" || { tail -n 20 "$log"; exit 1; }
