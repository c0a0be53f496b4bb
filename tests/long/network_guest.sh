#!/bin/bash
# The first process of the user-mode kernel (network.sh). Lines of the result begin with "| ".
root=$LAB/root
export PATH=/usr/sbin:/usr/bin:/sbin:/bin:$root/usr/sbin:$root/usr/bin:$root/sbin:$root/bin
libraries=$(find "$root" -name 'lib*.so*' -printf '%h\n' | sort -u | tr '\n' ':')
export LD_LIBRARY_PATH=${libraries%:}
exec 2>&1
mount -t proc proc /proc
mount -t sysfs sys /sys
for place in /run /var/lib /var/log /var/cache /mnt /srv /root; do mount -t tmpfs tmpfs $place; done
mount -o remount,size=64m /srv
mkdir -p /var/lib/nfs/{v4recovery,rpc_pipefs} /var/lib/samba/private /var/log/samba /var/cache/samba \
    /run/samba /run/lock /srv/data /mnt/data
touch /var/lib/nfs/etab /var/lib/nfs/rmtab
chmod 777 /srv/data
echo "$LAB/modprobe.sh" >/proc/sys/kernel/modprobe
for module in veth nfs nfsv4 nfsd cifs; do "$LAB/modprobe.sh" $module || echo "no module $module"; done
ip link set lo up

declare -A process
# host NAME NET: with an address, a name, mounts and a start mark of its own, on a cable to the server
host() {
    unshare -n -u -m sleep 1000000 &
    process[$1]=$!
    until [ "$(readlink /proc/$!/ns/net)" != "$(readlink /proc/self/ns/net)" ]; do sleep 0.1; done
    ip link add "server$1" type veth peer name "host$1"
    ip link set "host$1" netns "$!"
    ip addr add "10.0.$2.1/24" dev "server$1"
    ip link set "server$1" up
    cat /proc/sys/kernel/random/uuid >"/run/start$1"
    on "$1" hostname "host$1"
    on "$1" ip addr add "10.0.$2.2/24" dev "host$1"
    on "$1" ip link set "host$1" up
    on "$1" ip link set lo up
    on "$1" mount --bind "/run/start$1" /proc/sys/kernel/random/boot_id
}
on() { local name=$1; shift; nsenter -t "${process[$name]}" -n -u -m "$@"; }
host a 1
host b 2

failed=0
mount_both() { # KIND OPTIONS
    local name net
    for name in a b; do
        net=$([ $name = a ] && echo 1 || echo 2)
        if [ "$1" = nfs ]; then
            on $name "$root/sbin/mount.nfs4" "10.0.$net.1:/" /mnt/data -o "vers=4.2$2"
        else
            on $name "$root/sbin/mount.cifs" "//10.0.$net.1/data" /mnt/data \
                -o "username=root,password=pw,vers=3.1.1$2"
        fi || { echo "| $1: the folder cannot be mounted"; failed=1; return 1; }
    done
}
unmount_both() { for name in a b; do on $name umount -f /mnt/data || on $name umount -l /mnt/data; done; }
# Leaves a little room, each time another.
cat >/run/fill <<'FILL'
#!/bin/bash
dd if=/dev/zero of=/srv/ballast bs=64k status=none 2>/dev/null
truncate -s -$((RANDOM % 16 * 4))K /srv/ballast
FILL
chmod +x /run/fill
# [second=a] [cut=COMMAND join=COMMAND] try NAME KIND OPTIONS TESTS ROUNDS: with two hosts, or two
# stations of one
try() {
    echo "== $1"
    rm -rf /srv/data/*
    mount_both "$2" "$3" || return
    local shown
    shown=$(on a sed -n 's,.* /mnt/data \([a-z0-9]*\) \(.*\) 0 0,\1 \2,p' /proc/mounts)
    echo "mounted: $shown"
    local out=/run/out
    if timeout 7000 "$BIN/engine_hosts" /mnt/data "$4" "$5" \
        "nsenter -t ${process[a]} -n -u -m" "nsenter -t ${process[${second:-b}]} -n -u -m" \
        "${cut:-ip link set servera down}" "${join:-ip link set servera up}" >$out; then
        echo "all tests of $1 held"
    else
        failed=1
        echo "| $1: NOT held"
    fi
    sed "s/^/| $1: /" $out
    unmount_both
}

# watch NAME KIND OPTIONS EXPECTED: what a station on each host says of the locks, within ten seconds
watch() {
    local name told=
    rm -rf /srv/data/*
    mount_both "$2" "$3" || return
    for name in a b; do
        on $name timeout 60 "$BIN/station_watch" /mnt/data 12 >/run/watch$name &
        told+=" $!"
        sleep 1
    done
    wait $told
    unmount_both
    for name in a b; do
        echo "| $1: watch of host $name: $(cat /run/watch$name)"
        case $4 in
        deaf) awk '!/^locks do not reach/ || $6 > 10 {exit 1}' /run/watch$name ;;
        well) grep -q '^all is well' /run/watch$name ;;
        esac || { echo "| $1: NOT held"; failed=1; }
    done
}

nfs_server() {
    mount -t nfsd nfsd /proc/fs/nfsd
    mount -t rpc_pipefs rpc /var/lib/nfs/rpc_pipefs
    exportfs -o rw,no_root_squash,fsid=0,insecure,no_subtree_check '*:/srv/data'
    rpc.mountd --no-nfs-version 3 --no-udp
    # A client notices a cut about one lease later, and its locks go after one lease.
    echo 20 >/proc/fs/nfsd/nfsv4leasetime
    echo 20 >/proc/fs/nfsd/nfsv4gracetime
    rpc.nfsd -N 3 4
    sleep 1
}
smb_server() {
    cat >/run/smb.conf <<CONF
[global]
 server role = standalone server
 passdb backend = tdbsam:/var/lib/samba/private/passdb.tdb
 private dir = /var/lib/samba/private
 state directory = /var/lib/samba
 cache directory = /var/cache/samba
 lock directory = /run/samba
 pid directory = /run/samba
 ncalrpc dir = /run/samba/ncalrpc
 log file = /var/log/samba/log
 disable netbios = yes
 smb ports = 445
 load printers = no
 socket options = TCP_NODELAY SO_KEEPALIVE TCP_KEEPIDLE=10 TCP_KEEPINTVL=5 TCP_KEEPCNT=3
[data]
 path = /srv/data
 read only = no
CONF
    printf 'pw\npw\n' | smbpasswd -c /run/smb.conf -s -a root
    smbd -s /run/smb.conf -D
    for _ in 1 2 3 4 5 6 7 8 9 10; do
        sleep 1
        (: >/dev/tcp/127.0.0.1/445) 2>/dev/null && return
    done
}
case $TESTS in *nfs* | *nobrl*) nfs_server ;; esac
case $TESTS in *smb* | *nobrl*) smb_server ;; esac

walks=$((ROUNDS < 1000 ? ROUNDS : 1000))
full=$((ROUNDS < 60 ? ROUNDS : 60))
for test in $TESTS; do
    case $test in
    nfs)
        try "NFS 4.2" nfs "" numbers "$ROUNDS"
        try "NFS 4.2" nfs "" walk,change,dead "$walks"
        ;;
    nobrl)
        watch "SMB 3.1.1, nobrl" smb ",nobrl" deaf
        watch "SMB 3.1.1" smb "" well
        watch "NFS 4.2" nfs "" well
        ;;
    smb)
        try "SMB 3.1.1" smb "" numbers "$ROUNDS"
        try "SMB 3.1.1" smb "" walk,change,dead "$walks"
        ;;
    smb-one) second=a try "SMB 3.1.1, one host" smb "" numbers,walk,change,dead "$walks" ;;
    nfs-full) cut=/run/fill join="rm /srv/ballast" try "NFS 4.2" nfs "" full "$full" ;;
    smb-full) cut=/run/fill join="rm /srv/ballast" try "SMB 3.1.1" smb "" full "$full" ;;
    nfs-link) try "NFS 4.2, soft,timeo=40,retrans=1" nfs ",soft,timeo=40,retrans=1" link 30 ;;
    smb-link) try "SMB 3.1.1, echo_interval=4" smb ",echo_interval=4" link 30 ;;
    esac
done
[ $failed = 0 ] && echo "| all held"
echo o >/proc/sysrq-trigger
sleep 10
